#!/usr/bin/env bash
# Builds the benchmarks optimised, runs them all and prints each figure beside its aim. Ratios compare two sides
# measured in the same run; times hold for this machine and its load. The whole output stays in build/release/bench/.
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh
pakete_sicherstellen bauen pruefen

cache=()
if command -v ccache >/dev/null; then
  cache=(-DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
fi
cmake --preset release "${cache[@]}" >/dev/null
programme=()
for quelle in bench/*_bench.cpp; do
  programme+=("$(basename "$quelle" .cpp)")
done
cmake --build build/release -j"$(nproc)" --target "${programme[@]}" | tail -1

protokoll=build/release/bench/protokoll.txt
: >"$protokoll"
for programm in "${programme[@]}"; do
  build/release/bench/"$programm" 2>/dev/null | tee -a "$protokoll" >&2
done

echo
echo "Last der Maschine: $(cut -d' ' -f1-3 /proc/loadavg), Kerne: $(nproc)"
printf '%-34s %-12s %12s %10s %s\n' Messung Größe Gemessen Ziel ''
# name|counter or "Zeit" in ms|<= or >=|aim
while IFS='|' read -r name zaehler art ziel; do
  grep -E "^$name(/| )" "$protokoll" | while read -r zeile; do
    if [ "$zaehler" = Zeit ]; then
      wert=$(awk '{ v = $2; if ($3 == "ns") v /= 1e6; if ($3 == "us") v /= 1e3; if ($3 == "s") v *= 1e3; print v }' <<<"$zeile")
    else
      wert=$(sed -nE "s/.* $zaehler=([^ ]+).*/\1/p" <<<"$zeile" | awk '{ v = $1 + 0; if ($1 ~ /m$/) v /= 1e3; if ($1 ~ /k$/) v *= 1e3; print v }')
    fi
    urteil=$(awk -v w="$wert" -v z="$ziel" -v a="$art" 'BEGIN { print ((a == "<=" ? w <= z : w >= z) ? "gut" : "VERFEHLT") }')
    LC_ALL=C printf '%-34s %-12s %12.3f %10s %s\n' "$(awk '{ sub("/manual_time|/iterations.*", "", $1); print $1 }' <<<"$zeile")" \
      "$(case $zaehler in Zeit | *ms) echo ms ;; *) echo Verhältnis ;; esac)" "$wert" "$art $ziel" "$urteil"
  done
done <<'ZIELE'
Laden_gegen_wc|verhaeltnis|<=|10
Laden_gegen_wc|ms|<=|50
Speichern_gegen_fsync|verhaeltnis|<=|3
Uebersetzen_voll|mal_memcpy|<=|10
Schaltzeiten_eines_jahres|Zeit|<=|10
Transfer_tcp|mal_nackt|<=|1.3
Transfer_pty|mal_nackt|<=|1.3
Transfer_115200|boden_zu_gemessen|>=|0.98
Reiter|Zeit|<=|16
Gruppe_waehlen|Zeit|<=|16
Platz_waehlen|Zeit|<=|16
Kombination_waehlen|Zeit|<=|16
Adressdialog_oeffnen|Zeit|<=|16
Oeffnen_und_OK|Zeit|<=|150
Suchen|Zeit|<=|150
Editor_oeffnen_und_schliessen|Zeit|<=|150
Deskriptor|build_ms|<=|50
Starten|ms|<=|400
Laengste_oeffnung|Zeit|<=|150
Laengster_halt|Zeit|<=|50
ZIELE
