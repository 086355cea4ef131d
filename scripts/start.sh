#!/usr/bin/env bash
# Builds Rostera in build/ and starts it.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
rostera_install_missing
cmake -S . -B build -DBUILD_TESTING=OFF
cmake --build build -j"$(nproc)" --target rostera
exec build/bin/rostera
