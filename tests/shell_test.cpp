// The program around the editors, as a person uses it: start, files, options, sending, end.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <memory>

#include "basis/text.h"
#include "editor/einmask.h"
#include "editor/einmask8.h"
#include "enocean/enocean_send.h"
#include "hilfen.h"
#include "platform/datei.h"
#include "platform/ports.h"
#include "projektvergleich.h"
#include "pruefstand.h"
#include "service/infofenster.h"
#include "service/init_flash.h"
#include "shell/bericht.h"
#include "shell/datei.h"
#include "shell/eingabehilfe.h"
#include "shell/fotos.h"
#include "shell/gruss.h"
#include "shell/haupt.h"
#include "shell/setup.h"
#include "shell/sitzungslauf.h"
#include "shell/storentimer.h"
#include "store/funktionen.h"
#include "store/projektdatei.h"
#include "testmaster.h"
#include "time/uhrseite.h"
#include "transfer/vorschau.h"

namespace zav {
namespace {

class Shell : public Pruefstand {
 protected:
  Shell() { projekt.Projekt_name = "Namenlos"; }
  // A project of that generation in a file; its path without extension.
  std::string Anlegen(const std::string& name, const std::string& version = "910",
                      const std::string& notiz = "") {
    Projekt p;
    p.Datei_version = version;
    p.Projekt_kennung = "0123456789ABCDEF";
    p.Notizen = notiz;
    Datei_anlegen(ordner / (name + ".zav"), Projekt_schreiben(p));
    return ordner / name;
  }
  std::optional<Projekt> Gelesen(const std::string& name) {
    Projekt p;
    return Projekt_lesen(Dateibytes(ordner / (name + ".zav")), p) ? std::optional(p) : std::nullopt;
  }
  // Opens the file dialog from the main menu and plays in it.
  void Dateimenue(const std::function<void(Datei&)>& spiel) {
    d.erwarte_dialog<Datei>(spiel);
    haupt().Dateien.druecken();
  }
  // A command of the file dialog that asks for a file; nothing = cancelled.
  void Dateibefehl(Taste Datei::*taste, std::optional<Dateiwahl> wahl) {
    Dateimenue([&](Datei& f) {
      d.erwarte_datei(wahl);
      (f.*taste).druecken();
    });
  }
  Haupt& haupt() {
    if (!haupt_) haupt_ = std::make_unique<Haupt>();
    return *haupt_;
  }
  void Ungespeichert_frage(Antwort a) {
    d.erwarte({"Es existieren möglicherweise ungespeicherte Projektdaten!\r\n\r\nMöchten Sie das aktuelle "
               "Projekt noch speichern?\r\n\r\n",
               "Noch speichern?", Knoepfe::Ja_Nein_Abbrechen, Symbol::Warnung},
              a);
  }

  Testordner ordner;
  std::unique_ptr<Haupt> haupt_;
};

// ---- session ----------------------------------------------------------------------------------------------

TEST_F(Shell, FirstStartHasNothingToOfferAndTheSecondWhatWasSaved) {
  d.erwarte_dialog<Gruss>([](Gruss& g) {
    EXPECT_EQ(g.titel(), "Willkommen bei TESSARO");
    for (const Taste& t : g.Command1) EXPECT_TRUE(!t.frei && t.titel == "---");
    EXPECT_FALSE(g.Text1.sichtbar);
    g.Command4.druecken();
    EXPECT_TRUE(g.Text1.sichtbar);
    g.Command3.druecken();
    EXPECT_FALSE(g.Text1.sichtbar);
    g.OK.druecken();
  });
  EXPECT_TRUE(Sitzung_beginnen());
  EXPECT_EQ(leitung.Antwort_zeit, 2);
  EXPECT_EQ(haupt().titel(), "ZAVlink Hauptmenu  -  Namenlos.zav");
  EXPECT_EQ(haupt().Notizen.hinweis, "Feld für Notizen zu dieser Datei (maximal 900 Zeichen)");
  haupt().Notizen.eingeben(std::string(1200, 'x'));
  EXPECT_EQ(projekt.Notizen, std::string(999, 'x'));
  Dateibefehl(&Datei::Command1, Dateiwahl{.pfad = ordner / "Haus & Hof.zav"});
  EXPECT_EQ(haupt().titel(), "ZAVlink Hauptmenu  -  " + (ordner / "Haus & Hof") + ".zav");
  einstellungen.Com_art = 2;
  haupt().schliessen_wuenschen();
  EXPECT_FALSE(haupt().offen());

  d.erwarte_dialog<Gruss>([](Gruss& g) {
    EXPECT_EQ(g.Command1[0].titel, "Haus && Hof");
    EXPECT_FALSE(g.Command1[1].frei);
    g.Command1[0].druecken();
  });
  EXPECT_TRUE(Sitzung_beginnen());
  EXPECT_EQ(leitung.Antwort_zeit, 15);
  EXPECT_EQ(projekt.Notizen.size(), 999U);
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);

