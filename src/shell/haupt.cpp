#include "shell/haupt.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <system_error>

#include "app/app_eigenschaften_seite.h"
#include "app/ip_kameras.h"
#include "basis/text.h"
#include "editor/actmask.h"
#include "editor/actmask_init.h"
#include "editor/backref.h"
#include "editor/dimmermode.h"
#include "editor/einmask.h"
#include "editor/einmask8.h"
#include "editor/funktionsmaske.h"
#include "editor/timer_trepp.h"
#include "editor/touchpanel_referenz.h"
#include "enocean/enocean_definition.h"
#include "enocean/sender.h"
#include "form/oberflaeche.h"
#include "link/leitung.h"
#include "platform/datei.h"
#include "platform/uhrwerk.h"
#include "service/bootloader.h"
#include "service/infofenster.h"
#include "service/init_flash.h"
#include "service/masteranzeige.h"
#include "shell/datei.h"
#include "shell/eingabehilfe.h"
#include "shell/fotos.h"
#include "shell/projektbefehle.h"
#include "shell/setup.h"
#include "shell/sitzungslauf.h"
#include "shell/storentimer.h"
#include "store/kennzahlen.h"
#include "store/sitzung.h"
#include "time/form_setup_uhr.h"
#include "time/uhr.h"
#include "time/uhr_astro_rechner.h"
#include "time/uhrseite.h"
#include "transfer/vorschau.h"
#include "weather/wetterdisplay.h"
#include "weather/wetterlogik.h"

