#!/usr/bin/env bash
# Makes the pictures of every window in docs/bilder with the example house.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/pakete.sh
pakete_sicherstellen bauen fenster

cmake --preset release -DZAV_TESTS=OFF -DZAV_BENCH=OFF >/dev/null
cmake --build build/release -j"$(nproc)" --target zavlink_bilder >/dev/null
# Nothing of the user's settings is read or written; the same pictures on every computer.
einstellungen=$(mktemp -d)
trap 'rm -rf "$einstellungen"' EXIT
XDG_CONFIG_HOME=$einstellungen XDG_RUNTIME_DIR=$einstellungen QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=1 \
  timeout 300 build/release/apps/zavlink/zavlink_bilder examples/einfamilienhaus.zav docs/bilder "$@"
