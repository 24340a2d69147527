#include "zavlink/farben.h"

#include <array>

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
  QPalette p;  // what is not set here follows the program's
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

struct Ton {
  QPalette::ColorRole rolle;
  const char* hell;
  const char* dunkel;
};
constexpr std::array toene{
    Ton{QPalette::Window, "#f4f5f7", "#22262b"},
    Ton{QPalette::WindowText, "#1f2328", "#e6e8eb"},
    Ton{QPalette::Base, "#ffffff", "#191c20"},
    Ton{QPalette::AlternateBase, "#f7f8fa", "#1e2226"},
    Ton{QPalette::Text, "#1f2328", "#e6e8eb"},
    Ton{QPalette::Button, "#ffffff", "#2e343a"},
    Ton{QPalette::ButtonText, "#1f2328", "#e6e8eb"},
    Ton{QPalette::Highlight, "#1d6fb8", "#3f8fd6"},
    Ton{QPalette::HighlightedText, "#ffffff", "#ffffff"},
    Ton{QPalette::PlaceholderText, "#79808a", "#8b929b"},
    Ton{QPalette::ToolTipBase, "#ffffff", "#2e343a"},
    Ton{QPalette::ToolTipText, "#1f2328", "#e6e8eb"},
    Ton{QPalette::Link, "#1d6fb8", "#6cb2ec"},
    Ton{QPalette::Mid, "#c3c8cf", "#4a525b"},
    Ton{QPalette::Midlight, "#e3e6ea", "#363d44"},
};
constexpr const char* gesperrt_hell = "#8d949d";
constexpr const char* gesperrt_dunkel = "#7c848d";

}  // namespace

QPalette Palette(bool dunkel) {
  QPalette p;
  for (const Ton& t : toene) p.setColor(t.rolle, QColor(dunkel ? t.dunkel : t.hell));
  for (const auto rolle : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    p.setColor(QPalette::Disabled, rolle, QColor(dunkel ? gesperrt_dunkel : gesperrt_hell));
  return p;
}

bool Ist_dunkel(const QPalette& p) { return p.color(QPalette::Window).lightness() < 128; }

}  // namespace zav::fenster
