#include "zavlink/textfelder.h"

#include <QApplication>
#include <QFocusEvent>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QTimer>
#include <algorithm>

#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

// In characters: fields up to the first hold times, dates and numbers; beyond the second they grow with the
// window.
constexpr int laenge_zahl = 10;
constexpr int laenge_wachsend = 36;
constexpr int laenge_unbegrenzt = 24;

// Characters that a field shows at a time, 0 = as many as there is room for.
std::size_t Zeichen(const Textfeld& t) { return t.breite != 0 ? t.breite : t.hoechstlaenge; }

// The next field above (-1) or below (1) in its column of a grid.
QLineEdit* Nachbar(const QLineEdit& feld, int schritt) {
  for (const auto* gitter : feld.parentWidget()->findChildren<QGridLayout*>()) {
    const int stelle = gitter->indexOf(&feld);
    if (stelle < 0) continue;
    int zeile = 0, spalte = 0, hoehe = 0, breite = 0;
    gitter->getItemPosition(stelle, &zeile, &spalte, &hoehe, &breite);
    for (zeile += schritt; zeile >= 0 && zeile < gitter->rowCount(); zeile += schritt) {
      const QLayoutItem* const zelle = gitter->itemAtPosition(zeile, spalte);
      auto* const anderes = zelle == nullptr ? nullptr : qobject_cast<QLineEdit*>(zelle->widget());
      if (anderes != nullptr && anderes->isEnabled() && anderes->isVisible()) return anderes;
    }
  }
  return nullptr;
}

// A popup or another window is no change of field; nor is a control that went away meanwhile.
bool Feldwechsel(const QFocusEvent& e, const Textfeld& t) {
  return e.reason() != Qt::PopupFocusReason && e.reason() != Qt::ActiveWindowFocusReason && t.frei &&
         t.sichtbar;
}

// A one-line field that tells when the focus comes and goes. Cursor up and down lead to its neighbours.
class Zeilenfeld final : public QLineEdit {
 public:
  Zeilenfeld(Textfeld& t, QWidget* eltern) : QLineEdit(eltern), t_(t) {
    const bool waechst = Textfeld_waechst(t);
    setTextMargins(3, 0, 3, 0);
    setSizePolicy(waechst ? QSizePolicy::Expanding : QSizePolicy::Fixed, QSizePolicy::Fixed);
  }

  QSize sizeHint() const override { return {breite(hint_zeichen()), QLineEdit::sizeHint().height()}; }
  QSize minimumSizeHint() const override {
    return {breite(std::min(hint_zeichen(), Textfeld_waechst(t_) ? 12 : laenge_wachsend)),
            QLineEdit::minimumSizeHint().height()};
  }

 protected:
  void focusInEvent(QFocusEvent* e) override {
    QLineEdit::focusInEvent(e);
    if (!t_.maske.empty() && t_.text() == t_.maske) QTimer::singleShot(0, this, &QLineEdit::selectAll);
    if (Feldwechsel(*e, t_)) Handeln([this] { t_.betreten(); });
  }
  void focusOutEvent(QFocusEvent* e) override {
    QLineEdit::focusOutEvent(e);
    if (Feldwechsel(*e, t_)) Handeln([this] { t_.verlassen(); });
  }
  void keyPressEvent(QKeyEvent* e) override {
    const bool eingabe = e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter;
    if (eingabe && t_.wenn_eingabe && t_.frei) return Handeln([this] { t_.eingabe(); });
    if (e->modifiers() == Qt::NoModifier && (e->key() == Qt::Key_Up || e->key() == Qt::Key_Down)) {
      if (auto* const nachbar = Nachbar(*this, e->key() == Qt::Key_Up ? -1 : 1))
        return nachbar->setFocus(Qt::TabFocusReason);
    }
    QLineEdit::keyPressEvent(e);
  }

 private:
  int hint_zeichen() const {
    const std::size_t zeichen = Zeichen(t_);
    return zeichen == 0 ? laenge_unbegrenzt : std::min(static_cast<int>(zeichen), laenge_wachsend);
  }
  int breite(int zeichen) const {
    const int je =
        zeichen <= laenge_zahl ? fontMetrics().horizontalAdvance('0') : fontMetrics().averageCharWidth() + 1;
    return zeichen * je + 3 * raster;
  }
  Textfeld& t_;
};

// A line that only shows lies in the window, not above it; a mask is pale.
void Lesefarbe(QWidget& w, const Textfeld& t) {
  Einfaerben(w, t.farbe);
  if (*t.farbe != Farbe::normal) return;
  QPalette p;
  if (!t.maske.empty() && t.text() == t.maske)
    p.setColor(QPalette::Text, QApplication::palette().color(QPalette::PlaceholderText));
  if (t.nur_lesen && !t.mehrzeilig) p.setColor(QPalette::Base, w.palette().color(QPalette::Window));
  w.setPalette(p);
}

