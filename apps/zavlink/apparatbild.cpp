#include "zavlink/apparatbild.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <string_view>
#include <vector>

#include "store/katalog.h"
#include "zavlink/farben.h"
#include "zavlink/symbole.h"

namespace zav::fenster {

namespace {

const QColor platte{250, 250, 248};
const QColor plattenrand{176, 180, 186};
const QColor tastenrand{198, 202, 207};
const QColor zeichen{72, 78, 86};
const QColor led{120, 126, 134};

enum class Gestalt { tasten, steckdose, thermostat, bewegung, blende, lautsprecher, sender, klemmen, symbol };

// What a range of kinds looks like; `symbol` where a sign of the icon family stands for it.
struct Aussehen {
  int von, bis;
  Gestalt gestalt;
  const char* symbol = "";
};
constexpr Aussehen aussehen[] = {
    {1, 32, Gestalt::tasten},
    {33, 38, Gestalt::steckdose},
    {39, 40, Gestalt::thermostat},
    {41, 41, Gestalt::bewegung},
    {42, 42, Gestalt::symbol, "glocke"},
    {43, 43, Gestalt::blende},
    {44, 44, Gestalt::lautsprecher},
    {45, 45, Gestalt::bewegung},
    {46, 64, Gestalt::tasten},
    {65, 67, Gestalt::sender},
    {68, 69, Gestalt::klemmen},
    {70, 71, Gestalt::sender},
    {72, 74, Gestalt::klemmen},
    {75, 75, Gestalt::symbol, "wetter"},
    {76, 77, Gestalt::klemmen},
    {78, 78, Gestalt::thermostat},
    {79, 79, Gestalt::symbol, "touchpanel"},
    {81, 86, Gestalt::tasten},
    {87, 87, Gestalt::sender},
    {88, 88, Gestalt::symbol, "funk"},
    {89, 89, Gestalt::bewegung},
    {90, 92, Gestalt::tasten},
    {93, 93, Gestalt::symbol, "kamera"},
};

const Aussehen& Aussehen_von(int typ) {
  const auto* const a =
      std::ranges::find_if(aussehen, [typ](const Aussehen& e) { return typ >= e.von && typ <= e.bis; });
  return a != std::end(aussehen) ? *a : aussehen[0];
}

QFont Schrift(double hoehe, bool fett = false) {
  QFont f;
  f.setPixelSize(std::max(7, static_cast<int>(std::lround(hoehe))));
  f.setBold(fett);
  return f;
}

// How a device of keys is made, by its description in the catalogue.
struct Machart {
  bool papier;  // a strip of paper under each key's cover carries the text
  bool wippe;   // one key rocks both ways: its halves touch
  QColor platte, taste;
  double ecken;
};
Machart Machart_von(const Apparatart& art) {
  const auto nennt = [&art](std::string_view wort) { return art.tag.find(wort) != std::string_view::npos; };
  Machart m{.papier = nennt("mit Papier"),
            .wippe = nennt("Zweifachbedienung"),
            .platte = platte,
            .taste = Qt::white,
            .ecken = 5};
  if (nennt("Alte Feller")) {
    m.platte = QColor(240, 233, 214);
    m.taste = QColor(250, 246, 234);
    m.ecken = 2;
  } else if (nennt("Elegance")) {
    m.platte = QColor(222, 226, 231);
    m.ecken = 14;
  }
  return m;
}

// The largest type in which the text fits, on one line or on two; what never fits is cut.
void Text_malen(QPainter& p, const QRectF& r, const QString& text, int groesste) {
  constexpr int kleinste = 8;
  for (int hoehe = groesste; hoehe >= kleinste; --hoehe) {
    p.setFont(Schrift(hoehe));
    const QRectF platz = QFontMetricsF(p.font()).boundingRect(r, Qt::AlignCenter | Qt::TextWordWrap, text);
    if (platz.width() > r.width() || platz.height() > r.height()) continue;
    p.drawText(r, Qt::AlignCenter | Qt::TextWordWrap, text);
    return;
  }
  p.setFont(Schrift(kleinste));
  p.drawText(r, Qt::AlignCenter, QFontMetricsF(p.font()).elidedText(text, Qt::ElideRight, r.width()));
}

// A key: its text (else its number), red with a dot when it has functions, a ring where its LED is.
void Taste_malen(QPainter& p, const QRectF& r, const Apparatbild::Taste& t, bool mit_led, int nummer,
                 const Machart& m) {
  p.setPen(QPen(tastenrand, 1));
  p.setBrush(t.belegt ? Farbe_qt(Farbe::belegt) : m.taste);
  p.drawRoundedRect(r, m.wippe ? 1 : 3, m.wippe ? 1 : 3);
  const double punkt = std::clamp(r.height() * 0.1, 2.0, 4.0);
  // The marks stand in the upper corners; on a very low key beside the text.
  const bool niedrig = r.height() < 24;
  const double hoehe_marken = niedrig ? r.center().y() : r.top() + punkt + 2.5;
  if (m.papier) {
    const QRectF streifen =
        r.adjusted(3, std::max(3.0, r.height() * 0.28), -3, -std::max(2.0, r.height() * 0.12));
    p.setPen(QPen(QColor(226, 216, 178), 0.8));
    p.setBrush(QColor(255, 252, 236, t.belegt ? 150 : 255));
    p.drawRect(streifen);
  }
  if (mit_led) {
    p.setPen(QPen(led, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(r.right() - punkt - 3, hoehe_marken), punkt, punkt);
  }
  if (t.belegt) {
    p.setPen(Qt::NoPen);
    p.setBrush(Farbe_schrift());
    p.drawEllipse(QPointF(r.left() + punkt + 3, hoehe_marken), punkt * 0.8, punkt * 0.8);
  }
  if (r.width() < 20) return;
  const int groesste = std::clamp(static_cast<int>(r.height() * 0.3), 9, 14);
  p.setPen(t.text.isEmpty() ? led : Farbe_schrift());
  const double seite = niedrig && (mit_led || t.belegt) ? 2 * punkt + 5 : 2;
  const double oben = niedrig ? 1 : 2 * punkt + 2;
  Text_malen(p, r.adjusted(seite, t.text.isEmpty() ? 1 : oben, -seite, -1),
             t.text.isEmpty() ? QString::number(nummer) : t.text, groesste);
}

void Tasten_malen(QPainter& p, const QRectF& r, const Apparatbild& bild, const Apparatart& art) {
  std::vector<int> slots_da;
  for (int n = 0; n < 8; ++n) {
    if (art.tasten.hat(n)) slots_da.push_back(n);
  }
  const Machart machart = Machart_von(art);
  const int spalten = slots_da.size() > 3 ? 2 : 1;
  const int zeilen = (static_cast<int>(slots_da.size()) + spalten - 1) / spalten;
  const double b = r.width() / spalten;
  const double h = r.height() / std::max(1, zeilen);
  const double fuge = machart.wippe ? 0 : 1;  // between keys one above the other
  for (int i = 0; i < static_cast<int>(slots_da.size()); ++i) {
    const int zeile = i / spalten;
    const int n = slots_da.at(static_cast<std::size_t>(i));
    Taste_malen(p, QRectF(r.left() + i % spalten * b, r.top() + zeile * h, b, h).adjusted(1, fuge, -1, -fuge),
                bild.tasten.at(static_cast<std::size_t>(n)), art.leds.hat(n), i + 1, machart);
  }
}

void Steckdose_malen(QPainter& p, const QRectF& r, int dosen) {
  const double radius = std::min(r.width(), r.height()) * (dosen == 1 ? 0.36 : dosen == 2 ? 0.24 : 0.2);
  for (int i = 0; i < dosen; ++i) {
    const double winkel = -M_PI / 2 + 2 * M_PI * i / dosen;
    const double weit = dosen == 1 ? 0 : std::min(r.width(), r.height()) * 0.25;
    const QPointF m = r.center() + QPointF(std::cos(winkel), std::sin(winkel)) * weit;
    p.setPen(QPen(tastenrand, 1.2));
    p.setBrush(Qt::white);
    p.drawEllipse(m, radius, radius);
    p.setPen(Qt::NoPen);
    p.setBrush(zeichen);
    for (const QPointF& loch : {QPointF(-0.4, 0), QPointF(0.4, 0), QPointF(0, 0.28)}) {
      p.drawEllipse(m + loch * radius, radius * 0.13, radius * 0.13);
    }
  }
}

void Thermostat_malen(QPainter& p, const QRectF& r, bool anzeige) {
  const double radius = std::min(r.width(), r.height()) * 0.36;
  p.setPen(QPen(zeichen, 1.5));
  p.setBrush(Qt::white);
  if (anzeige) {
    const QRectF feld(r.center().x() - radius, r.center().y() - radius * 0.6, 2 * radius, 1.2 * radius);
    p.drawRoundedRect(feld, 3, 3);
    p.setFont(Schrift(radius * 0.6));
    p.drawText(feld, Qt::AlignCenter, QStringLiteral("21°"));
    return;
  }
  p.drawEllipse(r.center(), radius * 0.7, radius * 0.7);
  p.drawLine(r.center(), r.center() + QPointF(radius * 0.4, -radius * 0.4));
  for (int i = 0; i < 9; ++i) {
    const double w = M_PI * (0.75 + 1.5 * i / 8);
    const QPointF richtung(std::cos(w), std::sin(w));
    p.drawLine(r.center() + richtung * radius * 0.85, r.center() + richtung * radius);
  }
}

void Bewegung_malen(QPainter& p, const QRectF& r) {
  const double radius = std::min(r.width(), r.height()) * 0.3;
  p.setPen(QPen(zeichen, 1.5));
  p.setBrush(Qt::white);
  const QRectF linse(r.center().x() - radius, r.center().y() - radius, 2 * radius, 2 * radius);
  p.drawChord(linse, 0, 180 * 16);
  for (const double f : {1.3, 1.7}) {
    p.drawArc(
        QRectF(r.center().x() - radius * f, r.center().y() - radius * f, 2 * radius * f, 2 * radius * f),
        225 * 16, 90 * 16);
  }
}

void Lautsprecher_malen(QPainter& p, const QRectF& r) {
  p.setPen(Qt::NoPen);
  p.setBrush(zeichen);
  const double schritt = std::min(r.width(), r.height()) / 7;
  for (int x = -2; x <= 2; ++x) {
    for (int y = -2; y <= 2; ++y) {
      if (x * x + y * y <= 5)
        p.drawEllipse(r.center() + QPointF(x * schritt, y * schritt), schritt * 0.22, schritt * 0.22);
    }
  }
}

void Sender_malen(QPainter& p, const QRectF& r, const Apparatbild& bild) {
  const double hoehe = r.height() * 0.92;
  const QRectF koerper(r.center().x() - hoehe * 0.24, r.center().y() - hoehe / 2, hoehe * 0.48, hoehe);
  p.setPen(QPen(zeichen, 1.5));
  p.setBrush(Qt::white);
  p.drawRoundedRect(koerper, 6, 6);
  p.setPen(Qt::NoPen);
  for (int zeile = 0; zeile < 5; ++zeile) {
    for (int spalte = 0; spalte < 3; ++spalte) {
      const auto n = std::size_t{3} * static_cast<std::size_t>(zeile) + static_cast<std::size_t>(spalte);
      p.setBrush(n < bild.tasten.size() && bild.tasten.at(n).belegt ? Farbe_qt(Farbe::belegt).darker(140)
                                                                    : led);
      p.drawEllipse(QPointF(koerper.left() + koerper.width() * (spalte + 1) / 4,
                            koerper.top() + koerper.height() * (zeile + 1) / 6),
                    hoehe * 0.032, hoehe * 0.032);
    }
  }
}

void Klemmen_malen(QPainter& p, const QRectF& r, const Apparatbild& bild, const Apparatart& art) {
  const int anzahl = art.adressen > 1 ? 8 : 4;
  const QRectF baugruppe(r.left() + r.width() * 0.06, r.center().y() - r.height() * 0.3, r.width() * 0.88,
                         r.height() * 0.6);
  p.setPen(QPen(zeichen, 1.5));
  p.setBrush(Qt::white);
  p.drawRoundedRect(baugruppe, 3, 3);
  const double schritt = baugruppe.width() / anzahl;
  for (int i = 0; i < anzahl; ++i) {
    const bool belegt = bild.tasten.at(static_cast<std::size_t>(i)).belegt;
    p.setPen(QPen(zeichen, 1));
    p.setBrush(belegt ? Farbe_qt(Farbe::belegt) : QColor(Qt::white));
    p.drawEllipse(QPointF(baugruppe.left() + (i + 0.5) * schritt, baugruppe.bottom() - schritt * 0.7),
                  schritt * 0.3, schritt * 0.3);
  }
  p.setPen(zeichen);
  p.setFont(Schrift(baugruppe.height() * 0.26));
  p.drawText(baugruppe.adjusted(2, 2, -2, -schritt), Qt::AlignCenter, QStringLiteral("IN %1").arg(anzahl));
}

}  // namespace

void Apparat_malen(QPainter& p, const QRectF& r, const Apparatbild& bild) {
  const Apparatart* const art = Apparat_art(bild.typ);
  p.save();
  p.setRenderHint(QPainter::Antialiasing);
  if (art == nullptr || bild.typ == apparat_leer) {
    p.setPen(QPen(plattenrand, 1.2, Qt::DashLine));
    p.setBrush(QColor(255, 255, 255, 90));
    p.drawRoundedRect(r, 5, 5);
    // Room for something.
    const double arm = std::clamp(r.width() * 0.08, 4.0, 9.0);
    p.setPen(QPen(plattenrand, 2));
    p.drawLine(r.center() - QPointF(arm, 0), r.center() + QPointF(arm, 0));
    p.drawLine(r.center() - QPointF(0, arm), r.center() + QPointF(0, arm));
    p.restore();
    return;
  }
  const Machart machart = Machart_von(*art);
  p.setPen(QPen(plattenrand, 1));
  p.setBrush(machart.platte);
  p.drawRoundedRect(r, machart.ecken, machart.ecken);
  const double fuss = bild.adresse.isEmpty() ? 0 : 13;
  const double rand = std::clamp(r.width() * 0.06, 3.0, 8.0);
  const QRectF innen = r.adjusted(rand, rand, -rand, -rand - fuss);
  if (fuss > 0) {
    p.setPen(led);
    p.setFont(Schrift(10));
    p.drawText(QRectF(r.left() + rand, r.bottom() - fuss - 3, r.width() - 2 * rand, fuss),
               Qt::AlignRight | Qt::AlignVCenter, bild.adresse);
  }
  const Aussehen& a = Aussehen_von(bild.typ);
  switch (a.gestalt) {
    case Gestalt::tasten: Tasten_malen(p, innen, bild, *art); break;
    case Gestalt::steckdose: Steckdose_malen(p, innen, (bild.typ - a.von) % 3 + 1); break;
    case Gestalt::thermostat: Thermostat_malen(p, innen, bild.typ != 39); break;
    case Gestalt::bewegung: Bewegung_malen(p, innen); break;
    case Gestalt::lautsprecher: Lautsprecher_malen(p, innen); break;
    case Gestalt::sender: Sender_malen(p, innen, bild); break;
    case Gestalt::klemmen: Klemmen_malen(p, innen, bild, *art); break;
    case Gestalt::symbol: {
      const double mass = std::min(innen.width(), innen.height()) * 0.7;
      Symbol_malen(p, QRectF(innen.center().x() - mass / 2, innen.center().y() - mass / 2, mass, mass),
                   a.symbol, zeichen, QColor("#1d6fb8"));
      break;
    }
    case Gestalt::blende:
      p.setPen(QPen(tastenrand, 1));
      p.setBrush(Qt::white);
      p.drawRoundedRect(innen, 3, 3);
      break;
  }
  if (art->ist(gruppe_funk)) {
    const double mass = std::clamp(r.width() * 0.16, 10.0, 18.0);
    Symbol_malen(p, QRectF(r.left() + 3, r.bottom() - mass - 2, mass, mass), "funk", zeichen,
                 QColor("#1d6fb8"));
  }
  p.restore();
}

void Layout_malen(QPainter& p, const QRectF& r, int nummer, const QColor& linie, const QColor& akzent) {
  const Layout* const layout = Layout_von(nummer);
  if (layout == nullptr) return;
  if (nummer == layout_diverse) {
    Symbol_malen(p, r, "master", linie, akzent);
    return;
  }
  // On whole pixels: the lines of small pictures stay sharp.
  const double schritt = std::floor(std::min(r.width(), r.height()) / 4);
  const QPointF ecke(std::floor(r.center().x() - schritt * layout->spalten / 2),
                     std::floor(r.center().y() - schritt * layout->zeilen / 2));
  QColor flaeche = akzent;
  flaeche.setAlpha(40);
  p.save();
  p.setPen(QPen(linie, 1));
  p.setBrush(flaeche);
  for (int z = 0; z < layout->zeilen; ++z) {
    for (int s = 0; s < layout->spalten; ++s) {
      p.drawRect(
          QRectF(ecke.x() + s * schritt + 0.5, ecke.y() + z * schritt + 0.5, schritt - 2, schritt - 2));
    }
  }
  p.restore();
}

}  // namespace zav::fenster
