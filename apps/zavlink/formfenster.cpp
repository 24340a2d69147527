#include "zavlink/formfenster.h"

#include <QCloseEvent>
#include <QEventLoop>
#include <QMenuBar>
#include <QScreen>
#include <QSettings>
#include <QShortcut>
#include <QTimer>
#include <QVBoxLayout>

#include "zavlink/farben.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

std::function<void(const std::string&)> handbuch_oeffnen;

namespace {

// Sizes of windows are the window program's own matter and stand in a file of their own.
QSettings Fenstergroessen() { return QSettings(QSettings::IniFormat, QSettings::UserScope, "ZAVlink", "Fenster"); }

}  // namespace

Formfenster::Formfenster(Formular& f, QWidget* eltern) : QDialog(eltern), form_(f), auffrischer_(new Auffrischer(this)) {
  setObjectName(Q(f.name()));
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* const spalte = new QVBoxLayout(this);
  spalte->setContentsMargins(gruppenabstand, gruppenabstand, gruppenabstand, gruppenabstand);
  gebautes_ = Aufbauen(f.anordnung(), *auffrischer_, this);
  if (!gebautes_.menues.empty()) {
    auto* const leiste = new QMenuBar(this);
    for (QMenu* m : gebautes_.menues) leiste->addMenu(m);
    spalte->setMenuBar(leiste);
  }
  if (gebautes_.inhalt != nullptr) spalte->addWidget(gebautes_.inhalt);
  connect(new QShortcut(QKeySequence::HelpContents, this), &QShortcut::activated, this, [this] {
    if (handbuch_oeffnen) handbuch_oeffnen(form_.name());
  });
  form_.beobachter = [this] { nachfuehren(); };
  nachfuehren();
  QSettings groessen = Fenstergroessen();
  restoreGeometry(groessen.value(objectName()).toByteArray());
}

Formfenster::~Formfenster() {
  form_.beobachter = nullptr;
  QSettings groessen = Fenstergroessen();
  groessen.setValue(objectName(), saveGeometry());
}

void Formfenster::laufen() {
  setWindowModality(Qt::ApplicationModal);
  show();
  QEventLoop schleife;
  QTimer::singleShot(0, this, [this] { Handeln([this] { form_.beim_oeffnen(); }); });
  while (form_.offen()) schleife.processEvents(QEventLoop::WaitForMoreEvents | QEventLoop::AllEvents);
  hide();
}

void Formfenster::nachfuehren() {
  setWindowTitle(Q(form_.titel()));
  if (form_.fokus() != fokus_) {
    fokus_ = form_.fokus();
    const auto w = gebautes_.widgets.find(fokus_);
    if (w != gebautes_.widgets.end()) QTimer::singleShot(0, w->second, [ziel = w->second] { ziel->setFocus(); });
  }
  if (!form_.offen()) {
    // Wakes the loop of laufen().
    QTimer::singleShot(0, this, [] {});
  }
}

void Formfenster::closeEvent(QCloseEvent* e) {
  e->ignore();
  Handeln([this] { form_.schliessen_wuenschen(); });
}

void Formfenster::reject() {
  Handeln([this] { form_.schliessen_wuenschen(); });
}

}  // namespace zav::fenster
