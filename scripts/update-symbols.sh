#!/usr/bin/env bash
# Regenerates the list of symbols that libNumbering.so exports, which a test compares with the built library.
# Run it after a deliberate change of the public interface, and commit the list with the change.
# Usage: scripts/update-symbols.sh [build directory, default build/] [output file, default the checked-in list]
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="${1:-$root/build}"
output="${2:-$root/tests/package/exported-symbols.txt}"

# Only the demangled names: addresses change with every build, and the type letter tells nothing a host needs.
# Instances of the standard library's templates are left out: whether the compiler emits them out of line depends
# on the optimisation level, and a host never links against ours.
nm -D --defined-only -C "$build/libNumbering.so" | sed -E 's/^[0-9a-fA-F]+ [A-Za-z] //' |
	grep -Ev '^([^ (]+ )?std::' | LC_ALL=C sort -u >"$output"
