// Replacing the firmware: over a real pseudo-terminal to the simulated bootloader, and over a real device
// server.
#include <optional>

#include "firmware_hilfen.h"
#include "platform/nsio.h"
#include "pruefstand.h"
#include "service/bootloader.h"
#include "service/srecord.h"
#include "simulator/simulator.h"

namespace zav {
namespace {

TEST(Srecord, NamesTheFirstFault) {
  const std::string gut = Firmwaredatei(2);
  EXPECT_EQ(Srecord_mangel(gut), "");
  EXPECT_EQ(Srecord_mangel("S1030000FC\nS9030000FC"), "") << "other line ends, none at the end";
  EXPECT_EQ(Srecord_mangel("S205000000AA50\rS804000000FB\r"), "");
  for (const auto& [datei, mangel] : {
           std::pair<std::string, std::string>{"", "Die Datei enthält keine Daten."},
           {"S9030000FC\r\n", "Die Datei enthält keine Daten."},
           {gut.substr(0, gut.size() - 12),
            "Der Schluss-Record fehlt, die Datei ist vielleicht abgeschnitten."},
           {gut.substr(0, gut.size() - 15), "Zeile 3 hat eine halbe Stelle."},
           {"S1030000FD\r\n", "Zeile 1 hat eine falsche Prüfsumme."},
           {"S1040000FB\r\n", "Zeile 1 hat eine falsche Länge."},
           {"S1030000FC\r\n\r\nS103000ZFC\r\n", "Zeile 3 enthält ein ungültiges Zeichen."},
           {"\x7f"
            "ELF\x01\x02",
            "Zeile 1 ist kein S-Record."},
           {"S4030000FC\r\n", "Zeile 1 ist kein S-Record."},
           {gut + "S1030000FC\r\n", "Zeile 5 steht hinter dem Schluss-Record."},
       }) {
    EXPECT_EQ(Srecord_mangel(datei), mangel);
  }
}

class Update : public Pruefstand {
 protected:
  Update() { Zeitraffer_setzen(30); }
  // A master, in its bootloader or running, on a pseudo-terminal that COM stands for.
  void Master(bool startladen = true) {
    sim.emplace(simulator::Optionen{.pty = true, .startladen = startladen});
    sim->start();
    einstellungen.Com_geraet = sim->pty_name();
  }
  std::string Datei(const std::string& inhalt, const std::string& name = "ZAVMAStER_0905.s19") {
    Datei_anlegen(ordner / name, inhalt);
    return ordner / name;
  }
  // A whole update of 200 records at the press of the key. The clock races but where other processes are
  // waited for: while the line opens, and until the master's report is there.
  void Updaten(Bootloader& f, Taste& taste, const std::string& inhalt) {
    d.erwarte_datei(Dateiwahl{.pfad = Datei(inhalt)});
    d.erwarte({.text = "ZAVmaster jetzt neu starten\r\n"});
    d.bei_doevents = [&f] {
      const bool oeffnet = *f.Label1[1].titel == "2.";
      const bool bericht_fehlt =
          f.ProgressBar1.bis == 15.0 && f.Text1.text().find(" bad") == std::string::npos;
      Zeitraffer_setzen(oeffnet || bericht_fehlt ? 1 : 30);
    };
    taste.druecken();
    Erwarte_ganzes_update(f);
  }
  static std::string Schritte(const Bootloader& f) {
    std::string text;
    for (const Schild& l : f.Label1) text += *l.titel + "|";
    return text;
  }
  void Erwarte_ganzes_update(Bootloader& f) {
    EXPECT_EQ(Schritte(f),
              "1. Datei auswählen|2. Jetzt bitte ZAVmaster aus-/einschalten|3. Betriebssystem im ZAVmaster "
              "wird gelöscht|"
              "4. ZAVmaster wird vorbereitet zum Update|5. ZAVmaster update läuft...|"
              "6. Update erfolgreich, ZAVmaster wird neu gestartet|");
    EXPECT_TRUE(sim->firmware().gueltig);
    EXPECT_EQ(sim->firmware().falsche, 0U);
    EXPECT_EQ(sim->firmware().bytes, 16U * 200U);
    EXPECT_EQ(sim->neustarts(), 1);
    EXPECT_EQ(f.ProgressBar1.wert, 15.0);
    EXPECT_TRUE(f.Command8.frei);
    const std::string& log = f.Text1.text();
    for (const char* zeile : {"Ablauf-Info\r\n---\r\n", "*: Quit Bootloader and start ZAVmaster-1024\r\n",
                              "ZAVmaster auf Empfang setzen\r\n", "Datenübertragung fertig\r\n"}) {
      EXPECT_NE(log.find(zeile), std::string::npos) << zeile;
    }
    EXPECT_NE(log.find(" records, 0 bad"), std::string::npos) << log;
  }

