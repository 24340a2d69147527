#include "zavlink/bindung.h"

#include <QApplication>
#include <QCalendarWidget>
#include <QCheckBox>
#include <QLabel>
#include <QMessageBox>
#include <QMouseEvent>
#include <QPainter>
#include <QProgressBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QSlider>
#include <QTableView>
#include <QTimer>
#include <QToolButton>
#include <QWheelEvent>
#include <cmath>
#include <exception>

#include "zavlink/baum.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/symbole.h"
#include "zavlink/textfelder.h"
#include "zavlink/wahlfelder.h"
#include "zavlink/zugang.h"

namespace zav::fenster {

Auffrischer::Auffrischer(QObject* eltern) : QObject(eltern) {}

Auffrischer::~Auffrischer() {
  for (const auto& e : eintraege_) e->element->beobachter = nullptr;
}

void Auffrischer::binden(Steuerelement& e, std::function<void()> auffrischen) {
  auto [stelle, neu] = nach_element_.try_emplace(&e);
  if (neu) {
    stelle->second = eintraege_.emplace_back(std::make_unique<Eintrag>(Eintrag{&e})).get();
    e.beobachter = [this, eintrag = stelle->second] { vormerken(*eintrag); };
  }
  stelle->second->auffrischen.push_back(std::move(auffrischen));
  stelle->second->auffrischen.back()();
}

void Auffrischer::vormerken(Eintrag& e) {
  e.wartet = true;
  if (bestellt_) return;
  bestellt_ = true;
  QTimer::singleShot(0, this, [this] { nachholen(); });
}

void Auffrischer::alles_vormerken() {
  for (const auto& e : eintraege_) vormerken(*e);
}

void Auffrischer::nachholen() {
  bestellt_ = false;
  for (const auto& e : eintraege_) {
    if (!e->wartet) continue;
    e->wartet = false;
    for (const auto& auffrischen : e->auffrischen) auffrischen();
  }
}

void Handeln(const std::function<void()>& tat) {
  try {
    tat();
  } catch (const std::exception& fehler) {
    QMessageBox kasten(
        QMessageBox::Critical, "Fehler im Programm",
        QString("Der Befehl wurde abgebrochen. Bitte speichern Sie das Projekt unter anderem Namen.\n\n%1")
            .arg(fehler.what()),
        QMessageBox::Ok, QApplication::activeWindow());
    kasten.setTextFormat(Qt::PlainText);
    kasten.exec();
  }
}

void Handeln(Steuerelement& e, const std::function<void()>& tat) {
  Handeln(tat);
  e.geaendert();
}

void Gemeinsames(QWidget& w, const Steuerelement& e) {
  w.setEnabled(e.frei);
  if (w.isVisibleTo(w.parentWidget()) != *e.sichtbar || w.isHidden() == *e.sichtbar) w.setVisible(e.sichtbar);
  w.setToolTip(Tipp(Q(e.tipp())));
  w.setAccessibleDescription(Q(e.tipp()));
  w.setObjectName(Q(e.name()));
  const QString titel = Ohne_kuerzel(Q(*e.titel));
  if (!titel.isEmpty()) {
    w.setAccessibleName(titel);
  } else if (w.accessibleName().isEmpty()) {
    w.setAccessibleName(Q(*e.hinweis));
  }
}

namespace {

// Colour alone does not tell a used key.
QString Marken(const Taste& t) {
  if (*t.farbe != Farbe::belegt) return {};
  return QStringLiteral("  ") + (t.marken->empty() ? QStringLiteral("•") : Q(*t.marken));
}

QWidget* Taste_bauen(Taste& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QPushButton(eltern);
  w->setAutoDefault(false);
  w->setDefault(t.standard);
  if (!t.kuerzel.empty()) w->setShortcut(QKeySequence(Q(t.kuerzel), QKeySequence::PortableText));
  QObject::connect(w, &QPushButton::clicked, w, [&t] { Handeln([&t] { t.druecken(); }); });
  auf.binden(t, [&t, w] {
    Gemeinsames(*w, t);
    w->setText(Q(*t.titel) + Marken(t));
    if (!t.bild.empty()) w->setIcon(Symbolbild(t.bild, *t.farbe != Farbe::normal));
    Einfaerben(*w, t.farbe);
  });
  if (t.bild.starts_with("layout-")) {
    w->setIconSize(QSize(5 * raster, 5 * raster));
    w->setProperty("links", true);
  }
  return w;
}

QWidget* Kaestchen_bauen(Kaestchen& k, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QCheckBox(eltern);
  QObject::connect(w, &QCheckBox::toggled, w, [&k](bool an) { Handeln(k, [&k, an] { k.haken(an); }); });
  auf.binden(k, [&k, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, k);
    w->setText(Q(*k.titel));
    w->setChecked(k.an());
    Einfaerben(*w, k.farbe);
  });
  return w;
}

// A slider that leaves the wheel to the page under it unless it has the keyboard.
class Reglerfeld final : public QSlider {
 public:
  explicit Reglerfeld(QWidget* eltern) : QSlider(Qt::Horizontal, eltern) {
    setFocusPolicy(Qt::StrongFocus);
    setMinimumWidth(12 * raster);
  }

