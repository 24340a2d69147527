#include "service/masteranzeige.h"

#include "basis/melder.h"
#include "basis/text.h"
#include "link/leitung.h"
#include "link/protokoll.h"
#include "platform/einstellungen.h"

namespace zav {

namespace {

// Without the blanks behind a name, and without the zeros of an erased master.
std::string Sichtbar(std::string text) {
  std::erase(text, '\0');
  return std::string(Ohne_rand(text));
}

}  // namespace

std::string Schnittstelle_text() {
  if (einstellungen.Com_art == 0) {
    const std::string port = einstellungen.Com_geraet.empty()
                                 ? "COM " + std::to_string(einstellungen.Com_port)
                                 : einstellungen.Com_geraet;
    return port + "  115200 8N1";
  }
  return (einstellungen.Com_art == 1 ? "Ethernet " : "WLAN ") + einstellungen.Host_name + ":" +
         std::to_string(einstellungen.Host_port);
}

void Masterinfo_holen(Textfeld& version, Textfeld& projektname) {
  version.setzen("---");
  projektname.setzen("---");
  const Wartezeiger zeiger;
  const Masterinfo info = Master_abfragen();
  if (!info.version.empty()) version.setzen(Sichtbar(info.version));
  if (info.gut) projektname.setzen(Sichtbar(info.projekt));
}

void Neustart_fragen() {
  if (Fragen({.text = "Im ZAVmaster einen Neustart durchführen?",
              .titel = "Neustart ZAVmaster?",
              .knoepfe = Knoepfe::Ja_Nein_Abbrechen,
              .symbol = Symbol::Frage})) {
    Neustart_ausfuehren();
  }
}

}  // namespace zav