  std::filesystem::remove(ordner / "Haus & Hof.zav");
  d.erwarte_dialog<Gruss>([](Gruss& g) { g.schliessen_wuenschen(); });
  EXPECT_FALSE(Sitzung_beginnen());
}

TEST_F(Shell, EndOfProgramAsksTwiceAboutUnsavedData) {
  const Meldung erste{
      "Es existieren ungespeicherte Projektdaten! Speichern?\r\n\r\nMit 'Ja' gelangen Sie zurück ins "
      "Hauptmenu und können die Datei wie gewohnt speichern.\r\n\r\n",
      "ZAV-Datei", Knoepfe::Ja_Nein_Abbrechen, Symbol::Warnung};
  const Meldung zweite{
      "Wirklich nicht speichern? Mit 'Ja' gelangen Sie zurück ins Hauptmenu und können die Datei wie gewohnt "
      "speichern.",
      "", Knoepfe::Ja_Nein, Symbol::Stopp};
  haupt().Notizen.eingeben("neu");
  for (const Antwort a : {Antwort::Ja, Antwort::Abbrechen}) {
    d.erwarte(erste, a);
    haupt().Closen.druecken();
    EXPECT_TRUE(haupt().offen());
  }
  d.erwarte(erste, Antwort::Nein);
  d.erwarte(zweite, Antwort::Ja);
  haupt().Closen.druecken();
  EXPECT_TRUE(haupt().offen());
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
  d.erwarte(erste, Antwort::Nein);
  d.erwarte(zweite, Antwort::Nein);
  einstellungen.Host_name = "haus.example";
  einstellungen.Host_ip = "10.0.0.5";
  haupt().schliessen_wuenschen();
  EXPECT_FALSE(haupt().offen());
  EXPECT_EQ(sitzung.Abbruch, 1);
  Einstellungen_lesen();
  EXPECT_EQ(einstellungen.Host_ip, "haus.example");
}

// ---- files ------------------------------------------------------------------------------------------------

TEST_F(Shell, OpenKeepsTheProjectOnCancelAndShowsTheWriteProtection) {
  einstellungen.Standard_ordner = ordner.pfad();
  const std::string a = Anlegen("a", "910", "aus a");
  Dateibefehl(&Datei::Command2, Dateiwahl{.pfad = a + ".zav", .schreibgeschuetzt = true});
  EXPECT_TRUE(d.dateifragen()[0].schreibschutz_waehlbar);
  EXPECT_EQ(d.dateifragen()[0].ordner, ordner.pfad());
  EXPECT_EQ(d.dateifragen()[0].filter,
            (std::vector<Dateifilter>{{"ZAVnet (*.zav)", "*.zav"}, {"Alles (*.*)", "*.*"}}));
  EXPECT_EQ(haupt().titel(), "ZAVlink Hauptmenu  -  " + a + ".zav (Schreibgeschützt)");
  EXPECT_EQ(haupt().Notizen.text(), "aus a");

  haupt().Notizen.eingeben("geändert");
  Dateimenue([&](Datei& f) {
    d.erwarte({.text = "Diese Datei ist schreibgeschützt. Bitte speichern Sie sie unter anderem Namen mit "
                       "'Projekt speichern unter...'."});
    f.Command3.druecken();
    EXPECT_TRUE(f.offen());
    // The question comes back as long as the save is cancelled; cancelling it ends the command.
    Ungespeichert_frage(Antwort::Ja);
    d.erwarte_datei(std::nullopt);
    Ungespeichert_frage(Antwort::Abbrechen);
    f.Command2.druecken();
  });
  EXPECT_EQ(haupt().Notizen.text(), "geändert");
  Dateimenue([&](Datei& f) {
    Ungespeichert_frage(Antwort::Nein);
    d.erwarte_datei(std::nullopt);
    f.Command2.druecken();
  });
  EXPECT_EQ(projekt.Projekt_name, a);
  Dateibefehl(&Datei::Command1, Dateiwahl{.pfad = ordner / "b.zav"});
  EXPECT_EQ(sitzung.Schreibschutz, 0);
  EXPECT_EQ(Gelesen("b")->Notizen, "geändert");
  EXPECT_EQ(Gelesen("a")->Notizen, "aus a");
}

TEST_F(Shell, SaveAsChoosesTheGenerationAndSaveAsksForAMissingName) {
  Dateimenue([&](Datei& f) {
    d.erwarte_text(
        "Der Speicherort ist unvollständig. Speichern Sie diese Datei bitte mit 'Projekt speichern "
        "unter...'.");
    d.erwarte_datei(Dateiwahl{.pfad = ordner / "c.zav", .filter_nr = 2});
    f.Command3.druecken();
  });
  EXPECT_EQ(Gelesen("c")->Datei_version, "800");
  Dateimenue([&](Datei& f) {
    EXPECT_EQ(f.Label1.titel, "Generation 800");
    d.erwarte_text(
        "Wenn Sie die neuen Funktionen von ZAVlink-Version 9.102 nutzen möchten, wählen Sie 'Speichern "
        "unter' und den Dateityp 910. Achtung: Das Betriebssystem des ZAVmasters muss auf die Version 9 "
        "aufgerüstet werden.");
    f.Command4.druecken();
    EXPECT_TRUE(f.offen());
    d.erwarte_datei(std::nullopt);
    f.Command1.druecken();
  });
  const Dateifrage& frage = d.dateifragen().back();
  EXPECT_EQ(frage.filter_nr, 2);
  EXPECT_EQ(frage.vorschlag, ordner / "c");
  EXPECT_TRUE(frage.ueberschreiben_fragen);
  EXPECT_EQ(frage.endung, ".zav");
  EXPECT_EQ(frage.filter, (std::vector<Dateifilter>{{"ZAVnet 910 (*.zav)", "*.zav"},
                                                    {"ZAVnet 90x (*.zav)", "*.zav"},
                                                    {"ZAVnet 8xx (*.zav)", "*.zav"}}));
  // A name with a dot of its own is not cut.
  Dateibefehl(&Datei::Command1, Dateiwahl{.pfad = ordner / "haus.v2", .filter_nr = 1});
  EXPECT_EQ(Gelesen("haus.v2")->Datei_version, "900");
}

TEST_F(Shell, ASaveThatFailsLosesNothingAndSaysSo) {
  projekt.Projekt_name = ordner / "weg/haus";
  haupt().Notizen.eingeben("Arbeit eines Tages");
  Dateimenue([&](Datei& f) {
    d.erwarte_text(Systemfehler_text(ENOENT) +
                   ". Die Datei mit diesem Namen ist möglicherweise schreibgeschützt. Speichern Sie sie mit "
                   "'Projekt speichern unter...' mit einem anderen Namen oder in einen anderen Ordner.");
    f.Command3.druecken();
  });
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
  EXPECT_EQ(projekt.Notizen, "Arbeit eines Tages");
}

TEST_F(Shell, AFullDiskLeavesTheOldFileAndSaysSo) {
  projekt.Projekt_name = Anlegen("haus");
  const std::string vorher = Dateibytes(ordner / "haus.zav");
  haupt().Notizen.eingeben("Arbeit eines Tages");
  signal(SIGXFSZ, SIG_IGN);
  rlimit grenze{};
  getrlimit(RLIMIT_FSIZE, &grenze);
  const rlimit voll{100, grenze.rlim_max};
  setrlimit(RLIMIT_FSIZE, &voll);
  const std::string grund = " konnte nicht geschrieben werden: " + Systemfehler_text(EFBIG) + ".";
  Dateimenue([&](Datei& f) {
    d.erwarte_text(projekt.Projekt_name + ".zav" + grund + " Die Datei auf der Platte ist unverändert.");
    f.Command3.druecken();
  });
  Dateimenue([&](Datei& f) {
    d.erwarte_datei(Dateiwahl{.pfad = ordner / "e.txt"});
    d.erwarte_text(ordner / "e.txt" + grund);
    f.Drucken.druecken();
  });
  setrlimit(RLIMIT_FSIZE, &grenze);
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
  EXPECT_EQ(Dateibytes(ordner / "haus.zav"), vorher);
  EXPECT_FALSE(std::filesystem::exists(ordner / "e.txt"));
}

TEST_F(Shell, NewProjectAsksForItsFileAtOnce) {
  projekt.Projekt_name = Anlegen("alt");
  projekt.Datei_version = "800";
  projekt.Notizen = "alt";
  const Meldung frage{"Neues Projekt erstellen (Setzt alle Eingaben und Daten auf Standardwerte zurück)?",
                      "Info", Knoepfe::Ja_Nein, Symbol::Information, 2};
  Dateimenue([&](Datei& f) {
    d.erwarte(frage, Antwort::Nein);
    f.New.druecken();
  });
  EXPECT_EQ(projekt.Notizen, "alt");
  EXPECT_EQ(projekt.Datei_version, "910") << "set before any question";
  Dateimenue([&](Datei& f) {
    d.erwarte(frage, Antwort::Ja);
    d.erwarte_datei(std::nullopt);
    f.New.druecken();
  });
  EXPECT_EQ(projekt.Projekt_name, "Namenlos");
  EXPECT_EQ(projekt.Notizen, "");
  EXPECT_EQ(sitzung.Projekt_geaendert, 0);
}

TEST_F(Shell, LastFilesOpenFromTheMainWindow) {
  einstellungen.last_file[0] = Anlegen("eins", "910", "eins");
  einstellungen.last_file[1] = Anlegen("zwei", "910", "zwei");
  EXPECT_EQ(haupt().Zuletzt[1].titel, "zwei");
  EXPECT_FALSE(haupt().Zuletzt[2].sichtbar);
  haupt().Zuletzt[1].druecken();
  EXPECT_EQ(haupt().Notizen.text(), "zwei");
  EXPECT_FALSE(haupt().Zuletzt[0].sichtbar) << "the open one";
  haupt().Notizen.eingeben("x");
  Ungespeichert_frage(Antwort::Abbrechen);
  haupt().Zuletzt[1].druecken();
  EXPECT_EQ(haupt().Notizen.text(), "x");
}

TEST_F(Shell, ExportIsTheProjectAsJsonAndPrintTheReport) {
  projekt.Notizen = "Zeile 1\r\nTab\t\"hier\"";
  projekt.Ein_relais(48, 29) = relais_ein;
  d.tasten({.strg = true, .alt = true});
  Dateibefehl(&Datei::Command1, Dateiwahl{.pfad = ordner / "e.iav"});
  const std::string json = Dateibytes(ordner / "e.iav");
  EXPECT_EQ(projekt.Projekt_name, ordner / "e");
  EXPECT_NE(json.find("\"Notizen\": \"Zeile 1\\r\\nTab\\t\\\"hier\\\"\""), std::string::npos);
  EXPECT_NE(json.find("\"Ein_relais\": {\"48\":{\"29\":2}}"), std::string::npos);

  d.tasten({});
  Dateibefehl(&Datei::Drucken, Dateiwahl{.pfad = ordner / "e.txt"});
  EXPECT_EQ(Dateibytes(ordner / "e.txt"), Bericht());
  EXPECT_NE(Bericht().find("\r\nTab \"hier\"\r\n"), std::string::npos) << "a tab would tear the row";
}

// ---- options and small dialogs ----------------------------------------------------------------------------

TEST_F(Shell, OptionsCheckTheNetworkAndCancelTakesAllBack) {
  einstellungen.Ports[2] = ordner / "kein-geraet";
  zav::Setup f;
  EXPECT_FALSE(f.Frame3.frei);
  EXPECT_FALSE(f.CBCOM[2].frei);
  f.Option1.waehlen(1);
  EXPECT_EQ(leitung.Eth_modus, 1);
  EXPECT_TRUE(f.Frame3.frei && !f.Frame2.frei);
  f.Text2.eingeben("192.168.1.300");
  d.erwarte_text("Zahl zu gross");
  f.OK.druecken();
  EXPECT_TRUE(f.offen());
  EXPECT_TRUE(f.Text2.farbe == Farbe::belegt && f.Text3.farbe == Farbe::normal);
  f.Text2.eingeben("192.168.001.020");
  EXPECT_EQ(f.Text2.farbe, Farbe::normal);
  f.Text3.eingeben("70000");
  d.erwarte_text("TCP Port muss im Bereich von 0...65535 sein");
  f.Command3.druecken();
  EXPECT_EQ(f.Text3.farbe, Farbe::belegt);
  f.Text3.eingeben("4002");
  f.Command3.druecken();
  EXPECT_EQ(f.Label1.titel, "IP Adresse = 192.168.1.20");
  EXPECT_EQ(f.Text2.farbe, Farbe::frei);
  d.erwarte_dialog<Infofenster>([](Infofenster& i) {
    EXPECT_EQ(i.Text1.text(), "ZAVlink-Version 9.102");
    EXPECT_EQ(i.Text3.text(), "Ethernet 192.168.001.020:4002");
    i.schliessen_wuenschen();
  });
  f.Command1.druecken();
  EXPECT_EQ(leitung.Antwort_zeit, 10);
  f.Command4.druecken();
  EXPECT_EQ(einstellungen.Com_art, 0);
  EXPECT_EQ(einstellungen.Host_name, "192.168.000.000");
  EXPECT_EQ(leitung.Antwort_zeit, 2);
  EXPECT_EQ(leitung.Eth_modus, 0);

  leitung.Com_frei[4] = 1;
  zav::Setup g;
  g.CBCOM[4].haken(true);
  EXPECT_FALSE(g.CBCOM[0].an());
  g.CBCOM[4].haken(false);
  EXPECT_TRUE(g.CBCOM[4].an()) << "one is always chosen";
  g.Text2.eingeben("kein netz, keine Prüfung");
  g.OK.druecken();
  EXPECT_FALSE(g.offen());
  EXPECT_EQ(einstellungen.Com_port, 5);
}

TEST_F(Shell, PortFinderNamesTheAdapterThatComes) {
  const std::string dev = ordner / "dev";
  std::filesystem::create_directory(dev);
  Geraeteordner_setzen(dev);
  Datei_anlegen(dev + "/ttyS0", "");
  const int adapter = posix_openpt(O_RDWR | O_NOCTTY);
  ASSERT_TRUE(adapter >= 0 && grantpt(adapter) == 0 && unlockpt(adapter) == 0);
  const std::string aus = "Stecken Sie den Adapter aus und drücken Sie dann OK.";
  const std::string ein = "Stecken Sie den Adapter jetzt ein und drücken Sie dann OK.";
  Zeitraffer_setzen(40);

  zav::Setup f;
  EXPECT_EQ(f.Label2.titel, "Com 1: eingebaute Schnittstelle (" + dev + "/ttyS0)");
  d.erwarte_text(aus, Antwort::Abbrechen);
  f.Command2.druecken();
  d.erwarte_text(aus);
  d.erwarte_text(ein);
  d.erwarte_text(
      "Es ist kein Adapter dazugekommen. Prüfen Sie Stecker und Kabel, nehmen Sie einen anderen "
      "USB-Anschluss und versuchen "
      "Sie es noch einmal.");
  f.Command2.druecken();
  EXPECT_TRUE(f.CBCOM[0].an());

  // It comes a moment after OK, and counts before the port that is built in.
  d.bei_doevents = [&] {
    std::error_code schon_da;
    std::filesystem::create_symlink(ptsname(adapter), dev + "/ttyUSB4", schon_da);
  };
  Zeitraffer_setzen(1);
  d.erwarte_text(aus);
  d.erwarte_text(ein);
  d.erwarte_text("Ihr Adapter ist\r\n\r\nCom 1: USB-Adapter (" + dev +
                 "/ttyUSB4)\r\n\r\nDer Port ist jetzt gewählt.");
  f.Command2.druecken();
  EXPECT_TRUE(f.CBCOM[0].an() && f.CBCOM[0].frei && !f.CBCOM[1].frei);
  EXPECT_NE(f.CBCOM[1].hinweis->find("ist keine serielle Schnittstelle."), std::string::npos)
      << f.CBCOM[1].hinweis;
  f.Command4.druecken();
  EXPECT_EQ(einstellungen.Com_port, 1);
  d.bei_doevents = nullptr;
  Geraeteordner_setzen("/dev");
  close(adapter);
}

TEST_F(Shell, SmallDialogsCommitOnOkOnly) {
  Projekt vorher = projekt;
  Storentimer s;
  s.Text1[0].eingeben("656");
  d.erwarte_text("Laufzeit: bitte eine ganze Zahl eingeben, Sekunden (1 bis 655).");
  s.OK.druecken();
  EXPECT_TRUE(s.offen());
  s.Text1[0].eingeben("655");
  s.Text1[4].eingeben("12");
  s.OK.druecken();
  EXPECT_EQ(Geaendert(vorher), "Store_p1=655 Store_p5=12");
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);

