#!/usr/bin/env bash
# Runs the numbering tool once and checks its exit status, its whole standard output and its standard error.
# usage: run-tool-case.sh TOOL STATUS STDOUT STDERR_REGEX STDIN -- ARGUMENT...
#   STDOUT and STDIN are printf %b texts ("a\nb\n"); a STDOUT of the form "~REGEX" asks only that some line of
#   standard output match REGEX, "@FILE" that standard output be FILE's text exactly, and "*" accepts any output. STDERR_REGEX holds extended regular expressions, one per line, each of which
#   some line of standard error must match ("" for none).
set -uo pipefail

tool="$1" expected_status="$2" expected_stdout="$3" stderr_regex="$4" stdin="$5"
shift 6

stdout_file="$(mktemp)" stderr_file="$(mktemp)"
trap 'rm -f "$stdout_file" "$stderr_file"' EXIT

printf '%b' "$stdin" | "$tool" "$@" >"$stdout_file" 2>"$stderr_file"
status=$?

failed=0
if [ "$status" -ne "$expected_status" ]; then
	echo "exit status $status, expected $expected_status"
	failed=1
fi
if [ "$expected_stdout" = "*" ]; then
	:
elif [ "${expected_stdout:0:1}" = "@" ]; then
	if ! diff -u "${expected_stdout:1}" "$stdout_file"; then
		echo "standard output differs from ${expected_stdout:1} (expected first)"
		failed=1
	fi
elif [ "${expected_stdout:0:1}" = "~" ]; then
	if ! grep -Eq -- "${expected_stdout:1}" "$stdout_file"; then
		echo "no line of standard output matches: ${expected_stdout:1}"
		failed=1
	fi
elif ! diff -u <(printf '%b' "$expected_stdout") "$stdout_file"; then
	echo "standard output differs (expected first)"
	failed=1
fi
while IFS= read -r regex; do
	if [ -n "$regex" ] && ! grep -Eq -- "$regex" "$stderr_file"; then
		echo "no line of standard error matches: $regex"
		failed=1
	fi
done <<<"$stderr_regex"
if [ "$failed" -ne 0 ]; then
	echo "--- standard error:"
	cat "$stderr_file"
fi
exit "$failed"
