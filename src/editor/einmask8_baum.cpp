// The tree of storeys and Kombinationen, and the commands on a Kombination.
#include <optional>
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

// Place of the Kombination where the text stands: 0 for its storey or room, else the device that has it as a
// key text or, "i12", as an address. Nothing when it stands nowhere; capitals do not matter.
std::optional<int> Fundort(int k, const std::string& klein) {
  const auto in = [&](const std::string& text) { return Klein(text).find(klein) != std::string::npos; };
  if (in(projekt.Komb_text[k]) || in(projekt.Komb_text2[k])) return 0;
  const auto adresse = klein.starts_with('i') ? Zahl_lesen(klein.substr(1), 0, adressen - 1) : std::nullopt;
  for (int p = 0; p < plaetze; ++p) {
    const int d = plaetze * k + p;
    const auto lauf = adresse ? Apparat_adressen(projekt, d) : std::nullopt;
    if (lauf && *adresse >= lauf->von && *adresse < lauf->von + lauf->anzahl) return p;
    for (int n = 0; n < tastenplaetze; ++n) {
      if (!in(projekt.Dev_text[d * tastenplaetze + n])) continue;
      // A device with a list of keys keeps their texts on the places behind its own, too.
      int ort = p;
      while (ort > 0 && projekt.App_typ[plaetze * k + ort] == apparat_leer) --ort;
      return ort;
    }
  }
  return std::nullopt;
}

}  // namespace

void Einmask8::Baum_zeigen() {
  const Beschaeftigt b(*this);
  const int frei = Kombination_erste_freie();
  Text7.setzen(frei < kombinationen ? std::to_string(frei) : "");

  int anzahl = 0;
  while (anzahl < kombinationen && !projekt.Komb_text[anzahl].empty()) ++anzahl;
  const std::string gesucht = Gesucht();
  const auto passt = [&](int k) { return gesucht.empty() || Fundort(k, gesucht); };
  // What is chosen always stands in the tree: one that was not searched for brings the others back.
  const bool alle = komb_ < 0 || !passt(komb_);

  std::vector<Baum::Knoten> knoten{
      {.schluessel = projekt.Komb_text[0], .text = projekt.Komb_text[0], .bild = "haus", .offen = true}};
  std::unordered_map<std::string, int> standorte{{projekt.Komb_text[0], 0}};
  std::vector<int> gezeigt;
  for (int k = 0; k < anzahl; ++k) {
    if (!alle && !passt(k)) continue;
    gezeigt.push_back(k);
    const std::string& standort = projekt.Komb_text[k];
    if (!standorte.try_emplace(standort, static_cast<int>(knoten.size())).second) continue;
    knoten.push_back({.schluessel = standort, .text = standort, .eltern = 0, .bild = "haus", .offen = true});
  }
  for (const int k : gezeigt) {
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
  if (TreeView1.finden(Schluessel(k)) < 0) Baum_zeigen();
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
  {
    const Beschaeftigt b(*this);
    Text_Suche.setzen("");
  }
  Text_Suche.farbe = Farbe::normal;
  Baum_zeigen();
  Kombination_zeigen(k);
  fokussieren(Image3.front());  // devices come next
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

std::string Einmask8::Gesucht() const { return Klein(Ohne_rand(Text_Suche.text())); }

// The tree shows what is found, and the first hit from `beginn` on is chosen.
void Einmask8::Suchen(int beginn) {
  const std::string gesucht = Gesucht();
  const int anzahl = Kombination_erste_freie();
  bool gefunden = gesucht.empty();
  for (int i = 0; i < anzahl && !gefunden; ++i) {
    const int k = (beginn + i) % anzahl;
    const auto ort = Fundort(k, gesucht);
    if (!ort) continue;
    gefunden = true;
    if (k != komb_) Kombination_zeigen(k);
    if (*ort != platz_ && Image3.at(static_cast<std::size_t>(*ort)).sichtbar) Platz_waehlen(*ort);
  }
  Baum_zeigen();
  Text_Suche.farbe = gefunden ? Farbe::normal : Farbe::belegt;
  Label1.titel = gefunden ? "" : "Nichts gefunden";
}

void Einmask8::Importbefehl() {
  if (!Importieren()) return;
  Baum_zeigen();
  if (Kombination_belegt(0)) Kombination_zeigen(0);
}

}  // namespace zav