  projekt.Dimmer_text[5] = "Salon";
  vorher = projekt;
  Eingabehilfe e;
  e.Option1.waehlen(1);
  e.Combo1.waehlen("D1-0");
  e.Combo2.waehlen("D1-3");
  e.Text1.eingeben("Spot # Süd");
  e.Text2.eingeben("7");
  EXPECT_EQ(e.Label2.titel, "3 von 4 Texten werden geändert");
  e.OK.druecken();
  EXPECT_EQ(Geaendert(vorher),
            "Dimmer_text(4)=Spot 7 Süd Dimmer_text(6)=Spot 9 Süd Dimmer_text(7)=Spot 10 Süd");

  Fotos f;
  EXPECT_FALSE(f.Command1.frei);
  while (f.Command2.frei) f.Command2.druecken();
  EXPECT_EQ(sitzung.Foto_nr, f.List1.anzahl());
}

TEST_F(Shell, ModifierKeysChooseTheInputEditorAndPortsAreSoughtWhereNeeded) {
  for (str& p : einstellungen.Ports.alle()) p = ordner / "kein-geraet";
  d.erwarte_dialog<Einmask8>([](Einmask8& f) { f.schliessen_wuenschen(); });
  haupt().Eingaenge.druecken();
  d.tasten({.strg = true, .alt = true});
  d.erwarte_dialog<Einmask>([](Einmask& f) { f.schliessen_wuenschen(); });
  haupt().Eingaenge.druecken();
  EXPECT_EQ(leitung.Com_gesucht, 0);
  d.erwarte_dialog<Uhrseite>([](Uhrseite& f) { f.schliessen_wuenschen(); });
  haupt().Command5.druecken();
  EXPECT_EQ(leitung.Com_gesucht, 1);
  leitung.Com_frei[3] = 1;  // the options look anew
  d.erwarte_dialog<zav::Setup>([](zav::Setup& f) {
    EXPECT_FALSE(f.CBCOM[3].frei);
    f.schliessen_wuenschen();
  });
  haupt().System_Optionen.druecken();
}

