#!/usr/bin/env bash
# Installs the Debian packages the build, the tests and the tools need, if any is missing.
set -euo pipefail

packages=(cmake ninja-build g++ pkg-config clang-format libpoco-dev libgtest-dev libgmock-dev libbenchmark-dev
	clang-14 libclang-rt-14-dev llvm-14 libphonenumber-dev iso-codes dpkg-dev file lintian
	python3-dev pybind11-dev python3-pybind11 python3-pytest python3-dask python3-distributed python3-pandas valgrind)

missing=()
for package in "${packages[@]}"; do
	if ! dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q "install ok installed"; then
		missing+=("$package")
	fi
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "Installing missing packages: ${missing[*]}"
if [ "$(id -u)" -eq 0 ]; then
	sudo=()
elif command -v sudo >/dev/null 2>&1 && sudo -n true 2>/dev/null; then
	sudo=(sudo)
else
	echo "error: these Debian packages are missing: ${missing[*]}" >&2
	echo "Install them as root (apt-get install ${missing[*]}) or run this script as root or with sudo." >&2
	exit 1
fi
export DEBIAN_FRONTEND=noninteractive
"${sudo[@]}" apt-get update -qq
"${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}"
