// senden, master, neustart, uhr, ereignis: what the transfer and the clock pages of the window do.
#include <CLI/CLI.hpp>
#include <algorithm>
#include <array>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <string_view>

#include "argumente.h"
#include "basis/liste.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "befehl.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "platform/uhrwerk.h"
#include "projektzugriff.h"
#include "store/projektdatei.h"
#include "transfer/uebertragung.h"
#include "transfer/uhr_stellen.h"

namespace zav {

namespace {

constexpr const char* neustart_titel = "Neustart ZAVmaster?";

// Passes what a long operation reports on to the console, its log line by line.
class Anzeige final : public Beobachter {
 public:
  explicit Anzeige(Konsole& konsole) : konsole_(konsole) {}
  ~Anzeige() override { konsole_.Fortschritt_ende(); }

  void Protokoll(std::string_view text) override {
    for (const char c : text) {
      if (c == '\n') {
        konsole_.Protokoll(zeile_);
        zeile_.clear();
      } else if (c != '\r') {
        zeile_ += c;
      }
    }
  }
  void Fortschritt_zeigen(const Fortschritt& f) override { konsole_.Fortschritt_zeigen(f.gesamt, zeile_); }

 private:
  Konsole& konsole_;
  std::string zeile_;
};

// Everything that tells what is still to be sent.
struct Sendemarken {
  Feld<u8, 1024> ein = projekt.Ein_funktext;
  Feld<u8, 256> uhr = projekt.Uhr_funktext;
  Feld<u8, 64> tev = projekt.Tev_funktext;
  Feld<i16, 256> led = projekt.Grp_led;
  i16 tabelle = projekt.Uhr_tabelle_geaendert;

  bool operator==(const Sendemarken&) const = default;
};

// What a transfer did not tell by a box.
void Ergebnis_melden(Konsole& konsole, Sendeergebnis e) {
  if (e == Sendeergebnis::keine_antwort)
    konsole.Fehler("Der ZAVmaster hat auf die Frage nach seiner Version nicht geantwortet.");
  if (e == Sendeergebnis::nicht_synchron) {
    konsole.Anmerken("Mit --initialisieren wird der ZAVmaster vorher gelöscht und dann alles übertragen.");
  }
  if (e == Sendeergebnis::zu_breit)
    konsole.Fehler("Die Übertragung endete vorzeitig: ein Wert der Storenparameter ist zu gross.");
}

struct Sendeargumente {
  std::string datei;
  bool initialisieren = false, sperren = false, neustart = false, nicht_speichern = false;
};

bool Uebertragen(Lauf& lauf, const Sendeargumente& a) {
  Anzeige anzeige(lauf.konsole);
  const Abbruchwache wache([] { leitung.Abbruch_flag = 1; });
  Uebertragung uebertragung(anzeige);
  uebertragung.Check1 = a.sperren;
  if (a.initialisieren && (!uebertragung.Initialisieren() || Abbruchwache::verlangt())) return false;
  const Sendeergebnis ergebnis = uebertragung.Senden_starten();
  Ergebnis_melden(lauf.konsole, ergebnis);
  return ergebnis == Sendeergebnis::gesendet;
}

}  // namespace

Ausfuehrung Befehl_senden(CLI::App& app) {
  const auto a = std::make_shared<Sendeargumente>();
  Projektargument(app, a->datei);
  app.add_flag("--initialisieren", a->initialisieren, "den ZAVmaster vorher löschen (fragt nach)");
  app.add_flag("--sperren", a->sperren, "Eingänge und Wetter während der Übertragung sperren");
  app.add_flag("--neustart", a->neustart, "den ZAVmaster am Schluss neu starten");
  app.add_flag("--nicht-speichern", a->nicht_speichern, "die Änderungsmarken nicht im Projekt speichern");
  return [a](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, a->datei)) return false;
    if (a->neustart) lauf.konsole.bejahter_titel = neustart_titel;
    const Sendemarken vorher;
    const bool gesendet = Uebertragen(lauf, *a);
    const bool zu_speichern =
        Sendemarken() != vorher && !a->nicht_speichern && !Alte_generation(projekt.Datei_version);
    const bool gesichert = !zu_speichern || Projekt_sichern(lauf, Projektpfad(a->datei));
    return gesendet && gesichert;
  };
}

