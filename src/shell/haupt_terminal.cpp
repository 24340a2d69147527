// The main window in terminal mode.
#include <algorithm>

#include "shell/haupt.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Bytes of log that are kept; the older half goes when they are full: a session of days must not fill the
// memory.
constexpr std::size_t protokoll_grenze = std::size_t{4} << 20;

}  // namespace

void Haupt::Terminal_verdrahten() {
  for (std::size_t n = 0; n < Filter.size(); ++n) {
    Filter[n].hinweis = "zum Beispiel K000 oder K000 T1 -/-";
    Filter[n].wenn_geaendert = [this, n] { terminal_.Filter[n] = Filter[n].text(); };
  }
  Check1.hinweis = "Zeit des PCs hinter jede Zeile schreiben";
  Check2.hinweis = "Datum des PCs hinter jede Zeile schreiben";
  Check1.wenn_geaendert = [this] { terminal_.Check1 = Check1.an(); };
  Check2.wenn_geaendert = [this] { terminal_.Check2 = Check2.an(); };
  Terminal_Fenster.nur_lesen = true;
  Terminal_Fenster.mehrzeilig = Terminal_Fenster.festbreit = true;
  Command9.wenn_gedrueckt = [this] { Terminal_Fenster.setzen("Anzeige gelöscht...\r\n"); };
  Command7.wenn_gedrueckt = [] { sitzung.Abbruch = 1; };
  Command7.abbruch = true;
}

// One mode at a time: the terminal's line is busy, so the commands that could use it are off with their
// panel.
void Haupt::Betriebsart_setzen(bool terminal) {
  Frame_glaszav.sichtbar = terminal;
  Frame_befehle.sichtbar = !terminal;
  for (Taste* t : {&backref_command, &neustartlist, &protokoll, &Sonderfunktionen, &start_storentimer,
                   &System_Optionen, &mnu_ResetMaster, &mnu_Zeige_Fotos, &Update, &Sonnenrechner,
                   &Touchpanel_Mnu, &IP_Kameras_Mnu, &InfoZAVlink}) {
    t->sperren(terminal, "Zuerst GlasZAV verlassen: die Leitung zum ZAVmaster ist belegt");
  }
}

void Haupt::Terminal_lauf(Terminalmodus modus) {
  for (Textfeld& f : Filter) f.setzen("");
  Check1.setzen(false);
  Check2.setzen(false);
  Terminal_Fenster.setzen("");
  Betriebsart_setzen(true);
  terminal_.Terminal_lauf(modus);
  Betriebsart_setzen(false);
}

void Haupt::Text_zeigen(const std::string& text) {
  Terminal_Fenster.anhaengen(text);
  const std::string& alles = Terminal_Fenster.text();
  if (alles.size() <= protokoll_grenze) return;
  const std::size_t zeile = alles.find("\r\n", alles.size() / 2);
  Terminal_Fenster.setzen("---> Ältere Zeilen sind entfernt\r\n" +
                          alles.substr(std::min(zeile, alles.size() - 2) + 2));
}

}  // namespace zav
