#include <utility>

#include "editor/ausgangsfelder.h"
#include "editor/funktionsmaske.h"

namespace zav {

namespace {

// One row of the dimmer grid.
template <class... Zellen>
void Anhaengen(std::vector<Anordnung>& raster, Anordnungsfolge zusatz, Zellen&&... zellen) {
  (raster.emplace_back(std::forward<Zellen>(zellen)), ...);
  for (Anordnung& a : zusatz.teile) raster.push_back(std::move(a));
}

}  // namespace

Anordnung Funktionsmaske::anordnung() {
  Anordnung dimmer(Anordnung::Art::Raster);
  for (std::size_t i = 0; i < dimmer_je_gruppe; ++i) {
    Anhaengen(dimmer.kinder, Zusatzzellen(static_cast<int>(i)), Check2[i], Text2[i], Command1[i], Slider1[i],
              Intens[i], Tempo[i]);
  }
  dimmer.spalten = static_cast<int>(dimmer.kinder.size() / dimmer_je_gruppe);

  dimmer.platz_halten = true;

  const Anordnung seite_schalten =
      Spalte(Gruppe("ZAVswitch, ZAVmotor: Oxx", Baugruppe),
             Zeile(Gruppe(Frame1, Storenpaare(Check1, Text1, Combo1)),
                   Gruppe("Auswahl gilt für ZAVswitch und ZAVmotor",
                          Raster(3, Alle_8_aus, Alle_8_ein, Alle_8_neutral, Storen_auf, Storen_ab,
                                 Storen_stop, Alle_512_aus, Alle_512_neutral),
                          Feder(), Zeile(Ausgaenge_testen, Ansicht[0], Feder()))));
  Anordnung alle_dimmer = Zeile();
  Anhaengen(alle_dimmer.kinder, Zusatzzellen(dimmer_je_gruppe));
  const Anordnung seite_dimmen = Spalte(
      Gruppe("ZAVdimmer, ZAVmodul: Dxx", Dimmbaugruppe),
      Gruppe(Frame2, std::move(dimmer), Gruppe("", Zeile(Slider2, Tempo.back()), std::move(alle_dimmer))),
      Feder(), Zeile(Alle_4_neutral, Alle_128_aus, Alle_128_neutral, Feder(), Ansicht[1]));

  return Spalte(Reiter(TabStrip1, seite_schalten, seite_dimmen, Timerseite(), Zeile(Label1, Label2, Label3)),
                Knopfzeile(Command5, Command6));
}

Anordnung Funktionsmaske::Timerseite() {
  // Down the left half, then down the right.
  Anordnung spalten = Zeile();
  constexpr std::size_t halb = timeranzahl / 2;
  for (std::size_t erster = 0; erster < timeranzahl; erster += halb) {
    Anordnung raster = Platz_haltend(Raster(3));
    for (std::size_t t = erster; t < erster + halb; ++t) {
      raster.kinder.insert(raster.kinder.end(), {Check4[t], Txtbox_timerbez[t], Combo_timerfkt[t]});
    }
    spalten.kinder.push_back(std::move(raster));
  }
  return spalten;
}

}  // namespace zav
