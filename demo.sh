#!/usr/bin/env bash
# Sends the example house to a simulated master and shows what arrived there.
#   ./demo.sh            on the command line
#   ./demo.sh --fenster  opens it in the window program, which has a simulated master as its interface
set -euo pipefail
cd "$(dirname "$0")"
. scripts/pakete.sh
pakete_sicherstellen bauen

if [ "${1:-}" = --fenster ]; then
  pakete_sicherstellen fenster
  echo "Baue das Fensterprogramm ..."
  ordner=$(mktemp -d)
  trap 'rm -rf "$ordner"' EXIT
  {
    cmake --preset release -DZAV_TESTS=OFF -DZAV_BENCH=OFF
    cmake --build build/release -j"$(nproc)" --target zavlink
  } >"$ordner/protokoll" 2>&1 || { tail -30 "$ordner/protokoll" >&2; exit 1; }
  cp examples/einfamilienhaus.zav "$ordner/"
  build/release/apps/zavlink/zavlink --simulator "$ordner/einfamilienhaus.zav"
  exit
fi

echo "Baue zav und den simulierten ZAVmaster ..."
protokoll=$(mktemp)
ordner=$(mktemp -d)
trap 'rm -rf "$protokoll" "$ordner"' EXIT
{
  cmake --preset release -DZAV_TESTS=OFF -DZAV_BENCH=OFF
  cmake --build build/release -j"$(nproc)" --target zav zavmaster masterbericht
} >"$protokoll" 2>&1 || { tail -30 "$protokoll" >&2; exit 1; }
zav=build/release/apps/zav/zav

# Settings, project and the master's memory of this demonstration; nothing of the user's is touched.
export XDG_CONFIG_HOME=$ordner
cp examples/einfamilienhaus.zav "$ordner/"
haus=$ordner/einfamilienhaus

überschrift() { printf '\n\033[1m%s\033[0m\n' "$*"; }
blöcke() { "$zav" abbild --nur-geaenderte "$haus" | wc -l; }

: >"$ordner/anschluss"
build/release/simulator/zavmaster --tcp 0 --speicher "$ordner/master" >"$ordner/anschluss" &
master=$!
trap 'kill $master 2>/dev/null || true; rm -rf "$protokoll" "$ordner"' EXIT
until port=$(sed -n 's/^TCP //p' "$ordner/anschluss") && [ -n "$port" ]; do
  kill -0 $master || { echo "Der simulierte ZAVmaster läuft nicht." >&2; exit 1; }
  sleep 0.05
done

überschrift "Das Beispielhaus (examples/einfamilienhaus.zav)"
"$zav" zeigen "$haus"

überschrift "1. Übertragung: ein leerer ZAVmaster, alles wird gesendet ($(blöcke) Blöcke)"
"$zav" --tcp "127.0.0.1:$port" --ja senden "$haus" --initialisieren

überschrift "2. Übertragung: nichts geändert ($(blöcke) Blöcke)"
"$zav" --tcp "127.0.0.1:$port" --nein senden "$haus"

überschrift "Der ZAVmaster meldet"
"$zav" --tcp "127.0.0.1:$port" master
kill $master
wait $master

überschrift "Was in seinem Speicher angekommen ist"
build/release/examples/masterbericht "$ordner/master"
