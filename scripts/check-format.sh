#!/usr/bin/env bash
# Checks that every C++ source of the project is formatted as .clang-format says; lists the files that are not.
# Exits 77 (a skipped test for CTest) when clang-format is not installed.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
clang_format="${CLANG_FORMAT:-clang-format}"
if ! command -v "$clang_format" >/dev/null 2>&1; then
	echo "clang-format is not installed (scripts/install-deps.sh installs it)" >&2
	exit 77
fi

cd "$root"
directories=()
for directory in include src tests tools bench fuzz python; do
	[ -d "$directory" ] && directories+=("$directory")
done
mapfile -t files < <(find "${directories[@]}" -type f \( -name '*.h' -o -name '*.cpp' \) | LC_ALL=C sort)
if report="$("$clang_format" --dry-run --Werror "${files[@]}" 2>&1)"; then
	echo "ok: ${#files[@]} files formatted as .clang-format says"
	exit 0
fi
unformatted="$(grep -oE '^[^:]+:[0-9]+:[0-9]+: error' <<<"$report" | cut -d: -f1 | LC_ALL=C sort -u || true)"
if [ -z "$unformatted" ]; then
	echo "$report" >&2
	exit 1
fi
echo "error: these files are not formatted as .clang-format says:" >&2
sed 's/^/  /' <<<"$unformatted" >&2
echo "Fix them with: clang-format -i <file>...; see each change with: clang-format --dry-run <file>" >&2
exit 1
