// The window program without a screen: every form as a window, and stories through real widgets, as a person
// clicks and types them.
#include <gtest/gtest.h>
#include <unistd.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMessageBox>
#include <QProgressBar>
#include <QPushButton>
#include <QTabBar>
#include <QTest>
#include <QTextDocument>
#include <QTimer>
#include <QToolTip>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>
#include <cctype>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <functional>

#include "editor/actmask.h"
#include "editor/dialog_kombination.h"
#include "editor/einmask8.h"
#include "link/leitung.h"
#include "platform/einstellungen.h"
#include "service/init_flash.h"
#include "simulator/simulator.h"
#include "store/felder.h"
#include "store/funktionen.h"
#include "store/katalog.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"
#include "time/uhr.h"
#include "zavlink/aussehen.h"
#include "zavlink/formenschau.h"
#include "zavlink/formfenster.h"
#include "zavlink/qt_oberflaeche.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {
namespace {

namespace fs = std::filesystem;

class Fenster : public testing::Test {
 protected:
  void SetUp() override {
    ordner_ = fs::temp_directory_path() / ("fenster_test." + std::to_string(getpid()));
    fs::create_directories(ordner_);
    setenv("XDG_CONFIG_HOME", ordner_.c_str(), 1);
    fs::copy_file(EINFAMILIENHAUS_DATEI, haus(), fs::copy_options::overwrite_existing);
    sitzung = Sitzung{};
    projekt.Projekt_name = haus();
    ASSERT_EQ(Projekt_laden(), Laden::geladen);
  }
  void TearDown() override {
    Oberflaeche_setzen(nullptr);
    fs::remove_all(ordner_);
  }
  std::string haus() const { return (ordner_ / "haus.zav").string(); }

  static void laufen_lassen() {
    for (int i = 0; i < 3; ++i) QApplication::processEvents();
  }

