#!/usr/bin/env bash
# Builds libNumbering from scratch and runs every test, after the sanitized suites and a short fuzzing run
# (scripts/sanitize.sh, scripts/fuzz.sh). Exits non-zero on any failure.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_BUILD_DIR:-$root/build}"

"$root/scripts/install-deps.sh"

# First, so that the plain suite's summary closes the output.
"$root/scripts/sanitize.sh"
"$root/scripts/fuzz.sh"

rm -rf "$build"
cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DNUMBERING_BUILD_BENCHMARKS=ON -DNUMBERING_PYTHON=ON
cmake --build "$build" --parallel "$(nproc)"
ctest --test-dir "$build" --output-on-failure --parallel "$(nproc)"
