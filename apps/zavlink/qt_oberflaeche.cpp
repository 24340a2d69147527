#include "zavlink/qt_oberflaeche.h"

#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QMessageBox>
#include <QPushButton>
#include <algorithm>
#include <utility>

#include "platform/uhrwerk.h"
#include "zavlink/formfenster.h"
#include "zavlink/qt_text.h"

namespace zav::fenster {

namespace {

struct Knopf {
  QMessageBox::StandardButton qt;
  Antwort antwort;
  const char* text;
};

// Buttons of a box in their order.
std::vector<Knopf> Knoepfe_von(Knoepfe k) {
  static constexpr Knopf ok{QMessageBox::Ok, Antwort::OK, "OK"};
  static constexpr Knopf abbrechen{QMessageBox::Cancel, Antwort::Abbrechen, "Abbrechen"};
  static constexpr Knopf ja{QMessageBox::Yes, Antwort::Ja, "&Ja"};
  static constexpr Knopf nein{QMessageBox::No, Antwort::Nein, "&Nein"};
  switch (k) {
    case Knoepfe::OK: return {ok};
    case Knoepfe::OK_Abbrechen: return {ok, abbrechen};
    case Knoepfe::Ja_Nein: return {ja, nein};
    case Knoepfe::Ja_Nein_Abbrechen: break;
  }
  return {ja, nein, abbrechen};
}

QMessageBox::Icon Symbol_qt(Symbol s) {
  switch (s) {
    case Symbol::Information: return QMessageBox::Information;
    case Symbol::Frage: return QMessageBox::Question;
    case Symbol::Warnung: return QMessageBox::Warning;
    case Symbol::Stopp: return QMessageBox::Critical;
    case Symbol::keines: break;
  }
  return QMessageBox::NoIcon;
}

void Einrichten(QFileDialog& d, const Dateifrage& f) {
  // Qt's own dialog: it can carry the write-protection box and looks the same everywhere.
  d.setOption(QFileDialog::DontUseNativeDialog);
  d.setDirectory(!f.ordner.empty() && QDir(Q(f.ordner)).exists() ? Q(f.ordner) : QDir::homePath());
  QStringList filter;
  // The patterns stand in the filter's text already; Qt reads them from its brackets.
  for (const Dateifilter& e : f.filter)
    filter << (Q(e.text).contains('(') ? Q(e.text) : Q(e.text) + " (" + Q(e.muster) + ")");
  if (!filter.isEmpty()) {
    d.setNameFilters(filter);
    d.selectNameFilter(filter.value(f.filter_nr));
  }
  if (!f.endung.empty()) d.setDefaultSuffix(Q(f.endung).remove('.'));
  if (!f.vorschlag.empty()) d.selectFile(Q(f.vorschlag));
  if (!f.titel.empty()) d.setWindowTitle(Q(f.titel));
}

// A window with a bar of progress tells by itself how far its work has come.
bool Hat_balken(const Formular& f) {
  return std::ranges::any_of(f.elemente(), [](const Steuerelement* e) {
    return e->art == Art::Balken && e->sichtbar &&
           static_cast<const Balken*>(e)->zeigt == Balken::Zeigt::fortschritt;
  });
}

}  // namespace

// While a box, a file dialog or another form is open, the user is waited for, and not the work below it.
class Qt_oberflaeche::Wartepause {
 public:
  explicit Wartepause(Qt_oberflaeche& o) : o_(o), wartet_(o.wartezeit_.isValid()) {
    o_.Zeiger_setzen(Zeiger::normal);
  }
  ~Wartepause() {
    if (wartet_) o_.Zeiger_setzen(Zeiger::warten);
  }
  Wartepause(const Wartepause&) = delete;
  Wartepause& operator=(const Wartepause&) = delete;

