#!/usr/bin/env bash
# Builds the benchmarks (release build) and prints one table of their medians: per country and for the mixed
# corpus the time per number of every conversion, of the general-purpose library when it is installed, and the
# ratios; then one thread against two, and the start-up.
# Environment: NUMBERING_BENCH_BUILD_DIR (default build-release-bench), NUMBERING_BENCH_REPETITIONS (5),
# NUMBERING_BENCH_MIN_TIME (seconds per run, 0.2); arguments are handed to both benchmark programs
# (for example --benchmark_filter='canonical').
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${NUMBERING_BENCH_BUILD_DIR:-$root/build-release-bench}"
repetitions="${NUMBERING_BENCH_REPETITIONS:-5}"
min_time="${NUMBERING_BENCH_MIN_TIME:-0.2}"

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DNUMBERING_BUILD_BENCHMARKS=ON \
	-DNUMBERING_BUILD_TESTS=OFF -DNUMBERING_BUILD_TOOLS=OFF -DNUMBERING_INSTALL=OFF >/dev/null
cmake --build "$build" --target numbering_conversion_bench numbering_startup_bench >/dev/null

results="$(mktemp -d)"
trap 'rm -rf "$results"' EXIT
for program in conversion startup; do
	"$build/bench/numbering-$program-bench" --benchmark_repetitions="$repetitions" \
		--benchmark_report_aggregates_only=true --benchmark_min_time="$min_time" \
		--benchmark_format=json --benchmark_out="$results/$program.json" --benchmark_out_format=json "$@" \
		>/dev/null
done

python3 - "$results/conversion.json" "$results/startup.json" <<'PYTHON'
import json
import re
import sys

medians = {}
context = None
for path in sys.argv[1:]:
    with open(path) as file:
        report = json.load(file)
    context = context or report["context"]
    for run in report["benchmarks"]:
        if run.get("aggregate_name") == "median":
            medians[run["run_name"]] = run

def cpu_ns(name):
    run = medians.get(name)
    return None if run is None else run["cpu_time"] * {"ns": 1, "us": 1e3, "ms": 1e6}[run["time_unit"]]

def cell(value, digits=0):
    return "-" if value is None else f"{value:.{digits}f}"

def ratio(numerator, denominator):
    return None if numerator is None or denominator in (None, 0) else numerator / denominator

operations = ["check", "canonical", "phone", "extprefix", "clid", "gsm", "format", "lpn_e164", "lpn_outofcountry"]
corpora = sorted({name.split("/", 1)[1] for name in medians if name.split("/", 1)[0] in operations})
corpora = [name for name in corpora if name != "mixed"] + (["mixed"] if "mixed" in corpora else [])
print(f"Median CPU time per number in ns ({context['num_cpus']} CPUs, load average "
      f"{', '.join(f'{load:.1f}' for load in context.get('load_avg', []))})")
header = ["corpus"] + operations + ["canon/check", "lpn_e164/canon", "lpn_ooc/phone"]
print(" ".join(f"{title:>16}" for title in header))
for corpus in corpora:
    times = {operation: cpu_ns(f"{operation}/{corpus}") for operation in operations}
    ratios = [ratio(times["canonical"], times["check"]), ratio(times["lpn_e164"], times["canonical"]),
              ratio(times["lpn_outofcountry"], times["phone"])]
    row = [corpus] + [cell(times[operation]) for operation in operations] + [cell(value, 1) for value in ratios]
    print(" ".join(f"{value:>16}" for value in row))

threads = {}
for name, run in medians.items():
    found = re.match(r"threads/canonical/mixed/.*threads:(\d+)", name)
    if found:
        threads[int(found.group(1))] = run.get("items_per_second")
if threads:
    print()
    print("canonical/mixed, numbers per second: " + ", ".join(
        f"{count} thread{'s' if count > 1 else ''} {threads[count]:,.0f}" for count in sorted(threads)))
    if 1 in threads and 2 in threads:
        print(f"two threads against one: {threads[2] / threads[1]:.2f}")

startup = {name: run for name, run in medians.items() if name.startswith("startup/")}
if startup:
    print()
for name, run in sorted(startup.items()):
    heap = run.get("heap_bytes")
    print(f"{name.split('/')[1]:<24} {run['real_time']:.2f} {run['time_unit']} wall, "
          f"{run['cpu_time']:.2f} {run['time_unit']} CPU"
          + ("" if heap is None else f", heap {heap / 1e6:.2f} MB"))
PYTHON
