#!/usr/bin/env bash
# Rewrites docs/reference.md from the type library embedded in TolvaKit.dll and the property-bag
# keys its controls write: builds the 64-bit DLL and tolva_reference, and runs it under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
cmake --preset mingw64 >/dev/null
cmake --build --preset mingw64 --target update_reference -- -j2
