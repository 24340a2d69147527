#include "service/srecord.h"

#include <array>
#include <cstddef>

#include "basis/text.h"
#include "basis/zahl.h"

namespace zav {

namespace {

enum class Rolle { kopf, daten, anzahl, ende };

struct Satzart {
  char typ;
  int adressbytes;
  Rolle rolle;
};
// S4 is reserved and appears in no file.
constexpr std::array satzarten{
    Satzart{'0', 2, Rolle::kopf},  Satzart{'1', 2, Rolle::daten},  Satzart{'2', 3, Rolle::daten},
    Satzart{'3', 4, Rolle::daten}, Satzart{'5', 2, Rolle::anzahl}, Satzart{'6', 3, Rolle::anzahl},
    Satzart{'7', 4, Rolle::ende},  Satzart{'8', 3, Rolle::ende},   Satzart{'9', 2, Rolle::ende}};

const Satzart* Art_von(std::string_view satz) {
  if (satz.size() < 2 || satz[0] != 'S') return nullptr;
  for (const Satzart& a : satzarten) {
    if (a.typ == satz[1]) return &a;
  }
  return nullptr;
}

// "" or what is wrong with the record.
const char* Satz_mangel(std::string_view satz, const Satzart& art) {
  const std::string_view ziffern = satz.substr(2);
  if (ziffern.size() % 2 != 0) return "hat eine halbe Stelle";
  std::uint32_t summe = 0;
  for (std::size_t i = 0; i < ziffern.size(); i += 2) {
    const auto byte = Hex_zahl(ziffern.substr(i, 2));
    if (!byte) return "enthält ein ungültiges Zeichen";
    summe += *byte;
  }
  const std::size_t bytes = ziffern.size() / 2;
  if (bytes < static_cast<std::size_t>(art.adressbytes) + 2 || *Hex_zahl(ziffern.substr(0, 2)) != bytes - 1) {
    return "hat eine falsche Länge";
  }
  return summe % 256 == 255 ? "" : "hat eine falsche Prüfsumme";
}

}  // namespace

std::string Srecord_mangel(std::string_view datei) {
  bool daten = false;
  bool ende = false;
  int zeile = 0;
  while (!datei.empty()) {
    ++zeile;
    const std::size_t n = datei.find_first_of("\r\n");
    const std::string_view satz = Ohne_rand(datei.substr(0, n));
    datei.remove_prefix(n == std::string_view::npos           ? datei.size()
                        : datei.substr(n).starts_with("\r\n") ? n + 2
                                                              : n + 1);
    if (satz.empty()) continue;
    const std::string stelle = "Zeile " + std::to_string(zeile) + " ";
    const Satzart* const art = Art_von(satz);
    if (art == nullptr) return stelle + "ist kein S-Record.";
    if (ende) return stelle + "steht hinter dem Schluss-Record.";
    const std::string mangel = Satz_mangel(satz, *art);
    if (!mangel.empty()) return stelle + mangel + ".";
    daten = daten || art->rolle == Rolle::daten;
    ende = art->rolle == Rolle::ende;
  }
  if (!daten) return "Die Datei enthält keine Daten.";
  return ende ? "" : "Der Schluss-Record fehlt, die Datei ist vielleicht abgeschnitten.";
}

}  // namespace zav
