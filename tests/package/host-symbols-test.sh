#!/usr/bin/env bash
# Checks that libNumbering.so leaves the two host symbols to the host and carries the unversioned SONAME.
# Usage: host-symbols-test.sh <directory of libNumbering.so>
set -euo pipefail

library="$1/libNumbering.so"
status=0

undefined="$(nm -D --undefined-only -C "$library")"
for symbol in FlogWrite Logger::m_Traces; do
	if ! grep -qE "^ +U ${symbol}\$" <<<"$undefined"; then
		echo "error: $symbol must stay undefined in libNumbering.so: the host provides it" >&2
		status=1
	fi
done

soname="$(readelf -d "$library" | sed -nE 's/.*Library soname: \[(.*)\].*/\1/p')"
if [ "$soname" != "libNumbering.so" ]; then
	echo "error: SONAME is '$soname', not 'libNumbering.so'" >&2
	status=1
fi
[ $status -eq 0 ] && echo "ok: FlogWrite and Logger::m_Traces undefined, SONAME libNumbering.so"
exit $status
