#!/usr/bin/env bash
# Builds the Debian packages libnumbering, libnumbering-dev and numbering-tools into BUILD_DIRECTORY/packages,
# from a build of their own configured for the prefix /usr with Debian's compiler and linker flags.
# usage: package.sh [BUILD_DIRECTORY]   (default: build-deb)
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
build="$(realpath -m "${1:-$root/build-deb}")"

# Hardening as Debian builds its own packages: all of it, immediate binding included. The flags map the current
# directory to ".": taken in the source tree, they are the same wherever the script is run from.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all
cd "$root"
flags() {
	dpkg-buildflags --get "$1"
}

cmake -S "$root" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=None -DCMAKE_INSTALL_PREFIX=/usr \
	-DNUMBERING_BUILD_TESTS=OFF -DNUMBERING_BUILD_BENCHMARKS=OFF \
	-DCMAKE_CXX_FLAGS="$(flags CPPFLAGS) $(flags CXXFLAGS)" \
	-DCMAKE_SHARED_LINKER_FLAGS="$(flags LDFLAGS)" -DCMAKE_EXE_LINKER_FLAGS="$(flags LDFLAGS)" >/dev/null
cmake --build "$build" --parallel "$(nproc)"
rm -rf "$build/packages"
(cd "$build" && cpack -G DEB -B "$build/packages" >"$build/cpack.log" 2>&1) || {
	cat "$build/cpack.log"
	exit 1
}
ls "$build"/packages/*.deb
