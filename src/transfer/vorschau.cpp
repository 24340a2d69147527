#include "transfer/vorschau.h"

#include <algorithm>

#include "basis/zahl.h"
#include "platform/einstellungen.h"
#include "transfer/plan.h"

namespace zav {

namespace {

constexpr double zeichen_je_s = 11520;  // 115200 baud 8N1
constexpr double bedenkzeit_s = 0.01;   // of the master for each message
constexpr double handschlag_s = 2;      // receiver reset, version, stamp
constexpr int rahmen = 3;               // checksum and CR
constexpr int antwort = 6;
constexpr int fensterbefehl = 13;

// Seconds of a block of that length.
double Blockdauer(const Abschnitt& a, int bytes) {
  const int nachrichten = a.gefenstert() ? 2 : 1;
  const int zeichen = static_cast<int>(a.befehl.size()) + 2 * bytes + (a.gefenstert() ? fensterbefehl : 0) +
                      nachrichten * (rahmen + antwort);
  return zeichen / zeichen_je_s + nachrichten * bedenkzeit_s;
}

}  // namespace

Sendevorschau Sendevorschau_von(const Projekt& p) {
  Sendevorschau v;
  v.ereignisse = static_cast<int>(std::ranges::count(p.Ein_funktext.alle(), 1));
  v.ereignisse += static_cast<int>(std::ranges::count(p.Uhr_funktext.alle(), 1) +
                                   std::ranges::count(p.Tev_funktext.alle(), 1));
  v.schaltzeiten = p.Uhr_tabelle_geaendert == 1;
  v.led_gruppen = static_cast<int>(std::ranges::count(p.Grp_led.alle(), 1));

  static const Uhr_tafel leere_tafel;  // a page has its length whatever stands in it
  const Quelle quelle{p, einstellungen, leere_tafel};
  double sekunden = handschlag_s;
  Block b;
  for (const Abschnitt& a : Plan()) {
    if (a.nur_gesperrt) continue;
    for (int zeile = 0; zeile < a.zeilen; ++zeile) {
      if (a.faellig != nullptr && !a.faellig(p, zeile)) continue;
      b.leeren();
      a.packen(quelle, zeile, b);
      sekunden += Blockdauer(a, b.laenge());
    }
  }
  v.sekunden = static_cast<int>(Runden(sekunden));
  return v;
}

}  // namespace zav
