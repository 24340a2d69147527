#!/usr/bin/env bash
# Which lines and branches of src/ the tests reach: a build of its own, all tests, and a report by gcovr. The lines
# that none reaches stand in build/abdeckung/bericht.txt.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/pakete.sh
pakete_sicherstellen bauen pruefen statisch
cache=()
if command -v ccache >/dev/null; then
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake -S . -B build/abdeckung -G Ninja -DCMAKE_BUILD_TYPE=Debug -DCMAKE_CXX_FLAGS="--coverage -fprofile-update=atomic" \
  -DZAV_BENCH=OFF "${cache[@]}" >/dev/null
cmake --build build/abdeckung -j"$(nproc)" | tail -1
find build/abdeckung -name '*.gcda' -delete
QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen} ctest --test-dir build/abdeckung -j"$(nproc)" --output-on-failure | tail -3
gcovr --root . --object-directory build/abdeckung --filter 'src/' --exclude-throw-branches --exclude-unreachable-branches \
  --json build/abdeckung/bericht.json --txt build/abdeckung/bericht.txt --print-summary
