// Names and places of the main menu's controls.
#include "shell/haupt.h"

namespace zav {

void Haupt::Elemente_anmelden() {
  anmelden("Label_projekt", Label_projekt);
  anmelden("Label_pfad", Label_pfad);
  anmelden("Label_stand", Label_stand);
  anmelden("Label_gespeichert", Label_gespeichert);
  anmelden("Label_kennzahlen", Label_kennzahlen);
  anmelden("Frame_senden", Frame_senden);
  anmelden("Label_senden", Label_senden);
  anmelden("Notizen", Notizen);
  anmelden("Label_zuletzt", Label_zuletzt);
  anmelden("Zuletzt", Zuletzt);
  anmelden("Label_schnittstelle", Label_schnittstelle);
  anmelden("Label_master", Label_master);

  anmelden("Frame_befehle", Frame_befehle);
  anmelden("Dateien", Dateien);
  anmelden("Closen", Closen);
  anmelden("Eingaenge", Eingaenge);
  anmelden("Uhr_button", Uhr_button);
  anmelden("Setup_uhr", Setup_uhr);
  anmelden("Command1", Command1);
  anmelden("Command5", Command5);
  anmelden("Timer_button", Timer_button);
  anmelden("Command6", Command6);
  anmelden("Dimmer", Dimmer);
  anmelden("Image1", Image1);
  anmelden("Image2", Image2);
  anmelden("Master_senden", Master_senden);
  anmelden("Master_ereignisse", Master_ereignisse);

  anmelden("mnuNeu", mnuNeu);
  anmelden("mnuOeffnen", mnuOeffnen);
  anmelden("mnuSpeichern", mnuSpeichern);
  anmelden("mnuSpeichern_unter", mnuSpeichern_unter);
  anmelden("mnuBeenden", mnuBeenden);
  anmelden("backref_command", backref_command);
  anmelden("neustartlist", neustartlist);
  anmelden("protokoll", protokoll);
  anmelden("Sonderfunktionen", Sonderfunktionen);
  anmelden("start_storentimer", start_storentimer);
  anmelden("System_Optionen", System_Optionen);
  anmelden("mnu_ResetMaster", mnu_ResetMaster);
  anmelden("mnu_Zeige_Fotos", mnu_Zeige_Fotos);
  anmelden("Update", Update);
  anmelden("Sonnenrechner", Sonnenrechner);
  anmelden("Touchpanel_Mnu", Touchpanel_Mnu);
  anmelden("IP_Kameras_Mnu", IP_Kameras_Mnu);
  anmelden("InfoZAVlink", InfoZAVlink);

  anmelden("Frame_glaszav", Frame_glaszav);
  anmelden("Frame_filter", Frame_filter);
  anmelden("Filter", Filter);
  anmelden("Check1", Check1);
  anmelden("Check2", Check2);
  anmelden("Terminal_Fenster", Terminal_Fenster);
  anmelden("Command9", Command9);
  anmelden("Command7", Command7);
}

Anordnung Haupt::anordnung() {
  return Spalte(
      Menue("D&atei", mnuNeu, mnuOeffnen, Feder(), mnuSpeichern, mnuSpeichern_unter, Feder(), mnuBeenden),
      Menue("&GlasZAV", neustartlist, protokoll, backref_command, mnu_ResetMaster),
      Menue("&Werkzeuge", Sonderfunktionen, start_storentimer, Sonnenrechner, Touchpanel_Mnu, IP_Kameras_Mnu,
            Update, System_Optionen),
      Menue("Hil&fe", mnu_Zeige_Fotos, InfoZAVlink),
      Besonders(
          "hauptansicht",
          Gruppe(Frame_befehle,
                 Spalte(Gruppe("Projekt", Dateien),
                        Gruppe("Installation", Eingaenge, Timer_button, Command6, Dimmer, Image2),
                        Gruppe("Zeit", Uhr_button, Setup_uhr, Command5), Gruppe("Wetter", Image1),
                        Gruppe("Master", Master_senden, Master_ereignisse), Feder(), Spalte(Closen)),
                 Spalte(Zeile(Label_projekt, Feder(), Label_stand),
                        Zeile(Label_pfad, Feder(), Label_gespeichert), Label_kennzahlen,
                        Besonders("tafel", Gruppe(Frame_senden, Label_senden, Zeile(Feder(), Command1))),
                        Notizen, Zeile(Label_zuletzt, Alle(Zuletzt), Feder()))),
          Gruppe(Frame_glaszav, Gruppe(Frame_filter, Raster(4, Alle(Filter))),
                 Zeile(Check1, Check2, Feder(), Command9), Terminal_Fenster, Knopfzeile(Command7)),
          Zeile(Label_schnittstelle, Feder(), Label_master)));
}

}  // namespace zav
