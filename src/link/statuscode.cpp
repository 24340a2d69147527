#include "link/statuscode.h"

#include <algorithm>
#include <iterator>

namespace zav {

namespace {

struct Uebertragungscode {
  std::string_view code;
  std::string_view text;
};

// F61/F62 and F64/F65 are two conditions in the master each, told in the same words.
constexpr Uebertragungscode uebertragung[] = {
    {"F01", "F01: Unbekannter Befehl oder letztes Zeichen nicht <CR>"},
    {"F02", "F02: Buffer Overrun im RAM"},
    {"F03", "F03: Overrun-, Noise- oder Frame-Fehler auf RS 232"},
    {"F04", "F04: Schreibfehler ins EEPROM. Verwenden Sie ZAVmaster-256b mit eingebauter Uhr."},
    {"F05", "F05: Ungültiges Zeichen (nicht im hexadezimalen Bereich)."},
    {"F06", "F06: Wertebereich der Buffer-/Pageadresse falsch oder Endadresse kleiner als Startadresse."},
    {"F07", "F07: Prüfsumme im ZAVmaster falsch."},
    {"F60", "F60: Endadresse ist kleiner als Startadresse."},
    {"F61", "F61: Pagegrösse überschritten."},
    {"F62", "F62: Pagegrösse überschritten."},
    {"F63", "F63: Startadresse und Endadresse nicht in der gleichen Page."},
    {"F64", "F64: Buffer ist grösser als 527."},
    {"F65", "F65: Buffer ist grösser als 527."},
    {"F96",
     "F97: COM-Port kann nicht geöffnet werden. Eventuell ist es bereits durch ein anderes Programm belegt."},
    {"F97",
     "F97: Sie haben die Übertragung zum ZAVmaster abgebrochen. Die Daten im ZAVmaster sind jetzt ungültig "
     "und es "
     "kann zu undefinierten Schaltzuständen kommen.\r\n\r\nDrücken Sie anschliessend die Schaltfläche "
     "'Neustart "
     "ZAVmaster' oder unterbrechen Sie für einige Sekunden die Stromzufuhr von ZAVnet. Senden Sie "
     "raschmöglichst "
     "eine korrekte Datei zum ZAVmaster, damit die gewünschte Funktion gewährleistet ist.\r\n\r\n"},
    {"F98", "F98: Keine Antwort vom ZAVmaster"},
    {"F99", "F99: Neustart im ZAVmaster wurde durchgeführt"},
};

struct Befehlscode {
  std::string_view code;
  std::string_view telegramm;  // after "X"
  std::string_view ereignis;   // after "Y"
};

constexpr std::string_view unbekannt = ": Undefinierbarer Fehler";
constexpr std::string_view format = ": Argumente haben falsches Format";
constexpr std::string_view pruefsumme = ": Prüfsumme der gesendeten Meldung ist falsch";
constexpr std::string_view anzahl = ": Anzahl Argumente der gesendeten Meldung ist falsch";
constexpr std::string_view adresse = ": Die CAN-Adresse ist nicht im gültigen Bereich";
constexpr std::string_view keine_antwort = ": Keine Antwort vom ZAVmaster";

constexpr Befehlscode befehle[] = {
    {"F02", unbekannt, ": Ereignis kann nicht erzeugt werden"},
    {"F05", format, format},
    {"F06", unbekannt, ": Argumente sind nicht im Wertebereich"},
    {"F07", pruefsumme, pruefsumme},
    {"F66", ": Nicht genügend Argumente erhalten", unbekannt},
    {"F68", anzahl, anzahl},
    {"F80", adresse, adresse},
    {"F81", ": Die CAN-Telegrammlänge ist ungültig", unbekannt},
    {"F98", keine_antwort, keine_antwort},
};

template <class Tabelle>
auto Finden(const Tabelle& tabelle, std::string_view code) {
  return std::find_if(std::begin(tabelle), std::end(tabelle),
                      [code](const auto& z) { return z.code == code; });
}

}  // namespace

std::string_view Uebertragungstext(std::string_view code) {
  const auto z = Finden(uebertragung, code);
  return z == std::end(uebertragung) ? "Fxx: Undefinierbarer Fehler" : z->text;
}

std::string_view Befehlstext(Befehlsfamilie familie, std::string_view code) {
  const auto z = Finden(befehle, code);
  if (z == std::end(befehle)) return unbekannt;
  return familie == Befehlsfamilie::telegramm ? z->telegramm : z->ereignis;
}

}  // namespace zav