 protected:
  void wheelEvent(QWheelEvent* e) override {
    if (hasFocus()) QSlider::wheelEvent(e);
    else e->ignore();
  }
};

QWidget* Schieber_bauen(Schieber& s, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Reglerfeld(eltern);
  QObject::connect(w, &QSlider::valueChanged, w,
                   [&s](int wert) { Handeln(s, [&s, wert] { s.schieben(wert); }); });
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

// A text that may be clicked; then it takes the keyboard too, and shows that it has it.
class Klickschild final : public QLabel {
 public:
  Klickschild(Schild& s, QWidget* eltern) : QLabel(eltern), s_(s) {
    if (!s.wenn_angeklickt) return;
    setCursor(Qt::PointingHandCursor);
    setFocusPolicy(Qt::TabFocus);
    Rolle_setzen(*this, QAccessible::Link);
  }

 protected:
  void mouseReleaseEvent(QMouseEvent* e) override {
    QLabel::mouseReleaseEvent(e);
    anklicken();
  }
  void keyPressEvent(QKeyEvent* e) override {
    const bool taste = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter || e->key() == Qt::Key_Space;
    if (!taste || !s_.wenn_angeklickt) return QLabel::keyPressEvent(e);
    anklicken();
  }
  void paintEvent(QPaintEvent* e) override {
    QLabel::paintEvent(e);
    if (!hasFocus()) return;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    p.setPen(QPen(QApplication::palette().color(QPalette::Highlight), 1.6));
    p.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 4, 4);
  }

 private:
  void anklicken() {
    if (s_.wenn_angeklickt && s_.frei) Handeln([this] { s_.anklicken(); });
  }
  Schild& s_;
};

QWidget* Schild_bauen(Schild& s, Auffrischer& auf, QWidget* eltern) {
  static constexpr int satz = 60;  // characters from which a text may wrap
  static const QRegularExpression zahl("^[-+]?\\d+([.,:]\\d+)*( ?(%|s|m/s|Lux|°C))?$");
  auto* const w = new Klickschild(s, eltern);
  w->setTextFormat(Qt::PlainText);
  if (s.ueberschrift) {
    QFont schrift = w->font();
    schrift.setPointSizeF(schrift.pointSizeF() * 1.6);
    w->setFont(schrift);
  }
  auf.binden(s, [&s, w] {
    Gemeinsames(*w, s);
    const QString text = Q(*s.titel);
    if (!s.bild->empty()) {
      const int groesse = (s.ueberschrift ? 6 : 3) * raster;
      w->setPixmap(Symbolbild(s.bild).pixmap(groesse, groesse));
      return;
    }
    // Wrapping is settled before the text: it decides how the label is measured.
    w->setWordWrap(text.size() > satz);
    w->setMinimumWidth(text.size() > satz ? 40 * raster : 0);
    w->setAlignment((s.zahl || zahl.match(text).hasMatch() ? Qt::AlignRight : Qt::AlignLeft) |
                    Qt::AlignVCenter);
    w->setText(text);
    Einfaerben(*w, s.farbe);
    w->setMargin(*s.farbe == Farbe::normal ? 0 : raster / 2);
  });
  return w;
}

// A flat strip that fills in one calm colour; the percentage stands beside it.
class Balkenfeld final : public QProgressBar {
 public:
  explicit Balkenfeld(QWidget* eltern) : QProgressBar(eltern) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    static constexpr double hoehe = 10, rundung = 3;
    QPainter p(this);
    p.setRenderHint(QPainter::Antialiasing);
    const double schrift = isTextVisible() ? fontMetrics().horizontalAdvance("100 %") + raster : 0;
    const QRectF rinne(0.5, (height() - hoehe) / 2, width() - 1 - schrift, hoehe);
    p.setPen(QPen(palette().color(QPalette::Mid), 1));
    p.setBrush(palette().color(QPalette::Base));
    p.drawRoundedRect(rinne, rundung, rundung);
    const double anteil = static_cast<double>(value() - minimum()) / std::max(1, maximum() - minimum());
    if (anteil > 0) {
      p.setPen(Qt::NoPen);
      p.setBrush(palette().color(isEnabled() ? QPalette::Highlight : QPalette::Mid));
      p.drawRoundedRect(QRectF(rinne.topLeft(), QSizeF(std::max(2 * rundung, rinne.width() * anteil), hoehe)),
                        rundung, rundung);
    }
    p.setPen(palette().color(QPalette::WindowText));
    if (isTextVisible()) p.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter, text());
  }
};

