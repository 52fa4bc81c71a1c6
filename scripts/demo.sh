#!/usr/bin/env bash
# Builds the release tools and shows the controls: renders every scene to PNG files in out/png,
# then builds TolvaKit.dll and TolvaHost.exe, registers the DLL under Wine and opens
# examples/demo.frm (under Xvfb with a scripted tour and screenshots when there is no display).
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

cmake --preset release >/dev/null
cmake --build --preset release --target tolva_render

png_dir="$PWD/out/png"
mkdir -p "$png_dir"
echo "Rendering the controls into $png_dir"
build/release/tools/tolva_render "$png_dir"
echo "The PNG files are in $png_dir"

# Then the controls for real: TolvaKit.dll under Wine, hosting examples/demo.frm in TolvaHost.
cmake --preset mingw64 >/dev/null
cmake --build --preset mingw64 --target TolvaKit TolvaHost -- -j2 >/dev/null
bin="$PWD/build/mingw64/bin"
export WINEPREFIX="$PWD/build/mingw64/demo-wineprefix" WINEDEBUG=-all WINEDLLOVERRIDES="mscoree,mshtml=d"
wine=/usr/lib/wine/wine64
windows_path() { printf 'Z:%s' "${1//\//\\}"; }
if [ ! -d "$WINEPREFIX" ]; then
    echo "Creating the Wine prefix $WINEPREFIX"
    "$wine" wineboot -i >/dev/null 2>&1
    /usr/lib/wine/wineserver -w
fi
/usr/lib/wine/wineserver -p60
"$wine" regsvr32 /s "$(windows_path "$bin/TolvaKit.dll")"
host=("$(windows_path "$bin/TolvaHost.exe")" "$(windows_path "$PWD/examples/demo.frm")")

if [ -n "${DISPLAY:-}" ]; then
    echo "Opening examples/demo.frm in TolvaHost; close its window to finish. Its events follow."
    "$wine" "${host[@]}"
else
    # No display: a virtual one, a scripted tour (hover, press, the menu button and its menu,
    # keys) and a picture after each part of it.
    shots="$PWD/out/demo-shots"
    mkdir -p "$shots"
    rm -f "$shots"/*.png
    echo "No display: playing examples/demo.play under Xvfb"
    xvfb-run -a -s "-screen 0 1024x768x24" "$wine" explorer /desktop=TolvaDemo,1024x768 "${host[@]}" \
        /play "$(windows_path "$PWD/examples/demo.play")" /shots "$(windows_path "$shots")" \
        /log "$(windows_path "$PWD/out/demo-events.txt")"
    echo "The events are in $PWD/out/demo-events.txt"
    echo "The screenshots are in $shots:"
    ls "$shots"
fi
/usr/lib/wine/wineserver -k || true
