#!/usr/bin/env bash
# Installs what building and testing TolvaKit needs from Debian's packages. Quiet when all is there.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config libgtest-dev libgmock-dev libbenchmark-dev
    libfreetype-dev libpng-dev fonts-dejavu-core fonts-liberation
    g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools libwine-dev
    wine64 wine xvfb xauth x11-apps
)

missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
[ ${#missing[@]} -eq 0 ] && exit 0

echo "setup: installing ${missing[*]}"
sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -qq
$sudo apt-get install -y -qq "${missing[@]}" >/dev/null
