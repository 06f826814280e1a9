#!/usr/bin/env bash
# Builds libNumbering from scratch and runs every test, after the sanitized suites and a short fuzzing run
# (scripts/sanitize.sh, scripts/fuzz.sh). Exits non-zero on any failure.
# --quick: only builds the plain build where it stands and runs its tests, for daily work.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_BUILD_DIR:-$root/build}"

if [ "${1:-}" = "--quick" ]; then
	cmake -S "$root" -B "$build" -G Ninja >/dev/null
	cmake --build "$build" --parallel "$(nproc)"
	exec ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)"
fi

"$root/scripts/install-deps.sh"

# First, so that the plain suite's summary closes the output.
"$root/scripts/sanitize.sh"
"$root/scripts/fuzz.sh"

rm -rf "$build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNUMBERING_BUILD_BENCHMARKS=ON -DNUMBERING_PYTHON=ON
cmake --build "$build" --parallel "$(nproc)"
ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)"
