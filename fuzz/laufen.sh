#!/usr/bin/env bash
# Builds the fuzz targets with clang and runs each for SEKUNDEN (60), from the seeds in korpus/ and what earlier runs
# have found. Ends with an error when one finds something; the input then lies in build/fuzz/funde/.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/pakete.sh
pakete_sicherstellen bauen fuzzen
sekunden=${1:-60}
cache=()
if command -v ccache >/dev/null; then
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset fuzz "${cache[@]}" >/dev/null
cmake --build build/fuzz -j"$(nproc)" --target fuzz_alle | tail -1

rot=0
mkdir -p build/fuzz/funde
printf '%-14s %12s %10s %8s %s\n' Ziel Läufe Kanten Korpus Funde
for samen in fuzz/korpus/*/; do
  ziel=$(basename "$samen")
  mkdir -p "build/fuzz/korpus/$ziel"
  protokoll=build/fuzz/$ziel.log
  funde=0
  build/fuzz/fuzz/"$ziel" -max_total_time="$sekunden" -timeout=20 -rss_limit_mb=2048 -print_final_stats=1 \
    -artifact_prefix="build/fuzz/funde/$ziel-" "build/fuzz/korpus/$ziel" "$samen" >"$protokoll" 2>&1 || funde=1
  letzte=$(grep -E '^#[0-9]+' "$protokoll" | tail -1)
  feld() { sed -nE "s|.* $1: ([0-9]+).*|\1|p" <<<"$letzte"; }
  printf '%-14s %12s %10s %8s %s\n' "$ziel" "$(sed -nE 's/^#([0-9]+).*/\1/p' <<<"$letzte")" "$(feld cov)" \
    "$(feld corp)" "$funde"
  if [ "$funde" -ne 0 ]; then
    rot=1
    grep -E 'ERROR|SUMMARY|does not hold|runtime error' "$protokoll" || tail -5 "$protokoll"
  fi
done
exit "$rot"
