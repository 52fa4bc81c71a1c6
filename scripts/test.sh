#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test: the native suite under the
# sanitizers, the fuzz targets briefly, then the Windows DLLs and their suites under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

cmake --preset debug >/dev/null
cmake --build --preset debug
ctest --preset debug

# The fuzz targets, each for a few seconds from its seeds (scripts/fuzz-long.sh runs them long).
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz
ctest --preset fuzz

if [ -x scripts/wine-tests.sh ]; then
    scripts/wine-tests.sh
fi