namespace zav {

namespace {

constexpr const char* leer = "---";
constexpr const char* namenlos = "Namenlos";
constexpr const char* luecke = "   ";  // between figures in a line

// Looks for serial ports where the link needs one.
void Ports_suchen() {
  if (leitung.Eth_modus == 0) Com_suche();
}
void Ports_neu_suchen() {
  leitung.Com_gesucht = 0;
  Com_suche();
}

std::string Anzahl(int n, const char* eines, const char* mehrere) {
  return std::to_string(n) + " " + (n == 1 ? eines : mehrere);
}

std::string Dateiname(const std::string& pfad) { return pfad.substr(pfad.rfind('/') + 1); }

// Names of files that stand side by side.
std::string Gekuerzt(const std::string& name) {
  constexpr std::size_t laengste = 24;
  return Zeichen_anzahl(name) <= laengste ? name : Links(name, laengste - 1) + "…";
}

// The path as people write it: "~" for the home folder.
std::string Mit_tilde(const std::string& pfad) {
  const char* const heim = std::getenv("HOME");
  const std::string vorne = heim == nullptr ? "" : std::string(heim) + "/";
  return vorne.size() > 1 && pfad.starts_with(vorne) ? "~/" + pfad.substr(vorne.size()) : pfad;
}

// What the next transfer would send: "12 Ereignisse   Schaltzeiten   3 LED-Gruppen   ca. 41 s".
std::string Vorschau_text(const Sendevorschau& v) {
  std::string text;
  if (v.ereignisse > 0) text += Anzahl(v.ereignisse, "Ereignis", "Ereignisse") + luecke;
  if (v.schaltzeiten) text += std::string("Schaltzeiten") + luecke;
  if (v.led_gruppen > 0) text += Anzahl(v.led_gruppen, "LED-Gruppe", "LED-Gruppen") + luecke;
  if (text.empty()) text = std::string("Nur Parameter, sonst ist nichts geändert") + luecke;
  return text + "ca. " + std::to_string(v.sekunden) + " s";
}

}  // namespace

Haupt::Haupt() : Formular("Haupt") {
  Elemente_anmelden();
  Befehle_verdrahten();
  Menue_verdrahten();
  Terminal_verdrahten();
  Label_projekt.ueberschrift = true;
  Notizen.mehrzeilig = true;
  Notizen.hoechstlaenge = 999;
  Notizen.hinweis = "Feld für Notizen zu dieser Datei (maximal 900 Zeichen)";
  Notizen.wenn_geaendert = [this] { Notizen_geaendert(); };
  Funktionsmaske::ansicht_oeffnen = [] {
    sitzung.Foto_nr = Fotos::nummern_der_ausgaenge;
    Fotos fotos;
    oberflaeche().Zeigen(fotos);
  };
  Betriebsart_setzen(false);
  Auffrischen();
}

Haupt::~Haupt() { Funktionsmaske::ansicht_oeffnen = nullptr; }

template <class F>
void Haupt::Oeffnen() {
  F f;
  oberflaeche().Zeigen(f);
  Auffrischen();
}

void Haupt::Befehle_verdrahten() {
  struct Befehl {
    Taste& taste;
    const char* hinweis;
    std::function<void()> handlung;
  };
  const Befehl befehle[] = {
      {Dateien, "Datei Neu, Öffnen und Speichern", [this] { Daten(); }},
      {Closen, "ZAVlink beenden", [this] { schliessen_wuenschen(); }},
      {Eingaenge, "Texte für Ein- und Ausgänge definieren und Verknüpfungen und Funktionen festlegen",
       [this] { Eingaenge_oeffnen(); }},
      {Uhr_button, "Schalt- und Sperrzeiten für die Ausgänge festlegen", [this] { Oeffnen<Uhr>(); }},
      {Setup_uhr,
       "Die Schaltuhren nach Datum in eine Reihenfolge bringen und manuelle Bedienung zulassen oder sperren",
       [this] { Oeffnen<Form_Setup_uhr>(); }},
      {Command1, "Verknüpfungen zum ZAVmaster senden. Währenddessen werden keine Aktionen am Bus ausgeführt",
       [this] { Senden(); }},
      {Command5, "Uhr im ZAVmaster neu stellen und Korrekturarten festlegen",
       [this] {
         Ports_suchen();
         Oeffnen<Uhrseite>();
       }},
      {Timer_button, "Timer (Treppenhausfunktion) an Ereignisse und Ausgänge zuweisen",
       [this] { Oeffnen<Timer_trepp>(); }},
      {Command6, "Zustand der Ausgänge bei einem Neustart festlegen", [this] { Oeffnen<Actmask_init>(); }},
      {Dimmer, "PhasenANschnitt- oder PhasenABschnittsteuerung für jeden Dimmerausgang definieren",
       [this] { Oeffnen<Dimmermode>(); }},
      {Image1, "Wetterinfos anzeigen", [this] { Oeffnen<Wetterdisplay>(); }},
      {Image2, "Touchpanel Adressen-Referenz anzeigen", [this] { Oeffnen<Touchpanel_Referenz>(); }},
      {Master_senden,
       "Verknüpfungen zum ZAVmaster senden. Währenddessen werden keine Aktionen am Bus ausgeführt",
       [this] { Senden(); }},
      {Master_ereignisse, "Zeigt jedes Ereignis von Eingängen, sobald es eintritt",
       [this] { Terminal_lauf(Terminalmodus::protokoll); }},
      {backref_command, "", [this] { Oeffnen<Backref>(); }},
      {neustartlist, "", [this] { Terminal_lauf(Terminalmodus::liste); }},
      {protokoll, "", [this] { Terminal_lauf(Terminalmodus::protokoll); }},
      {Sonderfunktionen, "", [this] { Oeffnen<Eingabehilfe>(); }},
      {start_storentimer, "", [this] { Oeffnen<Storentimer>(); }},
      {System_Optionen, "", [this] { Optionen(); }},
      {mnu_ResetMaster, "", [] { Neustart_fragen(); }},
      {mnu_Zeige_Fotos, "", [this] { Oeffnen<Fotos>(); }},
      {Update, "",
       [this] {
         Ports_neu_suchen();
         Oeffnen<Bootloader>();
       }},
      {Sonnenrechner, "", [this] { Oeffnen<Uhr_Astro_Rechner>(); }},
      {Touchpanel_Mnu, "", [this] { Oeffnen<Touchpanel_Referenz>(); }},
      {IP_Kameras_Mnu, "", [this] { Oeffnen<IP_Kameras>(); }},
      {InfoZAVlink, "", [this] { Oeffnen<Infofenster>(); }},
  };
  for (const Befehl& b : befehle) {
    b.taste.hinweis = b.hinweis;
    b.taste.wenn_gedrueckt = b.handlung;
  }
  for (std::size_t n = 0; n < Zuletzt.size(); ++n)
    Zuletzt[n].wenn_gedrueckt = [this, n] { Zuletzt_oeffnen(n); };
}

// ---- what it shows ----------------------------------------------------------------------------------------

void Haupt::Titel_setzen() {
  titel_setzen("ZAVlink Hauptmenu  -  " + projekt.Projekt_name + ".zav" +
               (sitzung.Schreibschutz == 1 ? " (Schreibgeschützt)" : ""));
}

void Haupt::Auffrischen() {
  Titel_setzen();
  {
    const Beschaeftigt still(*this);
    Notizen.setzen(projekt.Notizen);
  }
  Label_projekt.titel = Ersetzen(Dateiname(projekt.Projekt_name), "&", "&&");
  Label_pfad.titel =
      projekt.Projekt_name == namenlos ? "Noch keine Datei" : Mit_tilde(projekt.Projekt_name + ".zav");
  Label_stand.titel = "Generation " + projekt.Datei_version;
  Gespeichert_zeigen();
  const Kennzahlen k = Kennzahlen_von(projekt);
  Label_kennzahlen.titel = Anzahl(k.kombinationen, "Kombination", "Kombinationen") + "   " +
                           Anzahl(k.apparate, "Apparat", "Apparate") + "   " +
                           Anzahl(k.eingangsereignisse, "Taste", "Tasten") + " mit Funktion";
  Label_senden.titel = Vorschau_text(Sendevorschau_von(projekt));
  Label_schnittstelle.titel = Schnittstelle_text();
  Label_master.titel = "ZAVmaster " + sitzung.Master_version;
  Zuletzt_zeigen();
}

void Haupt::Gespeichert_zeigen() {
  const bool geaendert = sitzung.Projekt_geaendert == 1;
  ungespeichert_setzen(geaendert);
  const auto stand = geaendert ? std::nullopt : Datei_geschrieben(projekt.Projekt_name + ".zav");
  Label_gespeichert.titel =
      geaendert ? "geändert, noch nicht gespeichert"
      : stand ? "gespeichert " + (stand->tag == Heute() ? Zeit_text(stand->sekunden) : Datum_text(stand->tag))
              : std::string{};
}

void Haupt::Zuletzt_zeigen() {
  for (std::size_t n = 0; n < Zuletzt.size(); ++n) {
    const str& eintrag = einstellungen.last_file[n];
    const bool da = eintrag != leer && !eintrag.empty() && eintrag != projekt.Projekt_name;
    Zuletzt[n].titel = Ersetzen(Gekuerzt(Dateiname(eintrag)), "&", "&&");
    Zuletzt[n].hinweis = eintrag + ".zav öffnen";
    Zuletzt[n].sichtbar = da;
  }
  Label_zuletzt.sichtbar = std::ranges::any_of(Zuletzt, [](const Taste& t) { return *t.sichtbar; });
}

void Haupt::Notizen_geaendert() {
  projekt.Notizen = Notizen.text();
  sitzung.Projekt_geaendert = 1;
  Gespeichert_zeigen();
}

// ---- commands ---------------------------------------------------------------------------------------------

void Haupt::Daten() {
  // A folder that does not exist leaves the program where it is.
  std::error_code egal;
  std::filesystem::current_path(einstellungen.Standard_ordner, egal);
  Datei datei;
  oberflaeche().Zeigen(datei);
  Auffrischen();
}

void Haupt::Zuletzt_oeffnen(std::size_t n) {
  const std::string pfad = einstellungen.last_file[n] + ".zav";
  if (!Ungespeichertes_fragen()) return;
  sitzung.Schreibschutz = 0;
  Projekt_oeffnen(pfad);
  Auffrischen();
}

void Haupt::Eingaenge_oeffnen() {
  melder().Hinweis("Eingabefenster wird geöffnet...");
  const Umschalttasten t = oberflaeche().Tasten();
  if (t.strg && t.alt) {
    Oeffnen<Einmask>();
  } else {
    Einmask8 maske(Editortueren());
    oberflaeche().Zeigen(maske);
    Auffrischen();
  }
  melder().Hinweis("");
}

Tueren Haupt::Editortueren() {
  return {.senden = [this] { Senden(); },
          .wetterlogik =
              [] {
                Wetterlogik_oeffnen([](int ereignis, const std::string& text) {
                  Actmask maske(ereignis, text);
                  oberflaeche().Zeigen(maske);
                });
              },
          .enocean_definition =
              [](int platz) {
                Enocean_Definition dialog(plaetze * sitzung.Komb_aktuell + platz);
                oberflaeche().Zeigen(dialog);
              },
          .enocean_schatten_kopieren = Enocean_schatten_nehmen,
          .enocean_abgleichen = Enocean_abgleichen,
          .app_seite =
              [](int platz, int versatz) {
                App_eigenschaften_seite seite(plaetze * sitzung.Komb_aktuell + platz, versatz);
                oberflaeche().Zeigen(seite);
              }};
}

void Haupt::Senden() {
  Ports_suchen();
  Init_flash dialog;
  oberflaeche().Zeigen(dialog);
  Auffrischen();
}

void Haupt::Optionen() {
  Ports_neu_suchen();
  Oeffnen<Setup>();
}

void Haupt::abbrechen_wuenschen() {
  if (Frame_glaszav.sichtbar) Command7.druecken();
}

void Haupt::schliessen_wuenschen() {
  if (Sitzung_beenden()) schliessen();
}

}  // namespace zav
