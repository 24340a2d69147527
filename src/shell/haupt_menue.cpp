// The file menu of the main menu, and the signs and shortcuts of its commands.
#include "form/oberflaeche.h"
#include "shell/datei.h"
#include "shell/haupt.h"

namespace zav {

void Haupt::Menue_verdrahten() {
  mnuNeu.wenn_gedrueckt = [this] { Dateibefehl(&Datei::New); };
  mnuOeffnen.wenn_gedrueckt = [this] { Dateibefehl(&Datei::Command2); };
  mnuSpeichern.wenn_gedrueckt = [this] { Dateibefehl(&Datei::Command3); };
  mnuSpeichern_unter.wenn_gedrueckt = [this] { Dateibefehl(&Datei::Command1); };
  mnuBeenden.wenn_gedrueckt = [this] { schliessen_wuenschen(); };

  mnuNeu.kuerzel = "Ctrl+N";
  mnuOeffnen.kuerzel = "Ctrl+O";
  mnuSpeichern.kuerzel = "Ctrl+S";
  mnuSpeichern_unter.kuerzel = "Ctrl+Shift+S";
  mnuBeenden.kuerzel = "Ctrl+Q";
  backref_command.kuerzel = "Ctrl+F";

  struct Zeichen {
    Taste& taste;
    const char* bild;
  };
  for (const auto& [taste, bild] : {Zeichen{mnuNeu, "neu"},
                                    {mnuOeffnen, "oeffnen"},
                                    {mnuSpeichern, "speichern"},
                                    {mnuBeenden, "beenden"},
                                    {Dateien, "projekt"},
                                    {Eingaenge, "eingaenge"},
                                    {Timer_button, "timer"},
                                    {Command6, "neustart"},
                                    {Dimmer, "dimmer"},
                                    {Uhr_button, "uhr"},
                                    {Setup_uhr, "sequenzer"},
                                    {Command5, "stellen"},
                                    {Command1, "senden"},
                                    {Master_senden, "senden"},
                                    {Master_ereignisse, "protokoll"},
                                    {Image1, "wetter"},
                                    {Image2, "touchpanel"},
                                    {Closen, "beenden"},
                                    {backref_command, "suchen"},
                                    {neustartlist, "master"},
                                    {protokoll, "protokoll"},
                                    {mnu_ResetMaster, "neustart"},
                                    {System_Optionen, "optionen"},
                                    {Update, "update"},
                                    {Sonnenrechner, "sonne"},
                                    {Touchpanel_Mnu, "touchpanel"},
                                    {IP_Kameras_Mnu, "kamera"},
                                    {start_storentimer, "store"},
                                    {Sonderfunktionen, "lampe"},
                                    {InfoZAVlink, "info"}}) {
    taste.bild = bild;
  }
}

// A command of the file dialog, given without showing it.
void Haupt::Dateibefehl(Taste Datei::*befehl) {
  Datei datei;
  Taste& taste = datei.*befehl;
  if (taste.frei && taste.sichtbar) taste.druecken();
  Auffrischen();
}

}  // namespace zav