 private:
  Qt_oberflaeche& o_;
  bool wartet_;
};

std::optional<Dateiwahl> Qt_oberflaeche::Fragen(QFileDialog& d, const QCheckBox* schutz) {
  const Wartepause pause(*this);
  if (d.exec() != QDialog::Accepted || d.selectedFiles().isEmpty()) return std::nullopt;
  return Dateiwahl{
      .pfad = S(d.selectedFiles().first()),
      .filter_nr = std::max(0, static_cast<int>(d.nameFilters().indexOf(d.selectedNameFilter()))),
      .schreibgeschuetzt = schutz != nullptr && schutz->isChecked()};
}

QWidget* Qt_oberflaeche::vorne() const {
  return offene_.empty() ? QApplication::activeWindow() : offene_.back();
}

Antwort Qt_oberflaeche::Melden(const Meldung& m) {
  QMessageBox kasten(Symbol_qt(m.symbol), m.titel.empty() ? "ZAVlink" : Q(m.titel), Q(m.text).remove('\r'),
                     QMessageBox::NoButton, vorne());
  kasten.setTextFormat(Qt::PlainText);
  kasten.setTextInteractionFlags(Qt::TextSelectableByMouse);
  const std::vector<Knopf> knoepfe = Knoepfe_von(m.knoepfe);
  int nummer = 0;
  for (const Knopf& k : knoepfe) {
    QPushButton* const knopf = kasten.addButton(k.qt);
    knopf->setText(Q(k.text));
    if (++nummer == m.standard) kasten.setDefaultButton(knopf);
    if (k.antwort == Vorsichtige_antwort(m.knoepfe)) kasten.setEscapeButton(knopf);
  }
  const Wartepause pause(*this);
  const int gedrueckt = kasten.exec();
  for (const Knopf& k : knoepfe) {
    if (k.qt == gedrueckt) return k.antwort;
  }
  return Vorsichtige_antwort(m.knoepfe);
}

void Qt_oberflaeche::Piep() { QApplication::beep(); }

void Qt_oberflaeche::Zeiger_setzen(Zeiger z) {
  if ((z == Zeiger::warten) == wartezeit_.isValid()) return;
  if (z == Zeiger::warten) {
    wartezeit_.start();
  } else {
    wartezeit_.invalidate();
    if (std::exchange(zeiger_wartet_, false)) QApplication::restoreOverrideCursor();
    if (!hinweis_da_) Hinweis_zeigen("");
  }
}

void Qt_oberflaeche::Hinweis(const std::string& text) {
  hinweis_da_ = !text.empty();
  Hinweis_zeigen(text);
}

void Qt_oberflaeche::Hinweis_zeigen(const std::string& text) {
  if (!offene_.empty()) offene_.back()->hinweis_zeigen(Q(text));
}

void Qt_oberflaeche::DoEvents() {
  const auto laenger_als = [this](double sekunden) {
    return wartezeit_.isValid() && wartezeit_.elapsed() > Echte_millisekunden(sekunden);
  };
  if (!zeiger_wartet_ && laenger_als(0.5)) {
    zeiger_wartet_ = true;
    QApplication::setOverrideCursor(Qt::WaitCursor);
  }
  // What has no words of its own gets some when it takes long.
  if (laenger_als(1) && !hinweis_da_ && !offene_.empty() && !Hat_balken(offene_.back()->formular())) {
    Hinweis_zeigen("Einen Moment bitte, der ZAVmaster wird gefragt...");
  }
  QApplication::processEvents();
}

void Qt_oberflaeche::Zeigen(Formular& f) {
  const Wartepause pause(*this);
  Formfenster fenster(f, vorne());
  offene_.push_back(&fenster);
  fenster.laufen();
  offene_.pop_back();
}

std::optional<Dateiwahl> Qt_oberflaeche::Datei_oeffnen(const Dateifrage& f) {
  QFileDialog d(vorne());
  Einrichten(d, f);
  d.setAcceptMode(QFileDialog::AcceptOpen);
  d.setFileMode(QFileDialog::ExistingFile);
  QCheckBox* schutz = nullptr;
  if (f.schreibschutz_waehlbar) {
    schutz = new QCheckBox("Sch&reibgeschützt öffnen", &d);
    if (auto* const gitter = qobject_cast<QGridLayout*>(d.layout()))
      gitter->addWidget(schutz, gitter->rowCount(), 0, 1, -1);
  }
  return Fragen(d, schutz);
}

std::optional<Dateiwahl> Qt_oberflaeche::Datei_speichern(const Dateifrage& f) {
  QFileDialog d(vorne());
  Einrichten(d, f);
  d.setAcceptMode(QFileDialog::AcceptSave);
  d.setOption(QFileDialog::DontConfirmOverwrite, !f.ueberschreiben_fragen);
  return Fragen(d, nullptr);
}

std::optional<std::string> Qt_oberflaeche::Ordner_waehlen(const std::string& beginn) {
  const Wartepause pause(*this);
  const QString ordner = QFileDialog::getExistingDirectory(
      vorne(), "Ordner wählen", QDir(Q(beginn)).exists() ? Q(beginn) : QDir::homePath());
  if (ordner.isEmpty()) return std::nullopt;
  return S(ordner);
}

Umschalttasten Qt_oberflaeche::Tasten() {
  const Qt::KeyboardModifiers m = QApplication::queryKeyboardModifiers();
  return {m.testFlag(Qt::ControlModifier), m.testFlag(Qt::AltModifier), m.testFlag(Qt::ShiftModifier)};
}

void Qt_oberflaeche::Zwischenablage(const std::string& text) { QApplication::clipboard()->setText(Q(text)); }

}  // namespace zav::fenster
