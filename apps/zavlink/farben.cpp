#include "zavlink/farben.h"

#include <QApplication>
#include <array>
#include <utility>

namespace zav::fenster {

QColor Farbe_qt(Farbe f) {
  const Rgb rgb = Farbwert(f);
  return {rgb.r, rgb.g, rgb.b};
}

QColor Farbe_schrift() { return {32, 33, 36}; }

void Einfaerben(QWidget& w, Farbe f) {
  static constexpr const char* merker = "farbe";
  if (w.property(merker).toInt() == static_cast<int>(f)) return;
  w.setProperty(merker, static_cast<int>(f));
  if (f == Farbe::normal) {
    w.setPalette(QPalette());
    w.setAutoFillBackground(false);
    return;
  }
  QPalette p = QApplication::palette(&w);
  for (const auto rolle : {QPalette::Base, QPalette::Button, QPalette::Window})
    p.setColor(rolle, Farbe_qt(f));
  for (const auto rolle : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText}) {
    p.setColor(rolle, Farbe_schrift());
    p.setColor(QPalette::Disabled, rolle, QColor(96, 98, 104));
  }
  w.setPalette(p);
  // Labels and boxes have no background of their own.
  w.setAutoFillBackground(w.inherits("QLabel") || w.inherits("QCheckBox") || w.inherits("QRadioButton"));
}

namespace {

using Tabelle = std::array<std::pair<QPalette::ColorRole, const char*>, 15>;

QPalette Aus(const Tabelle& farben, const char* gesperrt) {
  QPalette p;
  for (const auto& [rolle, farbe] : farben) p.setColor(rolle, QColor(farbe));
  for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    p.setColor(QPalette::Disabled, rolle, QColor(gesperrt));
  }
  return p;
}

}  // namespace

QPalette Palette_hell() {
  return Aus({{{QPalette::Window, "#f4f5f7"},
               {QPalette::WindowText, "#1f2328"},
               {QPalette::Base, "#ffffff"},
               {QPalette::AlternateBase, "#f7f8fa"},
               {QPalette::Text, "#1f2328"},
               {QPalette::Button, "#ffffff"},
               {QPalette::ButtonText, "#1f2328"},
               {QPalette::Highlight, "#1d6fb8"},
               {QPalette::HighlightedText, "#ffffff"},
               {QPalette::PlaceholderText, "#79808a"},
               {QPalette::ToolTipBase, "#ffffff"},
               {QPalette::ToolTipText, "#1f2328"},
               {QPalette::Link, "#1d6fb8"},
               {QPalette::Mid, "#c3c8cf"},
               {QPalette::Midlight, "#e3e6ea"}}},
             "#8d949d");
}

QPalette Palette_dunkel() {
  return Aus({{{QPalette::Window, "#22262b"},
               {QPalette::WindowText, "#e6e8eb"},
               {QPalette::Base, "#191c20"},
               {QPalette::AlternateBase, "#1e2226"},
               {QPalette::Text, "#e6e8eb"},
               {QPalette::Button, "#2e343a"},
               {QPalette::ButtonText, "#e6e8eb"},
               {QPalette::Highlight, "#3f8fd6"},
               {QPalette::HighlightedText, "#ffffff"},
               {QPalette::PlaceholderText, "#8b929b"},
               {QPalette::ToolTipBase, "#2e343a"},
               {QPalette::ToolTipText, "#e6e8eb"},
               {QPalette::Link, "#6cb2ec"},
               {QPalette::Mid, "#4a525b"},
               {QPalette::Midlight, "#363d44"}}},
             "#7c848d");
}

bool Dunkel_gewuenscht() {
  // The desktop's platform theme has put its own palette in place before ours.
  return QApplication::palette().color(QPalette::Window).lightness() < 128;
}

}  // namespace zav::fenster
