#include "projektzugriff.h"

#include <system_error>

#include "platform/datei.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

namespace zav {

std::filesystem::path Projektpfad(const std::string& datei) {
  return std::filesystem::absolute(datei.ends_with(".zav") ? datei : datei + ".zav").lexically_normal();
}

bool Projekt_oeffnen(Lauf& lauf, const std::string& datei) {
  const auto pfad = Projektpfad(datei);
  projekt.Projekt_name = pfad.string();
  const Laden ergebnis = Projekt_laden();
  if (ergebnis == Laden::unvollstaendig) {
    lauf.konsole.Fehler(pfad.string() + " konnte nicht bis zum Ende gelesen werden: " +
                        Systemfehler_text(sitzung.Dateifehler));
  }
  return ergebnis == Laden::geladen;
}

bool Projekt_sichern(Lauf& lauf, const std::filesystem::path& pfad) {
  projekt.Projekt_name = std::filesystem::path(pfad).replace_extension().string();
  const Speichern ergebnis = Projekt_speichern();
  if (ergebnis == Speichern::nicht_geschrieben) {
    lauf.konsole.Fehler(pfad.string() + " konnte nicht geschrieben werden (" +
                        Systemfehler_text(sitzung.Dateifehler) +
                        "). Die Datei auf der Platte ist unverändert.");
  }
  return ergebnis == Speichern::gespeichert;
}

bool Ersetzen_erlaubt(const std::filesystem::path& pfad) {
  std::error_code fehler;
  if (!std::filesystem::exists(pfad, fehler)) return true;
  return Fragen({.text = pfad.string() + " besteht bereits. Soll die Datei ersetzt werden?",
                 .titel = "Datei ersetzen",
                 .knoepfe = Knoepfe::Ja_Nein,
                 .symbol = Symbol::Frage,
                 .standard = 2});
}

}  // namespace zav
