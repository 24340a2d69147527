// Stories through the real widgets of the window program, as a person clicks and types, against a simulated
// master.
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QScrollBar>

#include "fenster_hilfen.h"
#include "fenster_schritte.h"
#include "shell/haupt.h"
#include "shell/sitzungslauf.h"
#include "simulator/simulator.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "time/schaltregel.h"
#include "zavlink/musterhaus.h"
#include "zavlink/qt_oberflaeche.h"

namespace zav::fenster {
namespace {

class Geschichte : public Fenster {
 protected:
  void SetUp() override {
    Fenster::SetUp();
    Oberflaeche_setzen(&oberflaeche);
    master.start();
    master.speicher_setzen(kennung_adresse, Kennung_bytes());  // it knows this project already
  }
  // The program from its start to its end.
  void spielen() {
    ASSERT_TRUE(Sitzung_beginnen(haus()));
    Verbinden(master);
    Haupt haupt;
    oberflaeche.Zeigen(haupt);
    EXPECT_TRUE(schritte.fertig());
  }
  void schritt(const QString& form, std::string was, Schritte::Tat tat, Schritte::Bereit bereit = nullptr) {
    schritte.in_fenster(form, std::move(was), std::move(tat), std::move(bereit));
  }

  simulator::Simulator master;
  Qt_oberflaeche oberflaeche;
  Schritte schritte;
};

// Output 3 in a function editor, by the keyboard.
void Ausgang_einschalten(Formfenster& f) {
  QTest::keyClick(&Teil(f, "Check1(3)"), Qt::Key_Space);
  Waehlen(f, "Combo1(3)", "Ein");
  Klick(f, "Command5");
}

constexpr int platz = 4, adresse = 200, schaltzeile = 15;

TEST_F(Geschichte, EinTagMitDemBeispielhaus) {
  const int ereignis = 4 * adresse + 2;
  const auto protokoll = [](Formfenster& f) {
    return static_cast<Haupt&>(f.formular()).Terminal_Fenster.text();
  };

  schritt("Haupt", "open the installation", [](Formfenster& f) {
    EXPECT_TRUE(f.windowTitle().contains("haus.zav"));
    Klick(f, "Eingaenge");
  });

  schritt("Einmask8", "clear a place by keyboard", [](Formfenster& f) {
    QWidget& rahmen = *Widget_von(f, *f.formular().element("Image3(0)"));
    rahmen.setFocus();
    for (const auto taste : {Qt::Key_Down, Qt::Key_Down, Qt::Key_Up}) QTest::keyClick(&rahmen, taste);
    QTest::keyClick(&rahmen, Qt::Key_C, Qt::ControlModifier);
    f.nachholen();
    EXPECT_TRUE(f.formular().element("Command4")->frei) << "copied";
    QTest::keyClick(&rahmen, Qt::Key_Delete);
  });
  schritte.antworten("Der Apparat wird endgültig gelöscht. Wollen Sie das?", "Ja");
  schritt("Einmask8", "place another device", [](Formfenster& f) { Menuebefehl(f, "mnuChoose"); });
  schritt("Apparatwahl_Feller", "choose the device", [](Formfenster& f) {
    QWidget& bilder = Teil(f, "Bilder");
    bilder.setFocus();
    QTest::keyClick(&bilder, Qt::Key_Right);
    QTest::keyClick(&bilder, Qt::Key_Return);
  });
  schritt("Einmask8", "ask for its address", [](Formfenster& f) { Klick(f, "Command2"); });
  schritt("Dialog_Kombination", "choose cell 200 on the map", [](Formfenster& f) {
    QWidget& karte = Teil(f, "Zellen");
    const QPointF zelle((adresse % 16 + 0.5) * karte.width() / 16,
                        (adresse / 16 + 0.5) * karte.height() / 16);
    QTest::mouseClick(&karte, Qt::LeftButton, {}, zelle.toPoint());
  });
  schritt("Einmask8", "name its key and open the functions", [](Formfenster& f) {
    Tippen(f, "TTxt(2)", "Gartenlicht");
    Klick(f, "Command15(2)");
  });
  schritt("Actmask", "switch an output on", [](Formfenster& f) { Ausgang_einschalten(f); });
  schritt("Einmask8", "try the key on the living system, close", [](Formfenster& f) {
    Rechtsbefehl(f, "Command15(2)", "Command15", "mnuShort");
    QTest::keyClick(&f, Qt::Key_Escape);
  });

  schritt("Haupt", "open the clocks", [&](Formfenster& f) {
    EXPECT_EQ(projekt.App_text[platz], std::to_string(adresse));
    EXPECT_EQ(projekt.Dev_text[Apparat_textslot(projekt, platz, 2)], "Gartenlicht");
    EXPECT_EQ(projekt.Ein_relais(ereignis, 3), relais_ein);
    EXPECT_EQ(master.ereignisse(),
              (std::vector<simulator::Ereignis>{{adresse, 3, simulator::Tastenaktion::kurz}}));
    Klick(f, "Uhr_button");
  });
  schritt("Uhr", "name a switching time and open its rule", [](Formfenster& f) {
    Tippen(f, "Schaltzweck_txt(15)", "Gartenlicht");
    Klick(f, "Zeitsetz(15)");
  });
  schritt("Uhr_Astro", "follow the sunset", [](Formfenster& f) {
    Waehlen(f, "Combo_Astro", "Sonnenuntergang");
    Klick(f, "Command1");
  });
  schritt("Uhr", "open its functions", [](Formfenster& f) {
    EXPECT_EQ(Teil<QLineEdit>(f, "Schaltzeit_txt(15)").text(), "Untergang");
    Klick(f, "Funktion(15)");
  });
  schritt("Actmask_uhr", "switch the output on", [](Formfenster& f) { Ausgang_einschalten(f); });
  schritt("Uhr", "close the clocks", [](Formfenster& f) { Klick(f, "OK"); });
  schritte.antworten("Bitte wenn nötig den Schaltuhr-Sequenzer anpassen", "OK");

  schritt("Haupt", "set the clock", [](Formfenster& f) { Klick(f, "Command5"); });
  schritt("Uhrseite", "press Enter in a wrong time", [](Formfenster& f) {
    Tippen(f, "Akt_zeit", "25.70");
    QTest::keyClick(&Teil(f, "Akt_zeit"), Qt::Key_Return);
  });
  schritte.antworten("Eingabe in Stunden, Minuten und Sekunden im Format HH.MM.SS oder HH.MM", "OK");
  schritt("Uhrseite", "leave: nothing was sent, the field asks again", [](Formfenster& f) {
    EXPECT_EQ(Teil<QLineEdit>(f, "Akt_zeit").text(), "00.00.00");
    QTest::keyClick(&f, Qt::Key_Escape);
  });

  schritt("Haupt", "save by keyboard and open the transfer", [](Formfenster& f) {
    EXPECT_EQ(sitzung.Projekt_geaendert, 1);
    QTest::keyClick(&f, Qt::Key_S, Qt::ControlModifier);
    EXPECT_EQ(sitzung.Projekt_geaendert, 0);
    Klick(f, "Command1");
  });
  schritt("Init_flash", "send", [](Formfenster& f) { Klick(f, "Command3"); });
  schritte.antworten(
      "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer aktualisiert werden "
      "sollen. 'Nein', wenn nur "
      "Ausgangsverknüpfungen geändert wurden.",
      "Ja");
  schritte.antworten("F99: Neustart im ZAVmaster war erfolgreich", "OK");
  // The house has radio senders that were never programmed.
  schritt("Enocean_Send", "leave the receivers", [](Formfenster& f) { Klick(f, "Command5"); });
  schritt("Init_flash", "close the transfer", [](Formfenster& f) {
    EXPECT_EQ(Teil<QProgressBar>(f, "ProgressBar1").text(), "100 %");
    Klick(f, "Cancel");
  });

  schritt("Haupt", "log the events of the bus", [&](Formfenster& f) {
    EXPECT_EQ(sitzung.Projekt_gesendet, 1);
    EXPECT_EQ(master.neustarts(), 1);
    EXPECT_EQ(projekt.Ein_funktext[ereignis], 0);
    Menuebefehl(f, "protokoll");
  });
  schritt(
      "Haupt", "press the key in the house",
      [&](Formfenster&) {
        master.ereignis({adresse, 3});
      },
      [&](Formfenster& f) { return protokoll(f).find("F00") != std::string::npos; });
  schritt(
      "Haupt", "see it in the log, scroll up while more comes, leave",
      [](Formfenster& f) {
        auto& anzeige = Teil<QPlainTextEdit>(f, "Terminal_Fenster");
        auto& text = static_cast<Haupt&>(f.formular()).Terminal_Fenster;
        const QScrollBar& balken = *anzeige.verticalScrollBar();
        for (int n = 0; n < 100; ++n) text.anhaengen("K000 T1 -/-\r\n");
        f.nachholen();
        EXPECT_EQ(balken.value(), balken.maximum()) << "the log is followed";
        anzeige.verticalScrollBar()->setValue(0);
        text.anhaengen("K000 T2 -/-\r\n");
        f.nachholen();
        EXPECT_EQ(balken.value(), 0) << "whoever reads further up is left there";
        EXPECT_TRUE(anzeige.toPlainText().endsWith("K000 T1 -/-\nK000 T2 -/-\n"));
        Klick(f, "Command7");
      },
      [&](Formfenster& f) { return protokoll(f).find("K200 T3 ---") != std::string::npos; });
  schritt(
      "Haupt", "end the program", [](Formfenster& f) { QTest::keyClick(&f, Qt::Key_Q, Qt::ControlModifier); },
      [](Formfenster& f) { return static_cast<Haupt&>(f.formular()).Frame_befehle.sichtbar == true; });
  spielen();

  projekt.Projekt_name = haus();
  ASSERT_EQ(Projekt_laden(), Laden::geladen);
  EXPECT_EQ(projekt.App_text[platz], "200");
  EXPECT_EQ(projekt.Uhr_text[schaltzeile], "Gartenlicht");
  EXPECT_EQ(Regel_lesen(schaltzeile).modus(), Zeit_untergang);
  EXPECT_EQ(projekt.Uhr_relais(schaltzeile, 3), relais_ein);
}

}  // namespace
}  // namespace zav::fenster
