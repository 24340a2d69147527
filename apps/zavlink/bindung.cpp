#include "zavlink/bindung.h"

#include <QButtonGroup>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <QSlider>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>
#include <QVBoxLayout>
#include <cmath>
#include <exception>

#include "zavlink/baum.h"
#include "zavlink/farben.h"
#include "zavlink/kartenfeld.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

Auffrischer::Auffrischer(QObject* eltern) : QObject(eltern) {}

Auffrischer::~Auffrischer() {
  for (const auto& e : eintraege_) e->element->beobachter = nullptr;
}

void Auffrischer::binden(Steuerelement& e, std::function<void()> auffrischen) {
  auto& eintrag = *eintraege_.emplace_back(std::make_unique<Eintrag>(Eintrag{&e, std::move(auffrischen)}));
  e.beobachter = [this, &eintrag] { vormerken(eintrag); };
  eintrag.auffrischen();
}

void Auffrischer::vormerken(Eintrag& e) {
  e.wartet = true;
  if (bestellt_) return;
  bestellt_ = true;
  QTimer::singleShot(0, this, [this] { nachholen(); });
}

void Auffrischer::nachholen() {
  bestellt_ = false;
  for (const auto& e : eintraege_) {
    if (!e->wartet) continue;
    e->wartet = false;
    e->auffrischen();
  }
}

void Handeln(const std::function<void()>& tat) {
  try {
    tat();
  } catch (const std::exception& fehler) {
    QMessageBox::critical(nullptr, "Fehler im Programm",
                          QString("Der Befehl wurde abgebrochen. Bitte speichern Sie das Projekt unter anderem Namen.\n\n%1")
                              .arg(fehler.what()));
  }
}

namespace {

// What every widget takes from its control.
void Gemeinsames(QWidget& w, const Steuerelement& e) {
  w.setEnabled(e.frei);
  w.setVisible(e.sichtbar);
  w.setToolTip(Q(*e.hinweis));
  w.setObjectName(Q(e.name()));
  const QString titel = Ohne_kuerzel(Q(*e.titel));
  w.setAccessibleName(titel.isEmpty() ? Q(*e.hinweis) : titel);
}

QWidget* Taste_bauen(Taste& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QPushButton(eltern);
  w->setAutoDefault(t.standard);
  w->setDefault(t.standard);
  QObject::connect(w, &QPushButton::clicked, w, [&t] { Handeln([&t] { t.druecken(); }); });
  if (t.wenn_rechts_gedrueckt) {
    w->setContextMenuPolicy(Qt::CustomContextMenu);
    QObject::connect(w, &QWidget::customContextMenuRequested, w, [&t] { Handeln([&t] { t.rechts_druecken(); }); });
  }
  auf.binden(t, [&t, w] {
    Gemeinsames(*w, t);
    w->setText(Q(*t.titel));
    if (!t.bild.empty()) w->setIcon(Symbolbild(t.bild));
    Einfaerben(*w, t.farbe);
  });
  return w;
}

QWidget* Kaestchen_bauen(Kaestchen& k, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QCheckBox(eltern);
  QObject::connect(w, &QCheckBox::toggled, w, [&k](bool an) { Handeln([&k, an] { k.haken(an); }); });
  auf.binden(k, [&k, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, k);
    w->setText(Q(*k.titel));
    w->setChecked(k.an());
    Einfaerben(*w, k.farbe);
  });
  return w;
}

QWidget* Klappliste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QComboBox(eltern);
  w->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  w->setMinimumContentsLength(8);
  w->setMaxVisibleItems(20);
  w->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(w, &QComboBox::activated, w, [&a](int i) { Handeln([&a, i] { a.waehlen(i); }); });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    bool gleich = w->count() == a.anzahl();
    for (int i = 0; gleich && i < a.anzahl(); ++i) gleich = w->itemText(i) == Q(a.eintrag(i).text);
    if (!gleich) {
      QStringList texte;
      texte.reserve(a.anzahl());
      for (const auto& e : a.eintraege()) texte << Q(e.text);
      w->clear();
      w->addItems(texte);
    }
    w->setCurrentIndex(a.position());
    Einfaerben(*w, a.farbe);
  });
  return w;
}

