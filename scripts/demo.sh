#!/usr/bin/env bash
# Builds the release tools and shows the controls: renders every scene to PNG files in out/png.
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
