#!/usr/bin/env bash
# Builds Rostera with its tests and runs them all. With --asan: in build-asan/, under
# AddressSanitizer and UndefinedBehaviorSanitizer.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
rostera_install_missing
dir=build options=""
if [ "${1:-}" = "--asan" ]; then
    dir=build-asan options="-DROSTERA_SANITIZE=ON"
fi
cmake -S . -B "$dir" -DBUILD_TESTING=ON $options
cmake --build "$dir" -j"$(nproc)"
cd "$dir"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure -j"$(nproc)"
