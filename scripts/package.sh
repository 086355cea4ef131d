#!/usr/bin/env bash
# Builds the Debian package of Rostera: build-package/rostera_<version>_<arch>.deb (or in the folder given).
# Install it with: sudo apt-get install ./build-package/rostera_*.deb
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
rostera_install_missing $ROSTERA_PACKAGES $ROSTERA_PACKAGING_PACKAGES
dir=${1:-build-package}
cmake -S . -B "$dir" -DBUILD_TESTING=OFF -DCMAKE_BUILD_TYPE=Release -DCMAKE_INSTALL_PREFIX=/usr
cmake --build "$dir" -j"$(nproc)"
# One package in the folder, so that the wildcard above names this version only.
rm -f "$dir"/rostera_*.deb
(cd "$dir" && cpack)