QWidget* Zeile_bauen(Textfeld& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Zeilenfeld(t, eltern);
  QObject::connect(w, &QLineEdit::textEdited, w,
                   [&t](const QString& s) { Handeln(t, [&] { t.eingeben(S(s)); }); });
  auf.binden(t, [&t, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, t);
    w->setReadOnly(t.nur_lesen);
    w->setFocusPolicy(t.nur_lesen && !t.wenn_betreten ? Qt::ClickFocus : Qt::StrongFocus);
    const QString text = Q(t.text());
    if (w->text() != text) {
      const int stelle = w->cursorPosition();
      w->setText(text);
      w->setCursorPosition(w->hasFocus() ? std::min(stelle, static_cast<int>(text.size())) : 0);
    }
    Lesefarbe(*w, t);
  });
  return w;
}

class Absatzfeld final : public QPlainTextEdit {
 public:
  explicit Absatzfeld(Textfeld& t, QWidget* eltern) : QPlainTextEdit(eltern), t_(t) {
    setTabChangesFocus(true);
  }
  QSize sizeHint() const override {
    const int breite =
        t_.breite == 0 ? 56 * raster
                       : static_cast<int>(t_.breite) * (fontMetrics().averageCharWidth() + 1) + 3 * raster;
    return {breite, t_.zeilen == 0 ? 30 * raster
                                   : static_cast<int>(t_.zeilen) * fontMetrics().lineSpacing() + 2 * raster};
  }
  QSize minimumSizeHint() const override { return {20 * raster, 8 * raster}; }

  // Brings the text to the control's. What a log has got since the last time is added, whatever its length,
  // and who has scrolled up to read is left there.
  void auffrischen() {
    const std::string& text = t_.text();
    if (t_.nur_lesen && t_.fassung() == fassung_) {
      if (text.size() > gezeigt_) anfuegen(Ohne_ruecklauf(std::string_view(text).substr(gezeigt_)));
    } else if (const QString neu = Ohne_ruecklauf(text); neu != toPlainText()) {
      ersetzen(neu);
    }
    fassung_ = t_.fassung();
    gezeigt_ = text.size();
  }

 protected:
  void focusInEvent(QFocusEvent* e) override {
    QPlainTextEdit::focusInEvent(e);
    if (Feldwechsel(*e, t_)) Handeln([this] { t_.betreten(); });
  }
  void focusOutEvent(QFocusEvent* e) override {
    QPlainTextEdit::focusOutEvent(e);
    if (Feldwechsel(*e, t_)) Handeln([this] { t_.verlassen(); });
  }

 private:
  // The store keeps CR LF, the widget LF.
  static QString Ohne_ruecklauf(std::string_view text) { return Q(text).remove('\r'); }

  void anfuegen(const QString& stueck) {
    QScrollBar& balken = *verticalScrollBar();
    const bool am_ende = balken.value() == balken.maximum();
    QTextCursor ende(document());
    ende.movePosition(QTextCursor::End);
    ende.insertText(stueck);
    if (am_ende) balken.setValue(balken.maximum());
  }
  void ersetzen(const QString& neu) {
    const int stelle = textCursor().position();
    setPlainText(neu);
    if (!hasFocus()) return;
    QTextCursor zeiger = textCursor();
    zeiger.setPosition(std::min(stelle, static_cast<int>(neu.size())));
    setTextCursor(zeiger);
  }

  Textfeld& t_;
  unsigned fassung_ = 0;
  std::size_t gezeigt_ = 0;  // bytes of the control's text that stand here
};

QWidget* Absatz_bauen(Textfeld& t, Auffrischer& auf, QWidget* eltern) {
  auto* const w = new Absatzfeld(t, eltern);
  if (t.festbreit) {
    w->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    // A drawing has a width and keeps its lines; those of a log wrap.
    if (t.breite != 0) w->setLineWrapMode(QPlainTextEdit::NoWrap);
  }
  QObject::connect(w, &QPlainTextEdit::textChanged, w, [&t, w] {
    if (!t.nur_lesen) Handeln(t, [&] { t.eingeben(S(w->toPlainText().replace("\n", "\r\n"))); });
  });
  auf.binden(t, [&t, w] {
    const QSignalBlocker stumm(w);
    Gemeinsames(*w, t);
    w->setReadOnly(t.nur_lesen);
    Lesefarbe(*w, t);
    w->setUndoRedoEnabled(!t.nur_lesen);
    w->auffrischen();
  });
  return w;
}

}  // namespace

bool Textfeld_waechst(const Textfeld& t) {
  return t.mehrzeilig || Zeichen(t) == 0 || Zeichen(t) > static_cast<std::size_t>(laenge_wachsend);
}

QWidget* Textfeld_bauen(Textfeld& t, Auffrischer& auf, QWidget* eltern) {
  return t.mehrzeilig ? Absatz_bauen(t, auf, eltern) : Zeile_bauen(t, auf, eltern);
}

}  // namespace zav::fenster
