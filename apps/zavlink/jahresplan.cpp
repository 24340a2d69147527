#include "zavlink/jahresplan.h"

#include <QGridLayout>
#include <QHelpEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>
#include <functional>
#include <optional>
#include <vector>

#include "platform/uhrwerk.h"
#include "time/form_setup_uhr.h"
#include "time/sonneninfo.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/zugang.h"

namespace zav::fenster {

namespace {

constexpr int monate = 12;
constexpr int spalten = 31;

// A long stretch in the pure colour would shout; the first day of a sequence has it pure.
QColor Uhrfarbe(const Sequenztag& t) {
  if (t.uhr != 1 && t.uhr != 2) return {};
  const QColor voll = Farbe_qt(t.uhr == 1 ? Farbe::uhr1 : Farbe::uhr2);
  if (t.beginn) return voll;
  const auto mitte = [](int wert) { return (wert + 255) / 2; };
  return {mitte(voll.red()), mitte(voll.green()), mitte(voll.blue())};
}

QString In_worten(const Sequenztag& t) {
  if (t.uhr == Sequenztag::von_hand) return "Schaltuhr wie von Hand gewählt";
  const QString uhr = t.uhr == 0 ? "keine Schaltuhr" : QString("Schaltuhr %1").arg(t.uhr);
  return t.beginn ? "ab hier " + uhr : uhr;
}

class Jahresfeld final : public QWidget {
 public:
  Jahresfeld(Kalender& kalender, const Form_Setup_uhr& form, QWidget* eltern)
      : QWidget(eltern), kalender_(kalender), form_(form) {
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    setFocusPolicy(Qt::StrongFocus);
    setMouseTracking(true);
    setAccessibleName("Jahresplan der Schaltuhren");
    Rolle_setzen(*this, QAccessible::Chart);
    gehen(kalender.datum());
  }

  std::function<void()> wenn_gezeigt;  // another day or another year
  int jahr() const { return zeiger_.jahr; }
  QString tag_in_worten() const { return worte(zeiger_); }

  void blaettern(int jahre) {
    const int ziel = std::clamp(zeiger_.jahr + jahre, 2000, 2099);
    gehen({ziel, zeiger_.monat, std::min(zeiger_.tag, Tage_im_monat(ziel, zeiger_.monat))});
  }
  // The rows have changed, or another one is in hand.
  void auffrischen(bool zeiger_nachfuehren) {
    if (zeiger_nachfuehren) zeiger_ = kalender_.datum();
    gehen(zeiger_);
  }

  QSize sizeHint() const override { return {beschriftung() + spalten * 25, (monate + 1) * 20}; }
  QSize minimumSizeHint() const override { return {beschriftung() + spalten * 19, (monate + 1) * 17}; }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    QFont klein = font();
    klein.setPointSizeF(klein.pointSizeF() * 0.85);
    for (int m = 1; m <= monate; ++m) {
      p.setFont(font());
      p.setPen(palette().color(QPalette::WindowText));
      const QRectF zeile = zelle({jahr(), m, 1});
      p.drawText(QRectF(0, zeile.top(), zeile.left() - raster, zeile.height()),
                 Qt::AlignLeft | Qt::AlignVCenter, Q(std::string(Monat_wort(m))));
      p.setFont(klein);
      for (int t = 1; t <= Tage_im_monat(jahr(), m); ++t) tag_malen(p, {jahr(), m, t});
    }
  }

