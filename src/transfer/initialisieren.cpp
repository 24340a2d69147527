// Erasing and testing the master's memory.
#include <algorithm>
#include <array>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"
#include "transfer/uebertragung.h"
#include "zav/version.h"

namespace zav {

namespace {

constexpr double stille_sekunden = 15;  // without a byte, after which the master counts as gone
constexpr std::size_t bericht_hoechstens = std::size_t{1} << 20;  // bytes; a true report has a few thousand
constexpr double prozent_je_schritt = 1.68;                       // the erase reports about 60 steps

struct Schluss {
  Transferstand stand;
  std::string meldung;
  Symbol symbol;
};
const std::array<Schluss, 3> schluesse{{
    {Transferstand::bereit, "Senden ist jetzt möglich", Symbol::Information},
    {Transferstand::flash_fehler, "Fehler im Flash, trotzdem senden?", Symbol::Stopp},
    {Transferstand::keine_antwort, "Timeout, keine Verbindung mit ZAVmaster!", Symbol::Stopp},
}};

}  // namespace

// Rows without a function stay unmarked: the erased memory holds them already.
void Uebertragung::Alles_vormerken() {
  std::ranges::fill(projekt.Grp_led.alle(), i16{1});
  projekt.Ein_funktext = projekt.Ein_leer;
  projekt.Uhr_funktext = projekt.Uhr_leer;
  projekt.Tev_funktext = projekt.Tev_leer;
  projekt.Uhr_tabelle_geaendert = 1;
}

// Takes one character of the master's report: a CR for each step done, "e" for a fault in the memory; the
// rest is for the log.
void Uebertragung::Meldezeichen(char zeichen, double& prozent) {
  switch (zeichen) {
    case '\r': {
      prozent = std::min(100.0, prozent + prozent_je_schritt);
      const int ganze = static_cast<int>(prozent);
      beobachter_.Fortschritt_zeigen({static_cast<double>(ganze), ganze});
      beobachter_.Protokoll("\r\n");
      break;
    }
    case '.': break;
    case 'e':
    case 'E': Transfer_status = Transferstand::flash_fehler; break;
    default: beobachter_.Protokoll(Aus_1252({&zeichen, 1}));
  }
}

// Reads the report until "F00", or until the master has been silent or has talked too long.
void Uebertragung::Bericht_lesen() {
  double prozent = 0;
  std::string gelesen;
  std::array<char, 64> puffer{};
  for (std::size_t bytes = 0; bytes < bericht_hoechstens;) {
    const int n =
        Bytes_lesen(puffer.data(), static_cast<int>(puffer.size()), Echte_millisekunden(stille_sekunden));
    if (n <= 0) break;
    bytes += static_cast<std::size_t>(n);
    for (int i = 0; i < n; ++i) {
      const char zeichen = puffer[static_cast<std::size_t>(i)];
      gelesen.erase(0, gelesen.size() == 3 ? 1 : 0) += zeichen;
      Meldezeichen(zeichen, prozent);
      if (gelesen != "F00") continue;
      // The end is a status reply: its checksum and CR must not be taken for the begin of the next one.
      Empfang_leeren();
      return;
    }
  }
  Transfer_status = Transferstand::keine_antwort;
}

bool Uebertragung::Initialisieren() {
  if (!Fragen({.text = "Der ZAVmaster enthält anschliessend keine Daten mehr! Möchten Sie fortfahren?",
               .titel = "ZAVlink",
               .knoepfe = Knoepfe::Ja_Nein,
               .symbol = Symbol::Warnung,
               .standard = 2})) {
    return false;
  }
  beobachter_.Protokoll_leeren();
  beobachter_.Fortschritt_zeigen({});
  Transfer_status = Transferstand::bereit;
  beobachter_.Befehle_freigeben(false);
  beobachter_.Protokoll("Speicher im ZAVmaster löschen und prüfen\r\n");
  Alles_vormerken();

  const bool entschieden = Loeschen();
  Port_schliessen();
  beobachter_.Befehle_freigeben(true);
  if (!entschieden) return false;
  for (const Schluss& s : schluesse) {
    if (s.stand == Transfer_status) Melden(s.meldung, "Info", s.symbol);
  }
  if (Transfer_status == Transferstand::keine_antwort) return false;
  leitung.Abbruch_gemeldet = 0;
  Nach_initialisierung = 1;
  sitzung.Master_neu_pruefen = 0;
  return true;
}

// False when the operation ended before the master was told to erase, with its box shown.
bool Uebertragung::Loeschen() {
  Port_oeffnen();
  if (leitung.Port_fehler != 0) {
    Melden("SIO: Fehler " + std::to_string(leitung.Port_fehler) + " bei Open Port");
    return false;
  }
  if (!Version_holen()) return true;
  if (!Version_vertraeglich("Version ZAVmaster (" + Links(leitung.Empfang_text, 9) +
                            ") ist nicht kompatibel zur PC-Software " + programm_version)) {
    return false;
  }
  const std::string befehl = "EI";
  const int gesendet = Bytes_senden(befehl + Pruefsumme(befehl) + "\r");
  if (gesendet < 0) {
    Melden("SIO: Fehler " + std::to_string(gesendet) + " bei Befehl puts");
    Transfer_status = Transferstand::keine_antwort;
    return true;
  }
  Bericht_lesen();
  return true;
}

}  // namespace zav
