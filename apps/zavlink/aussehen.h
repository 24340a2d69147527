// The look of the whole program: a flat style with large targets over Qt's own Fusion, and the palette.
#pragma once

#include <QProxyStyle>

namespace zav::fenster {

class Stil final : public QProxyStyle {
  Q_OBJECT
 public:
  Stil();
  int pixelMetric(PixelMetric m, const QStyleOption* o, const QWidget* w) const override;
  int styleHint(StyleHint h, const QStyleOption* o, const QWidget* w, QStyleHintReturn* r) const override;
  QSize sizeFromContents(ContentsType t, const QStyleOption* o, const QSize& s,
                         const QWidget* w) const override;
  void drawControl(ControlElement e, const QStyleOption* o, QPainter* p, const QWidget* w) const override;
  void drawPrimitive(PrimitiveElement e, const QStyleOption* o, QPainter* p, const QWidget* w) const override;
};

enum class Thema { wie_arbeitsplatz, hell, dunkel };

// Style, palette, Qt's own texts in German. Once, before the first window; a theme like the desktop's follows
// it while the program runs.
void Aussehen_setzen(Thema thema = Thema::wie_arbeitsplatz);

}  // namespace zav::fenster