QWidget* Liste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QListWidget(eltern);
  w->setUniformItemSizes(true);
  QObject::connect(w, &QListWidget::currentRowChanged, w, [&a](int i) {
    if (i >= 0) Handeln([&a, i] { a.waehlen(i); });
  });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    if (w->count() != a.anzahl()) {
      w->clear();
      for (int i = 0; i < a.anzahl(); ++i) w->addItem(QString());
    }
    for (int i = 0; i < a.anzahl(); ++i) {
      auto* const zeile = w->item(i);
      zeile->setText(Q(a.eintrag(i).text));
      zeile->setToolTip(Q(a.eintrag(i).hinweis));
    }
    w->setCurrentRow(a.position());
  });
  return w;
}

QWidget* Optionen_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster / 2);
  auto* const gruppe = new QButtonGroup(w);
  for (int i = 0; i < a.anzahl(); ++i) {
    auto* const knopf = new QRadioButton(w);
    gruppe->addButton(knopf, i);
    spalte->addWidget(knopf);
  }
  QObject::connect(gruppe, &QButtonGroup::idClicked, w, [&a](int i) { Handeln([&a, i] { a.waehlen(i); }); });
  auf.binden(a, [&a, w, gruppe] {
    Gemeinsames(*w, a);
    gruppe->setExclusive(false);  // so that none may be chosen
    for (int i = 0; i < a.anzahl() && gruppe->button(i) != nullptr; ++i) {
      auto* const knopf = gruppe->button(i);
      const QSignalBlocker stumm(knopf);
      const auto& e = a.eintrag(i);
      knopf->setText(Q(e.text));
      knopf->setToolTip(Q(e.hinweis));
      knopf->setEnabled(a.frei && e.frei);
      knopf->setChecked(i == a.position());
      Einfaerben(*knopf, e.farbe);
    }
    gruppe->setExclusive(true);
  });
  return w;
}

QWidget* Reiter_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QTabBar(eltern);
  w->setExpanding(false);
  w->setDocumentMode(true);
  QObject::connect(w, &QTabBar::currentChanged, w, [&a](int i) {
    if (i >= 0 && i != a.position()) Handeln([&a, i] { a.waehlen(i); });
  });
  auf.binden(a, [&a, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, a);
    while (w->count() > a.anzahl()) w->removeTab(w->count() - 1);
    while (w->count() < a.anzahl()) w->addTab(QString());
    for (int i = 0; i < a.anzahl(); ++i) {
      const auto& e = a.eintrag(i);
      w->setTabText(i, Q(e.text));
      w->setTabToolTip(i, Q(e.hinweis));
      w->setTabEnabled(i, e.frei);
      w->setTabIcon(i, e.farbe == Farbe::belegt ? Symbolbild("belegt") : QIcon());
    }
    w->setCurrentIndex(a.position());
  });
  return w;
}

// A strip of small buttons, sixteen a row: relay and dimmer groups, clocks. A used one is coloured and has a dot.
QWidget* Leiste_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QWidget(eltern);
  auto* const gitter = new QGridLayout(w);
  gitter->setContentsMargins(0, 0, 0, 0);
  gitter->setSpacing(2);
  auto* const gruppe = new QButtonGroup(w);
  for (int i = 0; i < a.anzahl(); ++i) {
    auto* const knopf = new QToolButton(w);
    knopf->setCheckable(true);
    knopf->setProperty("leiste", true);
    knopf->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    gruppe->addButton(knopf, i);
    gitter->addWidget(knopf, i / 16, i % 16);
  }
  QObject::connect(gruppe, &QButtonGroup::idClicked, w, [&a](int i) { Handeln([&a, i] { a.waehlen(i); }); });
  auf.binden(a, [&a, w, gruppe] {
    Gemeinsames(*w, a);
    for (int i = 0; i < a.anzahl() && gruppe->button(i) != nullptr; ++i) {
      auto* const knopf = gruppe->button(i);
      const auto& e = a.eintrag(i);
      const bool belegt = e.farbe == Farbe::belegt;
      knopf->setText(Q(e.text) + (belegt ? QStringLiteral(" •") : QString()));
      knopf->setToolTip(Q(e.hinweis));
      knopf->setEnabled(a.frei && e.frei);
      knopf->setChecked(i == a.position());
      Einfaerben(*knopf, e.farbe);
    }
  });
  return w;
}

