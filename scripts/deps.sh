#!/bin/sh
# Installs the Debian packages the build and the tests need, skipping those
# already present. Runs as root, or through sudo when it is available.
set -eu

PACKAGES="cmake make g++ clang libclang-rt-dev libgtest-dev libgmock-dev libbenchmark-dev \
libmpfr-dev libgmp-dev libboost-dev libffi-dev zip unzip xz-utils \
g++-aarch64-linux-gnu qemu-user g++-mingw-w64-x86-64 wine64 cmark-gfm"

missing=""
for p in $PACKAGES; do
    if ! dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed"; then
        missing="$missing $p"
    fi
done
[ -z "$missing" ] && exit 0

as_root=""
if [ "$(id -u)" != 0 ]; then
    command -v sudo >/dev/null 2>&1 || { echo "deps: need root to install:$missing" >&2; exit 1; }
    as_root="sudo"
fi
export DEBIAN_FRONTEND=noninteractive
echo "deps: installing$missing"
# shellcheck disable=SC2086
if ! $as_root apt-get install -y --no-install-recommends $missing; then
    $as_root apt-get update
    $as_root apt-get install -y --no-install-recommends $missing
fi
