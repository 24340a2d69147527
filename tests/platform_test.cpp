#include <gtest/gtest.h>

#include <ctime>
#include <filesystem>
#include <numeric>
#include <thread>

#include "gegenstelle.h"
#include "hilfen.h"
#include "platform/csc.h"
#include "platform/ini.h"
#include "platform/ports.h"
#include "platform/sio.h"
#include "platform/uhrwerk.h"

namespace zav {
namespace {

std::string Alle_bytes() {
  std::string alle(256, '\0');
  std::iota(alle.begin(), alle.end(), '\0');
  return alle;
}

TEST(Ini, KeepsWhatItDoesNotKnow) {
  const std::string datei =
      "\xEF\xBB\xBF; von Hand\r\n"
      "ohne=Abschnitt\r\r\n"
      "[Andere]\n"
      "comport=9\n"
      "\n"
      "[ startup ]\n"
      "  ComPort = 3 \n"
      "# Bemerkung=1\n"
      "\n"
      "[Letzte]\n"
      "a=b=c";
  Ini ini(datei);
  EXPECT_EQ(ini.Lesen("Startup", "comport"), "3");
  EXPECT_EQ(ini.Lesen("Letzte", "a"), "b=c");
  EXPECT_EQ(ini.Lesen("Startup", "# Bemerkung"), std::nullopt);
  EXPECT_EQ(ini.Lesen("Startup", "a"), std::nullopt);
  ini.Setzen("Startup", "comport", "4");
  ini.Setzen("Startup", "standarddir", "/home/müller/Projekte;1\n2");
  ini.Setzen("Neu", "x", "");
  EXPECT_EQ(ini.Inhalt(),
            "; von Hand\nohne=Abschnitt\n[Andere]\ncomport=9\n\n[ startup ]\ncomport=4\n# Bemerkung=1\n"
            "standarddir=/home/müller/Projekte;1 2\n\n[Letzte]\na=b=c\n\n[Neu]\nx=\n");
  EXPECT_EQ(Ini(ini.Inhalt()).Lesen("neu", "X"), "");
}

class EinstellungenTest : public testing::Test {
 protected:
  EinstellungenTest() {
    einstellungen = {};
    std::filesystem::create_directories(std::filesystem::path(Einstellungsdatei()).parent_path());
  }
  Testordner ordner;
};

TEST_F(EinstellungenTest, FirstRunHasDefaultsAndARunLaterAllValues) {
  std::filesystem::remove_all(std::filesystem::path(Einstellungsdatei()).parent_path());
  einstellungen.Com_port = 7;
  EXPECT_EQ(Einstellungen_lesen(), "");
  EXPECT_TRUE(einstellungen.Com_port == 1 && einstellungen.Host_port == 4001);
  EXPECT_EQ(einstellungen.last_file[3], "---");

  einstellungen.Com_port = 8;
  einstellungen.Com_art = 2;
  einstellungen.Epson = -32768;
  einstellungen.Host_name = "haus.müller.ch";
  einstellungen.Host_ip = "10.0.0.7";
  einstellungen.Host_port = 65535;
  einstellungen.Sowi_datum[19] = "";
  einstellungen.Ports[2] = "/dev/ttyUSB7";
  einstellungen.last_file[0] = "/tmp/Haus";
  EXPECT_EQ(Einstellungen_schreiben(), "");
  const std::string datei = Dateibytes(Einstellungsdatei());
  EXPECT_NE(datei.find("\nHostNameIP=haus.müller.ch\n"), std::string::npos);
  EXPECT_EQ(datei.find("last_file"), std::string::npos) << "goes when a file is opened or saved";
  EXPECT_EQ(datei.find("com1"), std::string::npos);
  EXPECT_EQ(Letzte_dateien_schreiben(), "");

  einstellungen = {};
  EXPECT_EQ(Einstellungen_lesen(), "");
  EXPECT_TRUE(einstellungen.Com_port == 8 && einstellungen.Com_art == 2 && einstellungen.Epson == -32768);
  EXPECT_EQ(einstellungen.Host_ip + ":" + std::to_string(einstellungen.Host_port), "haus.müller.ch:65535");
  EXPECT_EQ(einstellungen.Sowi_datum[19] + einstellungen.last_file[0], "/tmp/Haus");
  EXPECT_EQ(Portgeraet(2), "/dev/ttyUSB7");
  EXPECT_EQ(Portgeraet(-1) + Portgeraet(99), "");
}

TEST_F(EinstellungenTest, ValueThatIsNoNumberIsNamed) {
  for (const std::string wert : {"", "drei", "3.5", "0x1", "9", "0", "99999999999"}) {
    Datei_anlegen(Einstellungsdatei(), "[Startup]\ncomport=" + wert + "\nHostPort=502\n");
    EXPECT_EQ(Einstellungen_lesen(), "In der Einstellungsdatei " + Einstellungsdatei() +
                                         " steht bei \"comport\" keine gültige Zahl: \"" + wert +
                                         "\" (erlaubt: 1 bis 8).");
    EXPECT_EQ(einstellungen.Com_port, 1);
    EXPECT_EQ(einstellungen.Host_port, 502);
  }
}

TEST_F(EinstellungenTest, FileThatCannotBeReadOrWrittenIsNotLost) {
  const std::string datei = Einstellungsdatei();
  std::filesystem::create_directories(datei);  // a folder where the file should be
  EXPECT_NE(Einstellungen_lesen(), "");
  EXPECT_NE(Einstellungen_schreiben(), "");
  EXPECT_TRUE(std::filesystem::is_directory(datei));

  std::filesystem::remove(datei);
  const std::string sammlung = ordner / "sammlung.ini";  // a link into somebody's collection of settings
  Datei_anlegen(sammlung, "[Startup]\ncomport=2\nfremd=1\n");
  std::filesystem::create_symlink(sammlung, datei);
  EXPECT_EQ(Einstellungen_lesen(), "");
  einstellungen.Com_port = 5;
  EXPECT_EQ(Einstellungen_schreiben(), "");
  EXPECT_TRUE(Dateibytes(sammlung).starts_with("[Startup]\ncomport=5\nfremd=1\n"));
}

TEST(Csc, BytesGoThroughWholeAndTheEndIsSeen) {
  einstellungen = {};
  std::string viel;
  for (int i = 0; i < 16384; ++i) viel += Alle_bytes();  // 4 MiB: no send buffer takes that at once
  Gegenstelle g(Verbindung::tcp);
  g.antworte(viel, "gehört").verschwinde("x", Alle_bytes()).los();
  const int s = cscClient("127.000.000.001", einstellungen.Host_port);  // decimal, not octal
  ASSERT_GE(s, 0) << cscUrsache();
  EXPECT_EQ(cscReadSize(s), 0);
  EXPECT_EQ(cscAwaitData(s, 1), 0);
  EXPECT_EQ(cscPutData(s, viel.data(), static_cast<int>(viel.size())), static_cast<int>(viel.size()));
  EXPECT_EQ(cscAwaitData(s, 60000, 7), 7);
  std::array<char, 300> puffer{};
  EXPECT_EQ(cscGetData(s, puffer.data(), 4), 4);
  EXPECT_EQ(cscReadSize(s), 3);
  EXPECT_EQ(cscGetData(s, puffer.data(), 300), 3);
  EXPECT_EQ(cscPutData(s, "x", 1), 1);
  // The last bytes of a connection that has ended are still there, and only then the end.
  EXPECT_EQ(cscAwaitData(s, 60000, 256), 256);
  EXPECT_EQ(cscGetData(s, puffer.data(), 300), 256);
  EXPECT_EQ(std::string(puffer.data(), 256), Alle_bytes());
  EXPECT_LT(cscAwaitData(s, 60000), 0);
  // No signal ends the process. The first write may still be taken by the system.
  cscPutData(s, "x", 1);
  std::this_thread::sleep_for(std::chrono::milliseconds(50));
  EXPECT_LT(cscPutData(s, "x", 1), 0);
  cscClose(s);
  EXPECT_LT(cscReadSize(s), 0);
}

TEST(Csc, FailedConnectionNamesItsCause) {
  einstellungen = {};
  { const Gegenstelle weg(Verbindung::tcp); }
  EXPECT_EQ(cscClient("127.0.0.1", einstellungen.Host_port), -ECONNREFUSED);
  EXPECT_LT(cscClient("kein name", 4001), 0);
  EXPECT_EQ(cscUrsache(), "Der Name kein name kann nicht aufgelöst werden.");
  EXPECT_LT(cscClient("127.0.0.1", 70000), 0);
  EXPECT_EQ(cscUrsache(), "Der TCP-Port 70000 liegt nicht im Bereich von 0 bis 65535.");
  std::array<char, 20> puffer{};
  EXPECT_EQ(cscMakeDotted(0xC0A80AFF, puffer.data(), 20), 14);
  EXPECT_STREQ(puffer.data(), "192.168.10.255");
  EXPECT_EQ(cscMakeDotted4(1, 2, 3, 256, puffer.data(), 20), 0);
  EXPECT_EQ(cscMakeDotted4(192, 168, 10, 255, puffer.data(), 14), 0);
}

TEST(Csc, HostThatDoesNotAnswerLeavesTheFrontEndAliveAndEnds) {
  struct Rundenzaehler : Meldungsskript {
    void DoEvents() override { ++runden; }
    int runden = 0;
  } front;
  // A listener whose queue is full leaves further connections without an answer, as a switched-off host does.
  int port = 0;
  const int lauscher = Lauscher(port, "127.0.0.1", 0);
  Zeitraffer_setzen(20);
  int ergebnis = 0;
  for (int i = 0; i < 4 && ergebnis >= 0; ++i) ergebnis = cscClient("127.0.0.1", port);
  Zeitraffer_setzen(1);
  EXPECT_EQ(ergebnis, -ETIMEDOUT);
  EXPECT_GE(front.runden, 3);
  EXPECT_TRUE(cscUrsache().ends_with(" antwortet nicht."));
  cscRelease();
  close(lauscher);
}

TEST(Sio, PortIsRawAndBelongsToOneProgram) {
  einstellungen = {};
  Gegenstelle g(Verbindung::com);
  g.antworte("a", Alle_bytes() + "rest").antworte(Alle_bytes(), "neu").los();
  EXPECT_LT(SioBaud(-1, 5), 0);
  EXPECT_LT(SioParms(-1, 1, 0, 7), 0);
  ASSERT_EQ(SioReset(sio_direkt, 128, 1100), 0) << SioUrsache();
  EXPECT_EQ(SioReset(sio_direkt, 128, 1100), -EBUSY);
  EXPECT_TRUE(SioUrsache().starts_with("Das Gerät " + g.geraet() + " ist durch ein anderes Programm belegt"));

  EXPECT_EQ(SioGetc(sio_direkt), -EAGAIN);
  EXPECT_EQ(SioRxQue(sio_direkt), 0);
  EXPECT_EQ(SioPutc(sio_direkt, 'a'), 1);
  EXPECT_EQ(SioWarten(sio_direkt, 260, 60000), 260);
  for (int i = 0; i < 256; ++i) ASSERT_EQ(SioGetc(sio_direkt), i);
  EXPECT_EQ(SioRxQue(sio_direkt), 4);
  EXPECT_EQ(SioRxClear(sio_direkt), 0);
  EXPECT_EQ(SioPuts(sio_direkt, Alle_bytes().data(), 256), 256);
  EXPECT_EQ(SioWarten(sio_direkt, 3, 60000), 3);
  EXPECT_EQ(SioGetc(sio_direkt), 'n');

  // What was left unread is not there after the next opening.
  EXPECT_EQ(SioDone(sio_direkt), 0);
  EXPECT_LT(SioDone(sio_direkt), 0);
  EXPECT_LT(SioRxQue(sio_direkt), 0);
  ASSERT_EQ(SioReset(sio_direkt, 128, 1100), 0) << SioUrsache();
  EXPECT_EQ(SioRxQue(sio_direkt), 0);
  SioDTR(sio_direkt, 'S');  // a pseudo-terminal has no modem lines; a port without them must not suffer
  SioRTS(sio_direkt, 'C');
  EXPECT_EQ(SioDone(sio_direkt), 0);
  EXPECT_LT(SioPutc(4711, 'a'), 0);
}

TEST(Sio, WaitingSleepsInTheKernel) {
  einstellungen = {};
  Gegenstelle g(Verbindung::com);
  ASSERT_EQ(SioReset(sio_direkt, 128, 1100), 0);
  const std::clock_t vorher = std::clock();  // of the processor, not of the wall
  EXPECT_EQ(SioWarten(sio_direkt, 1, 400), 0);
  EXPECT_LT(std::clock() - vorher, CLOCKS_PER_SEC / 25);
  SioDone(sio_direkt);
}

TEST(Ports, ANumberStandsForTheNthDeviceOrForTheOneTheUserNamed) {
  einstellungen = {};
  const Testordner ordner;
  const std::filesystem::path& dev = ordner.pfad();
  for (const char* name : {"ttyUSB10", "ttyUSB2", "ttyACM0", "ttyS0", "tty1", "ttyUSBx"})
    Datei_anlegen(dev / name, "");
  std::filesystem::create_symlink(dev / "ttyACM0", dev / "usb-Adapter");
  Geraeteordner_setzen(dev);

  std::string liste;
  for (const Serielles_geraet& g : Comports())
    liste += g.datei.empty() ? "-" : g.datei.substr(g.datei.rfind('/') + 1) + " ";
  EXPECT_EQ(liste, "ttyUSB2 ttyUSB10 ttyACM0 ttyS0 ----");
  EXPECT_EQ(Portgeraet(1), dev / "ttyUSB10");
  EXPECT_EQ(Bezeichnung(Comports()[3]), "eingebaute Schnittstelle");
  EXPECT_EQ(Bezeichnung({.datei = "/dev/ttyUSB0", .beschreibung = "FTDI FT232R"}), "FTDI FT232R");
  einstellungen.Ports[0] = dev / "usb-Adapter";
  EXPECT_EQ(Portnummer(dev / "ttyACM0"), 0) << "the link names the same device";
  EXPECT_EQ(Portnummer(dev / "ttyUSB2"), -1) << "its number is taken";
  EXPECT_EQ(Portnummer(""), -1);

  const Geraetewache wache;
  EXPECT_FALSE(wache.Warten(0));
  Datei_anlegen(dev / "ttyUSB3", "");
  EXPECT_TRUE(wache.Warten(5000));
  EXPECT_FALSE(wache.Warten(0)) << "told once";
  Geraeteordner_setzen("/dev");
}

}  // namespace
}  // namespace zav
