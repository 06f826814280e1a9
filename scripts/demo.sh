#!/usr/bin/env bash
# Builds libNumbering and its numbering tool, then shows what a few sites make of a few numbers with the sample
# configuration: the canonical form, what the exchange dials, and the calling-line identity.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_BUILD_DIR:-$root/build}"

"$root/scripts/install-deps.sh"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo >/dev/null
cmake --build "$build" --target numbering --parallel "$(nproc)" >/dev/null

tool="$build/tools/numbering/numbering"

# site NAME TOOL-OPTIONS... -- NUMBER...: one table per site.
site() {
	local name="$1"
	shift
	local options=()
	while [ "$1" != "--" ]; do
		options+=("$1")
		shift
	done
	shift
	printf '\n%s (%s)\n' "$name" "${options[*]}"
	# explain's columns: number, check, canonical, gsm, dial, prefix, clid, origin.
	"$tool" explain --config-dir "$root/config" --format tsv "${options[@]}" "$@" |
		awk -F'\t' '{ printf "  %-22s %-22s %-18s %-14s %s\n", $1, $3, $5, $7, $8 }' || true
}

site Paris --country FR --area-code 1 --ext-prefix 0 --local-length 5 -- \
	"01 42 92 81 00" "06 12 34 56 78" "0049 30 1234567" 1234
site Berlin --country DE --area-code 30 --ext-prefix 0 --local-length 5 -- \
	"030 1234567" "089 1234567" "0151 12345678" "+33 1 23 45 67 89"
site "New York" --country US --area-code 212 --ext-prefix 9 --local-length 5 -- \
	"212 555 0123" "555 0123" "1 800 555 0199" "011 44 20 7946 0123"
site Zurich --country CH --area-code 44 --ext-prefix 0 --local-length 5 -- \
	"044 123 45 67" "079 123 45 67" "0800 123 456" "+49 89 1234567"
site London --country GB --area-code 20 --ext-prefix 9 --local-length 5 -- \
	"020 7946 0123" "07911 123456" "0121 496 0123" "+1 212 555 0123"
site Sydney --country AU --area-code 2 --ext-prefix 0 --local-length 5 -- \
	"02 9234 5678" "0412 345 678" "1300 123 456" "+64 9 307 1234"