QWidget* Balken_bauen(Balken& b, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Balkenfeld(eltern);
  w->setTextVisible(b.zeigt == Balken::Zeigt::fortschritt);
  w->setRange(0, 1000);
  w->setMinimumWidth(16 * raster);
  auf.binden(b, [&b, w] {
    Gemeinsames(*w, b);
    const double anteil = b.bis > b.von ? std::clamp((*b.wert - b.von) / (b.bis - b.von), 0.0, 1.0) : 0.0;
    w->setValue(static_cast<int>(std::lround(anteil * 1000)));
    w->setFormat(QString("%1 %").arg(std::lround(anteil * 100)));  // rounded: a transfer ends at 99.9
  });
  return w;
}

QWidget* Kalender_bauen(Kalender& k, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new QCalendarWidget(eltern);
  w->setFirstDayOfWeek(Qt::Monday);
  w->setVerticalHeaderFormat(QCalendarWidget::NoVerticalHeader);
  w->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  for (const auto& [name, pfeil] :
       {std::pair{"qt_calendar_prevmonth", Qt::LeftArrow}, {"qt_calendar_nextmonth", Qt::RightArrow}}) {
    if (auto* const knopf = w->findChild<QToolButton*>(name)) {
      knopf->setIcon(QIcon());
      knopf->setArrowType(pfeil);
    }
  }
  // A double click tells of its day twice, and the first may have closed the calendar.
  const auto waehlen = [&k](QDate d) {
    if (k.sichtbar && k.frei) Handeln([&] { k.waehlen({d.year(), d.month(), d.day()}); });
  };
  QObject::connect(w, &QCalendarWidget::clicked, w, waehlen);
  QObject::connect(w, &QCalendarWidget::activated, w, waehlen);
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
    case Art::Auswahl: return Wahlfeld_bauen(static_cast<Auswahl&>(e), auf, eltern);
    case Art::Textfeld: return Textfeld_bauen(static_cast<Textfeld&>(e), auf, eltern);
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
    aktion->setToolTip(Tipp(Q(e.tipp())));
    aktion->setEnabled(e.frei);
    aktion->setVisible(e.sichtbar);
  };
  if (e.art == Art::Kaestchen) {
    auto& k = static_cast<Kaestchen&>(e);
    aktion->setCheckable(true);
    QObject::connect(aktion, &QAction::toggled, aktion,
                     [&k](bool an) { Handeln(k, [&k, an] { k.haken(an); }); });
    auf.binden(e, [&k, aktion, gemeinsames] {
      const QSignalBlocker stumm(aktion);
      gemeinsames();
      aktion->setChecked(k.an());
    });
  } else {
    auto& t = static_cast<Taste&>(e);
    if (!t.bild.empty()) aktion->setIcon(Symbolbild(t.bild));
    if (!t.kuerzel.empty()) aktion->setShortcut(QKeySequence(Q(t.kuerzel), QKeySequence::PortableText));
    QObject::connect(aktion, &QAction::triggered, aktion, [&t] { Handeln([&t] { t.druecken(); }); });
    auf.binden(e, gemeinsames);
  }
  return aktion;
}

}  // namespace zav::fenster
