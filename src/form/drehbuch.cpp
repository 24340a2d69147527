#include "form/drehbuch.h"

#include <utility>

namespace zav {

namespace {

std::string Beschreiben(const Meldung& m) {
  return "box \"" + m.text + "\" title \"" + m.titel + "\" buttons " +
         std::to_string(static_cast<int>(m.knoepfe)) + " icon " + std::to_string(static_cast<int>(m.symbol)) +
         " default " + std::to_string(m.standard);
}

}  // namespace

Drehbuch::Drehbuch() : vorher_(Oberflaeche_setzen(this)) {}
Drehbuch::~Drehbuch() { Oberflaeche_setzen(vorher_); }

void Drehbuch::erwarte(Meldung m, Antwort a) { schritte_.push_back(Kasten{std::move(m), false, a}); }
void Drehbuch::erwarte_text(std::string text, Antwort a) {
  schritte_.push_back(Kasten{Meldung{.text = std::move(text)}, true, a});
}
void Drehbuch::erwarte_datei(std::optional<Dateiwahl> wahl) {
  schritte_.push_back(Datei_wahl{std::move(wahl)});
}

template <class S>
std::optional<S> Drehbuch::naechster(const std::string& erschienen) {
  if (schritte_.empty() || !std::holds_alternative<S>(schritte_.front())) {
    fehler_.push_back("not expected: " + erschienen);
    return std::nullopt;
  }
  S schritt = std::get<S>(std::move(schritte_.front()));
  schritte_.pop_front();
  return schritt;
}

Antwort Drehbuch::Melden(const Meldung& m) {
  meldungen_.push_back(m.text);
  const auto schritt = naechster<Kasten>(Beschreiben(m));
  if (!schritt) return Vorsichtige_antwort(m.knoepfe);
  if (schritt->nur_text ? schritt->meldung.text != m.text : schritt->meldung != m) {
    fehler_.push_back("expected " + Beschreiben(schritt->meldung) + "\n     got " + Beschreiben(m));
  }
  return schritt->antwort;
}

void Drehbuch::Zeigen(Formular& f) {
  f.beim_oeffnen();
  const auto schritt = naechster<Dialog>("form " + f.name());
  if (schritt && !schritt->spiel(f)) fehler_.push_back("another form than expected: " + f.name());
  if (f.offen()) {
    if (schritt) fehler_.push_back("left open: " + f.name());
    f.schliessen();
  }
}

std::optional<Dateiwahl> Drehbuch::Datei(const Dateifrage& f) {
  dateifragen_.push_back(f);
  const auto schritt = naechster<Datei_wahl>("file question");
  return schritt ? schritt->wahl : std::nullopt;
}

std::string Drehbuch::maengel() {
  std::string text;
  for (const std::string& f : std::exchange(fehler_, {})) text += f + "\n";
  for (const Schritt& s : std::exchange(schritte_, {})) {
    const auto* const k = std::get_if<Kasten>(&s);
    text += "did not appear: " +
            (k != nullptr ? Beschreiben(k->meldung) : std::string("a form or file question")) + "\n";
  }
  return text;
}

}  // namespace zav