// ---- at the master ----------------------------------------------------------------------------------------

class Shell_am_master : public Shell {
 protected:
  Shell_am_master() {
    sim.verbinden();
    Zeitraffer_setzen(40);
    projekt.Projekt_name = Anlegen("haus");
    projekt.Ein_relais(5, 29) = relais_ein;
    projekt.Ein_leer[5] = projekt.Ein_funktext[5] = 1;
  }
  void Initialisieren(Init_flash& f) {
    d.erwarte_text("Der ZAVmaster enthält anschliessend keine Daten mehr! Möchten Sie fortfahren?",
                   Antwort::Ja);
    d.erwarte_text("Senden ist jetzt möglich");
    f.Command1.druecken();
  }
  const std::string neustartfrage =
      "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer aktualisiert werden "
      "sollen. 'Nein', wenn nur Ausgangsverknüpfungen geändert wurden.";
  Testmaster sim;
};

TEST_F(Shell_am_master, TransferDialogErasesSendsAsksAndProgramsReceivers) {
  const Sendevorschau vorher = Sendevorschau_von(projekt);
  EXPECT_EQ(vorher.ereignisse, 1);
  EXPECT_EQ(vorher.led_gruppen, 256);
  EXPECT_GT(vorher.sekunden, 2 + 256 * 2 * 0.01);
  d.erwarte_dialog<Init_flash>([&](Init_flash& f) {
    f.Check1.haken(true);
    EXPECT_EQ(einstellungen.Event_sperre, 1);
    Initialisieren(f);
    EXPECT_EQ(f.Text2.text(), "REV 09.04 ");
    EXPECT_EQ(f.ProgressBar1.wert, 100.0);
    d.erwarte_text(neustartfrage, Antwort::Nein);
    f.Command3.druecken();
    EXPECT_NE(f.Text1.text().find("Eingangsereignisse Switch: 1\r\n"), std::string::npos) << f.Text1.text();
    EXPECT_EQ(f.Text3.text(), "0");
    projekt.Enocean_empf_da[3] = projekt.Enocean_empf_geaendert[3] = projekt.Enocean_empf_geaendert[4] = 1;
    d.erwarte_text(neustartfrage, Antwort::Nein);
    d.erwarte_dialog<Enocean_Send>([](Enocean_Send& s) { s.schliessen_wuenschen(); });
    f.Command3.druecken();
    f.Command5.druecken();
    EXPECT_EQ(f.Text2.text(), "REV 09.04");
    EXPECT_EQ(f.Text6.text(), "haus");
    f.schliessen_wuenschen();
  });
  haupt().Command1.druecken();
  EXPECT_EQ(haupt().Label_master.titel, "ZAVmaster REV 09.04 ");
  EXPECT_EQ(Sendevorschau_von(projekt).ereignisse, 0);
  EXPECT_EQ(sim.anzahl("LD"), 4U);
}

