// The tree of storeys and Kombinationen, and the commands on a Kombination.
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "editor/adressplan.h"
#include "editor/apparat.h"
#include "editor/einmask8.h"
#include "editor/import.h"
#include "editor/layoutwahl.h"
#include "form/oberflaeche.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Ends the key of a node that is a Kombination; its number stands before. Storeys have their text as key.
constexpr std::string_view kennung_kombination = "key1547852";

std::string Schluessel(int k) { return std::to_string(k) + std::string(kennung_kombination); }

// True when the text stands in storey, room or a key text of the Kombination; capitals do not matter.
bool Enthaelt(int k, const std::string& klein) {
  const auto in = [&](const std::string& text) { return Klein(text).find(klein) != std::string::npos; };
  if (in(projekt.Komb_text[k]) || in(projekt.Komb_text2[k])) return true;
  const int slots = plaetze * tastenplaetze;
  for (int n = slots * k; n < slots * (k + 1); ++n) {
    if (in(projekt.Dev_text[n])) return true;
  }
  return false;
}

}  // namespace

void Einmask8::Baum_zeigen() {
  const Beschaeftigt b(*this);
  const int frei = Kombination_erste_freie();
  Text7.setzen(frei < kombinationen ? std::to_string(frei) : "");

  std::vector<Baum::Knoten> knoten{
      {.schluessel = projekt.Komb_text[0], .text = projekt.Komb_text[0], .bild = "haus", .offen = true}};
  std::unordered_map<std::string, int> standorte{{projekt.Komb_text[0], 0}};
  int anzahl = 0;
  for (; anzahl < kombinationen && !projekt.Komb_text[anzahl].empty(); ++anzahl) {
    const std::string& standort = projekt.Komb_text[anzahl];
    if (!standorte.try_emplace(standort, static_cast<int>(knoten.size())).second) continue;
    knoten.push_back({.schluessel = standort, .text = standort, .eltern = 0, .bild = "haus", .offen = true});
  }
  for (int k = 0; k < anzahl; ++k) {
    knoten.push_back({.schluessel = Schluessel(k),
                      .text = projekt.Komb_text2[k],
                      .eltern = standorte.at(projekt.Komb_text[k]),
                      .bild = "eingaenge",
                      .offen = true});
  }
  TreeView1.fuellen(std::move(knoten));
  if (komb_ >= 0) TreeView1.setzen(Schluessel(komb_));
}

void Einmask8::Knoten_gewaehlt() {
  const std::string& schluessel = TreeView1.gewaehlt();
  if (!schluessel.ends_with(kennung_kombination)) return;
  const auto nummer = std::string_view(schluessel).substr(0, schluessel.size() - kennung_kombination.size());
  if (const auto k = Zahl_lesen(nummer, 0, kombinationen - 1)) Kombination_zeigen(*k);
}

void Einmask8::Kombination_zeigen(int k) {
  komb_ = k;
  sitzung.Komb_aktuell = static_cast<i16>(k);
  {
    const Beschaeftigt b(*this);
    TreeView1.setzen(Schluessel(k));
    Text6.setzen(std::to_string(k));
  }
  Label1.titel = "";
  Frame1.titel = projekt.Komb_text[k] + " - " + projekt.Komb_text2[k];
  Befehle_freigeben();
  Platz_waehlen(0);
}

void Einmask8::Kombination_abwaehlen() {
  komb_ = -1;
  platz_ = -1;
  {
    const Beschaeftigt b(*this);
    Text6.setzen("");
  }
  Frame1.titel = "Kombination";
  Befehle_freigeben();
  Plaetze_zeigen();
}

void Einmask8::Kombination_bearbeiten(int k) {
  Layoutwahl wahl(k);
  oberflaeche().Zeigen(wahl);
  if (!wahl.uebernommen()) return;
  Baum_zeigen();
  Kombination_zeigen(k);
}

void Einmask8::Neue_kombination() {
  const int k = Kombination_erste_freie();
  if (k == kombinationen) {
    Melden("Es sind bereits alle 256 Kombinationen belegt.");
    return;
  }
  for (int d = plaetze * k; d < plaetze * (k + 1); ++d) projekt.App_typ[d] = apparat_leer;
  Kombination_bearbeiten(k);
}

void Einmask8::Kombination_loeschen() {
  if (Kombination_erste_freie() == 0) return;
  for (int d = plaetze * komb_; d < plaetze * (komb_ + 1); ++d) {
    if (projekt.App_typ[d] != apparat_leer) {
      Melden("Bitte löschen Sie vorher alle Apparate");
      return;
    }
  }
  if (!Fragen({.text = "Die Kombination wird endgültig gelöscht. Wollen Sie das?",
               .titel = "Löschen",
               .knoepfe = Knoepfe::Ja_Nein,
               .standard = 2})) {
    return;
  }
  Kombination_entfernen(komb_);
  sitzung.Projekt_geaendert = 1;
  sitzung.Komb_aktuell = 0;
  Kombination_abwaehlen();
  Baum_zeigen();
  Label1.titel = "Kombination gelöscht";
}

void Einmask8::Suchen() {
  const std::string gesucht = Klein(Ohne_rand(Text_Suche.text()));
  const int anzahl = Kombination_erste_freie();
  if (gesucht.empty() || anzahl == 0) return;
  const int beginn = komb_ < 0 ? 0 : komb_;
  for (int i = 0; i < anzahl; ++i) {
    const int k = (beginn + i) % anzahl;
    if (Enthaelt(k, gesucht)) {
      Kombination_zeigen(k);
      return;
    }
  }
}

void Einmask8::Importbefehl() {
  if (!Importieren()) return;
  Baum_zeigen();
  if (Kombination_belegt(0)) Kombination_zeigen(0);
}

}  // namespace zav
