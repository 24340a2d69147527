#include "shell/sitzungslauf.h"

#include "form/oberflaeche.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "shell/gruss.h"
#include "shell/projektbefehle.h"
#include "store/projekt.h"
#include "store/sitzung.h"

namespace zav {

bool Sitzung_beginnen(const std::string& datei) {
  const std::string mangel = Einstellungen_lesen();
  if (!mangel.empty()) Melden(mangel, "ZAVlink", Symbol::Warnung);
  Com_art_setzen();
  projekt.Projekt_name = "Namenlos";
  projekt.Datei_version = "910";
  Projekt_reset();
  leitung.Com_gesucht = 0;
  sitzung.Schreibschutz = 0;
  bool beendet = false;
  if (datei.empty()) {
    Gruss gruss;
    oberflaeche().Zeigen(gruss);
    beendet = gruss.beendet();
  } else {
    Projekt_oeffnen(datei);
  }
  sitzung.Projekt_geaendert = 0;
  return !beendet;
}

bool Sitzung_beenden() {
  sitzung.Abbruch = 1;
  Port_schliessen();
  while (sitzung.Projekt_geaendert == 1) {
    oberflaeche().Piep();
    const Antwort speichern = oberflaeche().Melden(
        {.text = "Es existieren ungespeicherte Projektdaten! Speichern?\r\n\r\nMit 'Ja' gelangen Sie zurück "
                 "ins Hauptmenu und können die Datei wie gewohnt speichern.\r\n\r\n",
         .titel = "ZAV-Datei",
         .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
         .symbol = Symbol::Warnung});
    if (speichern != Antwort::Nein) return false;
    if (Fragen({.text = "Wirklich nicht speichern? Mit 'Ja' gelangen Sie zurück ins Hauptmenu und können die "
                        "Datei wie gewohnt speichern.",
                .knoepfe = Knoepfe::Ja_Nein,
                .symbol = Symbol::Stopp})) {
      return false;
    }
    sitzung.Projekt_geaendert = 0;
  }
  const std::string mangel = Einstellungen_schreiben();
  if (!mangel.empty()) Melden(mangel, "ZAVlink", Symbol::Warnung);
  return true;
}

}  // namespace zav
