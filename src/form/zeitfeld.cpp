#include "form/zeitfeld.h"

#include <array>
#include <optional>

#include "basis/datum.h"
#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "form/formular.h"

namespace zav {

namespace {

constexpr std::string_view formfehler_feld = "Richtig: hh.mm.ss";

// The two digits at a position, nothing where there are none.
std::optional<int> Ziffernpaar(std::string_view text, std::size_t von) {
  const std::string paar = Mitte(text, von, 2);
  if (paar.size() != 2 || paar.find_first_not_of("0123456789") != std::string::npos) return std::nullopt;
  return Zahl_lesen(paar);
}

void Beanstanden(Textfeld& feld, const std::string& text, const std::string& meldung) {
  feld.setzen(text);
  feld.farbe = Farbe::aktuell;
  Melden(meldung);
  feld.farbe = Farbe::normal;
  if (feld.formular() != nullptr) feld.formular()->fokussieren(feld);
}

}  // namespace

std::string Zeitwerte_pruefen(std::string_view text, std::string_view formfehler) {
  struct Wert {
    std::size_t von;
    int hoechster;
    const char* meldung;
  };
  static constexpr std::array<Wert, 3> werte{{{1, 23, "Stunde zu gross"},  //
                                              {4, 59, "Minute zu gross"},
                                              {7, 59, "Sekunde zu gross"}}};
  for (const Wert& w : werte) {
    const auto zahl = Ziffernpaar(text, w.von);
    if (!zahl) return std::string(formfehler);
    if (*zahl > w.hoechster) return w.meldung;
  }
  return {};
}

std::string Zeittest(std::string_view text) {
  if (Zeichen_anzahl(text) != 8 || Zeichen(text, 3) != ".") return std::string(formfehler_feld);
  return Zeitwerte_pruefen(text, formfehler_feld);
}

std::string Zeitfeld_pruefen(Textfeld& feld) {
  std::string fehler = Zeittest(feld.text());
  if (!fehler.empty()) Beanstanden(feld, fehler, "Bitte Eingabe korrigieren");
  return fehler;
}

void Hoechstens(Textfeld& feld, std::string_view grenze) {
  if (Zeit_sekunden(feld.text()) <= Zeit_sekunden(grenze)) return;
  Beanstanden(feld, std::string(grenze), "Maximalwert eingesetzt");
}

void Mindestens(Textfeld& feld, std::string_view grenze) {
  if (Zeit_sekunden(feld.text()) >= Zeit_sekunden(grenze)) return;
  Beanstanden(feld, std::string(grenze), "Minimalwert eingesetzt");
}

}  // namespace zav
