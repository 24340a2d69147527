// The live look-up of `Enocean_Definition`: asks every receiver for the last telegram it heard.
#include <algorithm>
#include <array>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "enocean/enocean_definition.h"
#include "enocean/sender.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "platform/uhrwerk.h"

namespace zav {

namespace {

constexpr const char* nichts = "---";
constexpr double antwortpause = 0.1;  // s until the receiver's telegram is with the master
constexpr int statuslaenge = 6;
constexpr int telegrammlaenge = 31;
constexpr int kein_pegel = 200;  // from here on nothing was heard
constexpr int schwach = 100;     // end of the bar

// Waits with the window alive; what comes meanwhile is no reply and goes.
void Pause(double sekunden) {
  const double ende = Timer() + sekunden;
  std::array<char, 128> puffer{};
  while (Timer() < ende) {
    const int rest = Echte_millisekunden(ende - Timer());
    if (Bytes_lesen(puffer.data(), static_cast<int>(puffer.size()), rest) < 0) return;
  }
}

// Two-character pieces of the telegram's last six bytes.
std::string Stuecke(const std::string& antwort) {
  std::string text;
  for (const std::size_t von : {11, 13, 15, 17, 19, 21})
    text += (text.empty() ? "" : " ") + Mitte(antwort, von, 2);
  return text;
}

}  // namespace

void Enocean_Definition::Nachsehen() {
  Gehoertes_leeren();
  Command1.frei = Command2.frei = Command5.frei = false;
  {
    const Wartezeiger zeiger;
    Port_oeffnen();
    if (leitung.Port_fehler != 0) {
      Melden("SIO: Fehler " + std::to_string(leitung.Port_fehler) + " bei Open Port");
    } else if (!Alle_fragen()) {
      Melden("Kommunikation nicht möglich. Versuchen Sie es bitte noch einmal.");
    }
    Port_schliessen();
  }
  Command1.frei = Command2.frei = Command5.frei = true;
}

bool Enocean_Definition::Alle_fragen() {
  const bool details = Check3.an();
  const bool alle = Check2.an();
  for (const char buchstabe : {'W', 'V'}) {
    if (buchstabe == 'V' && !details) break;
    for (int r = 0; r < empfaenger; ++r) {
      if (!alle && projekt.Enocean_empf_da[r] != 1) continue;
      std::string antwort;
      if (!Telegramm_holen(r, buchstabe, antwort)) return false;
      const auto i = static_cast<std::size_t>(r);
      if (buchstabe == 'W') {
        Gehoertes_zeigen(i, antwort);
      } else {
        Label5[i].titel = Stuecke(antwort);
      }
    }
  }
  return true;
}

bool Enocean_Definition::Telegramm_holen(int r, char buchstabe, std::string& antwort) {
  leitung.Sende_text = "X" + Empfaenger_adresse(r) + "02" + Hex2('A') + Hex2(buchstabe) + "000000000000";
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, statuslaenge);
  if (leitung.Empfang_status != 0 || !Antwort_ist_gut()) return false;
  Empfang_leeren();
  Pause(antwortpause);
  leitung.Sende_text = "x";
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, telegrammlaenge);
  antwort = leitung.Empfang_text;
  return leitung.Empfang_status == 0;
}

void Enocean_Definition::Gehoertes_zeigen(std::size_t r, const std::string& antwort) {
  Label3[r].titel = Mitte(antwort, 11, sender_id_laenge);
  Label3[r].sperren(!Ist_sender_id(*Label3[r].titel), "Dieser Empfänger hat keinen Sender gehört");
  const auto wort = Hex_zahl(Mitte(antwort, 19, 4));
  const int pegel = wort ? static_cast<int>(Runden(static_cast<double>(*wort) / 5)) : kein_pegel;
  const bool gehoert = pegel < kein_pegel;
  ProgressBar[r].wert = !gehoert ? 0 : std::min(pegel, schwach);
  Label4[r].titel = gehoert ? std::to_string(pegel) : nichts;
}

}  // namespace zav
