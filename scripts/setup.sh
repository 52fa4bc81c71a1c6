#!/usr/bin/env bash
# Installs what building and testing TolvaKit needs from Debian's packages, 32-bit Wine included.
# Quiet when all is there.
set -euo pipefail

packages=(
    g++ cmake ninja-build pkg-config libgtest-dev libgmock-dev libbenchmark-dev
    clang libclang-rt-14-dev
    libfreetype-dev libpng-dev fonts-dejavu-core fonts-liberation
    g++-mingw-w64-x86-64 g++-mingw-w64-i686 mingw-w64-tools libwine-dev
    wine64 wine xvfb xauth x11-apps
)

installed() {
    dpkg-query -W -f='${Status}' "$1" 2>/dev/null | grep -q 'install ok installed'
}

sudo=""
[ "$(id -u)" -eq 0 ] || sudo="sudo"
export DEBIAN_FRONTEND=noninteractive DEBCONF_NOWARNINGS=yes

# Once the i386 architecture is added, `apt-get update` exits 100 on Debian 12: the security
# suite's i386 index fails its size check while every other index is fetched. A failed fetch
# shows up as a failed install, so the exit code of the update itself is not trusted.
refresh_package_index() {
    $sudo apt-get update -qq >/dev/null 2>&1 || true
}

missing=()
for p in "${packages[@]}"; do
    installed "$p" || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    echo "setup: installing ${missing[*]}"
    refresh_package_index
    $sudo apt-get install -y -qq "${missing[@]}" >/dev/null
fi

# 32-bit Wine runs the i686 DLL's suites. Multi-arch packages need one version on both
# architectures, and the security suite has no i386 twins of its amd64 updates: the
# installation takes the main suite's versions (`-t bookworm`) and brings the one amd64 package
# that wine64 pulled from the security suite back to the version the i386 side offers.
if ! installed wine32:i386; then
    echo "setup: installing 32-bit Wine (wine32:i386)"
    dpkg --print-foreign-architectures | grep -qx i386 || $sudo dpkg --add-architecture i386
    refresh_package_index
    gstreamer=libgstreamer-plugins-base1.0-0
    version=$(apt-cache policy "$gstreamer:i386" | awk '/Candidate:/ { print $2 }')
    pinned=()
    if [ -n "$version" ] && [ "$version" != "(none)" ]; then
        pinned=("$gstreamer=$version" "$gstreamer:i386=$version")
    fi
    $sudo apt-get install -y -qq -t bookworm --allow-downgrades --no-install-recommends \
        wine32:i386 "${pinned[@]}" >/dev/null
fi
