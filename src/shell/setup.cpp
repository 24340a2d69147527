#include "shell/setup.h"

#include <algorithm>

#include "basis/zahl.h"
#include "form/oberflaeche.h"
#include "link/adresse.h"
#include "link/leitung.h"
#include "service/infofenster.h"
#include "shell/portsuche.h"

namespace zav {

Setup::Setup() : Formular("Setup", "Optionen"), eth_modus_vorher_(leitung.Eth_modus) {
  Verdrahten();
  const Beschaeftigt still(*this);
  Ports_zeigen();
  Option1.setzen(std::clamp<int>(einstellungen.Com_art, 0, 2));
  Port_gewaehlt(static_cast<std::size_t>(std::clamp<int>(einstellungen.Com_port, 1, 8) - 1));
  Text1.setzen(einstellungen.Standard_ordner);
  Text2.setzen(einstellungen.Host_name);
  Text3.setzen(std::to_string(einstellungen.Host_port));
  Art_gewaehlt();
}

void Setup::Verdrahten() {
  anmelden("Frame1", Frame1);
  anmelden("Option1", Option1);
  anmelden("Frame2", Frame2);
  anmelden("Label2", Label2);
  anmelden("Command2", Command2);
  anmelden("Frame3", Frame3);
  anmelden("Text2", Text2);
  anmelden("Text3", Text3);
  anmelden("Command3", Command3);
  anmelden("Label1", Label1);
  anmelden("Text1", Text1);
  anmelden("Dir1", Dir1);
  anmelden("Command1", Command1);
  anmelden("OK", OK);
  anmelden("Command4", Command4);

  Option1.hinweisen(0, "Direkte Verbindung PC---ZAVmaster, kurze Timeouts");
  Option1.hinweisen(2, "Drahtlose Verbindung, grosse Timeouts");
  Option1.wenn_geaendert = [this] { Art_gewaehlt(); };
  for (std::size_t n = 0; n < CBCOM.size(); ++n) {
    const std::string nummer = std::to_string(n + 1);
    anmelden("CBCOM" + nummer, CBCOM[n]);
    CBCOM[n].titel = "Com &" + nummer;
    CBCOM[n].wenn_geaendert = [this, n] { Port_gewaehlt(n); };
  }
  Command2.hinweis = "Findet den Port Ihres Adapters: ausstecken, OK, einstecken, OK";
  Command2.wenn_gedrueckt = [this] { Port_finden(); };
  Text2.wenn_geaendert = [this] { Text2.farbe = Farbe::normal; };
  Text3.wenn_geaendert = [this] { Text3.farbe = Farbe::normal; };
  Text3.hoechstlaenge = 5;
  Command3.wenn_gedrueckt = [this] { Netz_pruefen(Farbe::frei); };
  Dir1.wenn_gedrueckt = [this] { Ordner_waehlen(); };
  Command1.wenn_gedrueckt = [this] {
    if (!Uebernehmen()) return;
    Infofenster info;
    oberflaeche().Zeigen(info);
  };
  OK.wenn_gedrueckt = [this] {
    if (Uebernehmen()) schliessen();
  };
  Command4.wenn_gedrueckt = [this] { Zuruecknehmen(); };
  OK.standard = true;
  Command4.abbruch = true;
}

void Setup::Art_gewaehlt() {
  const bool netz = Option1.position() != 0;
  leitung.Eth_modus = netz ? 1 : 0;
  Frame2.sperren(netz, "Gilt für eine serielle Verbindung");
  Frame3.sperren(!netz, "Gilt für Ethernet und WLAN");
}

// The boxes are one choice: ticking one takes the tick from the others, and the ticked one stays.
void Setup::Port_gewaehlt(std::size_t n) {
  const Beschaeftigt still(*this);
  port_ = n;
  for (std::size_t i = 0; i < CBCOM.size(); ++i) CBCOM[i].setzen(i == n);
}

void Setup::Ports_zeigen() {
  for (std::size_t n = 0; n < CBCOM.size(); ++n) {
    const int port = static_cast<int>(n);
    const std::string& ursache = leitung.Com_ursache[port];
    CBCOM[n].frei = leitung.Com_frei[port] == 1;
    CBCOM[n].hinweis = "Serielle Schnittstelle des PCs zur Kommunikation mit ZAVmaster" +
                       (ursache.empty() ? "" : "\n" + ursache);
  }
  Label2.titel = Portliste();
}

void Setup::Port_finden() {
  const std::optional<int> port = Port_suchen();
  Ports_zeigen();
  if (port) Port_gewaehlt(static_cast<std::size_t>(*port));
}

void Setup::Ordner_waehlen() {
  if (const auto ordner = oberflaeche().Ordner_waehlen(Text1.text())) Text1.setzen(*ordner);
}

bool Setup::Netz_pruefen(Farbe gut) {
  std::string ip = Text2.text();
  const std::string ergebnis = Adresse_pruefen(ip, Text3.text());
  const bool div = ergebnis == Adresse_err_div;
  const bool ip_falsch = div || ergebnis == Adresse_err_ip;
  const bool port_falsch = div || ergebnis == Adresse_err_port;
  if (ip_falsch) Text2.farbe = Farbe::belegt;
  if (port_falsch) Text3.farbe = Farbe::belegt;
  if (ip_falsch || port_falsch) {
    fokussieren(ip_falsch ? Text2 : Text3);
    return false;
  }
  Label1.titel = "IP Adresse = " + ergebnis;
  Text2.farbe = gut;
  Text3.farbe = gut;
  einstellungen.Host_name = Text2.text();
  einstellungen.Host_ip = ergebnis;
  einstellungen.Host_port = *Zahl_lesen(Text3.text());
  return true;
}

bool Setup::Uebernehmen() {
  if (Option1.position() != 0 && !Netz_pruefen(Farbe::normal)) return false;
  einstellungen.Standard_ordner = Text1.text();
  einstellungen.Com_art = static_cast<i16>(Option1.position());
  Com_art_setzen();
  einstellungen.Com_port = static_cast<i16>(port_ + 1);
  return true;
}

void Setup::Zuruecknehmen() {
  einstellungen = vorher_;
  Com_art_setzen();
  leitung.Eth_modus = eth_modus_vorher_;
  schliessen();
}

Anordnung Setup::anordnung() {
  return Spalte(Gruppe(Frame1, Option1),
                Gruppe(Frame2, Raster(4, Alle(CBCOM)), Zeile(Label2, Feder(), Command2)),
                Gruppe(Frame3, Zeile(Text2, Text3, Command3), Label1), Zeile(Text1, Dir1),
                Knopfzeile(Command1, OK, Command4));
}

}  // namespace zav
