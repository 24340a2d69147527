#!/usr/bin/env bash
# Builds everything with the address and undefined-behaviour sanitizers and runs all tests.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh
pakete_sicherstellen bauen fenster pruefen

export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}
cache=()
if command -v ccache >/dev/null; then
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset asan "${cache[@]}" >/dev/null
cmake --build build/asan -j"$(nproc)"
ctest --test-dir build/asan -j"$(nproc)" --output-on-failure
