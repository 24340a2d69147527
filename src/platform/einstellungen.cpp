#include "platform/einstellungen.h"

#include <pwd.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <string_view>
#include <system_error>
#include <variant>
#include <vector>

#include "basis/zahl.h"
#include "platform/datei.h"
#include "platform/ini.h"

namespace zav {

namespace fs = std::filesystem;

Einstellungen einstellungen;

namespace {

enum class Gruppe { programm, letzte_dateien, ports };

struct Zeile {
  Gruppe gruppe;
  std::string schluessel;
  std::variant<i16*, i32*, str*> wert;
  std::int32_t von = 0, bis = 0;     // range of a number
  const str* geschrieben = nullptr;  // what is written, where it is not the value itself

  const char* abschnitt() const { return gruppe == Gruppe::ports ? "Ports" : "Startup"; }
};

// The settings in the order in which they are read. What they mean and their defaults stand at their members.
std::vector<Zeile> Tabelle(Einstellungen& e) {
  constexpr std::int32_t i16_min = std::numeric_limits<i16>::min(), i16_max = std::numeric_limits<i16>::max();
  std::vector<Zeile> t;
  const auto reihe = [&t](Gruppe gruppe, const std::string& name, const char* ende, int erste, auto& feld) {
    for (int i = 0; i < static_cast<int>(feld.groesse); ++i) {
      t.push_back({gruppe, name + std::to_string(erste + i) + ende, &feld[i]});
    }
  };
  t.push_back({Gruppe::programm, "comport", &e.Com_port, 1, 8});
  t.push_back({Gruppe::programm, "standarddir", &e.Standard_ordner});
  reihe(Gruppe::programm, "sowi_zeit", "_txt", 1, e.Sowi_datum);
  t.push_back({Gruppe::programm, "richt_mode", &e.Richt_modus, 0, 2});
  t.push_back({Gruppe::programm, "epson", &e.Epson, i16_min, i16_max});
  t.push_back({Gruppe::programm, "ComArt", &e.Com_art, 0, 2});
  t.push_back({Gruppe::programm, "EventSperr", &e.Event_sperre, 0, 1});
  t.push_back({Gruppe::programm, "HostName", &e.Host_name});
  t.push_back({Gruppe::programm, "HostNameIP", &e.Host_ip, 0, 0, &e.Host_name});
  t.push_back({Gruppe::programm, "HostPort", &e.Host_port, 0, 65535});
  reihe(Gruppe::letzte_dateien, "last_file_", "", 0, e.last_file);
  reihe(Gruppe::ports, "com", "", 1, e.Ports);
  return t;
}

// Takes the text of the file over; false, and the value as it was, where it is no number of the range.
bool Uebernehmen(const Zeile& z, const std::string& text) {
  if (auto* const* ziel = std::get_if<str*>(&z.wert)) {
    **ziel = text;
    return true;
  }
  const auto zahl = Zahl_lesen(text, z.von, z.bis);
  if (!zahl) return false;
  if (auto* const* kurz = std::get_if<i16*>(&z.wert)) {
    **kurz = static_cast<i16>(*zahl);
  } else {
    *std::get<i32*>(z.wert) = *zahl;
  }
  return true;
}

std::string Text(const str& wert) { return wert; }
std::string Text(std::int32_t wert) { return std::to_string(wert); }

std::string Geschrieben(const Zeile& z) {
  if (z.geschrieben != nullptr) return *z.geschrieben;
  return std::visit([](const auto* wert) { return Text(*wert); }, z.wert);
}

// Reads the file as it stands; one that does not exist is empty. The error number, 0 when all went well.
int Ini_lesen(Ini& ini) {
  std::string inhalt;
  const Dateiergebnis ergebnis = Datei_lesen(Einstellungsdatei(), inhalt);
  ini = Ini(inhalt);
  return ergebnis.fehler == ENOENT || ergebnis.fehler == ENOTDIR ? 0 : ergebnis.fehler;
}

std::string Klage(const std::string& was, int fehler) {
  return "Die Einstellungen in " + Einstellungsdatei() + " können nicht " + was +
         " werden: " + Systemfehler_text(fehler) + ".";
}

}  // namespace

std::string Einstellungsdatei() {
  fs::path ordner;
  // The rules of the XDG folders: a relative path does not count.
  if (const char* xdg = std::getenv("XDG_CONFIG_HOME"); xdg != nullptr && fs::path(xdg).is_absolute()) {
    ordner = xdg;
  } else if (const char* heim = std::getenv("HOME"); heim != nullptr && *heim != '\0') {
    ordner = fs::path(heim) / ".config";
  } else if (const passwd* benutzer = getpwuid(getuid()); benutzer != nullptr) {
    ordner = fs::path(benutzer->pw_dir) / ".config";
  } else {
    return {};
  }
  return (ordner / "ZAVlink" / "ZAVlink.ini").string();
}

std::string Einstellungen_lesen() {
  Ini ini;
  const int fehler = Ini_lesen(ini);
  std::string klage = fehler == 0 ? std::string() : Klage("gelesen", fehler);
  Einstellungen frisch;
  frisch.Com_geraet = einstellungen.Com_geraet;
  einstellungen = frisch;
  for (const Zeile& z : Tabelle(einstellungen)) {
    const auto text = ini.Lesen(z.abschnitt(), z.schluessel);
    if (!text || Uebernehmen(z, *text) || !klage.empty()) continue;
    klage = "In der Einstellungsdatei " + Einstellungsdatei() + " steht bei \"" + z.schluessel +
            "\" keine gültige Zahl: \"" + *text + "\" (erlaubt: " + std::to_string(z.von) + " bis " +
            std::to_string(z.bis) + ").";
  }
  return klage;
}

namespace {

std::string Gruppen_schreiben(std::initializer_list<Gruppe> gruppen) {
  Ini ini;
  // What could not be read must not be replaced: it holds lines that this program does not know.
  if (const int fehler = Ini_lesen(ini); fehler != 0) return Klage("gelesen", fehler);
  for (const Zeile& z : Tabelle(einstellungen)) {
    if (std::find(gruppen.begin(), gruppen.end(), z.gruppe) == gruppen.end()) continue;
    const std::string wert = Geschrieben(z);
    // An unset port needs no line.
    if (z.gruppe == Gruppe::ports && wert.empty() && !ini.Lesen(z.abschnitt(), z.schluessel)) continue;
    ini.Setzen(z.abschnitt(), z.schluessel, wert);
  }
  const std::string datei = Einstellungsdatei();
  std::error_code ordnerfehler;
  fs::create_directories(fs::path(datei).parent_path(), ordnerfehler);
  const int fehler = ordnerfehler ? ordnerfehler.value() : Datei_schreiben(datei, ini.Inhalt()).fehler;
  return fehler == 0 ? std::string() : Klage("gespeichert", fehler);
}

}  // namespace

std::string Einstellungen_schreiben() { return Gruppen_schreiben({Gruppe::programm, Gruppe::ports}); }

std::string Letzte_dateien_schreiben() { return Gruppen_schreiben({Gruppe::letzte_dateien}); }

}  // namespace zav
