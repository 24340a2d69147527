#include "editor/import.h"

#include <algorithm>
#include <array>
#include <string>

#include "basis/melder.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "editor/adressplan.h"
#include "store/katalog.h"
#include "store/sitzung.h"

namespace zav {

namespace {

struct Quelle {
  int bildtyp;
  Importart art;
};
// Source type, kind, addresses; ascending. The values of Grp_typ: never renumber.
// clang-format off
constexpr std::array<Quelle, 49> quellen{{
    {0, {49, 1}}, {1, {51, 1}}, {2, {53, 1}}, {3, {50, 1}}, {4, {52, 1}}, {5, {54, 1}}, {6, {66, 1}},
    {8, {77, 1}}, {9, {73, 1}}, {10, {59, 1}}, {11, {61, 1}}, {12, {63, 1}}, {13, {60, 1}}, {14, {62, 1}},
    {15, {64, 1}}, {16, {59, 1}}, {17, {61, 1}}, {18, {63, 1}}, {19, {60, 1}}, {20, {62, 1}}, {21, {64, 1}},
    {22, {46, 1}}, {23, {47, 1}}, {24, {48, 2}}, {26, {71, 6}}, {31, {55, 1}}, {32, {57, 1}}, {33, {56, 1}},
    {34, {58, 1}}, {35, {1, 1}}, {36, {17, 1}}, {37, {5, 1}}, {38, {21, 1}}, {39, {9, 1}}, {40, {25, 2}},
    {41, {13, 1}}, {43, {2, 1}}, {44, {18, 1}}, {45, {6, 1}}, {46, {22, 1}}, {47, {10, 1}}, {48, {26, 2}},
    {49, {14, 1}}, {70, {65, 6}}, {90, {70, 6}}, {91, {76, 6}}, {92, {39, 1}}, {93, {40, 4}}, {94, {67, 1}},
}};
// clang-format on
constexpr Importart unbekannt{73, 1};

struct Marke {
  std::string_view text;
  int bildtyp;
};
// First characters of a group's text that tell more than its picture.
constexpr std::array<Marke, 6> marken{
    {{"@me", 70}, {"@pr", 90}, {"@no", 91}, {"@dr", 92}, {"@di", 93}, {"@wa", 94}}};

void Gruppe_uebernehmen(int k, int adresse, const Importart& art) {
  const int d = plaetze * k;
  projekt.Komb_typ[k] = 1;
  projekt.Komb_text[k] = "IMPORT";
  projekt.Komb_text2[k] = "i" + Stellen(adresse, 3) + ": " + projekt.Grp_text[adresse];
  projekt.Komb_layout[k] = layout_diverse;
  projekt.App_typ[d] = static_cast<i16>(art.typ);
  projekt.App_text[d] = std::to_string(adresse);
  projekt.App_text2[d] = std::to_string(art.adressen);
  const int tasten = std::min(4 * art.adressen, eingangsereignisse - 4 * adresse);
  for (int n = 0; n < tasten; ++n) {
    projekt.Dev_text[tastenplaetze * d + n] = projekt.Ein_text[4 * adresse + n];
    projekt.Dev_adr[tastenplaetze * d + n] = projekt.Ein_led[4 * adresse + n];
  }
}

}  // namespace

std::optional<Importart> Importart_von(int bildtyp) {
  const auto q = std::ranges::lower_bound(quellen, bildtyp, {}, &Quelle::bildtyp);
  return q != quellen.end() && q->bildtyp == bildtyp ? std::optional(q->art) : std::nullopt;
}

int Importtyp(std::string_view gruppentext, int bildtyp) {
  const auto m = std::ranges::find(marken, Links(gruppentext, 3), &Marke::text);
  return m != marken.end() ? m->bildtyp : bildtyp;
}

bool Importieren() {
  if (Kombination_erste_freie() != 0) {
    Melden(
        "Import nicht zulässig, wenn schon Kombinationen bestehen. Bitte löschen Sie alle Kombinationen oder "
        "erstellen "
        "Sie ein neues Projekt.");
    return false;
  }
  int k = 0;
  for (int a = 0; a < adressen;) {
    if (projekt.Grp_text[a].empty()) {
      ++a;
      continue;
    }
    const Importart art =
        Importart_von(Importtyp(projekt.Grp_text[a], projekt.Grp_typ[a])).value_or(unbekannt);
    Gruppe_uebernehmen(k++, a, art);
    a += art.adressen;
  }
  if (k > 0) sitzung.Projekt_geaendert = 1;
  return true;
}

}  // namespace zav
