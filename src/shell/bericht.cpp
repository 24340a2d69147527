#include "shell/bericht.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <optional>
#include <string_view>
#include <vector>

#include "basis/datum.h"
#include "basis/text.h"
#include "platform/uhrwerk.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "time/schaltzeile.h"

namespace zav {

namespace {

// A table that grows cell by cell.
class Tabelle {
 public:
  std::string text = "\xEF\xBB\xBF";

  void Titel(std::string_view titel) { text += "\r\n" + std::string(titel) + "\r\n"; }
  void Zeile(std::initializer_list<std::string_view> zellen) {
    const char* vor = "";
    for (const std::string_view z : zellen) {
      text += vor;
      Zelle(z);
      vor = "\t";
    }
    text += "\r\n";
  }
  void Zeile(const std::vector<std::string>& zellen) {
    for (std::size_t i = 0; i < zellen.size(); ++i) {
      if (i > 0) text += '\t';
      Zelle(zellen[i]);
    }
    text += "\r\n";
  }

 private:
  // A tab or a line end inside a text would tear the row.
  void Zelle(std::string_view z) {
    for (const char c : z) text += c == '\t' || c == '\r' || c == '\n' ? ' ' : c;
  }
};

struct Wirkung {
  std::string ziel;      // short name
  std::string text;      // the target's text in the project
  std::string funktion;  // in words
};

const str& Zieltext(Ziel z) {
  switch (z.art) {
    case Ziel::Art::Dimmer: return projekt.Dimmer_text[z.nummer];
    case Ziel::Art::Timer: return projekt.Timer_text[z.nummer];
    case Ziel::Art::Relais: break;
  }
  return projekt.Relais_text[z.nummer];
}

// What an event does, output by output.
std::vector<Wirkung> Wirkungen(Ereignisart art, int ereignis) {
  std::vector<Wirkung> liste;
  const auto anfuegen = [&liste](Ziel z, std::string funktion) {
    liste.push_back({Ziel_name(z), Zieltext(z), std::move(funktion)});
  };
  const Ereigniszeilen zeilen = Zeilen_von(art, ereignis);
  for (int i = 0; i < relaisausgaenge; ++i) {
    if (zeilen.relais[i] != 0) anfuegen({Ziel::Art::Relais, i}, Relais_in_worten(art, zeilen.relais[i], i));
  }
  for (int i = 0; i < dimmerausgaenge; ++i) {
    const auto p = Teilzeile(zeilen.dimmer, i, dimmerparameter);
    if (std::ranges::any_of(p, [](i16 w) { return w != 0; }))
      anfuegen({Ziel::Art::Dimmer, i}, Dimmer_in_worten(art, p));
  }
  for (int i = 0; i < std::ssize(zeilen.timer); ++i) {
    if (zeilen.timer[i] != 0) anfuegen({Ziel::Art::Timer, i}, Timer_in_worten(zeilen.timer[i]));
  }
  return liste;
}

// One row for each thing that the event does, `kopf` before it; one row at least unless `nur_mit_funktion`.
void Wirkungszeilen(Tabelle& t, const std::vector<std::string>& kopf, Ereignisart art, int ereignis,
                    bool nur_mit_funktion) {
  auto liste = Wirkungen(art, ereignis);
  if (liste.empty() && !nur_mit_funktion) liste.push_back({});
  for (const Wirkung& w : liste) {
    std::vector<std::string> zeile = kopf;
    zeile.insert(zeile.end(), {w.ziel, w.text, w.funktion});
    t.Zeile(zeile);
  }
}

std::string Gruppenart(int adresse) { return projekt.Grp_thermo[adresse] != 0 ? " <Thermo> " : " <Normal> "; }

// What a key's LED shows, "" for nothing.
std::string Led(const std::vector<std::string>& leds, int ausgang) {
  return ausgang < 0 || ausgang == ausgang_keiner || ausgang >= std::ssize(leds)
             ? ""
             : leds[static_cast<std::size_t>(ausgang)];
}

void Kopf(Tabelle& t) {
  t.Zeile({"Projekt", projekt.Projekt_name});
  t.Zeile({"Generation", projekt.Datei_version});
  t.Zeile({"Kennung", projekt.Projekt_kennung});
  t.Zeile({"Datum", Datum_text(Heute())});
  if (projekt.Notizen.empty()) return;
  t.Titel("Notizen");
  for (const std::string& zeile : Teilen(Ersetzen(projekt.Notizen, "\r\n", "\n"), "\n")) t.Zeile({zeile});
}

// ---- inputs -----------------------------------------------------------------------------------------------

// A damaged file may give each device the same addresses. What an event does is told with two devices, as many
// as share an address at a thermostat: the report stays as long as the project.
constexpr int apparate_je_ereignis = 2;

// Marks the addresses that devices hold.
std::array<bool, adressen> Kombinationen(Tabelle& t, const std::vector<std::string>& leds) {
  std::array<bool, adressen> belegt{};
  std::array<int, eingangsereignisse> genannt{};
  t.Titel("Kombinationen");
  t.Zeile({"Geschoss", "Raum", "Platz", "Apparat", "Adresse", "Eingänge", "Taste", "Text", "LED", "Ausgang",
           "Bezeichnung", "Funktion"});
  for (int d = 0; d < apparate; ++d) {
    const int k = d / plaetze;
    const Apparatart* const art = Apparat_art(projekt.App_typ[d]);
    if (projekt.Komb_text[k].empty() || art == nullptr || art->typ == apparat_leer) continue;
    const std::vector<std::string> kopf{projekt.Komb_text[k], projekt.Komb_text2[k],
                                        std::to_string(d % plaetze + 1), std::string(art->titel)};
    const auto lauf = Apparat_adressen(projekt, d);
    if (!lauf) {
      t.Zeile(kopf);
      continue;
    }
    for (int j = 0; j < lauf->ereignisse(); ++j) {
      const int adresse = lauf->von + j / 4;
      const int n = Slot_von_versatz(art->typ, j);
      const int textslot = Apparat_textslot(projekt, d, n);
      const int slot = Apparat_slot(projekt, d, n);
      const std::string text = textslot < 0 ? "" : projekt.Dev_text[textslot];
      const int led = slot < 0 ? ausgang_keiner : projekt.Dev_adr[slot];
      std::vector<std::string> zeile = kopf;
      zeile.insert(zeile.end(), {"i" + std::to_string(adresse), Gruppenart(adresse), std::to_string(j + 1),
                                 text, Led(leds, led)});
      belegt.at(static_cast<std::size_t>(adresse)) = true;
      const int ereignis = lauf->erstes_ereignis() + j;
      if (++genannt.at(static_cast<std::size_t>(ereignis)) > apparate_je_ereignis) {
        t.Zeile(zeile);
      } else {
        Wirkungszeilen(t, zeile, Ereignisart::Eingang, ereignis, text.empty());
      }
    }
  }
  return belegt;
}

// Groups of the flat editor, and functions on addresses that no device holds.
void Gruppen(Tabelle& t, const std::vector<std::string>& leds, const std::array<bool, adressen>& belegt) {
  bool ueberschrift = false;
  for (int a = 0; a < adressen; ++a) {
    if (belegt.at(static_cast<std::size_t>(a))) continue;
    for (int i = 0; i < 4; ++i) {
      const int e = 4 * a + i;
      if (projekt.Ein_text[e].empty() && !Hat_funktionen(Ereignisart::Eingang, e)) continue;
      if (!ueberschrift) {
        t.Titel("Gruppen ohne Kombination");
        t.Zeile(
            {"Adresse", "Gruppe", "Eingänge", "Taste", "Text", "LED", "Ausgang", "Bezeichnung", "Funktion"});
        ueberschrift = true;
      }
      Wirkungszeilen(t,
                     {"i" + std::to_string(a), projekt.Grp_text[a], Gruppenart(a), std::to_string(i + 1),
                      projekt.Ein_text[e], Led(leds, projekt.Ein_led[e])},
                     Ereignisart::Eingang, e, false);
    }
  }
}

// ---- outputs and timers -----------------------------------------------------------------------------------

// Outputs that any event touches, by their number among all outputs.
Feld<u8, ausgang_keiner> Benutzte_ausgaenge() {
  Feld<u8, ausgang_keiner> benutzt;
  const auto ansehen = [&benutzt](const auto& matrix, std::size_t erster, std::size_t breite) {
    for (std::size_t e = 0; e < matrix.mass(0); ++e) {
      const auto zeile = matrix.zeile(e);
      for (std::size_t i = 0; i < zeile.size(); ++i) {
        if (zeile[i] != 0) benutzt[erster + i / breite] = 1;
      }
    }
  };
  ansehen(projekt.Ein_relais, 0, 1);
  ansehen(projekt.Uhr_relais, 0, 1);
  ansehen(projekt.Tev_relais, 0, 1);
  ansehen(projekt.Ein_dimmer, erster_dimmer, dimmerparameter);
  ansehen(projekt.Uhr_dimmer, erster_dimmer, dimmerparameter);
  ansehen(projekt.Tev_dimmer, erster_dimmer, dimmerparameter);
  return benutzt;
}

std::string Neustart_relais(int zustand) {
  constexpr std::array worte{"Ausschalten", "Einschalten", "Zustand wie vorher"};
  return zustand >= 0 && zustand < std::ssize(worte) ? worte.at(static_cast<std::size_t>(zustand))
                                                     : "Code " + std::to_string(zustand);
}
std::string Neustart_dimmer(int wert) {
  if (wert == 0) return "Zustand wie vorher";
  return wert == helligkeit_aus ? "Aus" : std::to_string(wert) + " %";
}

void Ausgaenge(Tabelle& t) {
  const auto benutzt = Benutzte_ausgaenge();
  t.Titel("Ausgänge");
  t.Zeile({"Ausgang", "Bezeichnung", "Bei Neustart", "Dimmer"});
  for (int i = 0; i < relaisausgaenge; ++i) {
    if (projekt.Relais_text[i].empty() && projekt.Relais_neustart[i] == 0 && benutzt[i] == 0) continue;
    t.Zeile({Ziel_name({Ziel::Art::Relais, i}), projekt.Relais_text[i],
             Neustart_relais(projekt.Relais_neustart[i])});
  }
  for (int i = 0; i < dimmerausgaenge; ++i) {
    const bool leer =
        projekt.Dimmer_text[i].empty() && projekt.Dimmer_neustart[i] == 0 && projekt.Dimmer_modus[i] == 0;
    if (leer && benutzt[erster_dimmer + i] == 0) continue;
    t.Zeile({Ziel_name({Ziel::Art::Dimmer, i}), projekt.Dimmer_text[i],
             Neustart_dimmer(projekt.Dimmer_neustart[i]),
             projekt.Dimmer_modus[i] == 0 ? "Phasenanschnitt" : "Phasenabschnitt"});
  }
}

void Timer_zeigen(Tabelle& t) {
  constexpr std::array schritte{"Startfunktion 1", "Zwischenfunktion 2", "Zwischenfunktion 3",
                                "Endfunktion 4"};
  t.Titel("Timer");
  t.Zeile({"Timer", "Bezeichnung", "Zeit 1", "Zeit 2", "Zeit 3", "Schritt", "Ausgang", "Bezeichnung",
           "Funktion"});
  for (int n = 0; n < timeranzahl; ++n) {
    const auto zeiten = Teilzeile(projekt.Timer_zeit.alle(), n, 3);
    std::vector<std::string> kopf{"T" + std::to_string(n), projekt.Timer_text[n]};
    kopf.insert(kopf.end(), zeiten.begin(), zeiten.end());
    bool gezeigt = false;
    for (int s = 0; s < std::ssize(schritte); ++s) {
      if (!Hat_funktionen(Ereignisart::Timer, 4 * n + s)) continue;
      std::vector<std::string> zeile = kopf;
      zeile.emplace_back(schritte.at(static_cast<std::size_t>(s)));
      Wirkungszeilen(t, zeile, Ereignisart::Timer, 4 * n + s, true);
      gezeigt = true;
    }
    const bool leer =
        std::all_of(kopf.begin() + 1, kopf.end(), [](const std::string& k) { return k.empty(); });
    if (!gezeigt && !leer) t.Zeile(kopf);
  }
}

// ---- clocks -----------------------------------------------------------------------------------------------

std::string Regel_in_worten(int e) {
  const Schaltregel r = Regel_lesen(e);
  const Zeitregel modus = r.modus();
  std::string text;
  if (modus != Zeit_fest) text = Modus_name(modus);
  const auto anfuegen = [&text](const std::string& teil) { text += (text.empty() ? "" : ", ") + teil; };
  if (Mit_sonne(modus) && r.versatz() != Versatz::keiner) {
    anfuegen(r.f1 + (r.versatz() == Versatz::frueher ? " früher" : " später"));
  }
  if (Mit_sonne(modus) && !r.f2.empty())
    anfuegen("nicht vor " + r.f2 + (r.f6 == 1 ? " (sonst nicht schalten)" : ""));
  if (Mit_sonne(modus) && !r.f3.empty())
    anfuegen("nicht nach " + r.f3 + (r.f7 == 1 ? " (sonst nicht schalten)" : ""));
  if (Mit_zufall(modus) && !r.f4.empty()) anfuegen("zufällig bis " + r.f4 + " früher");
  if (Mit_zufall(modus) && !r.f5.empty()) anfuegen("zufällig bis " + r.f5 + " später");
  return text;
}

void Schaltuhren(Tabelle& t) {
  t.Titel("Schaltuhren");
  t.Zeile(
      {"Schaltuhr", "Tag", "Zeile", "Schaltzweck", "Zeit", "Regel", "Ausgang", "Bezeichnung", "Funktion"});
  for (int uhr = 0; uhr < schaltuhren; ++uhr) {
    for (int tag = 0; tag < tagesseiten; ++tag) {
      for (int zeile = 0; zeile < zeilen_je_seite; ++zeile) {
        const int e = Uhrereignis(uhr, tag, zeile);
        if (projekt.Uhr_zeit[e].empty() && projekt.Uhr_text[e].empty() &&
            !Hat_funktionen(Ereignisart::Uhr, e))
          continue;
        Wirkungszeilen(
            t,
            {std::to_string(uhr + 1), tag < 7 ? std::string(Wochentag_wort(tag)) : "Täglich",
             std::to_string(zeile + 1), projekt.Uhr_text[e], projekt.Uhr_zeit[e], Regel_in_worten(e)},
            Ereignisart::Uhr, e, false);
      }
    }
  }
  bool ueberschrift = false;
  for (int i = 0; i < 6; ++i) {
    if (projekt.Seq_datum[i].empty()) continue;
    if (!ueberschrift) {
      t.Titel("Schaltuhr-Sequenzer");
      t.Zeile({"Ab", "Schaltuhr", "Jedes Jahr"});
      ueberschrift = true;
    }
    t.Zeile({projekt.Seq_datum[i], projekt.Seq_uhr[i] == 0 ? "keine" : std::to_string(projekt.Seq_uhr[i]),
             projekt.Seq_flag[i] == 1 ? "Ja" : "Nein"});
  }
}

// ---- weather and radio ------------------------------------------------------------------------------------

struct Wettersensor {
  const char* name;
  const char* einheit;
  Feld<str, 8> Projekt::*schwelle;
  Feld<i16, 8> Projekt::*vergleich;
};
const std::array wettersensoren_bericht{
    Wettersensor{"Sonne Ost", "kLux", &Projekt::Wetter_sonne_ost, &Projekt::Wetter_v_ost},
    Wettersensor{"Sonne Süd", "kLux", &Projekt::Wetter_sonne_sued, &Projekt::Wetter_v_sued},
    Wettersensor{"Sonne West", "kLux", &Projekt::Wetter_sonne_west, &Projekt::Wetter_v_west},
    Wettersensor{"Tageslicht", "Lux", &Projekt::Wetter_licht, &Projekt::Wetter_v_licht},
    Wettersensor{"Aussentemp.", "°C", &Projekt::Wetter_aussen, &Projekt::Wetter_v_aussen},
    Wettersensor{"Innentemp.", "°C", &Projekt::Wetter_innen, &Projekt::Wetter_v_innen},
    Wettersensor{"Windgeschw.", "m/s", &Projekt::Wetter_wind, &Projekt::Wetter_v_wind}};

std::string Bedingungen(int f) {
  std::string text;
  const std::string bindewort = projekt.Wetter_undoder[f] == 1 ? " und " : " oder ";
  const auto anfuegen = [&](const std::string& teil) { text += (text.empty() ? "" : bindewort) + teil; };
  for (const Wettersensor& s : wettersensoren_bericht) {
    const int vergleich = (projekt.*s.vergleich)[f];
    if (vergleich == 0) continue;
    anfuegen(std::string(s.name) + (vergleich == 1 ? " kleiner als " : " grösser als ") +
             (projekt.*s.schwelle)[f] + " " + s.einheit);
  }
  constexpr std::array richtungen{"Ost", "Süd", "West", "Nord", "Südost", "Südwest", "Nordost", "Nordwest"};
  const int richtung = projekt.Wetter_v_richtung[f];
  if (richtung > 0 && richtung <= std::ssize(richtungen)) {
    anfuegen(std::string("Windrichtung ") + richtungen.at(static_cast<std::size_t>(richtung - 1)));
  }
  if (projekt.Wetter_v_regen[f] != 0)
    anfuegen(projekt.Wetter_v_regen[f] == 1 ? "Niederschlag" : "kein Niederschlag");
  if (projekt.Wetter_v_defekt[f] == 1) anfuegen("Wetterstation defekt");
  return text;
}

void Wetter(Tabelle& t) {
  bool ueberschrift = false;
  for (int f = 0; f < wetterfunktionen; ++f) {
    const std::string bedingungen = Bedingungen(f);
    if (projekt.Wetter_text[f].empty() && bedingungen.empty()) continue;
    if (!ueberschrift) {
      t.Titel("Wetterfunktionen");
      t.Zeile({"Nr.", "Bezeichnung", "Ausführen", "Bedingungen", "Wartezeit 1", "Wiederholzeit 1",
               "Wartezeit 2", "Wiederholzeit 2"});
      ueberschrift = true;
    }
    t.Zeile({std::to_string(f), projekt.Wetter_text[f], projekt.Wetter_aktiv[f] == "1" ? "Ja" : "Nein",
             bedingungen, projekt.Wetter_warte1[f], projekt.Wetter_wiederh1[f], projekt.Wetter_warte2[f],
             projekt.Wetter_wiederh2[f]});
  }
}

void Funk(Tabelle& t) {
  if (std::ranges::none_of(projekt.Enocean_empf_da.alle(), [](u8 da) { return da == 1; }) &&
      std::ranges::all_of(projekt.App_enocean_id.alle(), [](const str& id) { return id.empty(); })) {
    return;
  }
  t.Titel("Funkempfänger");
  t.Zeile({"Empfänger", "Ort", "Eingebaut"});
  for (int r = 0; r < empfaenger; ++r) {
    if (projekt.Enocean_empf_da[r] != 1 && projekt.Enocean_empf_ort[r].empty()) continue;
    t.Zeile(
        {std::to_string(r), projekt.Enocean_empf_ort[r], projekt.Enocean_empf_da[r] == 1 ? "Ja" : "Nein"});
  }
  t.Titel("Funksender");
  t.Zeile({"ID", "Schlüssel", "Empfänger", "Geschoss", "Raum", "Apparat", "Adresse"});
  for (int d = 0; d < apparate; ++d) {
    const int k = d / plaetze;
    if (projekt.App_enocean_id[d].empty() || projekt.Komb_text[k].empty()) continue;
    const Apparatart* const art = Apparat_art(projekt.App_typ[d]);
    const int r = projekt.App_enocean_empf[d];
    t.Zeile({projekt.App_enocean_id[d], projekt.App_enocean_schluessel[d],
             r >= 0 && r < empfaenger ? std::to_string(r) : "keiner", projekt.Komb_text[k],
             projekt.Komb_text2[k], art == nullptr ? "" : art->titel, "i" + projekt.App_text[d]});
  }
}

}  // namespace

std::string Bericht() {
  Tabelle t;
  Kopf(t);
  const std::vector<std::string> leds = LED_liste();
  Gruppen(t, leds, Kombinationen(t, leds));
  Ausgaenge(t);
  Timer_zeigen(t);
  Schaltuhren(t);
  Wetter(t);
  Funk(t);
  return std::move(t.text);
}

}  // namespace zav
