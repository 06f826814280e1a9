#!/usr/bin/env bash
# Runs the command of the README's "Checking a configuration" section from the source tree and compares its
# standard output with the output the README shows beneath it.
# usage: readme-lint-test.sh TOOL SOURCE_DIR
set -uo pipefail

tool="$1" root="$2"
section="$(awk '/^## Checking a configuration$/ { on = 1; next } /^## / { on = 0 } on' "$root/README.md")"
# The first fenced block holds the command, the second its output.
command="$(awk '/^```/ { fence++; next } fence == 1' <<<"$section")"
expected="$(awk '/^```/ { fence++; next } fence == 3' <<<"$section")"
if [ -z "$command" ] || [ -z "$expected" ]; then
	echo "README.md has no command and output in its section 'Checking a configuration'"
	exit 1
fi
read -ra words <<<"$command"
if [ "${words[0]}" != numbering ]; then
	echo "the README's command does not run numbering: $command"
	exit 1
fi
cd "$root" || exit 1
if ! diff -u <(printf '%s\n' "$expected") <("$tool" "${words[@]:1}" 2>/dev/null); then
	echo "the output of '$command' differs from the README's (README first)"
	exit 1
fi
