#!/usr/bin/env bash
# Renews the user guide's screenshots in src/resources/help/images/: builds the screenshot program
# (scripts/screenshots/) in build-shots/ and runs it on a virtual display. The program makes a demo
# plan in a temporary home of its own, so no plan or setting of the user is read or changed.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/deps.sh
rostera_install_missing
rostera_install_missing xvfb xauth
cmake -S . -B build-shots -DBUILD_TESTING=OFF -DROSTERA_SCREENSHOTS=ON
cmake --build build-shots -j"$(nproc)" --target rostera_screenshots
xvfb-run -a -s "-screen 0 1400x900x24" build-shots/bin/rostera_screenshots src/resources/help/images
