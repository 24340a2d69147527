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
  std::variant<std::int32_t, std::string> vorgabe;
  std::int32_t von = 0, bis = 0;  // range of a number
  // Value that is written, where it is not the one that was read.
  const str* geschrieben = nullptr;

  std::string_view abschnitt() const { return gruppe == Gruppe::ports ? "Ports" : "Startup"; }
};

// The settings in the order in which they are read: key, place, default, range. What they mean stands at
// their members.
std::vector<Zeile> Tabelle(Einstellungen& e) {
  const Einstellungen frisch;
  std::vector<Zeile> t;
  const auto zahl = [&t](const char* schluessel, auto& ziel, std::int32_t vorgabe, std::int32_t von,
                         std::int32_t bis) {
    t.push_back({Gruppe::programm, schluessel, &ziel, vorgabe, von, bis});
  };
  const auto text = [&t](Gruppe g, std::string schluessel, str& ziel, const str& vorgabe,
                         const str* schreiben = nullptr) {
    t.push_back({g, std::move(schluessel), &ziel, vorgabe, 0, 0, schreiben});
  };
  constexpr std::int32_t i16_min = std::numeric_limits<i16>::min(), i16_max = std::numeric_limits<i16>::max();

  zahl("comport", e.Com_port, frisch.Com_port, 1, 8);
  text(Gruppe::programm, "standarddir", e.Standard_ordner, frisch.Standard_ordner);
  for (int i = 0; i < 20; ++i) {
    text(Gruppe::programm, "sowi_zeit" + std::to_string(i + 1) + "_txt", e.Sowi_datum[i],
         frisch.Sowi_datum[i]);
  }
  zahl("richt_mode", e.Richt_modus, frisch.Richt_modus, 0, 2);
  zahl("epson", e.Epson, frisch.Epson, i16_min, i16_max);
  zahl("ComArt", e.Com_art, frisch.Com_art, 0, 2);
  zahl("EventSperr", e.Event_sperre, frisch.Event_sperre, 0, 1);
  text(Gruppe::programm, "HostName", e.Host_name, frisch.Host_name);
  text(Gruppe::programm, "HostNameIP", e.Host_ip, frisch.Host_ip, &e.Host_name);
  zahl("HostPort", e.Host_port, frisch.Host_port, 0, 65535);
  for (int i = 0; i < 4; ++i) {
    text(Gruppe::letzte_dateien, "last_file_" + std::to_string(i), e.last_file[i], frisch.last_file[i]);
  }
  for (int i = 0; i < 8; ++i) text(Gruppe::ports, "com" + std::to_string(i + 1), e.Ports[i], frisch.Ports[i]);
  return t;
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
  for (const Zeile& z : Tabelle(einstellungen)) {
    const auto text = ini.Lesen(z.abschnitt(), z.schluessel);
    if (auto* const* ziel = std::get_if<str*>(&z.wert)) {
      **ziel = text ? *text : std::get<std::string>(z.vorgabe);
      continue;
    }
    std::int32_t wert = std::get<std::int32_t>(z.vorgabe);
    if (text) {
      if (const auto gelesen = Zahl_lesen(*text, z.von, z.bis)) {
        wert = *gelesen;
      } else if (klage.empty()) {
        klage = "In der Einstellungsdatei " + Einstellungsdatei() + " steht bei \"" + z.schluessel +
                "\" keine gültige Zahl: \"" + *text + "\" (erlaubt: " + std::to_string(z.von) + " bis " +
                std::to_string(z.bis) + ").";
      }
    }
    if (auto* const* kurz = std::get_if<i16*>(&z.wert)) {
      **kurz = static_cast<i16>(wert);
    } else {
      *std::get<i32*>(z.wert) = wert;
    }
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
    std::string wert;
    if (z.geschrieben != nullptr) {
      wert = *z.geschrieben;
    } else if (auto* const* text = std::get_if<str*>(&z.wert)) {
      wert = **text;
    } else if (auto* const* kurz = std::get_if<i16*>(&z.wert)) {
      wert = std::to_string(**kurz);
    } else {
      wert = std::to_string(*std::get<i32*>(z.wert));
    }
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