 private:
  fs::path ordner_;
};

// ---- every form -------------------------------------------------------------------------------------------

QWidget* Widget_von(const Formfenster& f, const Steuerelement& e) {
  const auto w = f.gebautes().widgets.find(&e);
  return w == f.gebautes().widgets.end() ? nullptr : w->second;
}

class Alle_fenster : public Fenster {
 protected:
  void SetUp() override {
    Fenster::SetUp();
    Oberflaeche_setzen(&still);
  }
  Stille_oberflaeche still;
};

TEST_F(Alle_fenster, ZeigenJedesElementGenauEinmalUndPassenAufEinenKleinenSchirm) {
  for (const Schaustueck& stueck : Formenschau()) {
    SCOPED_TRACE(stueck.name);
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    EXPECT_EQ(Platzierte(form->anordnung()).size(), form->elemente().size());
    for (const Steuerelement* e : form->elemente()) {
      const bool da =
          Widget_von(fenster, *e) != nullptr || fenster.findChild<QAction*>(Q(e->name())) != nullptr;
      EXPECT_TRUE(da) << e->name();
    }
    fenster.show();
    laufen_lassen();
    EXPECT_LE(fenster.height(), 768);
    EXPECT_LE(fenster.width(), 1366);
    for (const auto& [element, widget] : fenster.gebautes().widgets) {
      if (!widget->isVisible() || widget->focusPolicy() == Qt::NoFocus) continue;
      EXPECT_FALSE(widget->accessibleName().isEmpty() && element->titel->empty() &&
                   !widget->inherits("QToolButton"))
          << element->name() << " has no name to be read aloud";
    }
  }
}

// A project's texts must not become markup: a picture that it names would be opened as a file.
TEST_F(Alle_fenster, ZeigenMarkierungenAlsText) {
  const std::string name = projekt.Projekt_name;
  Felder_besuchen(projekt, []<class T>(std::string_view, T& feld) {
    if constexpr (requires { feld.alle(); }) {
      for (auto& e : feld.alle()) {
        if constexpr (std::is_same_v<std::remove_reference_t<decltype(e)>, str>) {
          if (std::ranges::any_of(e, [](unsigned char c) { return std::isalpha(c); })) e = "<img src='/x'>";
        }
      }
    }
  });
  projekt.Projekt_name = name;
  int gesehen = 0;
  const auto pruefen = [&gesehen](const QString& tipp) {
    gesehen += tipp.contains("img");
    QTextDocument bild;
    bild.setHtml(tipp);
    EXPECT_TRUE(!Qt::mightBeRichText(tipp) || bild.toPlainText().contains("<img")) << S(tipp);
  };
  for (const Schaustueck& stueck : Formenschau()) {
    SCOPED_TRACE(stueck.name);
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    fenster.show();
    laufen_lassen();
    for (auto* const w : fenster.findChildren<QWidget*>()) {
      pruefen(w->toolTip());
      if (const auto* const schild = qobject_cast<const QLabel*>(w)) {
        EXPECT_TRUE(schild->textFormat() == Qt::PlainText || !Qt::mightBeRichText(schild->text()));
      }
      QHelpEvent frage(QEvent::ToolTip, w->rect().center(), w->mapToGlobal(w->rect().center()));
      QApplication::sendEvent(w, &frage);
      pruefen(QToolTip::text());
      if (const auto* const baum = qobject_cast<const QTreeWidget*>(w)) {
        for (QTreeWidgetItemIterator z(const_cast<QTreeWidget*>(baum)); *z != nullptr; ++z)
          pruefen((*z)->toolTip(0));
      }
    }
  }
  EXPECT_GT(gesehen, 5);
}

// What the widget shows of a control, as text; nothing for those that show no value.
std::optional<QString> Gezeigt(const QWidget& w) {
  if (const auto* const f = qobject_cast<const QLineEdit*>(&w)) return f->text();
  if (const auto* const k = qobject_cast<const QCheckBox*>(&w)) return k->isChecked() ? "an" : "aus";
  if (const auto* const l = qobject_cast<const QComboBox*>(&w)) return QString::number(l->currentIndex());
  if (const auto* const r = qobject_cast<const QTabBar*>(&w)) return QString::number(r->currentIndex());
  return std::nullopt;
}
QString Gehalten(const Steuerelement& e) {
  switch (e.art) {
    case Art::Textfeld: return Q(static_cast<const Textfeld&>(e).text());
    case Art::Kaestchen: return static_cast<const Kaestchen&>(e).an() ? "an" : "aus";
    case Art::Auswahl: return QString::number(static_cast<const Auswahl&>(e).position());
    default: return {};
  }
}

// A person's act on a widget; false when it has none here.
bool Bedienen(QWidget& w) {
  if (auto* const f = qobject_cast<QLineEdit*>(&w); f != nullptr && !f->isReadOnly()) {
    f->selectAll();
    QTest::keyClicks(f, "7");
    return true;
  }
  if (auto* const k = qobject_cast<QCheckBox*>(&w)) {
    k->click();
    return true;
  }
  if (auto* const l = qobject_cast<QComboBox*>(&w); l != nullptr && l->count() > 1) {
    QTest::keyClick(l, l->currentIndex() + 1 < l->count() ? Qt::Key_Down : Qt::Key_Up);
    return true;
  }
  return false;
}

TEST_F(Alle_fenster, WerteGehenHinUndHer) {
  int bedient = 0;
  for (const Schaustueck& stueck : Formenschau()) {
    SCOPED_TRACE(stueck.name);
    const auto form = stueck.bauen();
    Formfenster fenster(*form, nullptr);
    fenster.show();
    laufen_lassen();
    for (Steuerelement* const e : form->elemente()) {
      QWidget* const w = Widget_von(fenster, *e);
      if (w == nullptr || !w->isVisible() || !w->isEnabled() || !Gezeigt(*w)) continue;
      EXPECT_EQ(*Gezeigt(*w), Gehalten(*e)) << e->name() << " at the start";
      const QString vorher = Gehalten(*e);
      if (Bedienen(*w)) ++bedient;
      fenster.nachholen();
      EXPECT_EQ(*Gezeigt(*w), Gehalten(*e)) << e->name() << " after the act";
      // The program's own change shows at the next turn.
      if (e->art == Art::Textfeld && *e->frei) {
        static_cast<Textfeld*>(e)->setzen("Probe");
        fenster.nachholen();
        EXPECT_EQ(*Gezeigt(*w), Gehalten(*e))
            << e->name() << " after the program's change, before " << S(vorher);
      }
    }
  }
  EXPECT_GT(bedient, 300);
}

// ---- stories ----------------------------------------------------------------------------------------------

// What a person does in the windows and boxes that open next, in order. A step waits for its window.
class Schritte final : public QObject {
 public:
  Schritte() { bestellen(); }
  void in_fenster(const QString& name, std::function<void(Formfenster&)> tat) {
    offen_.push_back({name, [tat = std::move(tat)](QWidget& w) { tat(static_cast<Formfenster&>(w)); }});
  }
  // A box with this text, answered by the key of that caption.
  void antworten(const QString& text, const QString& knopf) {
    offen_.push_back({"", [text, knopf](QWidget& w) {
                        auto& kasten = static_cast<QMessageBox&>(w);
                        EXPECT_EQ(kasten.text(), text);
                        for (QAbstractButton* const k : kasten.buttons()) {
                          if (k->text().remove('&') == knopf) return k->click();
                        }
                        ADD_FAILURE() << "no key " << S(knopf);
                        kasten.reject();
                      }});
  }
  bool fertig() const { return offen_.empty(); }

