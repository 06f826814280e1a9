#!/usr/bin/python3
"""Times numbering.convert_many against a Python loop of single calls, per number, on the benchmark corpus.

Run by hand from the repository's root against a release build of the module:

    cmake -S . -B build-release -G Ninja -DCMAKE_BUILD_TYPE=Release -DNUMBERING_PYTHON=ON
    cmake --build build-release --target numbering_python
    PYTHONPATH=build-release/python /usr/bin/python3 bench/convert_many.py [numbers per run]

Each corpus file's numbers are converted at its own site; every country's numbers are repeated until the run
holds the numbers asked for (100,000 by default), taken from all fifteen countries in turn. Times are the
process's CPU times, the best of five runs for each way, as other work on the machine only ever makes a run
slower.
"""

import pathlib
import sys
import time

import numbering

ROOT = pathlib.Path(__file__).resolve().parent.parent
RUNS = 5
# The loops a script would write, the function bound to a local name once per site.
LOOPS = {
    "canonical": lambda site, numbers, canonical=numbering.canonical: [canonical(site, n) for n in numbers],
    "dial": lambda site, numbers, dial=numbering.dial: [dial(site, n) for n in numbers],
    "clid": lambda site, numbers, clid=numbering.clid: [clid(site, n) for n in numbers],
    "check": lambda site, numbers, check=numbering.check: [check(n) for n in numbers],
}


def corpus():
    """(site, numbers) of every corpus file: the line "site <country> <ext> <length> <area>", then "<shape> <number>"."""
    for path in sorted((ROOT / "bench" / "corpus").glob("*.txt")):
        numbers = []
        for line in path.read_text().splitlines():
            if line.startswith("#") or not line.strip():
                continue
            word, rest = line.split(" ", 1)
            if word == "site":
                country, ext, length, area = rest.split(" ")
                site = numbering.Site(country, ext_prefix=ext, local_length=int(length), area_codes=area)
            else:
                numbers.append(rest)
        yield site, numbers


def best_of(runs, function):
    best = None
    for _ in range(runs):
        start = time.process_time()
        function()
        elapsed = time.process_time() - start
        best = elapsed if best is None else min(best, elapsed)
    return best


def main():
    total = int(sys.argv[1]) if len(sys.argv) > 1 else 100_000
    numbering.set_config_directory(str(ROOT / "config"))
    numbering.warm_up()
    sites = list(corpus())
    per_site = total // len(sites)
    work = [(site, (numbers * (per_site // len(numbers) + 1))[:per_site]) for site, numbers in sites]
    count = per_site * len(work)
    print(f"{count:,} numbers, {len(work)} sites, best of {RUNS} runs, ns per number")
    print(f"{'what':<10} {'loop':>8} {'convert_many':>13} {'loop/many':>10}")
    for what, loop_over in LOOPS.items():
        loop = best_of(RUNS, lambda: [loop_over(site, numbers) for site, numbers in work])
        many = best_of(RUNS, lambda: [numbering.convert_many(site, numbers, what) for site, numbers in work])
        print(f"{what:<10} {loop / count * 1e9:>8.0f} {many / count * 1e9:>13.0f} {loop / many:>10.1f}")


if __name__ == "__main__":
    main()
