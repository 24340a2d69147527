#include "form/steuerelement.h"

#include <algorithm>
#include <stdexcept>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "form/formular.h"

namespace zav {

void Steuerelement::pruefe_bedienbar() const {
  if (!sichtbar) throw std::logic_error(name_ + " is hidden");
  if (!frei) throw std::logic_error(name_ + " is disabled");
}

void Steuerelement::ausfuehren(const std::function<void()>& handler) const {
  if (handler && (formular_ == nullptr || !formular_->beschaeftigt())) handler();
}

void Taste::druecken() {
  pruefe_bedienbar();
  ausfuehren(wenn_gedrueckt);
}

void Taste::rechts_druecken() {
  pruefe_bedienbar();
  ausfuehren(wenn_rechts_gedrueckt);
}

void Kaestchen::setzen(bool an) {
  if (an == an_) return;
  an_ = an;
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Kaestchen::haken(bool an) {
  pruefe_bedienbar();
  setzen(an);
}

Auswahl::Auswahl(Form form, std::vector<std::string> texte, std::string titel)
    : Steuerelement(Art::Auswahl, std::move(titel)), form(form) {
  fuellen(std::move(texte));
}

void Auswahl::fuellen(std::vector<std::string> texte) {
  eintraege_.clear();
  eintraege_.reserve(texte.size());
  for (std::string& t : texte) eintraege_.push_back({.text = std::move(t)});
  position_ = -1;
  geaendert();
}

void Auswahl::setzen(int position) {
  if (position < -1 || position >= anzahl()) {
    throw std::out_of_range(name() + ": entry " + std::to_string(position) + " of " +
                            std::to_string(anzahl()));
  }
  if (position == position_) return;
  position_ = position;
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Auswahl::waehlen(int position) {
  pruefe_bedienbar();
  if (!eintrag(position).frei)
    throw std::logic_error(name() + ": entry " + std::to_string(position) + " is disabled");
  if (wenn_angeklickt) {
    ausfuehren([&] { wenn_angeklickt(position); });
  } else {
    setzen(position);
  }
}

void Auswahl::waehlen(std::string_view text) {
  const auto treffer =
      std::find_if(eintraege_.begin(), eintraege_.end(), [&](const Eintrag& e) { return e.text == text; });
  if (treffer == eintraege_.end()) throw std::out_of_range(name() + ": no entry " + std::string(text));
  waehlen(static_cast<int>(treffer - eintraege_.begin()));
}

void Auswahl::faerben(int i, Farbe f) {
  if (std::exchange(aendern(i).farbe, f) != f) geaendert();
}

void Auswahl::beschriften(int i, const std::string& text) {
  if (std::exchange(aendern(i).text, text) != text) geaendert();
}

void Auswahl::hinweisen(int i, const std::string& hinweis) {
  if (std::exchange(aendern(i).hinweis, hinweis) != hinweis) geaendert();
}

void Auswahl::freigeben(int i, bool frei_jetzt) {
  if (std::exchange(aendern(i).frei, frei_jetzt) != frei_jetzt) geaendert();
}

void Einstellen(Auswahl& liste, int wert) { liste.setzen(wert >= 0 && wert < liste.anzahl() ? wert : -1); }

void Textfeld::setzen(std::string text) {
  if (text == text_) return;
  text_ = std::move(text);
  ++fassung_;
  geaendert();
  ausfuehren(wenn_geaendert);
}

bool Textfeld::eingeben(std::string text) {
  pruefe_bedienbar();
  if (nur_lesen) throw std::logic_error(name() + " is read-only");
  if (!Ist_1252(text)) {
    melder().Piep();
    geaendert();  // the front end shows the old text again
    return false;
  }
  setzen(hoechstlaenge > 0 ? Links(text, hoechstlaenge) : std::move(text));
  geaendert();
  return true;
}

void Textfeld::betreten() {
  pruefe_bedienbar();
  ausfuehren(wenn_betreten);
}

void Textfeld::verlassen() {
  pruefe_bedienbar();
  ausfuehren(wenn_verlassen);
}

void Textfeld::eingabe() {
  pruefe_bedienbar();
  ausfuehren(wenn_eingabe);
}

void Textfeld::ausfuellen(std::string text) {
  eingeben(std::move(text));
  verlassen();
}

void Textfeld::anhaengen(std::string_view text) {
  text_ += text;
  if (text_.size() > laengstes_protokoll) {
    const std::size_t mitte = text_.size() - laengstes_protokoll / 2;
    const std::size_t zeilenende = text_.find('\n', mitte);
    text_.erase(0, zeilenende == std::string::npos ? mitte : zeilenende + 1);
  }
  geaendert();
}

void Schieber::bereich(int von, int bis) {
  von_ = von;
  bis_ = bis;
  geaendert();
  setzen(wert_);
}

void Schieber::setzen(int wert) {
  wert = std::clamp(wert, von_, bis_);
  if (wert == wert_) return;
  wert_ = wert;
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Schieber::schieben(int wert) {
  pruefe_bedienbar();
  setzen(wert);
}

void Schild::anklicken() {
  pruefe_bedienbar();
  ausfuehren(wenn_angeklickt);
}

int Baum::finden(std::string_view schluessel) const {
  const auto treffer = std::find_if(knoten_.begin(), knoten_.end(),
                                    [&](const Knoten& k) { return k.schluessel == schluessel; });
  return treffer == knoten_.end() ? -1 : static_cast<int>(treffer - knoten_.begin());
}

void Baum::fuellen(std::vector<Knoten> knoten) {
  knoten_ = std::move(knoten);
  gewaehlt_.clear();
  geaendert();
}

void Baum::setzen(std::string schluessel) {
  if (schluessel == gewaehlt_) return;
  gewaehlt_ = std::move(schluessel);
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Baum::waehlen(const std::string& schluessel) {
  pruefe_bedienbar();
  if (finden(schluessel) < 0) throw std::out_of_range(name() + ": no node " + schluessel);
  gewaehlt_ = schluessel;
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Kalender::setzen(Datum d) {
  if (d == datum_) return;
  datum_ = d;
  geaendert();
  ausfuehren(wenn_geaendert);
}

void Kalender::waehlen(Datum d) {
  pruefe_bedienbar();
  datum_ = d;
  geaendert();
  ausfuehren(wenn_geaendert);
}

}  // namespace zav
