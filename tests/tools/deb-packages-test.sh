#!/usr/bin/env bash
# Builds the three Debian packages with scripts/package.sh, checks each one's files and dependencies, has lintian
# check them, then unpacks them into a scratch root, compares the shipped library's exported symbols with the list
# and runs the tool from there on the sample configuration.
# usage: deb-packages-test.sh BUILD_DIRECTORY VERSION
set -euo pipefail

build="$1"
version="$2"
root="$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)"
arch="$(dpkg-architecture -qDEB_HOST_MULTIARCH)"
scratch="$(mktemp -d)"
trap 'rm -rf "$scratch"' EXIT

"$root/scripts/package.sh" "$build/debian-packages"
packages="$build/debian-packages/packages"
failed=0

# expect WHAT EXPECTED ACTUAL
expect() {
	if [ "$2" != "$3" ]; then
		printf '%s differs:\n--- expected\n%s\n--- actual\n%s\n' "$1" "$2" "$3"
		failed=1
	fi
}

deb() {
	echo "$packages/$1_${version}_$(dpkg-architecture -qDEB_HOST_ARCH).deb"
}

files_of() {
	dpkg-deb -c "$(deb "$1")" | awk '$1 !~ /^d/ { print $NF }'
}

# Names of the packages a Depends field lists, versions left out: these come from dpkg-shlibdeps and the compiler.
depended_on() {
	dpkg-deb -f "$(deb "$1")" Depends | sed 's/ ([^)]*)//g'
}

doc_files() {
	printf './usr/share/doc/%s/changelog.gz\n./usr/share/doc/%s/copyright\n' "$1" "$1"
}

expect "libnumbering's files" "./usr/lib/$arch/libNumbering.so
$(doc_files libnumbering)" "$(files_of libnumbering)"
expect "libnumbering-dev's files" "$(for header in "$root"/include/numbering/*.h; do
	echo "./usr/include/numbering/$(basename "$header")"
done)
./usr/lib/$arch/cmake/Numbering/NumberingConfig.cmake
./usr/lib/$arch/cmake/Numbering/NumberingConfigVersion.cmake
./usr/lib/$arch/cmake/Numbering/NumberingTargets-none.cmake
./usr/lib/$arch/cmake/Numbering/NumberingTargets.cmake
./usr/lib/$arch/pkgconfig/numbering.pc
$(doc_files libnumbering-dev)" "$(files_of libnumbering-dev)"
expect "numbering-tools' files" "./usr/bin/numbering
$(doc_files numbering-tools)
./usr/share/man/man1/numbering.1.gz
$(for file in "$root"/config/*.properties; do
	echo "./usr/share/numbering/config/$(basename "$file")"
done)" "$(files_of numbering-tools)"

expect "libnumbering's dependencies" "libc6, libgcc-s1, libpocofoundation80, libpocoutil80, libstdc++6" \
	"$(depended_on libnumbering)"
expect "libnumbering-dev's dependencies" "libnumbering (= $version), libpoco-dev (>= 1.11)" \
	"$(dpkg-deb -f "$(deb libnumbering-dev)" Depends)"
expect "numbering-tools' dependencies" \
	"libnumbering, libc6, libgcc-s1, libpocofoundation80, libpocojson80, libpocoutil80, libstdc++6" \
	"$(depended_on numbering-tools)"

# Errors fail the test. The warnings that remain:
# - shared-library-lacks-version, lacks-unversioned-link-to-shared-library: the SONAME is libNumbering.so, without
#   a version, as the applications that load the library expect.
# - maintscript-calls-ldconfig: CPack calls ldconfig from postinst and postrm of a package with a library under
#   /usr/lib, besides the ldconfig trigger the package declares.
lintian --fail-on error "$packages"/*.deb || failed=1

for package in "$packages"/*.deb; do
	dpkg -x "$package" "$scratch"
done
# Built with Debian's flags rather than the tested build's, the shipped library must still export the listed interface.
"$root/tests/package/exported-symbols-test.sh" "$scratch/usr/lib/$arch" || failed=1
expect "the tool's output from the unpacked packages" "$(printf '%s\t' number check canonical gsm dial prefix clid)origin
$(printf '%s\t' "089 1234567" 0891234567 "+49 (89) 1234567" +49891234567 00891234567 00891234567 891234567)National
$(printf '%s\t' "+33 1 23 45 67 89" "" "+33 1 23 45 67 89" "+33 1 23 45 67 89" 00033123456789 00033123456789 \
	33123456789)International
$(printf '%s\t' 1234 1234 1234 1234 1234 1234 1234)Private" \
	"$(LD_LIBRARY_PATH="$scratch/usr/lib/$arch" "$scratch/usr/bin/numbering" explain --format tsv \
		--config-dir "$scratch/usr/share/numbering/config" --country DE --area-code 30 --ext-prefix 0 \
		--local-length 5 "089 1234567" "+33 1 23 45 67 89" 1234)"
exit "$failed"
