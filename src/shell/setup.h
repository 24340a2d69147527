// "Optionen": how the master is reached, and where project files live. Works on the settings of the session.
#pragma once

#include <array>

#include "form/formular.h"
#include "platform/einstellungen.h"

namespace zav {

class Setup final : public Formular {
 public:
  Setup();

  Rahmen Frame1{"Art der Verbindung zum ZAVmaster (beeinflusst Timeout)"};
  Auswahl Option1{Auswahl::Form::Optionen,
                  {"RS232-Kabel, USB-RS232-Adapter oder virtuelles COM-Port (Timeout 2 Sek.)",
                   "Ethernet verkabelt (Timeout 10 Sek.)", "WLAN, WiFi (Timeout 15 Sek.)"}};
  Rahmen Frame2{"Serielle Schnittstelle"};
  std::array<Kaestchen, 8> CBCOM;  // one of them is ticked
  Schild Label2;                   // what stands behind the numbers
  Taste Command2{"&Port finden..."};
  Rahmen Frame3{"Ethernet-Verbindung zum Serial Device Server"};
  Textfeld Text2{"IP Adresse"}, Text3{"TCP Port"};
  Taste Command3{"IP &Check"};
  Schild Label1;
  Textfeld Text1{"Standardordner:"};
  Taste Dir1{"&Wählen..."};
  Taste Command1{"&Info"};
  Taste OK{"&OK"}, Command4{"&Abbrechen"};

  Anordnung anordnung() override;

 private:
  void Verdrahten();
  void Art_gewaehlt();
  void Port_gewaehlt(std::size_t n);
  void Ports_zeigen();
  void Port_finden();
  void Ordner_waehlen();
  // False after a complaint; the failing fields are tinted then. Writes host and port.
  bool Netz_pruefen(Farbe gut);
  bool Uebernehmen();
  void Zuruecknehmen();

  Einstellungen vorher_ = einstellungen;
  i16 eth_modus_vorher_;
  std::size_t port_ = 0;  // ticked box
};

}  // namespace zav
