#include "editor/timer_trepp.h"

#include <utility>

#include "basis/text.h"
#include "basis/zahl.h"
#include "editor/actmask_timer.h"
#include "form/oberflaeche.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr const char* maske = "HH.MM.SS";
constexpr const char* formfehler = "Eingabe im Format HH.MM.SS oder HH.MM, Maximalwert 17.59.59";

constexpr std::array schrittworte{"Startfunktion 1", "Zwischenfunktion 2", "Zwischenfunktion 3",
                                  "Endfunktion 4"};

// Writes a value and tells whether it was another.
bool Schreiben(str& ziel, const std::string& wert) { return std::exchange(ziel, wert) != wert; }

}  // namespace

Timerzeit Timerzeit_pruefen(const std::string& eingabe) {
  if (eingabe.empty() || eingabe == maske) return {maske};
  std::string s = eingabe;
  if (Zeichen_anzahl(s) == 5 && Zeichen(s, 3) == ".") s += ".00";
  if (Zeichen_anzahl(s) != 8 || Zeichen(s, 3) != "." || Zeichen(s, 6) != ".") return {maske, formfehler};

  struct Grenze {
    std::size_t von;
    int hoechstens;
    const char* fehler;
  };
  for (const auto& [von, hoechstens, fehler] :
       {Grenze{1, 17, "Stunde zu gross"}, {4, 59, "Minute zu gross"}, {7, 59, "Sekunde zu gross"}}) {
    const auto zahl = Zahl_lesen(Mitte(s, von, 2), 0, 99);
    if (!zahl) return {maske, formfehler};
    if (*zahl > hoechstens) return {maske, fehler};
  }
  return {s};
}

Timer_trepp::Timer_trepp() : Formular("Timer_trepp", "Timer Manager") {
  anmelden("Label1", Label1);
  anmelden("Label2", Label2);
  anmelden("Tnr", Tnr);
  anmelden("Txtbox_timerbez", Txtbox_timerbez);
  anmelden("Ttime", Ttime);
  anmelden("Tevent", Tevent);
  anmelden("OK", OK);

  for (int i = 0; i < zeiten_je_timer; ++i) Label2[i].titel = "Zeit " + std::to_string(i + 1);
  for (int t = 0; t < timeranzahl; ++t) {
    Tnr[t].titel = "T" + std::to_string(t);
    Tnr[t].wenn_gedrueckt = [this, t] { fokussieren(Txtbox_timerbez[t]); };
    Txtbox_timerbez[t].setzen(projekt.Timer_text[t]);
    Txtbox_timerbez[t].hinweis = "Bezeichnung, Verwendung";
    Txtbox_timerbez[t].wenn_geaendert = [this, t] { Faerben(t); };
    Txtbox_timerbez[t].wenn_eingabe = [this, t] {
      fokussieren(Ttime.at(static_cast<std::size_t>(t) * zeiten_je_timer));
    };
  }
  for (int z = 0; z < timeranzahl * zeiten_je_timer; ++z) {
    Ttime[z].setzen(projekt.Timer_zeit[z].empty() ? maske : projekt.Timer_zeit[z]);
    Ttime[z].breite = 10;
    Ttime[z].maske = maske;
    Ttime[z].hinweis = "Zeit in Stunden, Minuten und Sekunden des Ereignisses";
    Ttime[z].wenn_verlassen = [this, z] { Zeit_pruefen(z); };
    Ttime[z].wenn_eingabe = [this, z] { Weiter(z); };
  }
  for (int e = 0; e < timerereignisse; ++e) {
    Tevent[e].titel = schrittworte[e % schritte];
    Tevent[e].wenn_gedrueckt = [this, e] { Ereignis_oeffnen(e); };
  }
  for (int t = 0; t < timeranzahl; ++t) Faerben(t);

  OK.standard = true;
  OK.abbruch = true;  // there is no way out but to take it over
  OK.wenn_gedrueckt = [this] { Uebernehmen(); };
  fokussieren(Txtbox_timerbez.front());
}

bool Timer_trepp::Zeit_pruefen(int nummer) {
  Textfeld& feld = Ttime[nummer];
  const Timerzeit zeit = Timerzeit_pruefen(feld.text());
  feld.setzen(zeit.text);
  if (zeit.fehler == nullptr) return true;
  Melden(zeit.fehler);
  fokussieren(feld);
  return false;
}

void Timer_trepp::Weiter(int nummer) {
  if (!Zeit_pruefen(nummer)) return;
  const int naechste = nummer + 1;
  if (naechste % zeiten_je_timer != 0) {
    fokussieren(Ttime[naechste]);
  } else if (naechste / zeiten_je_timer < timeranzahl) {
    fokussieren(Txtbox_timerbez[naechste / zeiten_je_timer]);
  } else {
    fokussieren(OK);
  }
}

void Timer_trepp::Ereignis_oeffnen(int ereignis) {
  Actmask_timer maske_timer(ereignis, Txtbox_timerbez[ereignis / schritte].text());
  oberflaeche().Zeigen(maske_timer);
  Leer_berechnen(Ereignisart::Timer, ereignis);
  Faerben(ereignis / schritte);
}

void Timer_trepp::Faerben(int timer) {
  bool benutzt = !Txtbox_timerbez[timer].text().empty();
  for (int e = schritte * timer; e < schritte * (timer + 1); ++e) {
    const bool belegt = projekt.Tev_leer[e] != 0;
    Tevent[e].farbe = belegt ? Farbe::belegt : Farbe::normal;
    benutzt = benutzt || belegt;
  }
  Tnr[timer].farbe = benutzt ? Farbe::belegt : Farbe::normal;
}

void Timer_trepp::Uebernehmen() {
  for (int z = 0; z < timeranzahl * zeiten_je_timer; ++z) {
    if (!Zeit_pruefen(z)) return;  // Enter closes without leaving the field
  }
  bool geaendert = false;
  for (int t = 0; t < timeranzahl; ++t) {
    geaendert = Schreiben(projekt.Timer_text[t], Txtbox_timerbez[t].text()) || geaendert;
  }
  for (int z = 0; z < timeranzahl * zeiten_je_timer; ++z) {
    const std::string& text = Ttime[z].text();
    geaendert = Schreiben(projekt.Timer_zeit[z], text == maske ? "" : text) || geaendert;
  }
  for (int e = 0; e < timerereignisse; ++e) Leer_berechnen(Ereignisart::Timer, e);
  if (geaendert) sitzung.Projekt_geaendert = 1;
  schliessen();
}

Anordnung Timer_trepp::anordnung() {
  Anordnung raster =
      Raster(2 + zeiten_je_timer + schritte, Leer(), Label1, Alle(Label2), Leer(), Leer(), Leer(), Leer());
  for (int t = 0; t < timeranzahl; ++t) {
    raster.kinder.emplace_back(Tnr[t]);
    raster.kinder.emplace_back(Txtbox_timerbez[t]);
    for (int i = 0; i < zeiten_je_timer; ++i) raster.kinder.emplace_back(Ttime[t * zeiten_je_timer + i]);
    for (int i = 0; i < schritte; ++i) raster.kinder.emplace_back(Tevent[t * schritte + i]);
  }
  return Spalte(std::move(raster), Feder(), Knopfzeile(OK));
}

}  // namespace zav