QWidget* Auswahl_bauen(Auswahl& a, Auffrischer& auf, QWidget* eltern) {
  switch (a.form) {
    case Auswahl::Form::Klappliste: return Klappliste_bauen(a, auf, eltern);
    case Auswahl::Form::Liste: return Liste_bauen(a, auf, eltern);
    case Auswahl::Form::Optionen: return Optionen_bauen(a, auf, eltern);
    case Auswahl::Form::Reiter: return Reiter_bauen(a, auf, eltern);
    case Auswahl::Form::Leiste: return Leiste_bauen(a, auf, eltern);
    case Auswahl::Form::Raster: break;
  }
  auto* const w = new Kartenfeld(a, eltern);
  auf.binden(a, [&a, w] {
    Gemeinsames(*w, a);
    w->auffrischen();
  });
  return w;
}

// A one-line field that tells when the focus leaves it.
class Zeilenfeld final : public QLineEdit {
 public:
  Zeilenfeld(Textfeld& t, QWidget* eltern) : QLineEdit(eltern), t_(t) {}

 protected:
  void focusOutEvent(QFocusEvent* e) override {
    QLineEdit::focusOutEvent(e);
    // A popup or another window is no leaving; nor is a control that went away meanwhile.
    if (e->reason() == Qt::PopupFocusReason || e->reason() == Qt::ActiveWindowFocusReason) return;
    if (t_.frei && t_.sichtbar) Handeln([this] { t_.verlassen(); });
  }

 private:
  Textfeld& t_;
};

QWidget* Zeile_bauen(Textfeld& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Zeilenfeld(t, eltern);
  QObject::connect(w, &QLineEdit::textEdited, w, [&t](const QString& s) { Handeln([&] { t.eingeben(S(s)); }); });
  auf.binden(t, [&t, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, t);
    w->setReadOnly(t.nur_lesen);
    const QString text = Q(t.text());
    if (w->text() != text) {
      const int stelle = w->cursorPosition();
      w->setText(text);
      w->setCursorPosition(std::min(stelle, static_cast<int>(text.size())));
    }
    Einfaerben(*w, t.farbe);
  });
  return w;
}

QWidget* Mehrzeilig_bauen(Textfeld& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QPlainTextEdit(eltern);
  w->setMinimumHeight(10 * raster);
  w->setTabChangesFocus(true);
  // The store keeps CR LF, the widget LF.
  QObject::connect(w, &QPlainTextEdit::textChanged, w, [&t, w] {
    if (!t.nur_lesen) Handeln([&] { t.eingeben(S(w->toPlainText().replace("\n", "\r\n"))); });
  });
  auf.binden(t, [&t, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, t);
    w->setReadOnly(t.nur_lesen);
    QString text = Q(t.text());
    text.replace("\r\n", "\n").remove('\r');
    const QString alt = w->toPlainText();
    if (alt == text) return;
    if (text.startsWith(alt)) {  // a log that grows
      w->moveCursor(QTextCursor::End);
      w->insertPlainText(text.mid(alt.size()));
      w->ensureCursorVisible();
    } else {
      w->setPlainText(text);
    }
  });
  return w;
}

QWidget* Schieber_bauen(Schieber& s, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QSlider(Qt::Horizontal, eltern);
  w->setMinimumWidth(12 * raster);
  w->setFocusPolicy(Qt::StrongFocus);
  QObject::connect(w, &QSlider::valueChanged, w, [&s](int wert) { Handeln([&s, wert] { s.schieben(wert); }); });
  auf.binden(s, [&s, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, s);
    w->setRange(s.von(), s.bis());
    w->setSingleStep(s.klein);
    w->setPageStep(s.gross);
    w->setValue(s.wert());
  });
  return w;
}

class Klickschild final : public QLabel {
 public:
  Klickschild(Schild& s, QWidget* eltern) : QLabel(eltern), s_(s) {}

 protected:
  void mouseReleaseEvent(QMouseEvent* e) override {
    QLabel::mouseReleaseEvent(e);
    if (s_.wenn_angeklickt) Handeln([this] { s_.anklicken(); });
  }

 private:
  Schild& s_;
};

