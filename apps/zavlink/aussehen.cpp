#include "zavlink/aussehen.h"

#include <QApplication>
#include <QEvent>
#include <QLibraryInfo>
#include <QLocale>
#include <QPainter>
#include <QStyleOption>
#include <QTimer>
#include <QTranslator>
#include <algorithm>
#include <utility>

#include "zavlink/farben.h"

namespace zav::fenster {

namespace {

constexpr int hoehe_ziel = 28;  // of buttons, fields and lists
constexpr double rundung = 4;
constexpr int balkenhoehe = 8;

bool Hat_tastatur(const QStyleOption& o) {
  return o.state.testFlag(QStyle::State_HasFocus) && o.state.testFlag(QStyle::State_KeyboardFocusChange);
}

// A flat key: face, line around it, and a ring in the highlight's colour when it has the keyboard.
void Flaeche_malen(QPainter& p, const QStyleOption& o, bool vorgabe) {
  const QStyle::State z = o.state;
  const bool frei = z.testFlag(QStyle::State_Enabled);
  QColor flaeche = o.palette.color(QPalette::Button);
  if (!frei) flaeche = o.palette.color(QPalette::Window);
  if (z.testFlag(QStyle::State_Sunken)) flaeche = flaeche.darker(115);
  else if (frei && z.testFlag(QStyle::State_MouseOver))
    flaeche = flaeche.lightness() < 128 ? flaeche.lighter(115) : flaeche.darker(104);
  const bool gedrueckt = z.testFlag(QStyle::State_On);
  const bool ring = frei && (vorgabe || gedrueckt || Hat_tastatur(o));
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setBrush(flaeche);
  p.setPen(QPen(ring ? QApplication::palette().color(QPalette::Highlight)
                     : QApplication::palette().color(QPalette::Mid),
                gedrueckt ? 2 : 1));
  p.drawRoundedRect(QRectF(o.rect).adjusted(1, 1, -1, -1), rundung, rundung);
  p.restore();
}

// The line around fields and boxes: the highlight's colour where the keyboard is.
QPen Linie(const QStyleOption& o) {
  const bool hier = o.state.testFlag(QStyle::State_Enabled) && o.state.testFlag(QStyle::State_HasFocus);
  QColor farbe = QApplication::palette().color(hier ? QPalette::Highlight : QPalette::Mid);
  if (!hier && o.state.testFlag(QStyle::State_Enabled)) {
    farbe = Ist_dunkel(QApplication::palette()) ? farbe.lighter(130) : farbe.darker(115);
  }
  return {farbe, hier ? 1.6 : 1.0};
}

void Feld_malen(QPainter& p, const QStyleOption& o) {
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Linie(o));
  p.setBrush(o.palette.color(o.state.testFlag(QStyle::State_Enabled) ? QPalette::Base : QPalette::Window));
  if (!o.state.testFlag(QStyle::State_Enabled) &&
      o.palette.color(QPalette::Base) != QApplication::palette().color(QPalette::Base)) {
    p.setBrush(o.palette.color(QPalette::Base));
  }
  p.drawRoundedRect(QRectF(o.rect).adjusted(0.8, 0.8, -0.8, -0.8), rundung, rundung);
  p.restore();
}

void Rahmen_malen(QPainter& p, const QStyleOption& o) {
  p.save();
  p.setPen(QPen(Linie(o).color(), 1));
  p.setBrush(Qt::NoBrush);
  p.drawRect(o.rect.adjusted(0, 0, -1, -1));
  p.restore();
}

// Boxes and option buttons: an outline, filled in the highlight's colour when set.
void Anzeige_beginnen(QPainter& p, const QStyleOption& o, bool an) {
  const bool frei = o.state.testFlag(QStyle::State_Enabled);
  const QColor voll = frei ? QApplication::palette().color(QPalette::Highlight)
                           : QApplication::palette().color(QPalette::Mid);
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(an ? QPen(voll, 1) : Linie(o));
  p.setBrush(an ? voll : QApplication::palette().color(frei ? QPalette::Base : QPalette::Window));
}

void Haken_malen(QPainter& p, const QStyleOption& o) {
  const bool an = o.state.testFlag(QStyle::State_On);
  const QRectF r = QRectF(o.rect).adjusted(0.8, 0.8, -0.8, -0.8);
  p.save();
  Anzeige_beginnen(p, o, an);
  p.drawRoundedRect(r, 3, 3);
  if (an) {
    p.setPen(QPen(Qt::white, r.width() * 0.13, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    const auto ort = [&r](double x, double y) {
      return QPointF(r.left() + x * r.width(), r.top() + y * r.height());
    };
    p.drawPolyline(QPolygonF({ort(0.24, 0.52), ort(0.43, 0.71), ort(0.77, 0.31)}));
  }
  p.restore();
}

void Punkt_malen(QPainter& p, const QStyleOption& o) {
  const bool an = o.state.testFlag(QStyle::State_On);
  const QRectF r = QRectF(o.rect).adjusted(0.8, 0.8, -0.8, -0.8);
  p.save();
  Anzeige_beginnen(p, o, an);
  p.drawEllipse(r);
  if (an) {
    p.setPen(Qt::NoPen);
    p.setBrush(Qt::white);
    p.drawEllipse(r.center(), r.width() * 0.2, r.height() * 0.2);
  }
  p.restore();
}

// A flat bar with its figure behind it.
void Balken_malen(QPainter& p, const QStyleOptionProgressBar& o) {
  const int zahl = o.fontMetrics.horizontalAdvance("100 %") + raster;
  const double anteil = (o.progress - o.minimum) / std::max(1.0, double(o.maximum) - o.minimum);
  const QRectF rinne(o.rect.left(), o.rect.center().y() - balkenhoehe / 2.0 + 0.5, o.rect.width() - zahl,
                     balkenhoehe);
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  p.setPen(Qt::NoPen);
  for (const auto& [rolle, teil] : {std::pair{QPalette::Midlight, 1.0}, {QPalette::Highlight, anteil}}) {
    p.setBrush(o.palette.color(rolle));
    const QRectF r(rinne.topLeft(), QSizeF(rinne.width() * teil, rinne.height()));
    if (r.width() >= 1) p.drawRoundedRect(r, balkenhoehe / 2.0, balkenhoehe / 2.0);
  }
  p.restore();
  QApplication::style()->drawItemText(&p, o.rect, Qt::AlignRight | Qt::AlignVCenter, o.palette, true, o.text,
                                      QPalette::WindowText);
}

}  // namespace

Stil::Stil() : QProxyStyle("Fusion") {}

int Stil::pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const {
  switch (m) {
    case PM_ButtonIconSize:
    case PM_SmallIconSize: return 18;
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight: return 2 * raster;
    case PM_TabBarTabHSpace: return static_cast<int>(2.5 * raster);
    default: return QProxyStyle::pixelMetric(m, o, w);
  }
}

int Stil::styleHint(StyleHint h, const QStyleOption* o, const QWidget* w, QStyleHintReturn* r) const {
  if (h == SH_EtchDisabledText) return 0;
  if (h == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(h, o, w, r);
}

QSize Stil::sizeFromContents(ContentsType t, const QStyleOption* o, const QSize& s, const QWidget* w) const {
  QSize g = QProxyStyle::sizeFromContents(t, o, s, w);
  switch (t) {
    case CT_PushButton:
      // Keys of one or two letters stand in dense grids.
      if (const auto* const k = qstyleoption_cast<const QStyleOptionButton*>(o);
          k != nullptr && k->text.size() > 3) {
        g.setWidth(g.width() + 2 * raster);
      }
      g.setHeight(std::max(g.height(), hoehe_ziel));
      break;
    case CT_LineEdit:
    case CT_ComboBox: g.setHeight(std::max(g.height(), hoehe_ziel)); break;
    case CT_MenuItem:
    case CT_MenuBarItem:
    case CT_TabBarTab: g.setHeight(std::max(g.height(), hoehe_ziel + 2)); break;
    default: break;
  }
  return g;
}

void Stil::drawControl(ControlElement e, const QStyleOption* o, QPainter* p, const QWidget* w) const {
  if (e == CE_PushButtonBevel) {
    const auto* const knopf = qstyleoption_cast<const QStyleOptionButton*>(o);
    const bool vorgabe = knopf != nullptr && knopf->features.testFlag(QStyleOptionButton::DefaultButton);
    const bool bedient = (o->state & (State_MouseOver | State_Sunken)) || Hat_tastatur(*o);
    if (w != nullptr && w->property("flach").toBool() && !vorgabe &&
        !(bedient && o->state.testFlag(State_Enabled)))
      return;
    if (knopf != nullptr && !knopf->features.testFlag(QStyleOptionButton::HasMenu)) {
      Flaeche_malen(*p, *o, knopf->features.testFlag(QStyleOptionButton::DefaultButton));
      return;
    }
  }
  if (e == CE_PushButtonLabel && w != nullptr && w->property("links").toBool()) {
    // A picture with its name: in a column they stand in line.
    const auto& knopf = *qstyleoption_cast<const QStyleOptionButton*>(o);
    QRect platz = o->rect.adjusted(raster, 0, -raster, 0);
    knopf.icon.paint(p, QRect(platz.topLeft(), QSize(knopf.iconSize.width(), platz.height())),
                     Qt::AlignCenter, o->state.testFlag(State_Enabled) ? QIcon::Normal : QIcon::Disabled);
    platz.setLeft(platz.left() + knopf.iconSize.width() + raster);
    drawItemText(p, platz, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic, o->palette,
                 o->state.testFlag(State_Enabled), knopf.text, QPalette::ButtonText);
    return;
  }
  if (const auto* const zeile = qstyleoption_cast<const QStyleOptionMenuItem*>(o);
      e == CE_MenuItem && zeile != nullptr && o->state.testFlag(State_Selected) && !zeile->icon.isNull()) {
    // The line in hand is filled with the highlight's colour, as a chosen line of a list is.
    const int mass = pixelMetric(PM_SmallIconSize, o, w);
    const auto modus = o->state.testFlag(State_Enabled) ? QIcon::Selected : QIcon::Disabled;
    QStyleOptionMenuItem gewaehlt = *zeile;
    gewaehlt.icon = zeile->icon.pixmap(QSize(mass, mass), p->device()->devicePixelRatio(), modus);
    return QProxyStyle::drawControl(e, &gewaehlt, p, w);
  }
  if (e == CE_ProgressBar) return Balken_malen(*p, *qstyleoption_cast<const QStyleOptionProgressBar*>(o));
  if (e == CE_TabBarTabShape) {
    // The chosen page is underlined; the strip itself is one line.
    const bool gewaehlt = o->state.testFlag(State_Selected);
    const QRect r = o->rect;
    p->fillRect(QRect(r.left(), r.bottom(), r.width(), 1), o->palette.color(QPalette::Mid));
    if (o->state.testFlag(State_MouseOver) && !gewaehlt)
      p->fillRect(r.adjusted(0, 0, 0, -1), o->palette.color(QPalette::Midlight));
    if (gewaehlt)
      p->fillRect(QRect(r.left(), r.bottom() - 2, r.width(), 3), o->palette.color(QPalette::Highlight));
    return;
  }
  QProxyStyle::drawControl(e, o, p, w);
}

void Stil::drawPrimitive(PrimitiveElement e, const QStyleOption* o, QPainter* p, const QWidget* w) const {
  if (e == PE_PanelButtonTool && w != nullptr && w->property("leiste").toBool()) {
    Flaeche_malen(*p, *o, false);
    return;
  }
  switch (e) {
    case PE_PanelLineEdit: {
      const auto* const feld = qstyleoption_cast<const QStyleOptionFrame*>(o);
      if (feld != nullptr && feld->lineWidth > 0) return Feld_malen(*p, *o);
      break;
    }
    case PE_Frame: return Rahmen_malen(*p, *o);
    case PE_IndicatorCheckBox: return Haken_malen(*p, *o);
    case PE_IndicatorRadioButton: return Punkt_malen(*p, *o);
    default: break;
  }
  QProxyStyle::drawPrimitive(e, o, p, w);
}

namespace {

// Answers a palette of the desktop's with the program's own in the same tone, now and whenever it changes.
class Arbeitsplatzfolger final : public QObject {
 public:
  explicit Arbeitsplatzfolger(QObject* eltern) : QObject(eltern) {
    folgen();
    eltern->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject* o, QEvent* e) override {
    if (e->type() == QEvent::ThemeChange && !std::exchange(gefragt_, true)) {
      // Each window is told. Our palette lies over the desktop's; without it that one shows.
      QTimer::singleShot(0, this, [this] {
        gefragt_ = false;
        QApplication::setPalette(QPalette());
      });
    }
    if (e->type() == QEvent::ApplicationPaletteChange && o == parent() && QApplication::palette() != eigene_)
      folgen();
    return false;
  }

 private:
  void folgen() {
    QApplication::setPalette(Palette(Ist_dunkel(QApplication::palette())));
    eigene_ = QApplication::palette();
  }
  QPalette eigene_;
  bool gefragt_ = false;
};

}  // namespace

void Aussehen_setzen(Thema thema) {
  QApplication::setStyle(new Stil);
  if (thema == Thema::wie_arbeitsplatz) new Arbeitsplatzfolger(qApp);
  else QApplication::setPalette(Palette(thema == Thema::dunkel));
  QLocale::setDefault(QLocale(QLocale::German, QLocale::Switzerland));
  static QTranslator texte;
  if (texte.load("qtbase_de", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
    QApplication::installTranslator(&texte);
}

}  // namespace zav::fenster
