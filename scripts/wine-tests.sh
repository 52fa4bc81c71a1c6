#!/usr/bin/env bash
# Builds TolvaKit.dll for 64-bit and 32-bit Windows and runs its tests under Wine: for each
# architecture a fresh private Wine prefix in its build directory, one warm wineserver for the
# whole run, the tests labelled "unregistered" (registration-free use), the DLL registered with
# regsvr32, then the other tests (GoogleTest suites, script tests, the import check). Exits
# non-zero on any failure.
#
# The 32-bit suites run when 32-bit Wine (wine32:i386) is installed; the 32-bit DLL is built
# either way. Tests labelled "gui" need an X display: the run then happens inside one xvfb-run
# with Wine's virtual desktop, unless a display is already there.
#
# TOLVA_WINE_ARCHS=mingw64 limits a development run to one architecture (default: both).
set -euo pipefail
cd "$(dirname "$0")/.."
root=$PWD

wine_dir=/usr/lib/wine
wineserver=$wine_dir/wineserver
export WINEDEBUG=-all
export WINEDLLOVERRIDES="mscoree,mshtml=d"

build() {
    cmake --preset "$1" >/dev/null
    cmake --build --preset "$1" -- -j2
}

# Windows form of a path in the build tree (Wine maps / to drive Z:).
windows_path() {
    printf 'Z:%s' "${1//\//\\}"
}

# Runs one architecture's tests in its own fresh prefix.
run_tests() {
    local preset=$1 loader=$2
    local dir=$root/build/$preset
    export WINEPREFIX=$dir/wineprefix
    rm -rf "$WINEPREFIX"
    echo "== $preset: fresh Wine prefix"
    "$loader" wineboot -i >/dev/null 2>&1
    "$wineserver" -w
    if [ -n "${TOLVA_WINE_DESKTOP:-}" ]; then
        "$loader" reg add 'HKCU\Software\Wine\Explorer' /v Desktop /d Default /f >/dev/null
        "$loader" reg add 'HKCU\Software\Wine\Explorer\Desktops' /v Default /d 1024x768 /f >/dev/null
        # reg itself started the desktop without those keys: a new server starts it with them.
        "$wineserver" -k
    fi
    "$wineserver" -p >/dev/null 2>&1 </dev/null
    # The prefix's background processes (the desktop, services) start with the first program and
    # live as long as the server: started here, they keep no test's output pipe open.
    "$loader" cmd /c exit >/dev/null 2>&1 </dev/null || true
    local status=0
    echo "== $preset: tests before registration"
    ctest --test-dir "$dir" --output-on-failure -L unregistered || status=1
    if "$loader" regsvr32 /s "$(windows_path "$dir/bin/TolvaKit.dll")"; then
        echo "== $preset: tests"
        ctest --test-dir "$dir" --output-on-failure -LE unregistered || status=1
    else
        echo "$preset: regsvr32 could not register TolvaKit.dll" >&2
        status=1
    fi
    "$wineserver" -k || true
    return $status
}

archs=${TOLVA_WINE_ARCHS:-mingw64 mingw32}
wants() { [[ " $archs " == *" $1 "* ]]; }

run_all() {
    local status=0
    wants mingw64 && { run_tests mingw64 "$wine_dir/wine64" || status=1; }
    if ! wants mingw32; then
        :
    elif [ -x "$wine_dir/wine" ]; then
        run_tests mingw32 "$wine_dir/wine" || status=1
    else
        echo "== mingw32: built; its tests need 32-bit Wine (wine32:i386), which is not installed"
    fi
    return $status
}

if [ "${1:-}" = --run-only ]; then
    run_all
    exit $?
fi

wants mingw64 && build mingw64
wants mingw32 && build mingw32

# The GUI suite compares what GDI draws with the headless platform's pictures of the same
# scenes and sample forms (with where their text is): tolva_render's, from the native build
# scripts/test.sh made, else from a release build.
native=release
[ -d build/debug ] && native=debug
cmake --preset "$native" >/dev/null
cmake --build --preset "$native" --target tolva_render -- -j2 >/dev/null
render="build/$native/tools/tolva_render"
pictures="$root/build/headless-pictures"
"$render" "$pictures" >/dev/null
mkdir -p "$pictures/forms"
for form in examples/*.frm; do
    name=$(basename "$form" .frm)
    "$render" "$form" "$pictures/forms/$name.png" --text-boxes "$pictures/forms/$name.text"
done
export TOLVA_HEADLESS_PICTURES="$(windows_path "$pictures")"

needs_display=0
for preset in $archs; do
    count=$(ctest --test-dir "build/$preset" -N -L gui 2>/dev/null | grep -c 'Test *#' || true)
    needs_display=$((needs_display + count))
done
if [ "$needs_display" -gt 0 ] && [ -z "${DISPLAY:-}" ]; then
    TOLVA_WINE_DESKTOP=1 exec xvfb-run -a -s "-screen 0 1024x768x24" "$0" --run-only
fi
run_all
