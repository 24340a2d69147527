#include "service/terminal.h"

#include <algorithm>
#include <chrono>

#include "basis/datum.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "link/leitung.h"
#include "link/statuscode.h"
#include "platform/sio.h"
#include "platform/uhrwerk.h"
#include "store/sitzung.h"

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;

constexpr double auffrischung_s = 20;  // a connection that carries nothing for long is cut by routers
constexpr int runde_ms = 50;
constexpr std::size_t laengste_zeile = 4096;  // of the master are far shorter; a flood without CR is cut here
constexpr int status_laenge = 6;
constexpr const char* zeilenende = "\r\n";

constexpr const char* hilfe =
    "Ab sofort werden alle Ereignisse von Eingängen angezeigt. So ist es zum Beispiel möglich, die Funktion "
    "einzelner Tasten oder eines Bewegungsmelders zu überprüfen.\r\n\r\n"
    "Sollen nur einzelne Ereignisse angezeigt werden, können bis zu 8 Durchlasskriterien angegeben werden. "
    "Achten Sie auf exakte Schreibweise: Bei der Angabe von 'K000 T1 -/-' wird zum Beispiel jedes Loslassen "
    "der Taste 1 des ZAVin I000 angezeigt. Wenn Sie aber K000 eingeben, werden alle Ereignisse dieses ZAVin "
    "angezeigt. Auf Wunsch können sowohl Zeit und Datum des PCs (und nicht des ZAVmasters) angezeigt "
    "werden.\r\n\r\n"
    "Zur weiteren Auswertung, zum Beispiel in Word oder Excel, kann der Text kopiert werden: alles markieren "
    "und mit rechter Maustaste im Kontextmenu auf Kopieren klicken.\r\n\r\n";

}  // namespace

bool Terminal::Passiert(std::string_view zeile) const {
  bool ohne_kriterium = true;
  for (const str& f : Filter) {
    if (f.empty()) continue;
    if (zeile.find(f) != std::string_view::npos) return true;
    ohne_kriterium = false;
  }
  return ohne_kriterium;
}

std::string Terminal::Stempel() const {
  std::string text;
  if (Check1) text += "  " + Zeit_text(Tageszeit());
  if (Check2) text += "  " + Datum_text(Heute());
  return text;
}

void Terminal::Zeile_fertig() {
  const std::string zeile = zeile_.empty() ? " " : Aus_1252(zeile_);
  zeile_.clear();
  if (Passiert(zeile)) anzeige_.Zeile_zeigen(zeile + Stempel());
}

Terminalende Terminal::Terminal_lauf(Terminalmodus modus) {
  sitzung.Abbruch = 0;
  zeile_.clear();
  const bool liste = modus == Terminalmodus::liste;
  anzeige_.Text_zeigen(std::string(liste ? "Neustart ZAVmaster..." : "Protokollieren...") + zeilenende);
  if (!liste) anzeige_.Text_zeigen(hilfe);

  Port_oeffnen();
  if (leitung.Port_fehler != 0) {
    leitung.Empfang_text = Antwort_port;
  } else {
    leitung.Sende_text = "I";
    Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, status_laenge);
  }
  Terminalende ende = leitung.Port_fehler != 0 ? Terminalende::nicht_geoeffnet : Terminalende::abgelehnt;
  if (leitung.Port_fehler == 0 && Antwort_ist_gut()) {
    anzeige_.Text_zeigen("\r" + leitung.Empfang_text + zeilenende);
    ende = Verbunden(modus);
  } else {
    const std::string grund(Uebertragungstext(Links(leitung.Empfang_text, 3)));
    anzeige_.Text_zeigen(grund + zeilenende);
    melder().Hinweis(grund);  // stays readable when the terminal goes
  }
  Port_schliessen();
  return ende;
}

Terminalende Terminal::Verbunden(Terminalmodus modus) {
  const bool netz = leitung.Link_art == Verbindung::tcp;
  const auto abstand = std::chrono::milliseconds(Echte_millisekunden(auffrischung_s));
  auto auffrischen = Uhr::now() + abstand;
  if (modus == Terminalmodus::liste) {
    // Before the restart, not behind it: a quick master's first lines count.
    if (!netz) SioRxClear(Sio_port());
    Byte_senden('*');
  }
  std::array<char, 50> puffer{};
  while (sitzung.Abbruch == 0) {
    const int n = Bytes_lesen(puffer.data(), static_cast<int>(puffer.size()), runde_ms);
    if (sitzung.Abbruch != 0) break;
    if (n < 0) {
      anzeige_.Text_zeigen(std::string("---> Verbindung zum ZAVmaster unterbrochen") + zeilenende);
      return Terminalende::leitung_weg;
    }
    for (int i = 0; i < n; ++i) {
      const char c = puffer[static_cast<std::size_t>(i)];
      if (static_cast<unsigned char>(c) > '\r') zeile_ += c;
      if (c == '\r' || zeile_.size() >= laengste_zeile) Zeile_fertig();
    }
    if (netz && Uhr::now() >= auffrischen) {
      Byte_senden('%');
      anzeige_.Text_zeigen(std::string("---> Ethernet Refresh") + zeilenende);
      auffrischen = Uhr::now() + abstand;
    }
  }
  return Terminalende::verlassen;
}

}  // namespace zav
