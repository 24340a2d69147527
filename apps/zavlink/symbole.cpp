#include "zavlink/symbole.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "zavlink/apparatbild.h"
#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

// Each icon: the lines in the text's colour, and the accents (second tone) in the highlight's. SVG path data,
// 24 x 24.
struct Zeichnung {
  std::string_view name, linien, akzent;
};
constexpr std::array zeichnungen{
    Zeichnung{"projekt", "M4 4h10l6 6v10H4z M14 4v6h6", "M8 14h8 M8 17h5"},
    Zeichnung{"oeffnen", "M3 19V5h6l2 3h9v3", "M3 19l4-8h15l-4 8z"},
    Zeichnung{"speichern", "M4 4h13l3 3v13H4z M8 4v5h7V4", "M8 20v-7h8v7"},
    Zeichnung{"haus", "M3 12L12 4l9 8 M6 10v10h12V10", "M10 20v-6h4v6"},
    Zeichnung{"eingaenge", "M5 3h14v18H5z M12 3v18 M5 12h14",
              "M8.5 7.5h.1 M15.5 7.5h.1 M8.5 16.5h.1 M15.5 16.5h.1"},
    Zeichnung{"lampe", "M9 18h6 M10 21h4 M8 14a6 6 0 1 1 8 0c-1 1-1 2-1 4H9c0-2 0-3-1-4z",
              "M12 1v1 M3 9h1 M20 9h1"},
    Zeichnung{"store", "M4 4h16 M4 8h16 M4 12h16 M4 16h16", "M12 16v5 M10 21h4"},
    Zeichnung{"dimmer", "M12 3a9 9 0 1 0 .1 0z", "M12 12l5-5 M12 12h.1"},
    Zeichnung{"timer", "M12 7a7 7 0 1 0 .1 0z M10 3h4 M12 3v4", "M12 14V10"},
    Zeichnung{"uhr", "M12 3a9 9 0 1 0 .1 0z", "M12 7v5l4 2"},
    Zeichnung{"stellen", "M12 3a9 9 0 1 0 9 9", "M12 7v5l4 2 M15 3h6v6 M21 3l-5 5"},
    Zeichnung{"sequenzer", "M4 5h16v15H4z M4 9h16 M8 3v4 M16 3v4", "M8 13h3 M13 16h3"},
    Zeichnung{"sonne", "M12 8a4 4 0 1 0 .1 0z",
              "M12 2v3 M12 19v3 M2 12h3 M19 12h3 M5 5l2 2 M17 17l2 2 M19 5l-2 2 M7 17l-2 2"},
    Zeichnung{"wetter", "M7 18a4 4 0 1 1 1-8 5 5 0 0 1 10 1 3.5 3.5 0 0 1 0 7z", "M9 21l1-2 M14 21l1-2"},
    Zeichnung{"funk", "M12 13v8 M12 12h.1",
              "M8 16a6 6 0 0 1 0-8 M16 16a6 6 0 0 0 0-8 M5 19a10 10 0 0 1 0-14 M19 19a10 10 0 0 0 0-14"},
    Zeichnung{"telefon", "M7 2h10v20H7z", "M10 18h4"},
    Zeichnung{"kamera", "M3 7h12v10H3z M15 11l6-3v8l-6-3", "M9 12a2 2 0 1 0 .1 0z"},
    Zeichnung{"master", "M4 5h16v14H4z M8 5v14", "M11 9h6 M11 12h6 M11 15h3"},
    Zeichnung{"senden", "M4 20h16 M4 16v4 M20 16v4", "M12 15V4 M7 9l5-5 5 5"},
    Zeichnung{"neustart", "M20 12a8 8 0 1 1-3-6", "M20 3v5h-5"},
    Zeichnung{"suchen", "M10 4a6 6 0 1 0 .1 0z", "M15 15l6 6"},
    Zeichnung{"protokoll", "M4 4h16v16H4z", "M7 9l3 3-3 3 M12 15h5"},
    Zeichnung{"optionen", "M4 7h9 M17 7h3 M4 17h3 M11 17h9", "M15 5a2 2 0 1 0 .1 0z M9 15a2 2 0 1 0 .1 0z"},
    Zeichnung{"info", "M12 3a9 9 0 1 0 .1 0z", "M12 11v6 M12 7.5h.1"},
    Zeichnung{"update", "M5 5h14v14H5z M9 2v3 M15 2v3 M9 19v3 M15 19v3 M2 9h3 M2 15h3 M19 9h3 M19 15h3",
              "M12 9v6 M9.5 12l2.5 3 2.5-3"},
    Zeichnung{"touchpanel", "M3 5h18v12H3z M9 21h6 M12 17v4", "M7 9h4v4H7z M14 9h3 M14 13h3"},
    Zeichnung{"drucken", "M7 9V3h10v6 M5 17H3V9h18v8h-2", "M7 14h10v7H7z"},
    Zeichnung{"beenden", "M14 4H5v16h9", "M10 12h11 M17 8l4 4-4 4"},
    Zeichnung{"loeschen", "M5 7h14 M9 7V4h6v3 M7 7l1 14h8l1-14", "M10 11v6 M14 11v6"},
    Zeichnung{"neu", "M4 4h10l6 6v10H4z", "M12 10v7 M8.5 13.5h7"},
    Zeichnung{"kopieren", "M8 8h12v12H8z", "M4 16V4h12"},
    Zeichnung{"ausschneiden", "M6 15a3 3 0 1 0 .1 0z M18 15a3 3 0 1 0 .1 0z", "M8 16L18 3 M16 16L6 3"},
    Zeichnung{"einfuegen", "M6 5H4v16h16V5h-2", "M8 3h8v4H8z"},
    Zeichnung{"glocke", "M6 17V11a6 6 0 0 1 12 0v6l2 2H4z", "M10 21h4"},
    Zeichnung{"wand", "M4 4h16v16H4z M12 4v16 M4 12h16", "M8 8h.1 M16 8h.1"},
    Zeichnung{"regen", "M7 14a4 4 0 1 1 1-8 5 5 0 0 1 10 1 3.5 3.5 0 0 1 0 7z",
              "M8 17l-1 3 M12 17l-1 3 M16 17l-1 3"},
    Zeichnung{"wolke", "M7 18a4 4 0 1 1 1-8 5 5 0 0 1 10 1 3.5 3.5 0 0 1 0 7z", ""},
    Zeichnung{"tageslicht", "M3 18h18 M7 18a5 5 0 0 1 10 0", "M12 6v3 M4 11l2 2 M20 11l-2 2"},
    Zeichnung{"temperatur", "M10 14V5a2 2 0 1 1 4 0v9a4 4 0 1 1-4 0z", "M12 9v8"},
    Zeichnung{"wind", "M3 9h11a3 3 0 1 0-3-3 M3 13h15a3 3 0 1 1-3 3", "M3 17h7"},
    Zeichnung{"kompass", "M12 3a9 9 0 1 0 .1 0z", "M15.5 8.5l-2 5-5 2 2-5z"},
    Zeichnung{"taste", "M5 4h14v16H5z", "M12 9a3 3 0 1 0 .1 0z"},
    Zeichnung{"szene", "M12 3l2.6 6 6.4.5-5 4.2 1.6 6.3-5.6-3.5L6.4 20 8 13.7 3 9.5 9.4 9z", ""},
    Zeichnung{"steckdose", "M4 4h16v16H4z", "M12 7a5 5 0 1 0 .1 0z M10 12h.1 M14 12h.1"},
    Zeichnung{"heizung", "M5 7v12 M9 7v12 M13 7v12 M17 7v12 M3 10h16 M3 16h16", "M20.5 5v4"},
    Zeichnung{"alarm", "M7 17v-5a5 5 0 0 1 10 0v5 M4 17h16v4H4z", "M12 3v1 M4.5 6l1 1 M19.5 6l-1 1"},
    Zeichnung{"ventilator", "M12 10.5a1.5 1.5 0 1 0 .1 0z",
              "M12 10c-2-3-1-7 1-7s3 4-1 7z M14 12.5c3-2 7-1 7 1s-4 3-7-1z M11 14c0 4-3 6-5 5s-1-5 5-5z"},
    Zeichnung{"musik", "M9 17V5l11-2v12", "M6.5 15a2.5 2.5 0 1 0 .1 0z M17.5 13a2.5 2.5 0 1 0 .1 0z"},
    Zeichnung{"fernseher", "M3 6h18v12H3z M8 21h8", "M9 2l3 4 3-4"},
    Zeichnung{"tor", "M3 20V9l9-5 9 5v11", "M7 20v-8h10v8 M7 16h10"},
    Zeichnung{"tuere", "M6 21V3h12v18 M4 21h16", "M14.5 12h.1"},
    Zeichnung{"garten", "M12 21v-9c0-5 4-7 8-7 0 4-3 7-8 7", "M12 16c0-3-3-5-7-5 0 3 3 5 7 5z"},
    Zeichnung{"punkt", "M12 9a3 3 0 1 0 .1 0z", ""},
    Zeichnung{"belegt", "", "M12 8a4 4 0 1 0 .1 0z"},
};

