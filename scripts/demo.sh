#!/usr/bin/env bash
# Builds the release tools and shows the controls: renders every scene to PNG files in out/png,
# then builds TolvaKit.dll and TolvaHost.exe, registers the DLL under Wine and opens
# examples/demo.frm (without a display: under Xvfb, every example form with a tour, screenshots).
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
    # No display: a virtual one, and for each example form with a tour (examples/<name>.play) the
    # scripted tour, with a picture after each part of it in out/demo-shots/<name>.
    echo "No display: playing the tours of examples/ under Xvfb"
    rm -rf "$PWD/out/demo-shots"
    for play in examples/*.play; do
        name=$(basename "$play" .play)
        shots="$PWD/out/demo-shots/$name"
        mkdir -p "$shots"
        echo "== $name"
        # A designer tour opens its form in design mode and saves it to out/<name>-saved.frm,
        # which is then opened in run mode for a last picture.
        design=()
        saved="$PWD/out/$name-saved.frm"
        [[ $name == designer* ]] && design=(/design /save "$(windows_path "$saved")")
        xvfb-run -a -s "-screen 0 1024x768x24" "$wine" explorer /desktop=TolvaDemo,1024x768 \
            "$(windows_path "$bin/TolvaHost.exe")" "$(windows_path "$PWD/examples/$name.frm")" \
            /play "$(windows_path "$PWD/$play")" /shots "$(windows_path "$shots")" \
            /log "$(windows_path "$PWD/out/demo-events-$name.txt")" "${design[@]}"
        if [[ $name == designer* ]]; then
            printf 'wait 400\nshot 16-reopened-in-run-mode\n' > "$PWD/out/$name-reopen.play"
            xvfb-run -a -s "-screen 0 1024x768x24" "$wine" explorer /desktop=TolvaDemo,1024x768 \
                "$(windows_path "$bin/TolvaHost.exe")" "$(windows_path "$saved")" \
                /play "$(windows_path "$PWD/out/$name-reopen.play")" /shots "$(windows_path "$shots")" \
                /log "$(windows_path "$PWD/out/demo-events-$name-reopened.txt")"
        fi
        echo "   events in out/demo-events-$name.txt, screenshots in out/demo-shots/$name: $(ls "$shots" | tr '\n' ' ')"
    done
fi
/usr/lib/wine/wineserver -k || true