 private:
  struct Schritt {
    QString fenster;  // "" = a box
    std::function<void(QWidget&)> tat;
  };
  // A step may open a window and come back only when that has closed: the next look is ordered before it
  // begins, by a timer of its own.
  void bestellen() {
    QTimer::singleShot(5, this, [this] { versuchen(); });
  }
  void versuchen() {
    bestellen();
    QWidget* const oben = QApplication::activeModalWidget();
    if (oben == nullptr || offen_.empty()) return;
    const bool kasten = qobject_cast<QMessageBox*>(oben) != nullptr;
    if (kasten ? !offen_.front().fenster.isEmpty() : oben->objectName() != offen_.front().fenster) {
      if (!kasten) return;
      ADD_FAILURE() << "unexpected box: " << S(static_cast<QMessageBox*>(oben)->text());
      static_cast<QMessageBox*>(oben)->reject();
      return;
    }
    const Schritt schritt = std::move(offen_.front());
    offen_.pop_front();
    schritt.tat(*oben);
  }
  std::deque<Schritt> offen_;
};

template <class W = QWidget>
W& Teil(Formfenster& f, const std::string& name) {
  f.nachholen();
  const Steuerelement* const e = f.formular().element(name);
  EXPECT_NE(e, nullptr) << name;
  auto* const w = qobject_cast<W*>(f.gebautes().widgets.at(e));
  EXPECT_NE(w, nullptr) << name;
  EXPECT_TRUE(w->isVisible() && w->isEnabled()) << name << " cannot be used";
  return *w;
}
void Klick(Formfenster& f, const std::string& name) {
  QTest::mouseClick(&Teil<QPushButton>(f, name), Qt::LeftButton);
}
void Waehlen(Formfenster& f, const std::string& name, const QString& text) {
  auto& liste = Teil<QComboBox>(f, name);
  const int i = liste.findText(text);
  ASSERT_GE(i, 0) << name << " has no " << S(text);
  QTest::keyClick(&liste, Qt::Key_Home);
  for (int n = 0; n < i; ++n) QTest::keyClick(&liste, Qt::Key_Down);
}

class Geschichte : public Fenster {
 protected:
  void SetUp() override {
    Fenster::SetUp();
    Oberflaeche_setzen(&oberflaeche);
  }
  // Shows a form and does the steps until it closes.
  void zeigen(Formular& f) {
    QTimer wache;
    wache.setSingleShot(true);
    QObject::connect(&wache, &QTimer::timeout, [] {
      const QWidget* const oben = QApplication::activeModalWidget();
      const auto* const kasten = qobject_cast<const QMessageBox*>(oben);
      ADD_FAILURE() << "the story stands still in " << (oben == nullptr ? "no window" : S(oben->objectName()))
                    << (kasten == nullptr ? "" : S(kasten->text()));
      std::abort();
    });
    wache.start(60'000);
    oberflaeche.Zeigen(f);
    EXPECT_TRUE(schritte.fertig());
  }
  Qt_oberflaeche oberflaeche;
  Schritte schritte;
};

TEST_F(Geschichte, FunktionVergebenSpeichernSendenTasteDruecken) {
  simulator::Simulator master;
  master.start();
  // The master knows this project already.
  simulator::Bytes kennung;
  for (std::size_t i = 0; i < 16; i += 2)
    kennung.push_back(
        static_cast<std::uint8_t>(std::stoi(projekt.Projekt_kennung.substr(i, 2), nullptr, 16)));
  master.speicher_setzen(0x800, kennung);
  einstellungen.Com_art = 1;
  einstellungen.Host_name = einstellungen.Host_ip = "127.0.0.1";
  einstellungen.Host_port = master.tcp_port();
  Com_art_setzen();

  const int erstes = 4 * std::stoi(projekt.App_text[0]);
  {
    Einmask8 eingaenge;
    schritte.in_fenster("Einmask8", [](Formfenster& f) {
      auto& text = Teil<QLineEdit>(f, "TTxt(0)");
      text.selectAll();
      QTest::keyClicks(&text, "Gartenlicht");
      Klick(f, "Command15(0)");
    });
    schritte.in_fenster("Actmask", [](Formfenster& f) {
      Waehlen(f, "Combo1(3)", "Ein");
      Klick(f, "Command5");
    });
    schritte.in_fenster("Einmask8", [](Formfenster& f) { Klick(f, "Cancel"); });
    zeigen(eingaenge);
  }
  EXPECT_EQ(projekt.Dev_text[Apparat_textslot(projekt, 0, 0)], "Gartenlicht");
  EXPECT_EQ(projekt.Ein_relais(erstes, 3), relais_ein);
  EXPECT_EQ(sitzung.Projekt_geaendert, 1);
  ASSERT_EQ(Projekt_speichern(), Speichern::gespeichert);
  sitzung.Projekt_geaendert = 0;

  {
    Init_flash senden;
    schritte.in_fenster("Init_flash", [](Formfenster& f) {
      Klick(f, "Command3");
      EXPECT_GE(Teil<QProgressBar>(f, "ProgressBar1").value(), 990);
      Klick(f, "Cancel");
    });
    schritte.antworten(
        "Im ZAVmaster einen Neustart durchführen? 'Ja', wenn Schaltzeiten und Timer aktualisiert werden "
        "sollen. 'Nein', wenn nur Ausgangsverknüpfungen geändert wurden.",
        "Nein");
    // The house has radio senders that were never programmed.
    schritte.in_fenster("Enocean_Send", [](Formfenster& f) { Klick(f, "Command5"); });
    zeigen(senden);
  }
  EXPECT_EQ(sitzung.Projekt_gesendet, 1);
  EXPECT_EQ(master.neustarts(), 0);

  Einmask8 eingaenge;
  schritte.in_fenster("Einmask8", [](Formfenster& f) {
    auto& knopf = Teil<QPushButton>(f, "Command15(0)");
    QContextMenuEvent rechts(QContextMenuEvent::Mouse, QPoint(5, 5), knopf.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&knopf, &rechts);
    QMenu* const menue = f.gebautes().kontextmenues.at("Command15");
    ASSERT_TRUE(menue->isVisible());
    menue->findChild<QAction*>("mnuShort")->trigger();
    menue->close();
    Klick(f, "Cancel");
  });
  zeigen(eingaenge);
  ASSERT_TRUE(master.warten([&] { return !master.ereignisse().empty(); }));
}

// Chooses by keyboard and mouse in the painted widgets: a device in the frame, its address on the map.
TEST_F(Geschichte, ApparatSetzenUndAdresseGeben) {
  Einmask8 eingaenge;
  schritte.in_fenster("Einmask8", [&](Formfenster& f) {
    QWidget& rahmen = *f.gebautes().widgets.at(&eingaenge.Image3[0]);
    rahmen.setFocus();
    QTest::keyClick(&rahmen, Qt::Key_Down);
    QTest::keyClick(&rahmen, Qt::Key_Down);
    EXPECT_EQ(eingaenge.platz(), 8) << "the third place of the column";
    QTest::keyClick(&rahmen, Qt::Key_Up);
    QTest::keyClick(&rahmen, Qt::Key_C, Qt::ControlModifier);
    f.nachholen();
    EXPECT_TRUE(*eingaenge.Command4.frei) << "copied";
    QTest::keyClick(&rahmen, Qt::Key_Delete);
    eingaenge.mnuChoose.druecken();
  });
  schritte.antworten("Der Apparat wird endgültig gelöscht. Wollen Sie das?", "Ja");
  schritte.in_fenster("Apparatwahl", [](Formfenster& f) {
    QWidget& bilder = *f.gebautes().widgets.at(f.formular().element("Bilder"));
    bilder.setFocus();
    QTest::keyClick(&bilder, Qt::Key_Right);
    QTest::keyClick(&bilder, Qt::Key_Return);
  });
  schritte.in_fenster("Einmask8", [](Formfenster& f) { Klick(f, "Command2"); });
  schritte.in_fenster("Dialog_Kombination", [](Formfenster& f) {
    QWidget& karte = *f.gebautes().widgets.at(f.formular().element("Zellen"));
    // Cell 200: row 12, column 8.
    const QPoint mitte(static_cast<int>((8 + 0.5) * karte.width() / 16),
                       static_cast<int>((12 + 0.5) * karte.height() / 16));
    QTest::mouseClick(&karte, Qt::LeftButton, {}, mitte);
  });
  schritte.in_fenster("Einmask8", [](Formfenster& f) { QTest::keyClick(&f, Qt::Key_Escape); });
  zeigen(eingaenge);
  EXPECT_EQ(projekt.App_typ[4], 2);
  EXPECT_EQ(projekt.App_text[4], "200");
}

}  // namespace
}  // namespace zav::fenster

// Widgets need their application before the first test.
int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication programm(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  zav::fenster::Aussehen_setzen(zav::fenster::Thema::hell);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
