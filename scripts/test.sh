#!/usr/bin/env bash
# Installs what is missing, then builds and runs every test: the native suite under the
# sanitizers, then the Windows DLLs and their suites under Wine.
set -euo pipefail
cd "$(dirname "$0")/.."
scripts/setup.sh

cmake --preset debug >/dev/null
cmake --build --preset debug
ctest --preset debug

if [ -x scripts/wine-tests.sh ]; then
    scripts/wine-tests.sh
fi
