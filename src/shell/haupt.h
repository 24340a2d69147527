// The main menu: owns the session and opens everything else. One source a subject: haupt (commands, doors,
// what it shows of the project), haupt_menue (file menu, signs, shortcuts), haupt_terminal (terminal mode),
// haupt_anordnung.
#pragma once

#include <array>
#include <string>

#include "editor/tueren.h"
#include "form/formular.h"
#include "platform/einstellungen.h"
#include "service/terminal.h"

namespace zav {

class Datei;

class Haupt final : public Formular, private Terminalanzeige {
 public:
  Haupt();
  ~Haupt() override;

  // ---- what stands in the store
  Schild Label_projekt, Label_pfad, Label_stand, Label_gespeichert, Label_kennzahlen;
  Rahmen Frame_senden{"Nächstes Senden"};
  Schild Label_senden;
  Textfeld Notizen{"N&otizen"};
  Schild Label_zuletzt{"Zuletzt:"};
  std::array<Taste, 4> Zuletzt;
  Schild Label_schnittstelle, Label_master;

  // ---- commands
  Rahmen Frame_befehle;
  Taste Dateien{"&Daten..."}, Closen{"&Beenden"};
  Taste Eingaenge{"&Eingänge - LEDs - IR - Wetter - Touchpanel"};
  Taste Uhr_button{"Schaltuh&ren..."}, Setup_uhr{"Schalt&uhr- Sequenzer..."};
  Taste Command1{"Daten senden..."}, Command5{"U&hr stellen..."};
  Taste Timer_button{"&Timer Manager..."}, Command6{"&Zustand bei Neustart..."},
      Dimmer{"Di&mmer (An- und Abschnitt)..."};
  Taste Image1{"Wetter&infos..."}, Image2{"Touch&panel..."};
  Taste Master_senden{"&Senden..."},
      Master_ereignisse{"Ereig&nisse..."};  // Command1 and `protokoll` in the list

  // ---- menu
  Taste mnuNeu{"&Neu"}, mnuOeffnen{"Ö&ffnen..."}, mnuSpeichern{"&Speichern"},
      mnuSpeichern_unter{"Speichern &unter..."}, mnuBeenden{"&Beenden"};
  Taste backref_command{"Erei&gnissuche"};
  Taste neustartlist{"Auf&listen aller Busteilnehmer"}, protokoll{"P&rotokollieren aller Ereignisse"};
  Taste Sonderfunktionen{"Sonderfunktionen"}, start_storentimer{"St&orenparameter"};
  Taste System_Optionen{"O&ptionen"}, mnu_ResetMaster{"&Neustart"}, mnu_Zeige_Fotos{"&Schemas"};
  Taste Update{"Update-Assistent"}, Sonnenrechner{"Sonnen-Info"};
  Taste Touchpanel_Mnu{"Touchpanel"}, IP_Kameras_Mnu{"IP-Kameras"}, InfoZAVlink{"&Info"};

  // ---- terminal
  Rahmen Frame_glaszav{"GlasZAV"};
  Rahmen Frame_filter{"Durchlasskriterien (nur diese ZAVin werden angezeigt)"};
  std::array<Textfeld, Terminal::filter_anzahl> Filter;
  Kaestchen Check1{"&Zeit ergänzen"}, Check2{"&Datum ergänzen"};
  Textfeld Terminal_Fenster;
  Taste Command9{"Anzeige &löschen"}, Command7{"GlasZAV &verlassen"};

  Anordnung anordnung() override;
  // Ends the program, after its questions.
  void schliessen_wuenschen() override;
  // Leaves the terminal.
  void abbrechen_wuenschen() override;

  // Title, notes and figures as the store has them now.
  void Auffrischen();
  // Runs the terminal; returns when it has been left.
  void Terminal_lauf(Terminalmodus modus);

 private:
  void Elemente_anmelden();
  void Befehle_verdrahten();
  void Menue_verdrahten();
  void Terminal_verdrahten();
  void Titel_setzen();
  void Gespeichert_zeigen();
  void Zuletzt_zeigen();
  void Notizen_geaendert();

  template <class F>
  void Oeffnen();
  void Daten();
  void Dateibefehl(Taste Datei::*befehl);
  void Eingaenge_oeffnen();
  // The doors of the installation editor.
  Tueren Editortueren();
  void Senden();
  void Optionen();
  void Zuletzt_oeffnen(std::size_t n);

  // Terminalanzeige
  void Text_zeigen(const std::string& text) override;
  void Zeile_zeigen(const std::string& zeile) override { Text_zeigen(zeile + "\r\n"); }
  void Betriebsart_setzen(bool terminal);

  Terminal terminal_{*this};
};

}  // namespace zav
