#!/bin/sh
# The adapter library's dynamic surface: defined symbols are exactly those of
# the export list, undefined ones only the C library's and the platform's,
# and no C++ runtime nor glibc-only C library symbols (the terminal may run
# musl). NM and READELF name the target's tools in a cross build.
set -eu
nm=${NM:-nm}
readelf=${READELF:-readelf}
lib=$1
platform_include=$2
export_list=$3
fail=0

defined=$("$nm" -D --defined-only "$lib" | awk '{print $3}')
bad=$(printf '%s\n' "$defined" | grep -v -E '^(ze_|_init$|_fini$)' || true)
if [ -n "$bad" ]; then echo "exported symbols outside ze_*:"; echo "$bad"; fail=1; fi
if printf '%s\n' "$defined" | grep -q '^_Z'; then echo "C++-mangled exports"; fail=1; fi
listed=$(sed -n 's/^ *\(ze_[a-z0-9_]*\);$/\1/p' "$export_list" | sort)
exported=$(printf '%s\n' "$defined" | grep '^ze_' | sort)
if [ "$exported" != "$listed" ]; then
  echo "exports differ from the export list (<: exported only, >: listed only):"
  tmp=$(mktemp)
  printf '%s\n' "$exported" > "$tmp"
  printf '%s\n' "$listed" | diff "$tmp" - || true
  rm -f "$tmp"
  fail=1
fi

platform=$(grep -h -o -E '\bze_[a-z0-9_]+\(' "$platform_include"/ze_ubasic.h "$platform_include"/ze_dp.h | tr -d '(' | sort -u)
undefined=$("$nm" -D --undefined-only "$lib" | awk '{print $2}' | sed 's/@.*//')
for sym in $undefined; do
  case $sym in
    ze_*) printf '%s\n' "$platform" | grep -qx "$sym" || { echo "undefined non-platform symbol: $sym"; fail=1; } ;;
    __cxa_finalize) ;;  # the C library's, referenced by every shared object
    _Z*|__cxa*|__gxx*) echo "C++ runtime symbol: $sym"; fail=1 ;;
    __*_chk|__isoc99_*|__libc_*) echo "glibc-only symbol: $sym"; fail=1 ;;
  esac
done

if "$readelf" -d "$lib" | grep NEEDED | grep -q 'libstdc++'; then echo "libstdc++ in NEEDED"; fail=1; fi
if ! "$readelf" -d "$lib" | grep SONAME | grep -q 'libze_adapter.so.1'; then echo "SONAME is not libze_adapter.so.1"; fail=1; fi
exit $fail
