#include "shell/projektbefehle.h"

#include <algorithm>
#include <array>

#include "form/oberflaeche.h"
#include "platform/datei.h"
#include "platform/einstellungen.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// The generations that are written, in the order of the dialog's filters.
struct Generationsfilter {
  const char* version;
  const char* text;
};
constexpr std::array generationsfilter{Generationsfilter{"910", "ZAVnet 910 (*.zav)"},
                                       Generationsfilter{"900", "ZAVnet 90x (*.zav)"},
                                       Generationsfilter{"800", "ZAVnet 8xx (*.zav)"}};

std::string Fehlertitel(int fehler) { return "ZAVlink: Fehler " + std::to_string(fehler); }

// Saves under the present name, whatever the write protection of the file that was opened says.
bool Gespeichert() {
  const Wartezeiger zeiger;
  sitzung.Speicherfehler = 0;
  // Old generations are only read.
  if (Alte_generation(projekt.Datei_version)) projekt.Datei_version = "910";
  const Speichern ergebnis = Projekt_speichern();
  if (ergebnis == Speichern::nicht_geschrieben) {
    Melden(projekt.Projekt_name + ".zav konnte nicht geschrieben werden: " +
               Systemfehler_text(sitzung.Dateifehler) + ". Die Datei auf der Platte ist unverändert.",
           Fehlertitel(sitzung.Dateifehler), Symbol::Stopp);
  }
  if (ergebnis != Speichern::gespeichert) return false;
  sitzung.Projekt_geaendert = 0;
  return true;
}

}  // namespace

std::string Ohne_endung(const std::string& pfad) {
  const std::size_t n = pfad.size();
  return n > 4 && pfad[n - 4] == '.' && pfad[n - 5] != '/' ? pfad.substr(0, n - 4) : pfad;
}

bool Datei_ablegen(const std::string& pfad, const std::string& inhalt) {
  const Dateiergebnis ergebnis = Datei_schreiben(pfad, inhalt);
  if (ergebnis) return true;
  Melden(pfad + " konnte nicht geschrieben werden: " + Systemfehler_text(ergebnis.fehler) + ".",
         Fehlertitel(ergebnis.fehler), Symbol::Stopp);
  return false;
}

bool Ungespeichertes_fragen() {
  while (sitzung.Projekt_geaendert == 1) {
    oberflaeche().Piep();
    switch (oberflaeche().Melden(
        {.text = "Es existieren möglicherweise ungespeicherte Projektdaten!\r\n\r\nMöchten Sie das aktuelle "
                 "Projekt noch speichern?\r\n\r\n",
         .titel = "Noch speichern?",
         .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
         .symbol = Symbol::Warnung})) {
      case Antwort::Ja: Projekt_sichern_unter(); break;
      case Antwort::Nein: sitzung.Projekt_geaendert = 0; break;
      default: return false;
    }
  }
  return true;
}

bool Projekt_sichern() {
  if (sitzung.Schreibschutz == 1) {
    Melden(
        "Diese Datei ist schreibgeschützt. Bitte speichern Sie sie unter anderem Namen mit 'Projekt "
        "speichern unter...'.");
    return false;
  }
  const bool gut = Gespeichert();
  return sitzung.Speicherfehler == 1 ? Projekt_sichern_unter() : gut;
}

bool Projekt_sichern_unter() {
  Dateifrage frage{.titel = "Projekt speichern unter",
                   .ordner = einstellungen.Standard_ordner,
                   .vorschlag = projekt.Projekt_name,
                   .endung = ".zav",
                   .ueberschreiben_fragen = true};
  for (const Generationsfilter& g : generationsfilter) frage.filter.push_back({g.text, "*.zav"});
  const auto* const aktiv =
      std::ranges::find(generationsfilter, projekt.Datei_version, &Generationsfilter::version);
  if (aktiv != generationsfilter.end()) frage.filter_nr = static_cast<int>(aktiv - generationsfilter.begin());
  const auto wahl = oberflaeche().Datei_speichern(frage);
  if (!wahl) return false;
  projekt.Projekt_name = Ohne_endung(wahl->pfad);
  const bool bekannt = wahl->filter_nr >= 0 && wahl->filter_nr < std::ssize(generationsfilter);
  projekt.Datei_version =
      generationsfilter.at(bekannt ? static_cast<std::size_t>(wahl->filter_nr) : 0).version;
  if (!Gespeichert()) return false;
  sitzung.Schreibschutz = 0;
  return true;
}

void Projekt_oeffnen(const std::string& pfad) {
  projekt.Projekt_name = pfad;
  if (Projekt_laden() == Laden::unvollstaendig) {
    Melden(projekt.Projekt_name + ".zav konnte nicht bis zum Ende gelesen werden: " +
               Systemfehler_text(sitzung.Dateifehler) + ".",
           Fehlertitel(sitzung.Dateifehler), Symbol::Stopp);
  }
}

}  // namespace zav