// Number behind a prefix ("layout-" in "layout-3"); -1 when the name does not begin so.
int Nummer_nach(const std::string& name, std::string_view vorsilbe) {
  return name.starts_with(vorsilbe) ? Q(name).mid(static_cast<qsizetype>(vorsilbe.size())).toInt() : -1;
}

void Bild_malen(QPainter& p, const QRectF& r, const std::string& name, const QColor& linie,
                const QColor& akzent) {
  if (const int typ = Nummer_nach(name, "apparat-"); typ >= 0) return Apparat_malen(p, r, {.typ = typ});
  if (const int nummer = Nummer_nach(name, "layout-"); nummer >= 0)
    return Layout_malen(p, r, nummer, linie, akzent);
  Symbol_malen(p, r, name, linie, akzent);
}

}  // namespace

void Symbol_malen(QPainter& p, const QRectF& r, std::string_view name, const QColor& linie,
                  const QColor& akzent) {
  const auto z = std::ranges::find(zeichnungen, name, &Zeichnung::name);
  if (z == zeichnungen.end()) return;
  const auto pfad = [](std::string_view d, const QColor& farbe) {
    return QString(
               "<path d='%1' fill='none' stroke='%2' stroke-width='1.8' stroke-linecap='round' "
               "stroke-linejoin='round'/>")
        .arg(Q(d), farbe.name());
  };
  const QString svg = "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 24 24'>" +
                      pfad(z->linien, linie) + pfad(z->akzent, akzent) + "</svg>";
  QSvgRenderer(svg.toUtf8()).render(&p, r);
}

