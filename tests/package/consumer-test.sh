#!/usr/bin/env bash
# Installs the project into a temporary prefix and uses it as an outside host would: the host program of this
# directory built once through find_package(Numbering) and once through pkg-config, and every installed header
# compiled on its own.
# Usage: consumer-test.sh <build directory of the project>
set -euo pipefail

build="$1"
here="$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)"
work="$(mktemp -d)"
trap 'rm -rf "$work"' EXIT
prefix="$work/prefix"
cxx="${CXX:-c++}"

cmake --install "$build" --prefix "$prefix" >/dev/null

mkdir "$work/config"
echo "FR=33:00:EFG:0FG:G:France:P" >"$work/config/dialingrules.properties"

expect_france() {
	local output
	output="$("$@" "$work/config" 2>/dev/null)"
	if [ "$output" != "FR" ]; then
		echo "error: $1 printed '$output' instead of 'FR'" >&2
		exit 1
	fi
	echo "ok: $1"
}

cmake -S "$here" -B "$work/with-cmake" -G Ninja -DCMAKE_PREFIX_PATH="$prefix" >/dev/null
cmake --build "$work/with-cmake" >/dev/null
expect_france "$work/with-cmake/numbering_host_program"

pc_dir="$(dirname "$(find "$prefix" -name numbering.pc -print -quit)")"
export PKG_CONFIG_PATH="$pc_dir"
libdir="$(pkg-config --variable=libdir numbering)"
# shellcheck disable=SC2046 # the flags are meant to be split
"$cxx" -std=c++17 -Wall -Wextra -Wpedantic -Werror -o "$work/with-pkg-config" "$here/host.cpp" \
	$(pkg-config --cflags --libs numbering)
export LD_LIBRARY_PATH="$libdir${LD_LIBRARY_PATH:+:$LD_LIBRARY_PATH}"
expect_france "$work/with-pkg-config"

for header in "$prefix"/include/numbering/*.h; do
	name="numbering/$(basename "$header")"
	# shellcheck disable=SC2046
	echo "#include \"$name\"" | "$cxx" -std=c++17 -Wall -Wextra -Wpedantic -Werror -fsyntax-only -x c++ - \
		$(pkg-config --cflags numbering) || { echo "error: $name does not compile on its own" >&2; exit 1; }
done
echo "ok: every installed header compiles on its own"

# The README's host program, built as the README says and run from the source tree, prints what the README shows.
root="$here/../.."
section="$(awk '/^## A host program$/ { on = 1; next } /^## / { on = 0 } on' "$root/README.md")"
awk '/^```cpp$/ { on = 1; next } /^```$/ { on = 0 } on' <<<"$section" >"$work/readme-host.cpp"
expected="$(awk '/^```$/ && !code { fence++; next } /^```cpp$/ { code = 1; next } /^```$/ { code = 0; next } fence == 1' <<<"$section")"
# shellcheck disable=SC2046
"$cxx" -std=c++17 -o "$work/readme-host" "$work/readme-host.cpp" $(pkg-config --cflags --libs numbering)
if ! diff -u <(printf '%s\n' "$expected") <(cd "$root" && "$work/readme-host" 2>/dev/null); then
	echo "error: the README's host program prints otherwise than the README shows (README first)" >&2
	exit 1
fi
echo "ok: the README's host program prints what the README shows"
