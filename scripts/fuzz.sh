#!/usr/bin/env bash
# Builds the libFuzzer targets of fuzz/ with clang, AddressSanitizer and UndefinedBehaviorSanitizer, and runs
# each from its committed corpus (fuzz/corpus/<target>) for a while. Exits non-zero on the first finding; the
# input that caused it is left in the build directory's artifacts/ folder.
# Environment: NUMBERING_FUZZ_BUILD_DIR (default build-fuzz), NUMBERING_FUZZ_SECONDS (per target, default 60),
# NUMBERING_FUZZ_TARGETS (default "facade config"); arguments are handed to every fuzzer (for example -jobs=2).
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_FUZZ_BUILD_DIR:-$root/build-fuzz}"
seconds="${NUMBERING_FUZZ_SECONDS:-60}"
targets=(${NUMBERING_FUZZ_TARGETS:-facade config})

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=RelWithDebInfo -DCMAKE_CXX_COMPILER=clang++-14 \
	-DNUMBERING_FUZZ=ON -DNUMBERING_BUILD_TESTS=OFF -DNUMBERING_BUILD_TOOLS=OFF -DNUMBERING_INSTALL=OFF >/dev/null
programs=()
for target in "${targets[@]}"; do
	programs+=("numbering_${target}_fuzzer")
done
cmake --build "$build" --target "${programs[@]}"

export ASAN_OPTIONS="${ASAN_OPTIONS:-halt_on_error=1:detect_leaks=1}"
export UBSAN_OPTIONS="${UBSAN_OPTIONS:-halt_on_error=1:print_stacktrace=1}"
mkdir -p "$build/artifacts"
for target in "${targets[@]}"; do
	# New inputs go to a scratch folder: the committed corpus only seeds the run.
	scratch="$build/corpus-$target"
	mkdir -p "$scratch"
	echo "fuzzing $target for ${seconds}s"
	"$build/fuzz/numbering_${target}_fuzzer" "$scratch" "$root/fuzz/corpus/$target" \
		-dict="$root/fuzz/$target.dict" -max_total_time="$seconds" -timeout=20 -rss_limit_mb=4096 \
		-artifact_prefix="$build/artifacts/$target-" -print_final_stats=1 "$@" 2>"$build/$target.log" ||
		{ tail -n 80 "$build/$target.log" >&2; echo "fuzz target $target failed" >&2; exit 1; }
	grep -E '^stat::number_of_executed_units|^Done' "$build/$target.log" || true
done
