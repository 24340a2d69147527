#include "zavlink/formfenster.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QMenuBar>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QSettings>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>
#include <algorithm>

#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

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

}  // namespace

Formfenster::Formfenster(Formular& f, QWidget* eltern)
    : QDialog(eltern), form_(f), auffrischer_(new Auffrischer(this)) {
  setObjectName(Q(f.name()));
  if (eltern == nullptr) setWindowFlags(Qt::Window);
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* const spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(gruppenabstand, gruppenabstand - raster / 2, gruppenabstand, gruppenabstand);
  spalte->setSpacing(gruppenabstand);
  Aufbauen(f.anordnung(), *auffrischer_, this, gebautes_, Q(f.titel()));
  if (!gebautes_.menues.empty()) {
    auto* const leiste = new QMenuBar(this);
    for (QMenu* m : gebautes_.menues) leiste->addMenu(m);
    spalte->setMenuBar(leiste);
  }
  spalte->addWidget(gebautes_.inhalt, 1);
  if (gebautes_.knopfzeile != nullptr) spalte->addWidget(gebautes_.knopfzeile);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] {
    if (handbuch_oeffnen) handbuch_oeffnen(form_.name());
  });
  form_.beobachter = [this] { nachfuehren(); };
  nachfuehren();
  einpassen();
}

Formfenster::~Formfenster() {
  form_.beobachter = nullptr;
  QSettings groessen = Fenstergroessen();
  groessen.setValue(objectName(), saveGeometry());
}

// What does not fit a small screen scrolls; the buttons below stay in sight.
void Formfenster::einpassen() {
  const QSize platz = kleiner_schirm - schirmrand;
  layout()->activate();
  const QSize noetig = minimumSizeHint();
  if (noetig.height() > platz.height() || noetig.width() > platz.width()) {
    auto* const rollen = new QScrollArea(this);
    rollen->setFrameShape(QFrame::NoFrame);
    rollen->setFocusPolicy(Qt::NoFocus);
    rollen->setWidgetResizable(true);
    auto* const spalte = static_cast<QVBoxLayout*>(layout());
    delete spalte->replaceWidget(gebautes_.inhalt, rollen);
    rollen->setWidget(gebautes_.inhalt);
    spalte->setStretchFactor(rollen, 1);
    resize(noetig.boundedTo(platz) + QSize(rollen->verticalScrollBar()->sizeHint().width(), 0));
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
  }
  hinweis_->setVisible(!text.isEmpty());
  if (text.isEmpty()) return;
  hinweis_->setText(text);
  hinweis_->adjustSize();
  hinweis_->move(gruppenabstand, height() - hinweis_->height() - gruppenabstand);
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
  setWindowTitle(Q(form_.titel()));
  if (form_.fokuswunsch() != fokuswunsch_) {
    fokuswunsch_ = form_.fokuswunsch();
    const auto w = gebautes_.widgets.find(form_.fokus());
    // As by Tab: what stands in a field is selected, ready to be typed over.
    if (w != gebautes_.widgets.end())
      QTimer::singleShot(0, w->second, [ziel = w->second] { ziel->setFocus(Qt::TabFocusReason); });
  }
  if (!form_.offen()) schleife_.quit();
}

void Formfenster::showEvent(QShowEvent* e) {
  QDialog::showEvent(e);
  if (e->spontaneous()) return;
  // Fields that only show are no place to begin.
  if (form_.fokus() == nullptr && gebautes_.inhalt != nullptr) focusNextChild();
}

void Formfenster::closeEvent(QCloseEvent* e) {
  Handeln([this] { form_.schliessen_wuenschen(); });
  e->setAccepted(!form_.offen());
}

void Formfenster::reject() {
  Handeln([this] { form_.schliessen_wuenschen(); });
}

}  // namespace zav::fenster
