// neu, umwandeln, abbild, app: commands that need no master.
#include <CLI/CLI.hpp>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "app/deskriptor.h"
#include "argumente.h"
#include "basis/text.h"
#include "befehl.h"
#include "platform/datei.h"
#include "projektzugriff.h"
#include "store/projektdatei.h"
#include "transfer/plan.h"

namespace zav {

Ausfuehrung Befehl_neu(CLI::App& app) {
  const auto datei = std::make_shared<std::string>();
  app.add_option("DATEI", *datei, "Name des neuen Projekts; .zav wird ergänzt")->required();
  return [datei](Lauf& lauf) {
    const auto pfad = Projektpfad(*datei);
    if (!Ersetzen_erlaubt(pfad)) return false;
    projekt.Datei_version = "910";
    Projekt_reset();
    return Projekt_sichern(lauf, pfad);
  };
}

Ausfuehrung Befehl_umwandeln(CLI::App& app) {
  struct Argumente {
    std::string quelle, ziel, als;
  };
  const auto a = std::make_shared<Argumente>();
  app.add_option("QUELLE", a->quelle, "Projekt, das geöffnet wird; .zav wird ergänzt")->required();
  app.add_option("ZIEL", a->ziel, "Name, unter dem es gespeichert wird; .zav wird ergänzt")->required();
  app.add_option("--als", a->als, "Generation der neuen Datei: 910, 900 oder 800 (sonst die eigene)")
      ->type_name("910|900|800")
      ->take_last()
      ->check(Eines_von({"910", "900", "800"}));
  return [a](Lauf& lauf) {
    const auto ziel = Projektpfad(a->ziel);
    if (!Projekt_oeffnen(lauf, a->quelle) || !Ersetzen_erlaubt(ziel)) return false;
    if (!a->als.empty()) {
      projekt.Datei_version = a->als;
    } else if (Alte_generation(projekt.Datei_version)) {
      projekt.Datei_version = "910";
    }
    return Projekt_sichern(lauf, ziel);
  };
}

namespace {

// The lines of an image as JSON: [{"befehl": "A", "daten": "..."},
// {"befehl": "W", "von": "006000", "bis": "0060F1", "daten": "..."}, ...].
std::string Abbild_json(const std::string& zeilen) {
  std::string text;
  for (const std::string& zeile : Teilen(zeilen, "\n")) {
    const std::vector<std::string> t = Teilen(zeile, " ");
    if (t.size() < 2) continue;  // behind the last line
    text += (text.empty() ? "[\n{\"befehl\": \"" : ",\n{\"befehl\": \"") + t.front();
    if (t.size() == 4) text += "\", \"von\": \"" + t[1] + "\", \"bis\": \"" + t[2];
    text += "\", \"daten\": \"" + t.back() + "\"}";
  }
  return text + "\n]\n";
}

}  // namespace

Ausfuehrung Befehl_abbild(CLI::App& app) {
  struct Argumente {
    std::string datei, ausgabe;
    bool nur_geaenderte = false, sperren = false;
  };
  const auto a = std::make_shared<Argumente>();
  Projektargument(app, a->datei);
  app.add_option("-o", a->ausgabe, "in diese Datei schreiben statt auf die Standardausgabe")
      ->type_name("AUSGABE")
      ->take_last();
  app.add_flag("--nur-geaenderte", a->nur_geaenderte, "nur, was seit der letzten Übertragung geändert wurde");
  app.add_flag("--sperren", a->sperren, "mit den Sperrbefehlen für Eingänge und Wetter");
  return [a](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, a->datei)) return false;
    const std::string zeilen =
        Abbild(projekt, einstellungen, {.nur_geaenderte = a->nur_geaenderte, .sperren = a->sperren});
    std::string text;
    if (lauf.json) text = Abbild_json(zeilen);
    const std::string& daten = lauf.json ? text : zeilen;
    if (a->ausgabe.empty()) {
      lauf.aus << daten;
      return true;
    }
    const Dateiergebnis geschrieben = Datei_schreiben(a->ausgabe, daten);
    if (geschrieben) return true;
    lauf.konsole.Fehler(a->ausgabe +
                        " konnte nicht geschrieben werden: " + Systemfehler_text(geschrieben.fehler));
    return false;
  };
}

Ausfuehrung Befehl_app(CLI::App& app) {
  struct Argumente {
    std::string datei, ausgabe;
  };
  const auto a = std::make_shared<Argumente>();
  Projektargument(app, a->datei);
  app.add_option("-o", a->ausgabe, "in diese Datei schreiben, sie wird ersetzt (sonst zavappdescriptor.xml)")
      ->type_name("AUSGABE")
      ->take_last();
  return [a](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, a->datei) || !App_daten_moeglich()) return false;
    if (!a->ausgabe.empty()) return App_xml_schreiben(a->ausgabe, App_xml_bauen(projekt));
    const std::string vorgabe = "zavappdescriptor.xml";
    return Ersetzen_erlaubt(vorgabe) && App_xml_schreiben(vorgabe, App_xml_bauen(projekt));
  };
}

}  // namespace zav