  void keyPressEvent(QKeyEvent* e) override {
    const auto im_monat = [this](int monate_weiter) {
      const int m = zeiger_.jahr * monate + zeiger_.monat - 1 + monate_weiter;
      const int j = m / monate;
      gehen({j, m % monate + 1, std::min(zeiger_.tag, Tage_im_monat(j, m % monate + 1))});
    };
    switch (e->key()) {
      case Qt::Key_Left: gehen(Plus_tage(zeiger_, -1)); break;
      case Qt::Key_Right: gehen(Plus_tage(zeiger_, 1)); break;
      case Qt::Key_Up: im_monat(-1); break;
      case Qt::Key_Down: im_monat(1); break;
      case Qt::Key_PageUp: blaettern(-1); break;
      case Qt::Key_PageDown: blaettern(1); break;
      case Qt::Key_Home: gehen({zeiger_.jahr, zeiger_.monat, 1}); break;
      case Qt::Key_End:
        gehen({zeiger_.jahr, zeiger_.monat, Tage_im_monat(zeiger_.jahr, zeiger_.monat)});
        break;
      case Qt::Key_Space:
      case Qt::Key_Return:
      case Qt::Key_Enter: nehmen(zeiger_); break;
      default: QWidget::keyPressEvent(e);
    }
  }
  void mousePressEvent(QMouseEvent* e) override {
    const auto d = tag_bei(e->position());
    if (e->button() == Qt::LeftButton && d) nehmen(*d);
  }
  void mouseMoveEvent(QMouseEvent* e) override {
    setCursor(tag_bei(e->position()) ? Qt::PointingHandCursor : Qt::ArrowCursor);
  }
  bool event(QEvent* e) override {
    if (e->type() != QEvent::ToolTip) return QWidget::event(e);
    auto* const hilfe = static_cast<QHelpEvent*>(e);
    if (const auto d = tag_bei(hilfe->pos())) {
      QToolTip::showText(hilfe->globalPos(), worte(*d), this, zelle(*d).toRect());
    } else {
      QToolTip::hideText();
    }
    return true;
  }
  void focusInEvent(QFocusEvent* e) override {
    QWidget::focusInEvent(e);
    update();
  }
  void focusOutEvent(QFocusEvent* e) override {
    QWidget::focusOutEvent(e);
    update();
  }

 private:
  int beschriftung() const { return fontMetrics().horizontalAdvance("September") + 2 * raster; }

  QRectF zelle(Datum d) const {
    const double b = (width() - beschriftung()) / static_cast<double>(spalten);
    const double h = height() / static_cast<double>(monate);
    return {beschriftung() + (d.tag - 1) * b, (d.monat - 1) * h, b, h};
  }
  std::optional<Datum> tag_bei(QPointF p) const {
    const QRectF erste = zelle({jahr(), 1, 1});
    if (p.x() < erste.left() || p.y() < 0) return std::nullopt;
    const Datum d{jahr(), 1 + static_cast<int>(p.y() / erste.height()),
                  1 + static_cast<int>((p.x() - erste.left()) / erste.width())};
    if (d.monat > monate || d.tag > Tage_im_monat(d.jahr, d.monat)) return std::nullopt;
    return d;
  }

  const Sequenztag& sequenztag(Datum d) const {
    return plan_.at(static_cast<std::size_t>(Tag_des_jahres(d) - 1));
  }
  QString worte(Datum d) const { return Q(Datum_mit_wochentag(d)) + ": " + In_worten(sequenztag(d)); }

  void tag_malen(QPainter& p, Datum d) const {
    const Sequenztag& t = sequenztag(d);
    const QRectF r = zelle(d);
    const QColor farbe = Uhrfarbe(t);
    p.fillRect(r.adjusted(0, 1, 0, -1), farbe.isValid() ? farbe : palette().color(QPalette::Base));
    // A line behind every Sunday parts the weeks.
    if (Wochentag(d) == 6)
      p.fillRect(QRectF(r.right() - 1, r.top() + 1, 1, r.height() - 2), palette().color(QPalette::Mid));
    const QColor schrift = farbe.isValid() ? Farbe_schrift() : palette().color(QPalette::Text);
    if (t.beginn) p.fillRect(QRectF(r.left(), r.top() + 1, 3, r.height() - 2), schrift);
    QFont f = p.font();
    f.setBold(t.beginn || d == Heute());
    f.setUnderline(d == Heute());
    p.setFont(f);
    p.setPen(schrift);
    p.drawText(r, Qt::AlignCenter, QString::number(d.tag));
    if (d != zeiger_) return;
    p.setPen(QPen(palette().color(QPalette::Highlight), hasFocus() ? 2.5 : 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(1, 1, -1, -1));
  }

  void gehen(Datum d) {
    d.jahr = std::clamp(d.jahr, 2000, 2099);
    zeiger_ = d;
    plan_ = form_.plan(d.jahr);
    Beschreiben(*this, worte(d));
    if (wenn_gezeigt) wenn_gezeigt();
    update();
  }
  void nehmen(Datum d) {
    gehen(d);
    Handeln(kalender_, [&] { kalender_.waehlen(d); });
  }

  Kalender& kalender_;
  const Form_Setup_uhr& form_;
  Datum zeiger_;  // the day of the keyboard; its year is shown
  std::vector<Sequenztag> plan_;
};

// What a colour means, and a piece of it.
class Farbprobe final : public QWidget {
 public:
  Farbprobe(const Sequenztag& tag, QWidget* eltern) : QWidget(eltern), farbe_(Uhrfarbe(tag)) {
    setFixedSize(20, 14);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter p(this);
    p.setPen(palette().color(QPalette::Mid));
    p.setBrush(farbe_.isValid() ? farbe_ : palette().color(QPalette::Base));
    p.drawRect(rect().adjusted(0, 0, -1, -1));
  }