  Testordner ordner;
  std::optional<simulator::Simulator> sim;
};

TEST_F(Update, OverComInSixSteps) {
  Master();
  // The running master is reached over the network: the update takes COM all the same.
  einstellungen.Com_art = 1;
  Com_art_setzen();
  Bootloader f;
  Updaten(f, f.Command9, Firmwaredatei(200));
  EXPECT_EQ(d.dateifragen().front().filter.front(), (Dateifilter{"Update ZAVmaster (*.s19)", "*.s19"}));
  EXPECT_NE(f.Text1.text().find("ascStartTx 0\r\n"), std::string::npos);
  EXPECT_EQ(leitung.Link_art, Verbindung::tcp);
}

TEST_F(Update, RefusesANameWarnsOfAContentAndCanBeLeftWhileTheMasterIsSilent) {
  Master(false);
  Bootloader f;
  d.erwarte_datei(std::nullopt);
  d.erwarte({.text = "Ungültige Update-Datei"});
  f.Command9.druecken();
  d.erwarte_datei(Dateiwahl{.pfad = Datei(Firmwaredatei(1), "ZAVMASTER_0905.s19")});
  d.erwarte({.text = "Ungültige Update-Datei ZAVMASTER_"});
  f.Command9.druecken();

  const Meldung warnung{
      "Das ist keine einwandfreie Update-Datei: Zeile 1 ist kein S-Record.\r\n\r\nDas Betriebssystem im "
      "ZAVmaster wird trotzdem gelöscht, wenn Sie fortfahren. Fortfahren?",
      "Update-Assistent", Knoepfe::Ja_Nein, Symbol::Warnung, 2};
  const std::string pfad = Datei("<html>");
  d.erwarte_datei(Dateiwahl{.pfad = pfad});
  d.erwarte(warnung, Antwort::Nein);
  f.Command9.druecken();
  EXPECT_TRUE(f.Command9.frei);

  d.erwarte_datei(Dateiwahl{.pfad = pfad});
  d.erwarte(warnung, Antwort::Ja);
  d.bei_doevents = [&] {
    if (f.Command8.frei) f.schliessen_wuenschen();
  };
  f.Command9.druecken();
  EXPECT_FALSE(f.offen());
  EXPECT_EQ(Schritte(f), "1. Datei auswählen|2. Jetzt bitte ZAVmaster aus-/einschalten|3.|4.|5.|6.|");
  EXPECT_EQ(sim->mitschrift(), (std::vector<std::string>{})) << "the master was told something";
}

TEST_F(Update, OverADeviceServerInSixSteps) {
  BRAUCHT_SER2NET();
  Master();
  const Geraeteserver server(ordner, sim->pty_name());
  einstellungen.Host_ip = server.adresse;
  Bootloader f;
  const std::string inhalt = Firmwaredatei(200);
  Updaten(f, f.Command10, inhalt);
  EXPECT_NE(f.Text1.text().find(std::to_string(inhalt.size()) + " Zeichen übermittelt\r\n"),
            std::string::npos);
}

TEST_F(Update, DeviceServerPassesEveryByteAndTakesTheLineSettings) {
  BRAUCHT_SER2NET();
  Pty pty;
  const Geraeteserver server(ordner, pty.name);
  nsio_init();
  const int port = nsio_open(server.adresse, 1, 30'000 * 30);
  ASSERT_GT(port, 0);
  EXPECT_EQ(nsio_ioctl(port, nsio_baud_115200, nsio_acht_bits), 0);
  EXPECT_EQ(nsio_flowctrl(port, 0), 0);
  termios t{};
  ASSERT_EQ(tcgetattr(pty.geraet, &t), 0);
  EXPECT_EQ(cfgetospeed(&t), static_cast<speed_t>(B115200));
  EXPECT_EQ(t.c_cflag & CSIZE, static_cast<tcflag_t>(CS8));
  EXPECT_EQ(nsio_ioctl(port, 12, nsio_acht_bits), -EINVAL);

  std::string alle(256, '\0');
  std::iota(alle.begin(), alle.end(), '\0');
  alle += "\r\xff\xff\r\n";
  const int n = static_cast<int>(alle.size());
  EXPECT_EQ(nsio_write(port, alle.data(), n), n);
  std::string angekommen;
  while (angekommen.size() < alle.size()) {
    char c = 0;
    if (read(pty.master, &c, 1) == 1) angekommen += c;
  }
  EXPECT_EQ(angekommen, alle);

  ASSERT_EQ(write(pty.master, alle.data(), alle.size()), n);
  std::string zurueck;
  while (zurueck.size() < alle.size() && nsio_warten(port, 5000) > 0) {
    char puffer[64];
    zurueck.append(puffer, static_cast<std::size_t>(nsio_read(port, puffer, sizeof puffer)));
  }
  EXPECT_EQ(zurueck, alle);
  EXPECT_EQ(nsio_close(port), 0);
  EXPECT_EQ(nsio_write(port, "x", 1), -EBADF);
  nsio_end();
}

TEST_F(Update, NoDeviceServerIsToldAndNothingStarts) {
  einstellungen.Host_ip = "127.0.0.1";
  const std::string pfad = Datei(Firmwaredatei(1));
  Bootloader f;
  d.erwarte_datei(Dateiwahl{.pfad = pfad});
  d.erwarte(
      {.text =
           "Serial Device Server nicht gefunden, muss im lokalen Netzwerk sein, über DynDNS nicht möglich!"});
  f.Command10.druecken();
  EXPECT_EQ(Schritte(f), "1. Datei auswählen|2.|3.|4.|5.|6.|");
  EXPECT_TRUE(f.offen());
}

}  // namespace
}  // namespace zav
