#include "editor/funktionsmaske.h"

#include <algorithm>
#include <utility>

#include "editor/ausgangsfelder.h"
#include "form/oberflaeche.h"
#include "store/sitzung.h"
#include "zav/version.h"

namespace zav {

namespace {

constexpr const char* store_nicht_moeglich =
    "Bei Storen nicht möglich: es dürfen nie beide Ausgänge gleichzeitig eingeschaltet sein.";
constexpr const char* partner_desaktiviert =
    "Desaktiviert den anderen Ausgang, damit nicht beide Ausgänge gleichzeitig eingeschaltet sind.";

bool Benutzt(auto werte) {
  return std::any_of(werte.begin(), werte.end(), [](auto w) { return w != 0; });
}

// A command whose door may be missing says so.
void Durch_tuer(Taste& taste, bool offen, const char* sonst) {
  taste.frei = offen;
  if (!offen) taste.hinweis = sonst;
}

// Copies what differs; true when something did.
bool Uebertragen(auto von, auto nach) {
  if (std::equal(von.begin(), von.end(), nach.begin())) return false;
  std::copy(von.begin(), von.end(), nach.begin());
  return true;
}

}  // namespace

Funktionsmaske::Funktionsmaske(const std::string& name, const std::string& titel, Ereignisart art,
                               int ereignis, const std::string& funktionshinweis)
    : Formular(name, titel), art_(art), ereignis_(ereignis) {
  Kopieren();
  Reiter_einrichten();
  Schalten_einrichten(funktionshinweis);
  Dimmen_einrichten();
  if (mit_timer()) Timer_einrichten();
  Befehle_einrichten();
}

void Funktionsmaske::Kopieren() {
  const Ereigniszeilen z = Zeilen_von(art_, ereignis_);
  std::copy(z.relais.begin(), z.relais.end(), relais_.alle().begin());
  std::copy(z.dimmer.begin(), z.dimmer.end(), dimmer_.alle().begin());
  std::copy(z.timer.begin(), z.timer.end(), timer_.alle().begin());
  relais_text_ = projekt.Relais_text;
  dimmer_text_ = projekt.Dimmer_text;
  timer_text_ = projekt.Timer_text;
}

void Funktionsmaske::Anfang_zeigen() {
  const Belegung belegt = Reiter_auffrischen();
  Baugruppe.setzen(std::max(belegt.baugruppe, 0));
  Dimmbaugruppe.setzen(std::max(belegt.dimmbaugruppe, 0));
  TabStrip1.setzen(belegt.baugruppe < 0 && belegt.dimmbaugruppe >= 0 ? dimmen
                   : belegt.baugruppe < 0 && belegt.timer            ? timer
                                                                     : schalten);
}

// ---- tabs -------------------------------------------------------------------------------------------------

void Funktionsmaske::Reiter_einrichten() {
  anmelden("TabStrip1", TabStrip1);
  anmelden("Label1", Label1);
  anmelden("Label2", Label2);
  anmelden("Label3", Label3);
  TabStrip1.fuellen({"", "", "&Timer (---------)"});
}

Funktionsmaske::Belegung Funktionsmaske::Reiter_auffrischen() {
  Belegung belegt;
  // From the highest group down, so that the lowest in use is the one remembered.
  const auto gruppen_faerben = [](Auswahl& leiste, int& niedrigste, auto ist_benutzt) {
    for (int g = leiste.anzahl() - 1; g >= 0; --g) {
      const bool benutzt = ist_benutzt(g);
      leiste.faerben(g, benutzt ? Farbe::belegt : Farbe::normal);
      if (benutzt) niedrigste = g;
    }
  };
  const auto reiter_setzen = [this](Seite seite, const std::string& titel, Schild& schild, bool aktiv) {
    TabStrip1.beschriften(seite, titel + (aktiv ? " (aktiviert)" : " (---------)"));
    schild.farbe = aktiv ? Farbe::belegt : Farbe::normal;
  };

  gruppen_faerben(Baugruppe, belegt.baugruppe,
                  [this](int g) { return Benutzt(Teilzeile(relais_.alle(), g, relais_je_gruppe)); });
  reiter_setzen(schalten, "&Schalten", Label1, belegt.baugruppe >= 0);

  gruppen_faerben(Dimmbaugruppe, belegt.dimmbaugruppe, [this](int g) {
    for (int d = g * dimmer_je_gruppe; d < (g + 1) * dimmer_je_gruppe; ++d) {
      if (Dimmer_benutzt(d)) return true;
    }
    return false;
  });
  reiter_setzen(dimmen, "&Dimmen", Label2, belegt.dimmbaugruppe >= 0);

  if (mit_timer()) {
    belegt.timer = Benutzt(timer_.alle());
    reiter_setzen(timer, "&Timer", Label3, belegt.timer);
  }
  return belegt;
}

// ---- Schalten ---------------------------------------------------------------------------------------------

void Funktionsmaske::Schalten_einrichten(const std::string& funktionshinweis) {
  anmelden("Baugruppe", Baugruppe);
  anmelden("Frame1", Frame1);
  anmelden("Check1", Check1);
  anmelden("Text1", Text1);
  anmelden("Combo1", Combo1);

  Gruppenleiste_einrichten(Baugruppe, Ziel::Art::Relais);
  Baugruppe.wenn_geaendert = [this] { Baugruppe_zeigen(); };

  for (int i = 0; i < relais_je_gruppe; ++i) {
    Check1[i].hinweis = "Wenn aktiviert: Ausgang führt die gewünschte Funktion aus";
    Check1[i].wenn_geaendert = [this, i] {
      if (!Check1[i].an()) relais_[Relais(i)] = relais_keine;
      const Beschaeftigt b(*this);
      Combo1[i].sichtbar = Check1[i].an();
      Einstellen(Combo1[i], relais_[Relais(i)]);
      Reiter_auffrischen();
    };
    Ausgangstext_einrichten(Text1[i]);
    Text1[i].wenn_geaendert = [this, i] { relais_text_[Relais(i)] = Text1[i].text(); };
    Combo1[i].fuellen(Relaisliste(art_, i % 2 == 0));
    Combo1[i].hinweis = funktionshinweis;
    Combo1[i].wenn_geaendert = [this, i] { Relais_funktion_gewaehlt(i); };
  }
}

void Funktionsmaske::Baugruppe_zeigen() {
  const Beschaeftigt b(*this);
  baugruppe_aktuell = Baugruppe.position();
  Frame1.titel = "Baugruppe " + std::to_string(baugruppe_aktuell);
  for (int i = 0; i < relais_je_gruppe; ++i) {
    Check1[i].titel = Ziel_name({Ziel::Art::Relais, Relais(i)});
    Text1[i].setzen(relais_text_[Relais(i)]);
    Relaiszeile_zeigen(i, relais_[Relais(i)] != relais_keine);
  }
}

void Funktionsmaske::Relaiszeile_zeigen(int i, bool an) {
  const Beschaeftigt b(*this);
  Check1[i].setzen(an);
  Combo1[i].sichtbar = an;
  Einstellen(Combo1[i], relais_[Relais(i)]);
}

void Funktionsmaske::Relais_funktion_gewaehlt(int i) {
  relais_[Relais(i)] = static_cast<i16>(Combo1[i].position());
  const char* const meldung = Storenregel_anwenden(i);
  Reiter_auffrischen();
  if (meldung != nullptr) Melden(meldung, "", Symbol::Information);
}

const char* Funktionsmaske::Storenregel_anwenden(int i) {
  const auto rolle = [this](i16 code) {
    const auto funktionen = Relaisfunktionen(art_);
    return code >= 0 && code < std::ssize(funktionen) ? funktionen[code].rolle : Storenrolle::keine;
  };
  const int p = i ^ 1;  // the other output of the pair
  i16& eigener = relais_[Relais(i)];
  i16& anderer = relais_[Relais(p)];

  switch (rolle(eigener)) {
    case Storenrolle::keine: break;
    case Storenrolle::unvereinbar:
      if (rolle(anderer) != Storenrolle::fahren) break;
      eigener = relais_keine;
      Relaiszeile_zeigen(i, true);
      return store_nicht_moeglich;
    case Storenrolle::stoppen:
      anderer = eigener;
      Relaiszeile_zeigen(p, true);
      break;
    case Storenrolle::fahren:
      if (anderer == relais_keine) break;
      anderer = relais_keine;
      Relaiszeile_zeigen(p, true);
      return partner_desaktiviert;
  }
  return nullptr;
}

void Funktionsmaske::Relais_setzen(int von, int anzahl, i16 gerade, i16 ungerade) {
  for (int a = von; a < von + anzahl; ++a) relais_[a] = a % 2 == 0 ? gerade : ungerade;
  Baugruppe_zeigen();
  Reiter_auffrischen();
}

// ---- Dimmen -----------------------------------------------------------------------------------------------

void Funktionsmaske::Dimmen_einrichten() {
  anmelden("Dimmbaugruppe", Dimmbaugruppe);
  anmelden("Frame2", Frame2);
  anmelden("Check2", Check2);
  anmelden("Text2", Text2);
  anmelden("Command1", Command1);
  anmelden("Slider1", Slider1);
  anmelden("Intens", Intens);
  anmelden("Tempo", Tempo);
  anmelden("Slider2", Slider2);

  Gruppenleiste_einrichten(Dimmbaugruppe, Ziel::Art::Dimmer);
  Dimmbaugruppe.wenn_geaendert = [this] { Dimmbaugruppe_zeigen(); };

  for (int i = 0; i < dimmer_je_gruppe; ++i) {
    Check2[i].hinweis = "Wenn aktiviert: Ausgang führt die gewünschte Funktion aus";
    Check2[i].wenn_geaendert = Zeilenhandler(i, [this, i] {
      if (!Check2[i].an()) Dimmer_loeschen(Dimmer(i));
    });
    Ausgangstext_einrichten(Text2[i]);
    Text2[i].wenn_geaendert = [this, i] { dimmer_text_[Dimmer(i)] = Text2[i].text(); };
    Command1[i].titel = "Aus";
    Command1[i].hinweis = "Schnelles bearbeiten: Wechsel zwischen 'Aus' und 'Keine Änderung'";
    Command1[i].wenn_gedrueckt = [this, i] {
      Slider1[i].setzen(Slider1[i].wert() >= helligkeit_aus ? 0 : helligkeit_aus);
    };
    Slider1[i].hinweis = "Einstellung: Keine Änderung / Aus / Wunschhelligkeit";
    Slider1[i].wenn_geaendert = Zeilenhandler(
        i, [this, i] { Parameter(Dimmer(i), dimmer_helligkeit) = static_cast<i16>(Slider1[i].wert()); });
    Tempo[i].wenn_geaendert = Zeilenhandler(
        i, [this, i] { Parameter(Dimmer(i), dimmer_tempo) = static_cast<i16>(Tempo[i].position()); });
  }
  for (Auswahl& t : Tempo) {
    t.fuellen(Tempoliste());
    t.hinweis = "Tempo, mit dem die Helligkeit erreicht werden soll";
  }
  Tempo.back().titel = "Alle 4 Ausgänge";
  Tempo.back().wenn_geaendert = Sammelhandler(
      [this](int i) { Parameter(Dimmer(i), dimmer_tempo) = static_cast<i16>(Tempo.back().position()); });
  Slider2.titel = "Alle 4 Ausgänge einstellen";
  Slider2.wenn_geaendert = Sammelhandler([this](int i) {
    Check2[i].setzen(true);
    Parameter(Dimmer(i), dimmer_helligkeit) = static_cast<i16>(Slider2.wert());
  });
}

bool Funktionsmaske::Dimmer_benutzt(int dimmer) const {
  return Benutzt(dimmer_.zeile(dimmer)) || Zusatz_benutzt(dimmer);
}

void Funktionsmaske::Dimmer_loeschen(int dimmer) {
  std::ranges::fill(dimmer_.zeile(dimmer), i16{0});
  Zusatz_loeschen(dimmer);
}

void Funktionsmaske::Dimmbaugruppe_zeigen() {
  const Beschaeftigt b(*this);
  dimmbaugruppe_aktuell = Dimmbaugruppe.position();
  for (int i = 0; i < dimmer_je_gruppe; ++i) {
    Check2[i].titel = Ziel_name({Ziel::Art::Dimmer, Dimmer(i)});
    Text2[i].setzen(dimmer_text_[Dimmer(i)]);
    Check2[i].setzen(Dimmer_benutzt(Dimmer(i)));
    Dimmerzeile_zeigen(i);
  }
  Slider2.setzen(0);
  Tempo.back().setzen(-1);
  Sammelzusatz_ruecksetzen();
}

void Funktionsmaske::Dimmerzeile_zeigen(int i) {
  const Beschaeftigt b(*this);
  if (Dimmer_benutzt(Dimmer(i))) Check2[i].setzen(true);
  const int helligkeit = Parameter(Dimmer(i), dimmer_helligkeit);
  const bool an = Check2[i].an();
  const bool hell = an && helligkeit >= helligkeit_aus;
  Command1[i].sichtbar = an;
  Slider1[i].sichtbar = an;
  Slider1[i].setzen(helligkeit);
  Intens[i].sichtbar = an;
  Intens[i].titel = Helligkeit_in_worten(helligkeit);
  Tempo[i].sichtbar = hell;
  Einstellen(Tempo[i], Parameter(Dimmer(i), dimmer_tempo));
  Zusatz_zeigen(i, an, hell);
}

std::function<void()> Funktionsmaske::Zeilenhandler(int i, std::function<void()> aenderung) {
  return [this, i, aenderung = std::move(aenderung)] {
    aenderung();
    Dimmerzeile_zeigen(i);
    Reiter_auffrischen();
  };
}

std::function<void()> Funktionsmaske::Sammelhandler(std::function<void(int)> aenderung) {
  return [this, aenderung = std::move(aenderung)] {
    const Beschaeftigt b(*this);
    for (int i = 0; i < dimmer_je_gruppe; ++i) {
      aenderung(i);
      Dimmerzeile_zeigen(i);
    }
    Reiter_auffrischen();
  };
}

void Funktionsmaske::Dimmer_setzen(int von, int anzahl, i16 helligkeit) {
  for (int d = von; d < von + anzahl; ++d) {
    Dimmer_loeschen(d);
    Parameter(d, dimmer_helligkeit) = helligkeit;
  }
  Dimmbaugruppe_zeigen();
  Reiter_auffrischen();
}

// ---- Timer ------------------------------------------------------------------------------------------------

void Funktionsmaske::Timer_einrichten() {
  anmelden("Check4", Check4);
  anmelden("Txtbox_timerbez", Txtbox_timerbez);
  anmelden("Combo_timerfkt", Combo_timerfkt);
  for (std::size_t t = 0; t < timeranzahl; ++t) {
    Check4[t].titel = "T" + std::to_string(t);
    Check4[t].setzen(timer_[t] != 0);
    Txtbox_timerbez[t].setzen(timer_text_[t]);
    Combo_timerfkt[t].fuellen(Timerliste());
    Combo_timerfkt[t].sichtbar = Check4[t].an();
    Einstellen(Combo_timerfkt[t], timer_[t]);

    Check4[t].wenn_geaendert = [this, t] {
      if (!Check4[t].an()) timer_[t] = 0;
      const Beschaeftigt b(*this);
      Combo_timerfkt[t].sichtbar = Check4[t].an();
      Einstellen(Combo_timerfkt[t], timer_[t]);
      Reiter_auffrischen();
    };
    Txtbox_timerbez[t].wenn_geaendert = [this, t] { timer_text_[t] = Txtbox_timerbez[t].text(); };
    Combo_timerfkt[t].wenn_geaendert = [this, t] {
      timer_[t] = Combo_timerfkt[t].position();
      Reiter_auffrischen();
    };
  }
}

// ---- commands ---------------------------------------------------------------------------------------------

void Funktionsmaske::Befehle_einrichten() {
  struct Gruppenbefehl {
    const char* name;
    Taste& taste;
    i16 gerade, ungerade;
  };
  for (const Gruppenbefehl& g : {Gruppenbefehl{"Alle_8_aus", Alle_8_aus, relais_aus, relais_aus},
                                 {"Alle_8_ein", Alle_8_ein, relais_ein, relais_ein},
                                 {"Alle_8_neutral", Alle_8_neutral, relais_keine, relais_keine},
                                 {"Storen_auf", Storen_auf, relais_store, relais_keine},
                                 {"Storen_ab", Storen_ab, relais_keine, relais_store},
                                 {"Storen_stop", Storen_stop, relais_store_stop, relais_store_stop}}) {
    anmelden(g.name, g.taste);
    g.taste.wenn_gedrueckt = [this, gerade = g.gerade, ungerade = g.ungerade] {
      Relais_setzen(Relais(0), relais_je_gruppe, gerade, ungerade);
    };
  }
  struct Befehl {
    const char* name;
    Taste& taste;
    std::function<void()> wirkung;
  };
  for (const Befehl& b : {
           Befehl{"Alle_512_aus", Alle_512_aus,
                  [this] { Relais_setzen(0, relaisausgaenge, relais_aus, relais_aus); }},
           {"Alle_512_neutral", Alle_512_neutral,
            [this] { Relais_setzen(0, relaisausgaenge, relais_keine, relais_keine); }},
           {"Ausgaenge_testen", Ausgaenge_testen, [this] { Testen(); }},
           {"Alle_4_neutral", Alle_4_neutral, [this] { Dimmer_setzen(Dimmer(0), dimmer_je_gruppe, 0); }},
           {"Alle_128_aus", Alle_128_aus, [this] { Dimmer_setzen(0, dimmerausgaenge, helligkeit_aus); }},
           {"Alle_128_neutral", Alle_128_neutral, [this] { Dimmer_setzen(0, dimmerausgaenge, 0); }},
           {"Command5", Command5, [this] { Uebernehmen(); }},
           {"Command6", Command6, [this] { schliessen(); }},
       }) {
    anmelden(b.name, b.taste);
    b.taste.wenn_gedrueckt = b.wirkung;
  }
  Durch_tuer(Ausgaenge_testen, ausgangssimulation_oeffnen || projekt.Datei_version != "910",
             "Die Simulation der Ausgänge ist nicht verfügbar");
  Command5.standard = true;
  Command6.abbruch = true;

  anmelden("Ansicht", Ansicht);
  for (Taste& t : Ansicht) {
    t.titel = "Ansicht der Baugruppen";
    Durch_tuer(t, static_cast<bool>(ansicht_oeffnen), "Die Bilder der Baugruppen sind nicht verfügbar");
    t.wenn_gedrueckt = [] { ansicht_oeffnen(); };
  }
}

void Funktionsmaske::Testen() {
  if (projekt.Datei_version != "910") {
    Melden(
        std::string("Wenn Sie die neuen Funktionen von ") + programm_version +
        " nutzen möchten, wählen Sie 'Speichern unter' und den Dateityp 910. Achtung: Das Betriebssystem des "
        "ZAVmasters muss auf die Version 9 aufgerüstet werden.");
  } else {
    ausgangssimulation_oeffnen();
  }
}

void Funktionsmaske::Uebernehmen() {
  bool texte = Uebertragen(relais_text_.alle(), projekt.Relais_text.alle());
  texte = Uebertragen(dimmer_text_.alle(), projekt.Dimmer_text.alle()) || texte;
  if (mit_timer()) texte = Uebertragen(timer_text_.alle(), projekt.Timer_text.alle()) || texte;

  Zusatz_einrechnen();
  const Ereigniszeilen z = Zeilen_von(art_, ereignis_);
  bool funktionen = Uebertragen(relais_.alle(), z.relais);
  funktionen = Uebertragen(dimmer_.alle(), z.dimmer) || funktionen;
  if (mit_timer()) funktionen = Uebertragen(timer_.alle(), z.timer) || funktionen;

  if (funktionen) z.funktext = 1;
  if (texte || funktionen) sitzung.Projekt_geaendert = 1;
  schliessen();
}

}  // namespace zav
