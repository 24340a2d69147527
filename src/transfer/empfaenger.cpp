#include "transfer/empfaenger.h"

#include <chrono>
#include <thread>

#include "basis/zahl.h"
#include "link/leitung.h"
#include "platform/uhrwerk.h"

namespace zav {

void Empfaenger_ruecksetzen() {
  if (leitung.Link_art == Verbindung::com) Byte_senden('%');
  // A clock rounded to seconds shows the next one from half a second before it.
  const double jetzt = Timer();
  const double moment = static_cast<double>(Runden(jetzt)) + 0.5;
  std::this_thread::sleep_for(std::chrono::milliseconds(Echte_millisekunden(moment - jetzt)));
}

}  // namespace zav
