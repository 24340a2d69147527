#include "store/projektdatei.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "basis/melder.h"
#include "basis/text.h"
#include "platform/datei.h"
#include "store/altdaten.h"
#include "store/kamera.h"
#include "store/letzte_dateien.h"
#include "store/sitzung.h"
#include "store/zeilen.h"

namespace zav {

namespace {

constexpr const char* namenlos = "Namenlos";
constexpr const char* endung_projekt = ".zav";
constexpr std::size_t endung_laenge = 4;
constexpr const char* fehlerquelle = "ZAVlink";

// A generation of the project file: how it is read and, for those that are only read, what the user is told
// before.
struct Generation {
  std::string_view version;  // line 2
  void (*zeilen)(Leser&, Projekt&);
  bool alte_codes = false;               // its relay matrices hold codes of the old table
  const char* freigabe = nullptr;        // release that wrote it; nullptr: still written
  const char* endung_genannt = nullptr;  // extension of the backup copy as the user is told
  const char* endung = nullptr;          // the one it really gets: 710 and 700 share a backup
  const char* fragetitel = nullptr;

  bool alt() const { return freigabe != nullptr; }
};

constexpr const char* sichern_titel = "Datei mit alter Version sichern?";
constexpr Generation generationen[] = {
    {"910", Zeilen_910<Leser, Projekt>},
    {"900", Zeilen_900<Leser, Projekt>},
    {"800", Zeilen_800<Leser, Projekt>},
    {"710", Zeilen_710<Leser, Projekt>, false, "ZAVlink 7.100", ".71x", ".70x", sichern_titel},
    {"700", Zeilen_710<Leser, Projekt>, true, "ZAVlink 7.001", ".70x", ".70x", sichern_titel},
    {"600", Zeilen_600<Leser, Projekt>, true, "ZAVlink 6.xxx", ".6av", ".6av", sichern_titel},
    {"500", Zeilen_500<Leser, Projekt>, true, "ZAVlink 5.xxx", ".5av", ".5av",
     "Datei mit älterer Verion sichern?"},
};

// The generation of that name, or nullptr.
const Generation* Generation_von(std::string_view version) {
  const auto* const g = std::find_if(std::begin(generationen), std::end(generationen),
                                     [&](const Generation& e) { return e.version == version; });
  return g != std::end(generationen) ? g : nullptr;
}

// Bytes of a file to expect: an empty project, and the matrix rows of the events in use.
std::size_t Geschaetzte_laenge(const Projekt& p) {
  constexpr std::size_t grundstock = std::size_t{256} << 10;
  constexpr std::size_t ereignis = std::size_t{1040} * 4;  // lines of two digits
  const auto benutzt = [](const auto& leer) {
    return static_cast<std::size_t>(std::count(leer.alle().begin(), leer.alle().end(), 1));
  };
  return grundstock + ereignis * (benutzt(p.Ein_leer) + benutzt(p.Uhr_leer) + benutzt(p.Tev_leer));
}

void Meldung_mit_piep(const Meldung& m) {
  melder().Piep();
  melder().Melden(m);
}

Laden Nicht_geoeffnet(int fehler) {
  sitzung.Dateifehler = fehler;
  Dateifehler_melden(fehler);
  projekt.Projekt_name = namenlos;
  return Laden::nicht_geoeffnet;
}

Laden Unbekannte_generation(const std::optional<std::string>& version) {
  std::string text =
      "Öffnen nicht möglich: diese Datei wurde evtl. mit einer neueren Version von ZAVlink erstellt und "
      "gespeichert.\r\n\r\n";
  if (version) projekt.Datei_version = *version;
  if (version && Zeichen_anzahl(*version) == 3) text += "Die Dateiversion ist: " + *version;
  Meldung_mit_piep({.text = text, .titel = "Info", .symbol = Symbol::Information});
  projekt.Projekt_name = namenlos;
  return Laden::unbekannt;
}

// Keeps a copy of an old file if the user wishes. False when it could not be made.
bool Altdatei_sichern(const Generation& g, std::string_view bytes) {
  const std::string genannt = g.endung_genannt;
  melder().Piep();
  const bool sichern = Fragen(
      {.text =
           std::string("Diese Datei wurde mit ") + g.freigabe +
           " erstellt und gespeichert. Sie wird nun in der neuen " + programm_version +
           " geöffnet. Wenn Sie 'Ja' wählen, wird sie vorher unter dem gleichem Namen mit der Erweiterung " +
           genannt + " gespeichert (empfohlen)?",
       .titel = g.fragetitel,
       .knoepfe = Knoepfe::Ja_Nein,
       .symbol = Symbol::Frage});
  if (!sichern) return true;
  const Dateiergebnis kopie = Datei_schreiben(projekt.Projekt_name + g.endung, bytes);
  if (kopie) return true;
  sitzung.Dateifehler = kopie.fehler;
  Dateifehler_melden(kopie.fehler,
                     ". Möglicherweise existiert die Sicherungsdatei " + genannt +
                         " bereits und ist schreibgeschützt. Heben Sie bitte den Schreibschutz auf oder "
                         "sichern Sie die Datei manuell.");
  return false;
}

}  // namespace

void Dateifehler_melden(int fehler, const std::string& dahinter) {
  Meldung_mit_piep({.text = Systemfehler_text(fehler) + dahinter,
                    .titel = fehlerquelle + std::string(": Fehler ") + std::to_string(fehler),
                    .symbol = Symbol::Stopp});
}

bool Alte_generation(std::string_view version) {
  const Generation* const g = Generation_von(version);
  return g != nullptr && g->alt();
}

std::string Projekt_schreiben(const Projekt& p) {
  Schreiber datei;
  datei.reservieren(Geschaetzte_laenge(p));
  datei.fest(programm_version);
  datei.text(p.Datei_version);
  if (p.Datei_version == "910") {
    Zeilen_910(datei, p);
  } else if (p.Datei_version == "900") {
    Zeilen_900(datei, p);
  } else {
    Zeilen_800(datei, p);
  }
  return std::move(datei).bytes();
}

std::optional<std::string> Version_lesen(std::string_view bytes) {
  Leser datei(bytes);
  datei.zeile();
  const auto zeile2 = datei.zeile();
  if (!zeile2) return std::nullopt;
  return Aus_1252(*zeile2);
}

bool Projekt_lesen(std::string_view bytes, Projekt& p, std::string* marke) {
  const auto version = Version_lesen(bytes);
  if (!version) return false;
  p.Datei_version = *version;
  const Generation* const generation = Generation_von(*version);
  if (generation == nullptr) return false;

  Leser datei(bytes, generation->alte_codes);
  datei.fest(programm_version);
  datei.fest(*version);
  generation->zeilen(datei, p);
  if (marke != nullptr) *marke = datei.gelesene_marke();

  if (!generation->alt()) Kamera_zerlegen(p);
  if (*version == "500") Altdaten_umsetzen(p);
  if (generation->alt() || *version == "800") Dimmer_korrektur(p, datei.gelesene_marke());
  return true;
}

Speichern Projekt_speichern() {
  sitzung.Dateifehler = 0;
  if (projekt.Projekt_name == namenlos) {
    Melden(
        "Der Speicherort ist unvollständig. Speichern Sie diese Datei bitte mit 'Projekt speichern "
        "unter...'.",
        "Unvollständige Dateiinformation", Symbol::Information);
    sitzung.Speicherfehler = 1;
    return Speichern::ohne_namen;
  }
  const Dateiergebnis ergebnis =
      Datei_schreiben(projekt.Projekt_name + endung_projekt, Projekt_schreiben(projekt));
  sitzung.Dateifehler = ergebnis.fehler;
  if (ergebnis.gescheitert == Dateischritt::oeffnen) {
    Dateifehler_melden(ergebnis.fehler,
                       ". Die Datei mit diesem Namen ist möglicherweise schreibgeschützt. "
                       "Speichern Sie sie mit 'Projekt speichern unter...' mit einem anderen "
                       "Namen oder in einen anderen Ordner.");
    projekt.Projekt_name = namenlos;
    return Speichern::nicht_angelegt;
  }
  Letzte_dateien_eintragen();
  return ergebnis ? Speichern::gespeichert : Speichern::nicht_geschrieben;
}

Laden Projekt_laden() {
  const Wartezeiger warten;
  sitzung.Dateifehler = 0;
  sitzung.Master_neu_pruefen = 1;
  str& name = projekt.Projekt_name;
  if (name.empty()) {
    melder().Piep();
    name = sitzung.Projekt_name_vorher.empty() ? namenlos : sitzung.Projekt_name_vorher;
    return Laden::abgebrochen;
  }
  name = Links(name, std::max(Zeichen_anzahl(name), endung_laenge) - endung_laenge);
  Projekt_reset();

  std::string bytes;
  Dateiergebnis gelesen = Datei_lesen(name + endung_projekt, bytes);
  if (gelesen.gescheitert == Dateischritt::oeffnen) return Nicht_geoeffnet(gelesen.fehler);
  const auto version = Version_lesen(bytes);
  const Generation* const generation = version ? Generation_von(*version) : nullptr;
  if (generation == nullptr) return Unbekannte_generation(version);

  if (*version == "800") {
    Meldung_mit_piep(
        {.text = std::string("Diese Datei wurde mit ZAVlink 8 erstellt und wird weiterhin so gespeichert. "
                             "Wenn Sie die neuen Funktionen von ") +
                 programm_version +
                 " nutzen möchten, wählen Sie 'Speichern unter' und den Dateityp 9. Achtung: Das "
                 "Betriebssystem des ZAVmasters muss auf die Version 9 aufgerüstet werden.",
         .titel = "Öffnen mit der neuen Version von ZAVlink",
         .symbol = Symbol::Information});
  }
  if (generation->alt()) {
    projekt.Datei_version = *version;
    if (!Altdatei_sichern(*generation, bytes)) return Laden::nicht_gesichert;
    // While the question stood there the file may have changed.
    gelesen = Datei_lesen(name + endung_projekt, bytes);
    if (gelesen.gescheitert == Dateischritt::oeffnen) return Nicht_geoeffnet(gelesen.fehler);
  }
  Projekt_lesen(bytes, projekt, &sitzung.Marke);
  Letzte_dateien_eintragen();
  sitzung.Projekt_geaendert = 0;
  sitzung.Dateifehler = gelesen.fehler;
  return gelesen ? Laden::geladen : Laden::unvollstaendig;
}

}  // namespace zav
