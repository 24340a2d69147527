#include "installateur.h"

#include <cstdio>
#include <exception>

#include "app/zavapp_form.h"
#include "platform/datei.h"
#include "platform/uhrwerk.h"
#include "store/projektdatei.h"
#include "wirkungen.h"

namespace zav::beispiel {

namespace {

constexpr int kennung_saat = 1947;
constexpr Datum heute{2026, 1, 1};

}  // namespace

void neues_projekt(Text titel, Text notizen) {
  Zufall_saeen(kennung_saat);
  Heute_setzen(heute);
  Projekt_reset();
  projekt.Datei_version = "910";
  projekt.Notizen = notizen;
  auto& app = arbeitsplatz().fenster<ZAVapp_Form>();
  tippen(app.Text1, titel);
  app.Command2.druecken();
}

int erzaehlen(int argc, char** argv, const std::function<void()>& geschichte) {
  if (argc != 2) {
    std::fprintf(stderr, "Aufruf: %s DATEI.zav\n", argv[0]);
    return 2;
  }
  try {
    geschichte();
    arbeitsplatz().schliessen();
    namen_pruefen();
    const Dateiergebnis ergebnis = Datei_schreiben(argv[1], Projekt_schreiben(projekt));
    fordern(static_cast<bool>(ergebnis), std::string(argv[1]) + ": " + Systemfehler_text(ergebnis.fehler));
  } catch (const std::exception& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return 1;
  }
  return 0;
}

}  // namespace zav::beispiel
