#!/usr/bin/env bash
# Builds the Debian package from a build tree and checks that it holds the library, its headers and package
# files, the numbering tool and the sample configuration.
# usage: deb-package-test.sh BUILD_DIRECTORY
set -euo pipefail

build="$1"
output="$(mktemp -d)"
trap 'rm -rf "$output"' EXIT

cpack -G DEB --config "$build/CPackConfig.cmake" -B "$output" >"$output/cpack.log" 2>&1 || {
	cat "$output/cpack.log"
	exit 1
}
package="$(find "$output" -maxdepth 1 -name '*.deb' | head -n 1)"
[ -n "$package" ] || { echo "no package was built"; exit 1; }
contents="$(dpkg-deb -c "$package" | awk '{ print $NF }')"

failed=0
for expected in \
	'/usr/lib/(.*/)?libNumbering\.so$' \
	'/usr/include/numbering/ZelNumberingRules\.h$' \
	'/usr/include/numbering/numbering\.h$' \
	'/usr/lib/(.*/)?cmake/Numbering/NumberingConfig\.cmake$' \
	'/usr/lib/(.*/)?pkgconfig/numbering\.pc$' \
	'/usr/bin/numbering$' \
	'/usr/share/numbering/config/dialingrules_default\.properties$' \
	'/usr/share/numbering/config/qap_cnp_mask_default\.properties$' \
	'/usr/share/numbering/config/specific_format_activation_default\.properties$' \
	'/usr/share/numbering/config/r7731cnp_49_default\.properties$' \
	'/usr/share/numbering/config/r7731cnp_57_default\.properties$'; do
	if ! grep -Eq "$expected" <<<"$contents"; then
		echo "missing from $(basename "$package"): $expected"
		failed=1
	fi
done
if [ "$failed" -ne 0 ]; then
	echo "--- contents:"
	echo "$contents"
fi
dpkg-deb -f "$package" Package Version Depends
exit "$failed"
