#!/usr/bin/env bash
# Builds and runs the whole test suite under AddressSanitizer and UndefinedBehaviorSanitizer (LeakSanitizer
# included), then the concurrency and lifecycle tests under ThreadSanitizer. Every report stops its test and
# fails the script.
# Environment: NUMBERING_ASAN_BUILD_DIR (default build-asan), NUMBERING_TSAN_BUILD_DIR (default build-tsan).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
asan_build="${NUMBERING_ASAN_BUILD_DIR:-$root/build-asan}"
tsan_build="${NUMBERING_TSAN_BUILD_DIR:-$root/build-tsan}"
jobs="$(nproc)"

# configure <build dir> <sanitizer flags> <cmake arguments>...: a debug build at -O1, which keeps the sanitized
# tests fast enough while the reports stay readable.
configure() {
	local build="$1" flags="$2 -fno-omit-frame-pointer -O1"
	shift 2
	cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS="$flags" \
		-DCMAKE_EXE_LINKER_FLAGS="$flags" -DCMAKE_SHARED_LINKER_FLAGS="$flags" -DNUMBERING_BUILD_BENCHMARKS=OFF \
		-DNUMBERING_INSTALL=OFF "$@" >/dev/null
}

echo "== AddressSanitizer and UndefinedBehaviorSanitizer: every test"
configure "$asan_build" "-fsanitize=address,undefined -fno-sanitize-recover=all"
cmake --build "$asan_build" --parallel "$jobs"
# The exported-symbol and format checks look at the plain build only.
ASAN_OPTIONS="halt_on_error=1:detect_leaks=1:strict_string_checks=1:detect_stack_use_after_return=1" \
	UBSAN_OPTIONS="halt_on_error=1:print_stacktrace=1" \
	ctest --test-dir "$asan_build" --output-on-failure --parallel "$jobs" --label-exclude 'abi|style'

echo "== ThreadSanitizer: conversions from eight threads"
configure "$tsan_build" "-fsanitize=thread" -DNUMBERING_BUILD_TOOLS=OFF
cmake --build "$tsan_build" --parallel "$jobs" --target robustness_tests
TSAN_OPTIONS="halt_on_error=1:second_deadlock_stack=1:suppressions=$root/tests/rules/tsan-suppressions.txt" \
	"$tsan_build/tests/rules/robustness_tests"
