#!/usr/bin/env bash
# Compares the symbols that the built libNumbering.so exports with the checked-in list, so that no change of the
# binary interface slips out unnoticed.
# Usage: exported-symbols-test.sh <directory of libNumbering.so>
set -euo pipefail

build="$1"
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
actual="$(mktemp)"
trap 'rm -f "$actual"' EXIT

"$root/scripts/update-symbols.sh" "$build" "$actual"
if ! diff -u "$root/tests/package/exported-symbols.txt" "$actual"; then
	echo "error: the exported symbols differ from tests/package/exported-symbols.txt (- listed, + exported)." >&2
	echo "If the change of interface is intended, regenerate the list and commit it:" >&2
	echo "  scripts/update-symbols.sh $build" >&2
	exit 1
fi
echo "ok: $(wc -l <"$actual") exported symbols as listed"
