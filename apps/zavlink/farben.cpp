#include "zavlink/farben.h"

#include <QApplication>
#include <QStyle>
#include <QStyleFactory>

namespace zav::fenster {

QColor Farbe_qt(Farbe f) {
  const Rgb rgb = Farbwert(f);
  return {rgb.r, rgb.g, rgb.b};
}

QColor Farbe_schrift() { return {32, 33, 36}; }

void Einfaerben(QWidget& w, Farbe f) {
  // A property that the style sheet of the program matches: cheap to set, and undone by clearing it.
  static constexpr const char* namen[] = {"", "belegt", "frei", "aktuell", "uhr1", "uhr2"};
  const QString name = namen[static_cast<int>(f)];
  if (w.property("farbe").toString() == name) return;
  w.setProperty("farbe", name);
  w.style()->unpolish(&w);
  w.style()->polish(&w);
}

void Aussehen_setzen() {
  qApp->setStyle(QStyleFactory::create("Fusion"));
  QString blatt;
  for (const auto& [name, farbe] : {std::pair{"belegt", Farbe::belegt}, {"frei", Farbe::frei}, {"aktuell", Farbe::aktuell},
                                    {"uhr1", Farbe::uhr1}, {"uhr2", Farbe::uhr2}}) {
    blatt += QString("*[farbe=\"%1\"] { background-color: %2; color: %3; }\n")
                 .arg(name, Farbe_qt(farbe).name(), Farbe_schrift().name());
  }
  blatt +=
      "QPushButton { min-height: 22px; padding: 3px 12px; }\n"
      "QPushButton[kompakt=\"true\"] { padding: 3px 6px; }\n"
      "QToolButton[leiste=\"true\"] { min-width: 34px; min-height: 22px; padding: 1px; }\n"
      "QLabel[gruppentitel=\"true\"] { font-weight: bold; font-size: 11px; }\n"
      "QLineEdit, QComboBox { min-height: 22px; }\n";
  qApp->setStyleSheet(blatt);
}

}  // namespace zav::fenster
