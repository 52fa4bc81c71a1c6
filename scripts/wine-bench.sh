#!/usr/bin/env bash
# The benchmarks of TolvaKit.dll under Wine (x86_64): builds the DLL, tolva_wine_bench,
# tolva_wine_list_bench and tolva_wine_invoke_bench, registers the DLL in a prefix of its own and runs them under Xvfb with
# Wine's virtual desktop (or on the display there is). Prints Markdown tables; arguments go to the
# hover benchmark (the number of hover repaints of the flatness check, default 100000);
# TOLVA_LIST_ROWS sets the rows of the list benchmark (default 1000000).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

if [ -z "${DISPLAY:-}" ]; then
    exec xvfb-run -a -s "-screen 0 1024x768x24" "$0" "$@"
fi

cmake --preset mingw64 >/dev/null
cmake --build --preset mingw64 --target TolvaKit tolva_wine_bench tolva_wine_list_bench tolva_wine_invoke_bench -- -j2 >/dev/null

wine=/usr/lib/wine/wine64
wineserver=/usr/lib/wine/wineserver
export WINEPREFIX=$root/build/mingw64/bench-wineprefix WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=d"
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
if [ ! -d "$WINEPREFIX" ]; then
    "$wine" wineboot -i >/dev/null 2>&1
    "$wineserver" -w
    "$wine" reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
    "$wine" reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1024x768 /f >/dev/null
    "$wineserver" -k
fi
"$wineserver" -p >/dev/null 2>&1 </dev/null
trap '"$wineserver" -k || true' EXIT
"$wine" regsvr32 /s "$(windows_path "$root/build/mingw64/bin/TolvaKit.dll")"
"$wine" "$(windows_path "$root/build/mingw64/bin/tolva_wine_bench.exe")" "$@" | tr -d '\r'
echo
"$wine" "$(windows_path "$root/build/mingw64/bin/tolva_wine_list_bench.exe")" "${TOLVA_LIST_ROWS:-1000000}" | tr -d '\r'
echo
"$wine" "$(windows_path "$root/build/mingw64/bin/tolva_wine_invoke_bench.exe")" | tr -d '\r'
