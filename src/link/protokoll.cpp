#include "link/protokoll.h"

#include <algorithm>
#include <optional>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "basis/zahl.h"
#include "link/leitung.h"
#include "link/statuscode.h"
#include "store/sitzung.h"

namespace zav {

namespace {

constexpr i16 lange_zeit = 15;   // s, for what keeps the master busy
constexpr int statuslaenge = 6;  // "F", two digits, checksum, CR
constexpr int versionslaenge = 13;
constexpr int namenslaenge = 51;  // 24 bytes as digits, checksum, CR

// Where the master keeps the file name of the project that it holds.
constexpr i32 name_von = 0x808;
constexpr i32 name_bis = 0x81F;

std::string Mit_nullen(std::string ziffern, std::size_t breite) {
  ziffern.insert(0, breite - ziffern.size(), '0');
  return ziffern;
}

std::string Hex(std::int64_t v, std::size_t breite) {
  std::string ziffern = Hex_text(v);
  if (ziffern.size() > breite) {
    Melden("Ungültige Daten", "", Symbol::Stopp);
    return {};
  }
  return Mit_nullen(std::move(ziffern), breite);
}

std::string Adressfeld(i32 adresse) {
  std::string ziffern = Hex_text(adresse);
  return ziffern.size() > 6 ? std::string() : Mit_nullen(std::move(ziffern), 6);
}

std::string Code(const std::string& empfang) { return Links(empfang, 3); }

// Opens the port, runs one message that is answered by a status, and tells how it went.
void Befehl_ausfuehren(Befehlsfamilie familie, const std::string& text) {
  Port_oeffnen();
  if (leitung.Port_fehler == 1) {
    leitung.Empfang_text = Port_zu;
  } else {
    std::optional<Wartezeiger> zeiger;
    if (familie == Befehlsfamilie::ereignis) zeiger.emplace();
    leitung.Sende_text = text;
    Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, statuslaenge);
    if (leitung.Empfang_status == 1) {
      Melden("Zeitüberschreitung, versuchen Sie es bitte noch einmal.");
    } else if (Antwort_ist_gut()) {
      Port_schliessen();
      return;
    }
  }
  Port_schliessen();
  melder().Piep();
  leitung.Empfang_status = 1;
  if (leitung.Empfang_text == Port_zu) return;
  const std::string code = Code(leitung.Empfang_text);
  Melden(code + std::string(Befehlstext(familie, code)), "Fehler", Symbol::Stopp);
}

// Characters of a run of hexadecimal pairs; nothing where one is no pair.
std::optional<std::string> Text_aus_hex(std::string_view ziffern) {
  std::string bytes;
  for (std::size_t i = 0; i + 1 < ziffern.size(); i += 2) {
    const auto wert = Hex_zahl(ziffern.substr(i, 2));
    if (!wert) return std::nullopt;
    bytes.push_back(static_cast<char>(*wert));
  }
  return Aus_1252(bytes);
}

// The exchanges of the query, up to the first that fails.
Masterinfo Fragen_stellen() {
  Masterinfo info;
  leitung.Sende_text = "V";
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, versionslaenge);
  if (leitung.Empfang_status == 1) return info;
  info.version = Links(leitung.Empfang_text, 10);
  sitzung.Master_version = info.version;
  Fenster_setzen(name_von, name_bis);
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, statuslaenge);
  if (!Antwort_ist_gut()) return info;
  leitung.Sende_text = "R";
  Meldung_senden(leitung.Sende_text, leitung.Antwort_zeit, true, namenslaenge);
  if (leitung.Empfang_status == 1) return info;
  const auto name = Text_aus_hex(Links(leitung.Empfang_text, namenslaenge - 3));
  info.gut = name.has_value();
  info.projekt = name.value_or("");
  return info;
}

}  // namespace

std::string Hex2(std::int64_t v) { return Hex(v, 2); }
std::string Hex4(std::int64_t v) { return Hex(v, 4); }
std::string Hex8(std::int64_t v) { return Hex(v, 8); }

bool Hex_wert(std::string_view text, std::uint32_t& wert) {
  const auto zahl = Hex_zahl(text);
  if (zahl) wert = *zahl;
  return zahl.has_value();
}

std::string Pruefsumme(std::string_view text) {
  std::uint32_t summe = 0;
  if (std::all_of(text.begin(), text.end(), [](char c) { return (c & 0x80) == 0; })) {
    for (const char c : text) summe += static_cast<unsigned char>(c);
  } else {
    for (const char32_t c : Codes(text)) summe += c & 0xFF;
  }
  return Mit_nullen(Hex_text(summe & 0xFF), 2);
}

void Fenster_setzen(i32 von, i32 bis) { leitung.Sende_text = "D" + Adressfeld(von) + Adressfeld(bis); }

void Can_senden(const std::string& adresse, const std::string& laenge, const std::string& daten) {
  Befehl_ausfuehren(Befehlsfamilie::telegramm, "X" + adresse + laenge + daten);
}

void Ereignis_erzeugen(const std::string& a, const std::string& b, const std::string& c) {
  Befehl_ausfuehren(Befehlsfamilie::ereignis, "Y" + a + b + c);
}

void Uebertragungsfehler_melden(const std::string& empfang) {
  if (empfang == Port_zu || empfang == Antwort_gut) return;
  const bool abbruch = empfang == Antwort_abbruch;
  Melden(std::string(Uebertragungstext(Code(empfang))), abbruch ? "Abbruch der Übermittlung" : "Fehler",
         Symbol::Stopp);
}

void Neustart_ausfuehren() {
  Port_oeffnen();
  {
    const Wartezeiger zeiger;
    melder().Hinweis("Neustart ZAVmaster...bitte 10 bis 15 Sekunden warten");
    if (leitung.Port_fehler == 1) {
      leitung.Empfang_text = Port_zu;
    } else {
      leitung.Sende_text = "*";
      Meldung_senden(leitung.Sende_text, lange_zeit, false, statuslaenge);
      if (Antwort_ist_gut()) {
        leitung.Sende_text = "i";
        Meldung_senden(leitung.Sende_text, lange_zeit, false, statuslaenge);
      }
    }
    Port_schliessen();
    melder().Hinweis("");
  }
  if (leitung.Empfang_text == Port_zu) return;
  if (leitung.Empfang_text == Antwort_neustart) {
    Melden("F99: Neustart im ZAVmaster war erfolgreich", "Info", Symbol::Information);
    return;
  }
  const bool stumm = leitung.Empfang_text == Antwort_keine;
  if (stumm) leitung.Empfang_status = 1;
  Melden(std::string(Uebertragungstext(stumm ? "F98" : "")), "Fehler", Symbol::Stopp);
}

Masterinfo Master_abfragen() {
  Port_oeffnen();
  if (leitung.Port_fehler == 1) {
    Melden(std::to_string(leitung.Port_fehler) + " bei Open Port", "SIO: Fehler ");
    return {};
  }
  Masterinfo info = Fragen_stellen();
  if (!info.gut) Melden("Abfrage nicht möglich. Versuchen Sie es bitte noch einmal.");
  Port_schliessen();
  return info;
}

}  // namespace zav