namespace {

// Paints its symbol in the palette of the moment, at the size that is asked for.
class Symbolmaler final : public QIconEngine {
 public:
  Symbolmaler(std::string name, bool auf_farbe) : name_(std::move(name)), auf_farbe_(auf_farbe) {}

  QIconEngine* clone() const override { return new Symbolmaler(*this); }
  QSize actualSize(const QSize& platz, QIcon::Mode /*modus*/, QIcon::State /*z*/) override {
    const int mass = std::min(platz.width(), platz.height());
    return {mass, mass};
  }
  void paint(QPainter* p, const QRect& r, QIcon::Mode modus, QIcon::State z) override {
    p->drawPixmap(r, pixmap(r.size() * p->device()->devicePixelRatio(), modus, z));
  }
  QPixmap pixmap(const QSize& platz, QIcon::Mode modus, QIcon::State z) override {
    const auto [linie, akzent] = toene(modus);
    const int mass = actualSize(platz, modus, z).width();
    const QString schluessel =
        QString("symbol %1 %2 %3 %4").arg(Q(name_), linie.name(), akzent.name(), QString::number(mass));
    QPixmap bild;
    if (QPixmapCache::find(schluessel, &bild)) return bild;
    bild = QPixmap(mass, mass);
    bild.fill(Qt::transparent);
    QPainter p(&bild);
    Bild_malen(p, QRectF(0, 0, mass, mass), name_, linie, akzent);
    p.end();
    QPixmapCache::insert(schluessel, bild);
    return bild;
  }

 private:
  std::pair<QColor, QColor> toene(QIcon::Mode modus) const {
    const QPalette p = QApplication::palette();
    if (modus == QIcon::Disabled) {
      const QColor blass = p.color(QPalette::Disabled, QPalette::WindowText);
      return {blass, blass};
    }
    if (auf_farbe_) return {Farbe_schrift(), p.color(QPalette::Highlight)};
    if (modus == QIcon::Selected)
      return {p.color(QPalette::HighlightedText), p.color(QPalette::HighlightedText)};
    return {p.color(QPalette::WindowText), p.color(QPalette::Highlight)};
  }

  std::string name_;
  bool auf_farbe_;
};

}  // namespace

QIcon Symbolbild(const std::string& name, bool auf_farbe) {
  const bool bekannt = Nummer_nach(name, "apparat-") >= 0 || Nummer_nach(name, "layout-") >= 0 ||
                       std::ranges::count(zeichnungen, name, &Zeichnung::name) > 0;
  return bekannt ? QIcon(new Symbolmaler(name, auf_farbe)) : QIcon();
}

}  // namespace zav::fenster
