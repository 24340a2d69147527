// Every window of the program, without a screen: what it looks like to eyes, keyboard and screen reader, and
// that values travel both ways between controls and widgets.
#include <QAbstractButton>
#include <QAccessible>
#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QSlider>
#include <QTabBar>
#include <QToolTip>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>
#include <algorithm>
#include <cctype>
#include <cmath>
#include <map>
#include <optional>
#include <set>

#include "fenster_bedienen.h"
#include "fenster_hilfen.h"
#include "store/felder.h"
#include "time/uhr_astro_rechner.h"
#include "zavlink/formenschau.h"
#include "zavlink/musterhaus.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {
namespace {

class Alle_fenster : public Fenster {
 protected:
  void SetUp() override {
    Fenster::SetUp();
    Oberflaeche_setzen(&still);
    musterhaus.emplace();
  }
  void TearDown() override {
    musterhaus.reset();
    Fenster::TearDown();
  }
  Stille_oberflaeche still;
  std::optional<Musterhaus> musterhaus;
};

// ---- what a window looks like ----

// Each control has a name of its own, stands in the layout once and has its widget; each key does something.
void Jedes_element_steht_an_einer_stelle(const Formfenster& f) {
  const auto& elemente = f.formular().elemente();
  const Anordnung baum = f.formular().anordnung();
  std::map<const Steuerelement*, int> platziert;
  for (const Steuerelement* e : Platzierte(baum)) ++platziert[e];
  EXPECT_EQ(platziert.size(), elemente.size()) << "places what is not its own";
  std::set<std::string> namen;
  for (const Steuerelement* e : elemente) {
    EXPECT_TRUE(namen.insert(e->name()).second) << e->name() << " twice";
    EXPECT_EQ(platziert[e], 1) << e->name();
    const bool da = Widget_von(f, *e) != nullptr || f.findChild<QAction*>(Q(e->name())) != nullptr;
    EXPECT_TRUE(da) << e->name() << " has no widget";
    if (const auto* const t = dynamic_cast<const Taste*>(e)) {
      EXPECT_TRUE(t->wenn_gedrueckt || t->wenn_rechts_gedrueckt || !t->frei || !t->sichtbar)
          << e->name() << " does nothing";
    }
  }
}

void Passt_auf_einen_kleinen_schirm(const Formfenster& f) {
  for (const QSize g : {f.size(), f.minimumSizeHint(), f.minimumSize()}) {
    EXPECT_LE(g.height(), 768);
    EXPECT_LE(g.width(), 1366);
  }
}

// What takes the keyboard, in the order of Tab. Parts of a widget (a calendar's arrows) count as the widget.
std::vector<QWidget*> Tabfolge(const Formfenster& f) {
  std::vector<QWidget*> folge;
  for (QWidget* w = f.nextInFocusChain(); w != &f; w = w->nextInFocusChain()) {
    const bool teil =
        w->focusProxy() != nullptr || qobject_cast<QCalendarWidget*>(w->parentWidget()) != nullptr ||
        qobject_cast<QAbstractScrollArea*>(w->parentWidget()) != nullptr || w->inherits("QMenuBar");
    if (!teil && w->window() == &f && w->isVisible() && w->isEnabled() &&
        (w->focusPolicy() & Qt::TabFocus) != 0)
      folge.push_back(w);
  }
  return folge;
}

std::string Bezeichnung(const QWidget& w) {
  return S(w.objectName().isEmpty() ? QString(w.metaObject()->className()) : w.objectName());
}

void Alles_laesst_sich_vorlesen(const Formfenster& f) {
  for (QWidget* const w : Tabfolge(f)) {
    const QAccessibleInterface* const i = QAccessible::queryAccessibleInterface(w);
    EXPECT_FALSE(i == nullptr || i->text(QAccessible::Name).trimmed().isEmpty())
        << Bezeichnung(*w) << " has no name to be read aloud";
  }
}

void Kuerzel_sind_eindeutig(const Formfenster& f) {
  std::map<QString, QString> vergeben;
  const auto nehmen = [](std::map<QString, QString>& liste, const QString& text) {
    const QString taste = QKeySequence::mnemonic(text).toString();
    if (taste.isEmpty()) return;
    const auto [stelle, neu] = liste.emplace(taste, text);
    EXPECT_TRUE(neu) << S(taste) << " leads to \"" << S(stelle->second) << "\" and \"" << S(text) << "\"";
  };
  for (const QWidget* const w : f.findChildren<QWidget*>()) {
    if (!w->isVisible()) continue;
    if (const auto* const k = qobject_cast<const QAbstractButton*>(w)) nehmen(vergeben, k->text());
    if (const auto* const l = qobject_cast<const QLabel*>(w); l != nullptr && l->buddy() != nullptr)
      nehmen(vergeben, l->text());
    if (const auto* const m = qobject_cast<const QMenuBar*>(w)) {
      for (const QAction* const a : m->actions()) nehmen(vergeben, a->text());
    }
    if (const auto* const r = qobject_cast<const QTabBar*>(w)) {
      for (int i = 0; i < r->count(); ++i) nehmen(vergeben, r->tabText(i));
    }
  }
  for (const QMenu* const m : f.findChildren<QMenu*>()) {
    std::map<QString, QString> im_menue;
    for (const QAction* const a : m->actions()) {
      if (a->isVisible()) nehmen(im_menue, a->text());
    }
  }
}

// From one field to the next the eye goes right, down or to the top of the next column: never back.
void Tab_folgt_dem_auge(const Formfenster& f) {
  const QWidget* vorher = nullptr;
  for (QWidget* const w : Tabfolge(f)) {
    if (vorher != nullptr) {
      const QRect a(vorher->mapTo(&f, QPoint()), vorher->size());
      const QRect b(w->mapTo(&f, QPoint()), w->size());
      const bool zurueck = b.right() <= a.left() && b.top() < a.bottom();
      const bool hinauf = b.bottom() <= a.top() && b.left() < a.right();
      EXPECT_FALSE(zurueck || hinauf)
          << "Tab leads back from " << Bezeichnung(*vorher) << " to " << Bezeichnung(*w);
    }
    vorher = w;
  }
}

void Kein_text_ist_abgeschnitten(const Formfenster& f) {
  for (const QWidget* const w : f.findChildren<QWidget*>()) {
    const auto* const schild = qobject_cast<const QLabel*>(w);
    const auto* const knopf = qobject_cast<const QAbstractButton*>(w);
    if (!w->isVisible() || (schild == nullptr && (knopf == nullptr || knopf->text().isEmpty()))) continue;
    if (qobject_cast<const QCalendarWidget*>(w->parentWidget()->parentWidget()) != nullptr) continue;
    const bool bricht_um = schild != nullptr && schild->wordWrap();
    const bool passt =
        bricht_um ? w->height() >= w->heightForWidth(w->width()) : w->width() >= w->sizeHint().width();
    EXPECT_TRUE(passt) << Bezeichnung(*w) << " is cut: " << w->width() << " x " << w->height() << ", needs "
                       << w->sizeHint().width() << " x " << w->sizeHint().height() << ": "
                       << S(schild != nullptr ? schild->text() : knopf->text());
  }
}

TEST_F(Alle_fenster, SindLesbarVollstaendigUndOhneMausBedienbar) {
  for (const Schaustueck& stueck : Formenschau()) {
    SCOPED_TRACE(stueck.name);
    const bool gesehen = Vorfuehren(stueck, still, [](const Formfenster& f) {
      Jedes_element_steht_an_einer_stelle(f);
      Passt_auf_einen_kleinen_schirm(f);
      Alles_laesst_sich_vorlesen(f);
      Kuerzel_sind_eindeutig(f);
      Tab_folgt_dem_auge(f);
      Kein_text_ist_abgeschnitten(f);
    });
    EXPECT_TRUE(gesehen);
  }
}

// ---- values both ways ----

// What the widget shows of a control's value, as text; nothing for painted ones, which read the control
// itself.
std::optional<QString> Gezeigt(const QWidget& w) {
  for (const char* wert :
       {"currentIndex", "currentRow", "checked", "value", "selectedDate", "plainText", "text"}) {
    if (w.metaObject()->indexOfProperty(wert) < 0) continue;
    const auto* const schild = qobject_cast<const QLabel*>(&w);
    const bool symbol = schild != nullptr && !schild->pixmap().isNull();  // its words are read aloud
    return symbol ? w.accessibleName() : w.property(wert).toString();
  }
  if (const auto* const b = qobject_cast<const QTreeWidget*>(&w)) {
    return b->currentItem() == nullptr ? QString() : b->currentItem()->data(0, Qt::UserRole).toString();
  }
  if (const auto* const g = w.findChild<const QButtonGroup*>()) return QString::number(g->checkedId());
  return std::nullopt;
}

QString Gehalten(const Steuerelement& e) {
  switch (e.art) {
    case Art::Textfeld: return Q(static_cast<const Textfeld&>(e).text()).replace("\r\n", "\n").remove('\r');
    case Art::Kaestchen: return static_cast<const Kaestchen&>(e).an() ? "true" : "false";
    case Art::Auswahl: return QString::number(static_cast<const Auswahl&>(e).position());
    case Art::Schieber: return QString::number(static_cast<const Schieber&>(e).wert());
    case Art::Balken: {
      const auto& b = static_cast<const Balken&>(e);
      return QString::number(std::lround(1000 * (*b.wert - b.von) / (b.bis - b.von)));
    }
    case Art::Kalender: {
      const Datum d = static_cast<const Kalender&>(e).datum();
      return QDate(d.jahr, d.monat, d.tag).toString(Qt::ISODate);
    }
    case Art::Baum: return Q(static_cast<const Baum&>(e).gewaehlt());
    case Art::Schild:
    case Art::Taste:
    case Art::Rahmen: break;
  }
  return Q(*e.titel);
}

// The program's own change of a control, silent; false where there is nothing to change.
bool Aendern(Steuerelement& e) {
  const Beschaeftigt still(*e.formular());
  switch (e.art) {
    case Art::Textfeld: static_cast<Textfeld&>(e).setzen("Probe"); break;
    case Art::Kaestchen: static_cast<Kaestchen&>(e).setzen(!static_cast<Kaestchen&>(e).an()); break;
    case Art::Auswahl: {
      auto& a = static_cast<Auswahl&>(e);
      if (a.anzahl() == 0) return false;
      a.setzen((a.position() + 1) % a.anzahl());
      break;
    }
    case Art::Schieber: {
      auto& s = static_cast<Schieber&>(e);
      s.setzen(s.wert() == s.von() ? s.bis() : s.von());
      break;
    }
    case Art::Balken:
      static_cast<Balken&>(e).wert = (static_cast<Balken&>(e).von + static_cast<Balken&>(e).bis) / 2;
      break;
    case Art::Kalender: static_cast<Kalender&>(e).setzen({2031, 5, 17}); break;
    case Art::Baum: {
      auto& b = static_cast<Baum&>(e);
      if (b.knoten().empty()) return false;
      b.setzen(b.knoten().back().schluessel);
      break;
    }
    case Art::Schild:
    case Art::Taste: e.titel = "Probe"; break;
    case Art::Rahmen: return false;
  }
  return true;
}

void Stimmt_ueberein(const QWidget& w, const Steuerelement& e, const char* wann) {
  EXPECT_EQ(S(*Gezeigt(w)), S(Gehalten(e))) << e.name() << " " << wann;
}

TEST_F(Alle_fenster, WerteGehenHinUndHer) {
  std::map<Art, int> bedient;
  for (const Schaustueck& stueck : Formenschau()) {
    if (stueck.vorgang.beginnen) continue;  // the same form as another piece
    SCOPED_TRACE(stueck.name);
    Vorfuehren(stueck, still, [&](Formfenster& f) {
      for (Steuerelement* const e : f.formular().elemente()) {
        QWidget* const w = Widget_von(f, *e);
        const bool gemalt = w == nullptr || w->property("eigenes_menue").toBool() || !Gezeigt(*w);
        if (e->art == Art::Rahmen || e->art == Art::Taste || gemalt)
          continue;  // a key's caption may be a sign
        Stimmt_ueberein(*w, *e, "at the start");
        if (w->isVisible() && w->isEnabled() && Bedienen(*w)) ++bedient[e->art];
        f.nachholen();
        Stimmt_ueberein(*w, *e, "after the user's act");
        if (!Aendern(*e)) continue;
        f.nachholen();
        Stimmt_ueberein(*w, *e, "after the program's change");
      }
    });
  }
  for (const Art art :
       {Art::Textfeld, Art::Kaestchen, Art::Auswahl, Art::Schieber, Art::Kalender, Art::Baum}) {
    EXPECT_GT(bedient[art], 0) << static_cast<int>(art);
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
    EXPECT_FALSE(Qt::mightBeRichText(tipp) && tipp.contains("<img")) << S(tipp);
  };
  for (const Schaustueck& stueck : Formenschau()) {
    SCOPED_TRACE(stueck.name);
    Vorfuehren(stueck, still, [&](Formfenster& f) {
      for (auto* const w : f.findChildren<QWidget*>()) {
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
    });
  }
  EXPECT_GT(gesehen, 5);
}

TEST_F(Alle_fenster, EinDoppelklickInDenKalenderWaehltDenTag) {
  Uhr_Astro_Rechner form;
  Formfenster f(form, nullptr);
  f.show();
  form.Command2.druecken();
  f.nachholen();
  auto* const kalender = qobject_cast<QCalendarWidget*>(Widget_von(f, form.Kalender));
  ASSERT_NE(kalender, nullptr);
  Q_EMIT kalender->clicked({2026, 6, 21});
  Q_EMIT kalender->activated({2026, 6, 21});
  EXPECT_EQ(form.Text1.text(), "21.06.2026");
  EXPECT_FALSE(form.Kalender.sichtbar);
}

}  // namespace
}  // namespace zav::fenster
