// The window of a form.
#pragma once

#include <QDialog>
#include <QEventLoop>
#include <QLabel>

#include "zavlink/renderer.h"

namespace zav::fenster {

class Formfenster : public QDialog {
  Q_OBJECT
 public:
  Formfenster(Formular& f, QWidget* eltern);
  ~Formfenster() override;

  // Shows the window and returns when the form has closed.
  void laufen();
  Formular& formular() const { return form_; }
  const Gebautes& gebautes() const { return gebautes_; }
  // Brings every widget to the state of its control now.
  void nachholen() { auffrischer_->nachholen(); }
  // A line at the bottom that says what a longer command is doing; "" takes it away. Painted at once.
  void hinweis_zeigen(const QString& text);

 protected:
  void closeEvent(QCloseEvent* e) override;
  void reject() override;
  void showEvent(QShowEvent* e) override;
  void keyPressEvent(QKeyEvent* e) override;
  bool event(QEvent* e) override;
  bool focusNextPrevChild(bool vorwaerts) override;

 private:
  void nachfuehren();
  void einpassen();
  void menue_aufsetzen();
  void enter_im_feld(QWidget& feld, QKeyEvent& e);

  Formular& form_;
  Auffrischer* auffrischer_;
  Gebautes gebautes_;
  unsigned fokuswunsch_ = 0;
  int unterbrechungen_ = 0;  // boxes and windows that have opened over this one
  QLabel* hinweis_ = nullptr;
  QEventLoop schleife_;
};

// Opens the manual at the place of a form; hung in by the program.
extern std::function<void(const std::string& form)> handbuch_oeffnen;

}  // namespace zav::fenster