TEST_F(Shell_am_master, RunningTransferCanBeStoppedAnEraseCannot) {
  Init_flash f;
  d.bei_doevents = [&] {
    if (f.Command1.frei) return;
    EXPECT_FALSE(f.Command2.frei);
    f.schliessen_wuenschen();
  };
  Initialisieren(f);
  EXPECT_TRUE(f.offen());
  d.bei_doevents = [&] {
    f.schliessen_wuenschen();  // a stray Escape
    EXPECT_TRUE(f.offen());
    if (f.Command2.frei && f.ProgressBar1.wert > 0.0) f.Command2.druecken();
  };
  const Meldung abbruch{
      "F97: Sie haben die Übertragung zum ZAVmaster abgebrochen. Die Daten im ZAVmaster sind jetzt ungültig "
      "und es kann zu undefinierten Schaltzuständen kommen.\r\n\r\nDrücken Sie anschliessend die "
      "Schaltfläche 'Neustart ZAVmaster' oder unterbrechen Sie für einige Sekunden die Stromzufuhr von "
      "ZAVnet. Senden Sie raschmöglichst eine korrekte Datei zum ZAVmaster, damit die gewünschte Funktion "
      "gewährleistet ist.\r\n\r\n",
      "Abbruch der Übermittlung", Knoepfe::OK, Symbol::Stopp};
  d.erwarte(abbruch);
  f.Command3.druecken();
  d.bei_doevents = nullptr;
  EXPECT_TRUE(f.Command3.frei && f.Cancel.frei && !f.Command2.frei);
  d.erwarte_text("Im ZAVmaster einen Neustart durchführen?", Antwort::Ja);
  d.erwarte_text("F99: Neustart im ZAVmaster war erfolgreich");
  f.Command6.druecken();
  EXPECT_EQ(sim.neustarts(), 1);
}

