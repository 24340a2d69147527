#include "service/firmware.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <thread>

#include "basis/melder.h"
#include "basis/windows1252.h"
#include "platform/datei.h"
#include "platform/uhrwerk.h"
#include "service/srecord.h"

namespace zav {

namespace {

using Uhr = std::chrono::steady_clock;
using std::chrono::milliseconds;

constexpr const char* namenszeichen = "ZAVMAStER_";
constexpr const char* aufforderung = "Quit Bootloader and start ZAVmaster-1024";
constexpr int runde_ms = 50;
constexpr int countdown_s = 15;
constexpr int erstes_zeichen = 13;            // characters below never reach a line
constexpr std::size_t laengste_zeile = 4096;  // its own are far shorter; a flood without CR is cut here
constexpr int nachlauf = 64;  // reads of a log behind its time, so that a flood does not hold the run

milliseconds Spanne(double sekunden) { return milliseconds(Echte_millisekunden(sekunden)); }

void Warten_mit_runden(double sekunden) {
  const auto ende = Uhr::now() + Spanne(sekunden);
  while (Uhr::now() < ende) {
    melder().DoEvents();
    std::this_thread::sleep_until(std::min(ende, Uhr::now() + milliseconds(runde_ms)));
  }
}

}  // namespace

Updateergebnis Firmware_update::Ausgang(Warten w) {
  return w == Warten::abgebrochen ? Updateergebnis::abgebrochen : Updateergebnis::leitung_weg;
}

// Warns of a file that is no firmware; never refuses it.
bool Firmware_update::Inhalt_pruefen(const std::string& pfad) {
  std::string inhalt;
  const Dateiergebnis gelesen = Datei_lesen(pfad, inhalt);
  const std::string mangel =
      gelesen ? Srecord_mangel(inhalt)
              : "Die Datei kann nicht gelesen werden: " + Systemfehler_text(gelesen.fehler) + ".";
  if (mangel.empty()) return true;
  return Fragen(
      {.text =
           "Das ist keine einwandfreie Update-Datei: " + mangel +
           "\r\n\r\nDas Betriebssystem im ZAVmaster wird trotzdem gelöscht, wenn Sie fortfahren. Fortfahren?",
       .titel = "Update-Assistent",
       .knoepfe = Knoepfe::Ja_Nein,
       .symbol = Symbol::Warnung,
       .standard = 2});
}

Updateergebnis Firmware_update::Ausfuehren(Updateweg weg, const std::string& Update_datei) {
  Abbruch = false;
  geloescht = false;
  if (Update_datei.find(namenszeichen) == std::string::npos) {
    Melden("Ungültige Update-Datei ZAVMASTER_");
    return Updateergebnis::falscher_name;
  }
  if (!Inhalt_pruefen(Update_datei)) return Updateergebnis::nicht_gewollt;
  Warten_mit_runden(1);
  const auto leitung = Firmwareleitung_anlegen(weg);
  if (!leitung->Oeffnen()) return Updateergebnis::nicht_geoeffnet;
  const Updateergebnis ergebnis = Fuehren(*leitung, Update_datei);
  beobachter_.Abbruch_freigeben(false);
  Scheitern_melden(ergebnis);
  return ergebnis;
}

void Firmware_update::Scheitern_melden(Updateergebnis ergebnis) const {
  std::string text;
  if (ergebnis == Updateergebnis::leitung_weg) {
    text = "Die Verbindung zum ZAVmaster ist unterbrochen.";
  } else if (ergebnis == Updateergebnis::unvollstaendig) {
    text = "Die Update-Datei konnte nicht vollständig gesendet werden.";
  } else {
    return;
  }
  if (geloescht) text += " Der ZAVmaster hat jetzt kein Betriebssystem: bitte den Update wiederholen.";
  Melden(text, "Update-Assistent", Symbol::Stopp);
}

Updateergebnis Firmware_update::Fuehren(Firmwareleitung& l, const std::string& pfad) {
  beobachter_.Schritt_zeigen(2, "2. Jetzt bitte ZAVmaster aus-/einschalten");
  beobachter_.Abbruch_freigeben(true);
  l.Leeren();
  if (const Warten w = Aufforderung_abwarten(l); w != Warten::gekommen) return Ausgang(w);

  beobachter_.Schritt_zeigen(3, "3. Betriebssystem im ZAVmaster wird gelöscht");
  l.Leeren();
  geloescht = true;
  l.Schreiben("a");
  if (const Warten w = Aufforderung_abwarten(l); w != Warten::gekommen) return Ausgang(w);
  beobachter_.Abbruch_freigeben(false);

  beobachter_.Schritt_zeigen(4, "4. ZAVmaster wird vorbereitet zum Update");
  l.Leeren();
  Zeile("b");
  Zeile("Schnittstelle wird initialisiert");
  l.Schreiben("b");
  Zeile("ZAVmaster auf Empfang setzen");
  std::this_thread::sleep_for(Spanne(2));

  beobachter_.Schritt_zeigen(5, "5. ZAVmaster update läuft...");
  l.Leeren();
  Zeile("Schnittstelle wird initialisiert");
  const int gesendet = l.Datei_senden(
      pfad, [this](const std::string& text) { Zeile(text); },
      [&](Firmwareleitung::Sendestand s) {
        beobachter_.Fortschritt_zeigen(static_cast<double>(s.gesendet) / 100,
                                       static_cast<double>(s.laenge) / 100);
        Mitlesen(l, 0);
      });
  l.Modemleitungen_loeschen();
  Mitlesen(l, Echte_millisekunden(2));
  Neu_starten(l);
  return gesendet < 0 ? Updateergebnis::unvollstaendig : Updateergebnis::fertig;
}

// Reads lines into the log until one holds the prompt, behind at least one other character. The master may
// take its time: it waits for its power.
Firmware_update::Warten Firmware_update::Aufforderung_abwarten(Firmwareleitung& l) {
  std::string zeile;
  for (;;) {
    melder().DoEvents();
    if (Abbruch) return Warten::abgebrochen;
    char c = 0;
    const int n = l.Lesen(&c, 1, runde_ms);
    if (n < 0) return Warten::leitung_weg;
    if (n == 0 || static_cast<unsigned char>(c) < erstes_zeichen) continue;
    if (c != '\r') zeile += c;
    if (c != '\r' && zeile.size() < laengste_zeile) continue;
    Zeile(Aus_1252(zeile));
    const std::size_t stelle = zeile.find(aufforderung);
    if (stelle != std::string::npos && stelle > 0) return Warten::gekommen;
    zeile.clear();
  }
}

// For ms milliseconds, and what waits then, what the master sends goes to the log.
void Firmware_update::Mitlesen(Firmwareleitung& l, int ms) {
  std::array<char, 64> puffer{};
  const auto ende = Uhr::now() + milliseconds(ms);
  for (int noch = nachlauf; noch > 0;) {
    melder().DoEvents();
    const auto rest = std::chrono::ceil<milliseconds>(ende - Uhr::now()).count();
    const int warten = static_cast<int>(std::clamp<std::int64_t>(rest, 0, runde_ms));
    const int n = l.Lesen(puffer.data(), static_cast<int>(puffer.size()), warten);
    if (n < 0)
      std::this_thread::sleep_for(milliseconds(warten));  // gone: nothing left to wait for in the line
    std::string echo;
    for (int i = 0; i < n; ++i) {
      const char c = puffer[static_cast<std::size_t>(i)];
      if (static_cast<unsigned char>(c) < erstes_zeichen) continue;
      echo += c == '\r' ? std::string("\r\n") : std::string(1, c);
    }
    if (!echo.empty()) beobachter_.Protokoll(Aus_1252(echo));
    if (rest > 0) continue;
    noch = n <= 0 ? 0 : noch - 1;
  }
}

void Firmware_update::Neu_starten(Firmwareleitung& l) {
  beobachter_.Schritt_zeigen(6, "6. Update erfolgreich");
  Melden("ZAVmaster jetzt neu starten\r\n");
  beobachter_.Schritt_zeigen(6, "6. Update erfolgreich, ZAVmaster wird neu gestartet");
  l.Schreiben("*");
  for (int rest = countdown_s; rest > 0; --rest) {
    beobachter_.Fortschritt_zeigen(16 - rest, countdown_s);
    Mitlesen(l, Echte_millisekunden(1));
  }
  l.Leeren();
  l.Modemleitungen_loeschen();
}

}  // namespace zav
