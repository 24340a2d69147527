#include "zavlink/formfenster.h"

#include <QAction>
#include <QButtonGroup>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QScreen>
#include <QSettings>
#include <QStyle>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "zavlink/farben.h"
#include "zavlink/qt_text.h"
#include "zavlink/rollen.h"
#include "zavlink/schirmhalter.h"

namespace zav::fenster {

std::function<void(const std::string&)> handbuch_oeffnen;

namespace {

// The smallest screen that a dialog must fit, and what a title bar takes of it.
constexpr QSize kleiner_schirm{1366, 768};
constexpr QSize schirmrand{16, 28};

// Sizes of windows are the window program's own matter and stand in a file of their own.
QSettings Fenstergroessen() {
  return QSettings(QSettings::IniFormat, QSettings::UserScope, "ZAVlink", "Fenster");
}

// The button that Enter presses now; nullptr when there is none.
QPushButton* Vorgabeknopf(const QWidget& fenster) {
  const auto knoepfe = fenster.findChildren<QPushButton*>();
  const auto k = std::ranges::find_if(
      knoepfe, [](const QPushButton* b) { return b->isDefault() && b->isVisible() && b->isEnabled(); });
  return k == knoepfe.end() ? nullptr : *k;
}

}  // namespace

Formfenster::Formfenster(Formular& f, QWidget* eltern)
    : QDialog(eltern), form_(f), auffrischer_(new Auffrischer(this)) {
  setObjectName(Q(f.name()));
  if (eltern == nullptr) setWindowFlags(Qt::Window);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* const spalte = new QVBoxLayout(this);
  spalte->setSpacing(gruppenabstand);
  Aufbauen(f.anordnung(), *auffrischer_, this, gebautes_, Q(f.titel()));
  const int rand = gebautes_.randlos ? 0 : gruppenabstand;
  spalte->setContentsMargins(rand, rand, rand, rand);
  menue_aufsetzen();
  spalte->addWidget(gebautes_.inhalt, 1);
  if (gebautes_.knopfzeile != nullptr) spalte->addWidget(gebautes_.knopfzeile);
  form_.beobachter = [this] { nachfuehren(); };
  nachfuehren();
  einpassen();
  new Schirmhalter(*this);
}

Formfenster::~Formfenster() {
  form_.beobachter = nullptr;
  QSettings groessen = Fenstergroessen();
  groessen.setValue(objectName(), saveGeometry());
}

// F1 opens the manual in every window; where there is a menu, its last one, the help, offers it.
void Formfenster::menue_aufsetzen() {
  auto* const handbuch = new QAction("&Handbuch", this);
  handbuch->setShortcut(QKeySequence::HelpContents);
  connect(handbuch, &QAction::triggered, this, [this] {
    if (!handbuch_oeffnen) return;
    const QWidget* w = focusWidget();
    while (w != nullptr && !w->property(handbuchstelle).isValid()) w = w->parentWidget();
    handbuch_oeffnen(w == nullptr ? form_.name() : S(w->property(handbuchstelle).toString()));
  });
  addAction(handbuch);
  if (gebautes_.menues.empty()) return;
  auto* const leiste = new QMenuBar(this);
  for (QMenu* m : gebautes_.menues) leiste->addMenu(m);
  layout()->setMenuBar(leiste);
  QMenu& hilfe = *gebautes_.menues.back();
  hilfe.insertAction(hilfe.actions().value(0), handbuch);
}

// What does not fit a small screen scrolls; the buttons below stay in sight, and scroll sideways by
// themselves where even they are too many.
void Formfenster::einpassen() {
  // At 200 % an ordinary screen is a small one. The screen of the platform without screens is no measure.
  const bool ohne_schirm = QGuiApplication::platformName() == "offscreen";
  const QSize platz =
      (ohne_schirm ? kleiner_schirm : kleiner_schirm.boundedTo(screen()->availableSize())) - schirmrand;
  layout()->activate();
  const QSize noetig = minimumSizeHint();
  if (noetig.height() > platz.height() || noetig.width() > platz.width()) {
    auto& spalte = static_cast<QVBoxLayout&>(*layout());
    const int leiste = style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
    spalte.setStretchFactor(&Rollen_lassen(spalte, *gebautes_.inhalt), 1);
    QWidget* const knoepfe = gebautes_.knopfzeile;
    if (knoepfe != nullptr && knoepfe->minimumSizeHint().width() > platz.width() - 2 * gruppenabstand) {
      QScrollArea& reihe = Rollen_lassen(spalte, *knoepfe);
      reihe.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
      reihe.setFixedHeight(knoepfe->sizeHint().height() + leiste);
    }
    spalte.activate();  // the window may be smaller now
    resize(noetig.boundedTo(platz) + QSize(leiste, 0));
  } else {
    resize(sizeHint().boundedTo(platz));
  }
  const QByteArray gemerkt = Fenstergroessen().value(objectName()).toByteArray();
  if (!gemerkt.isEmpty()) restoreGeometry(gemerkt);
}

void Formfenster::hinweis_zeigen(const QString& text) {
  if (hinweis_ == nullptr) {
    hinweis_ = new QLabel(this);
    hinweis_->setTextFormat(Qt::PlainText);
    hinweis_->setBackgroundRole(QPalette::ToolTipBase);
    hinweis_->setForegroundRole(QPalette::ToolTipText);
    hinweis_->setFrameShape(QFrame::Box);
    hinweis_->setAutoFillBackground(true);
    hinweis_->setMargin(raster);
    hinweis_->setWordWrap(true);
  }
  hinweis_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  hinweis_->setText(text);
  const int breite =
      std::min(hinweis_->fontMetrics().horizontalAdvance(text) + 3 * raster, width() - 2 * gruppenabstand);
  hinweis_->resize(breite, hinweis_->heightForWidth(breite));
  // Above the buttons, or above the status line.
  const int unten = gebautes_.knopfzeile != nullptr ? gebautes_.knopfzeile->mapTo(this, QPoint()).y()
                                                    : height() - 2 * gruppenabstand;
  hinweis_->move(gruppenabstand, unten - hinweis_->height() - raster);
  hinweis_->raise();
  hinweis_->repaint();
}

void Formfenster::laufen() {
  setWindowModality(Qt::ApplicationModal);
  show();
  QTimer::singleShot(0, this, [this] { Handeln([this] { form_.beim_oeffnen(); }); });
  // A rule may have closed the form already, and a stray end of the loop is no close.
  while (form_.offen()) schleife_.exec(QEventLoop::AllEvents);
  hide();
}

void Formfenster::nachfuehren() {
  // Qt puts its mark of unsaved changes in the place of "[*]".
  setWindowTitle(Q(form_.titel()).replace("[*]", "[*][*]") + "[*]");
  setWindowModified(form_.ungespeichert());
  if (form_.fokuswunsch() != fokuswunsch_) {
    fokuswunsch_ = form_.fokuswunsch();
    const auto w = gebautes_.widgets.find(form_.fokus());
    // As by Tab: what stands in a field is selected, ready to be typed over.
    if (w != gebautes_.widgets.end())
      QTimer::singleShot(0, w->second, [ziel = w->second] {
        ziel->setFocus(Qt::TabFocusReason);
        In_sicht_bringen(*ziel, ziel->rect());
      });
  }
  if (!form_.offen()) schleife_.quit();
}

void Formfenster::showEvent(QShowEvent* e) {
  QDialog::showEvent(e);
  if (e->spontaneous()) return;
  // Fields that only show are no place to begin.
  if (fokuswunsch_ != 0) return;
  focusNextChild();
  // Where no field asks to be filled, Enter belongs to the default button.
  QPushButton* const vorgabe = Vorgabeknopf(*this);
  if (vorgabe != nullptr && qobject_cast<QPushButton*>(focusWidget()) != nullptr) vorgabe->setFocus();
  const auto* const wahl = qobject_cast<QRadioButton*>(focusWidget());
  if (wahl != nullptr && wahl->group() != nullptr && wahl->group()->checkedButton() != nullptr) {
    wahl->group()->checkedButton()->setFocus();
  }
}

void Formfenster::closeEvent(QCloseEvent* e) {
  Handeln([this] { form_.schliessen_wuenschen(); });
  e->setAccepted(!form_.offen());
}

void Formfenster::reject() {
  Handeln([this] { form_.abbrechen_wuenschen(); });
}

// The keyboard brings what it comes to into sight; the mouse moves nothing under itself.
bool Formfenster::focusNextPrevChild(bool vorwaerts) {
  const bool gegangen = QDialog::focusNextPrevChild(vorwaerts);
  if (const QWidget* const hier = focusWidget()) In_sicht_bringen(*hier, hier->rect());
  return gegangen;
}

bool Formfenster::event(QEvent* e) {
  if (e->type() == QEvent::WindowBlocked) ++unterbrechungen_;
  if (e->type() == QEvent::ApplicationPaletteChange) auffrischer_->alles_vormerken();
  return QDialog::event(e);
}

void Formfenster::keyPressEvent(QKeyEvent* e) {
  QWidget* const hier = focusWidget();
  const bool enter = (e->key() == Qt::Key_Return || e->key() == Qt::Key_Enter) && hier != nullptr;
  if (auto* const knopf = qobject_cast<QPushButton*>(hier); enter && knopf != nullptr) {
    knopf->click();  // the button that has the keyboard, whatever the default is
  } else if (enter && qobject_cast<QLineEdit*>(hier) != nullptr) {
    enter_im_feld(*hier, *e);
  } else {
    QDialog::keyPressEvent(e);
  }
}

// The field that is being edited finishes before the default button is pressed. Where that brings a
// complaint, the button is not pressed.
void Formfenster::enter_im_feld(QWidget& feld, QKeyEvent& e) {
  QPushButton* const vorgabe = Vorgabeknopf(*this);
  const unsigned wuensche = form_.fokuswunsch();
  const int unterbrechungen = unterbrechungen_;
  const QPointer<QWidget> lebt(&feld);
  if (vorgabe != nullptr) vorgabe->setFocus();
  else feld.clearFocus();
  if (form_.fokuswunsch() != wuensche) return;
  if (unterbrechungen_ == unterbrechungen && vorgabe != nullptr) {
    auffrischer_->nachholen();
    QDialog::keyPressEvent(&e);
  }
  // A form that stays open keeps the cursor in its field.
  if (lebt && form_.offen() && form_.fokuswunsch() == wuensche) feld.setFocus();
}

}  // namespace zav::fenster