Ausfuehrung Befehl_master(CLI::App& /*app*/) {
  return [](Lauf& lauf) {
    const Masterinfo info = Master_abfragen();
    if (!info.gut) return false;
    // An erased master holds zeros for a name.
    const auto sichtbar = [](std::string text) {
      std::erase(text, '\0');
      return std::string(Ohne_rand(text));
    };
    const std::string version = sichtbar(info.version);
    const std::string name = sichtbar(info.projekt);
    if (lauf.json) {
      lauf.aus << nlohmann::ordered_json{{"version", version}, {"projekt", name}}.dump(
                      2, ' ', false, nlohmann::json::error_handler_t::replace)
               << '\n';
    } else {
      lauf.aus << "Version  " << version << "\nProjekt  " << name << '\n';
    }
    return true;
  };
}

Ausfuehrung Befehl_neustart(CLI::App& /*app*/) {
  return [](Lauf&) {
    if (!Fragen({.text = "Im ZAVmaster einen Neustart durchführen?",
                 .titel = neustart_titel,
                 .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
                 .symbol = Symbol::Frage})) {
      return false;
    }
    Neustart_ausfuehren();
    return leitung.Empfang_text == Antwort_neustart;
  };
}

Ausfuehrung Befehl_uhr(CLI::App& app) {
  const auto modus = std::make_shared<std::string>();
  app.add_option("--umstellung", *modus,
                 "Zeitumstellung: 0 keine, 1 nach den Daten, 2 Funkuhr (sonst wie eingestellt)")
      ->type_name("0|1|2")
      ->take_last()
      ->check(Eines_von({"0", "1", "2"}));
  return [modus](Lauf& lauf) {
    const Datum heute = Heute();
    Uhrstellung u{.Akt_zeit_text = Zeit_text(Tageszeit()),
                  .Akt_datum_text = Datum_text(heute),
                  .Akt_wochentag = static_cast<i16>(Wochentag(heute)),
                  .Richt_modus = einstellungen.Richt_modus,
                  .Sowi_datum = Sowi_daten_berechnen(heute.jahr)};
    if (!modus->empty()) u.Richt_modus = static_cast<i16>(*Zahl_lesen(*modus));
    if (!Uhr_stellen(u)) return false;
    if (lauf.simulator) return true;
    // Every transfer sends mode and dates again from the settings.
    einstellungen = lauf.gespeichert;
    einstellungen.Richt_modus = u.Richt_modus;
    einstellungen.Sowi_datum = u.Sowi_datum;
    const std::string mangel = Einstellungen_schreiben();
    if (!mangel.empty()) lauf.konsole.Fehler(mangel);
    return true;
  };
}

namespace {

// What a key can do, with the number of the action on the line.
struct Tastenaktion {
  std::string_view name;
  int nummer;
};
constexpr std::array tastenaktionen{Tastenaktion{"druecken", 1}, Tastenaktion{"loesen", 0},
                                    Tastenaktion{"kurz", 2}};

constexpr int erste_geraetenummer = 1024;  // of an input module on the bus; two for each address
constexpr int groesster_versatz = 23;      // of a device with six addresses

}  // namespace

Ausfuehrung Befehl_ereignis(CLI::App& app) {
  struct Argumente {
    std::string adresse, taste, aktion;
  };
  const auto a = std::make_shared<Argumente>();
  app.add_option("ADRESSE", a->adresse, "erste Adresse des Apparats, 0 bis 255")
      ->required()
      ->check(Ganze_zahl_bis(adressen - 1));
  app.add_option("TASTE", a->taste, "Taste des Apparats, von 0 an gezählt")
      ->required()
      ->check(Ganze_zahl_bis(groesster_versatz));
  app.add_option("AKTION", a->aktion, "druecken, loesen oder kurz")
      ->required()
      ->check(Eines_von(Texte(tastenaktionen, &Tastenaktion::name)));
  return [a](Lauf& lauf) {
    const int taste = *Zahl_lesen(a->taste);
    const int adresse = *Zahl_lesen(a->adresse) + taste / 4;
    if (adresse >= adressen) {
      lauf.konsole.Fehler("Adresse " + std::to_string(adresse) +
                          " dieser Taste gibt es nicht, die höchste ist 255.");
      return false;
    }
    const int aktion = std::ranges::find(tastenaktionen, a->aktion, &Tastenaktion::name)->nummer;
    Ereignis_erzeugen(Hex4(2 * adresse + erste_geraetenummer), Hex2(aktion), Hex2(taste % 4 + 1));
    return leitung.Port_fehler == 0 && Antwort_ist_gut();
  };
}

}  // namespace zav