QWidget* Schild_bauen(Schild& s, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Klickschild(s, eltern);
  w->setWordWrap(true);
  w->setTextFormat(Qt::PlainText);
  w->setTextInteractionFlags(Qt::TextSelectableByMouse);
  if (s.wenn_angeklickt) w->setCursor(Qt::PointingHandCursor);
  auf.binden(s, [&s, w] {
    Gemeinsames(*w, s);
    const QString text = Q(*s.titel);
    w->setText(text);
    // Short texts stand on one line; only sentences wrap.
    w->setWordWrap(text.size() > 40);
    Einfaerben(*w, s.farbe);
  });
  return w;
}

QWidget* Balken_bauen(Balken& b, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QProgressBar(eltern);
  w->setRange(0, 1000);
  auf.binden(b, [&b, w] {
    Gemeinsames(*w, b);
    const double anteil = b.bis > b.von ? (*b.wert - b.von) / (b.bis - b.von) : 0.0;
    w->setValue(static_cast<int>(std::lround(std::clamp(anteil, 0.0, 1.0) * 1000.0)));
  });
  return w;
}

QWidget* Kalender_bauen(Kalender& k, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QCalendarWidget(eltern);
  w->setFirstDayOfWeek(Qt::Monday);
  w->setGridVisible(false);
  QObject::connect(w, &QCalendarWidget::clicked, w, [&k](QDate d) {
    Handeln([&] { k.waehlen({d.year(), d.month(), d.day()}); });
  });
  QObject::connect(w, &QCalendarWidget::activated, w, [&k](QDate d) {
    Handeln([&] { k.waehlen({d.year(), d.month(), d.day()}); });
  });
  auf.binden(k, [&k, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, k);
    w->setSelectedDate({k.datum().jahr, k.datum().monat, k.datum().tag});
  });
  return w;
}

QWidget* Baum_bauen(Baum& b, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Baumfeld(b, eltern);
  auf.binden(b, [&b, w] {
    Gemeinsames(*w, b);
    w->auffrischen();
  });
  return w;
}

}  // namespace

QWidget* Bauen(Steuerelement& e, Auffrischer& auf, QWidget* eltern) {
  switch (e.art) {
    case Art::Taste: return Taste_bauen(static_cast<Taste&>(e), auf, eltern);
    case Art::Kaestchen: return Kaestchen_bauen(static_cast<Kaestchen&>(e), auf, eltern);
    case Art::Auswahl: return Auswahl_bauen(static_cast<Auswahl&>(e), auf, eltern);
    case Art::Textfeld: {
      auto& t = static_cast<Textfeld&>(e);
      return t.mehrzeilig ? Mehrzeilig_bauen(t, auf, eltern) : Zeile_bauen(t, auf, eltern);
    }
    case Art::Schieber: return Schieber_bauen(static_cast<Schieber&>(e), auf, eltern);
    case Art::Schild: return Schild_bauen(static_cast<Schild&>(e), auf, eltern);
    case Art::Balken: return Balken_bauen(static_cast<Balken&>(e), auf, eltern);
    case Art::Kalender: return Kalender_bauen(static_cast<Kalender&>(e), auf, eltern);
    case Art::Baum: return Baum_bauen(static_cast<Baum&>(e), auf, eltern);
    case Art::Rahmen: break;  // the renderer's own
  }
  return new QWidget(eltern);
}

QAction* Aktion_bauen(Steuerelement& e, Auffrischer& auf, QObject* eltern) {
  auto* const aktion = new QAction(eltern);
  aktion->setObjectName(Q(e.name()));
  const auto gemeinsames = [&e, aktion] {
    aktion->setText(Q(*e.titel));
    aktion->setToolTip(Q(*e.hinweis));
    aktion->setEnabled(e.frei);
    aktion->setVisible(e.sichtbar);
  };
  if (e.art == Art::Kaestchen) {
    auto& k = static_cast<Kaestchen&>(e);
    aktion->setCheckable(true);
    QObject::connect(aktion, &QAction::toggled, aktion, [&k](bool an) { Handeln([&k, an] { k.haken(an); }); });
    auf.binden(e, [&k, aktion, gemeinsames] {
      const QSignalBlocker stumm(aktion);
      gemeinsames();
      aktion->setChecked(k.an());
    });
  } else {
    auto& t = static_cast<Taste&>(e);
    if (!t.bild.empty()) aktion->setIcon(Symbolbild(t.bild));
    QObject::connect(aktion, &QAction::triggered, aktion, [&t] { Handeln([&t] { t.druecken(); }); });
    auf.binden(e, gemeinsames);
  }
  return aktion;
}

}  // namespace zav::fenster
