#!/usr/bin/env bash
# Prints the instructions per number that makeCanonicalNumber and makePhoneNumber cost over the mixed benchmark
# corpus, counted by valgrind's callgrind around the calls only (warm-up and start-up excluded). Unlike times,
# these counts repeat from run to run on a loaded machine, so they are the figures to compare before and after a
# change. Environment: NUMBERING_BENCH_BUILD_DIR (default build-release-bench, shared with scripts/bench.sh).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_BENCH_BUILD_DIR:-$root/build-release-bench}"

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DNUMBERING_BUILD_BENCHMARKS=ON \
	-DNUMBERING_BUILD_TESTS=OFF -DNUMBERING_BUILD_TOOLS=OFF -DNUMBERING_INSTALL=OFF >/dev/null
cmake --build "$build" --target numbering_callgrind_bench >/dev/null

work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
for operation in canonical phone; do
	numbers="$(valgrind --tool=callgrind --collect-atstart=no --callgrind-out-file="$work/$operation.out" \
		"$build/bench/numbering-callgrind-bench" "$operation" 2>/dev/null)"
	instructions="$(sed -n 's/^totals: *\([0-9]*\).*/\1/p' "$work/$operation.out")"
	echo "$operation: $((instructions / numbers)) instructions per number over $numbers numbers"
done