 private:
  QColor farbe_;
};

QToolButton* Blaetterknopf(Qt::ArrowType pfeil, const QString& hinweis, QWidget* eltern) {
  auto* const knopf = new QToolButton(eltern);
  knopf->setArrowType(pfeil);
  knopf->setToolTip(hinweis);
  knopf->setAccessibleName(hinweis);
  knopf->setAutoRaise(true);
  knopf->setFocusPolicy(Qt::NoFocus);  // the keyboard turns the pages in the plan
  return knopf;
}

}  // namespace

QWidget* Jahresplan_bauen(const Anordnung& a, Auffrischer& auf, QWidget* eltern, Gebautes& ergebnis) {
  auto& kalender = static_cast<Kalender&>(*a.kinder.at(0).element);
  auto& form = dynamic_cast<Form_Setup_uhr&>(*kalender.formular());
  auto* const w = new QWidget(eltern);
  auto* const spalte = new QVBoxLayout(w);
  spalte->setContentsMargins(0, 0, 0, 0);
  spalte->setSpacing(raster / 2);
  auto* const feld = new Jahresfeld(kalender, form, w);

  auto* const kopf = new QHBoxLayout;
  auto* const jahr = new QLabel(w);
  QFont fett = jahr->font();
  fett.setBold(true);
  jahr->setFont(fett);
  jahr->setBuddy(feld);
  auto* const zurueck = Blaetterknopf(Qt::LeftArrow, "Voriges Jahr (Bild auf)", w);
  auto* const weiter = Blaetterknopf(Qt::RightArrow, "Nächstes Jahr (Bild ab)", w);
  for (QWidget* teil : std::initializer_list<QWidget*>{zurueck, jahr, weiter}) kopf->addWidget(teil);
  kopf->addStretch(1);
  for (const int uhr : {1, 2, Sequenztag::von_hand}) {
    kopf->addSpacing(raster);
    kopf->addWidget(new Farbprobe({.uhr = uhr}, w));
    kopf->addWidget(
        new QLabel(uhr > 0 ? QString("Schaltuhr %1").arg(uhr) : "keine oder von Hand gewählt", w));
  }
  spalte->addLayout(kopf);
  spalte->addWidget(feld, 1);
  auto* const tag = new QLabel(w);
  spalte->addWidget(tag);

  QObject::connect(zurueck, &QToolButton::clicked, feld, [feld] { feld->blaettern(-1); });
  QObject::connect(weiter, &QToolButton::clicked, feld, [feld] { feld->blaettern(1); });
  feld->wenn_gezeigt = [feld, jahr, tag] {
    jahr->setText("&Jahr " + QString::number(feld->jahr()));
    tag->setText(feld->tag_in_worten());
  };
  ergebnis.widgets[&kalender] = feld;
  auf.binden(kalender, [feld] { feld->auffrischen(true); });
  for (std::size_t i = 0; i < Form_Setup_uhr::zeilen; ++i) {
    for (Steuerelement* e :
         std::initializer_list<Steuerelement*>{&form.Text_dat[i], &form.Combo1[i], &form.Check1[i]}) {
      auf.binden(*e, [feld] { feld->auffrischen(false); });
    }
  }
  return w;
}

}  // namespace zav::fenster