TEST_F(Shell_am_master, TerminalTakesTheMainWindowAndEndsWithTheProgram) {
  int stand = 0;
  d.bei_doevents = [&] {
    Haupt& h = haupt();
    if (!h.Frame_glaszav.sichtbar || h.Terminal_Fenster.text().find("F00") == std::string::npos) return;
    switch (stand++) {
      case 0:
        EXPECT_FALSE(h.protokoll.frei);
        EXPECT_FALSE(h.Frame_befehle.sichtbar);
        h.Command9.druecken();
        EXPECT_EQ(h.Terminal_Fenster.text(), "Anzeige gelöscht...\r\n");
        h.Terminal_Fenster.anhaengen("F00");
        h.Filter[1].eingeben("K001");
        for (const int adresse : {0, 1}) sim.ereignis({.adresse = adresse, .taste = 2});
        break;
      default:
        if (h.Terminal_Fenster.text().ends_with("K001 T2 ---\r\n")) h.schliessen_wuenschen();
    }
  };
  haupt().protokoll.druecken();
  EXPECT_FALSE(haupt().offen());
  EXPECT_EQ(haupt().Terminal_Fenster.text(), "Anzeige gelöscht...\r\nF00K001 T2 ---\r\n");
  EXPECT_TRUE(haupt().Frame_befehle.sichtbar && haupt().protokoll.frei);
}

}  // namespace
}  // namespace zav
