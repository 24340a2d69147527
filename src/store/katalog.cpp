#include "store/katalog.h"

#include <algorithm>
#include <array>

#include "basis/zahl.h"

namespace zav {

namespace {

constexpr u8 diverse = gruppe_diverse;
constexpr u8 thermostat = gruppe_thermostat;
constexpr u8 flanken = gruppe_flanken;
constexpr u8 flanken_lang = gruppe_flanken_lang;
constexpr u8 funk = gruppe_funk;

// Kind, picture caption, page title, addresses, key slots, LED slots, groups. Never renumber: files hold the
// kind.
// clang-format off
constexpr std::array<Apparatart, apparat_arten> arten{{
    {1, "Einfachtaster ohne LED", "Feller: Einfachtaster ohne LED", 1, "2", ""},
    {2, "Einfachtaster mit LED", "Feller: Einfachtaster mit LED", 1, "2", "2"},
    {3, "Einfachtaster ohne LED, mit Papier", "Feller: Einfachtaster ohne LED", 1, "2", ""},
    {4, "Einfachtaster mit LED, mit Papier", "Feller: Einfachtaster mit LED", 1, "2", "2"},
    {5, "Zweifachtaster ohne LED", "Feller: Zweifachtaster ohne LED", 1, "23", ""},
    {6, "Zweifachtaster mit LED", "Feller: Zweifachtaster mit LED", 1, "23", "23"},
    {7, "Zweifachtaster ohne LED, mit Papier", "Feller: Zweifachtaster ohne LED", 1, "23", ""},
    {8, "Zweifachtaster mit LED, mit Papier", "Feller: Zweifachtaster mit LED", 1, "23", "23"},
    {9, "Dreifachtaster ohne LED", "Feller: Dreifachtaster ohne LED", 1, "123", ""},
    {10, "Dreifachtaster mit LED", "Feller: Dreifachtaster mit LED", 1, "123", "123"},
    {11, "Dreifachtaster ohne LED, mit Papier", "Feller: Dreifachtaster ohne LED", 1, "123", ""},
    {12, "Dreifachtaster mit LED, mit Papier", "Feller: Dreifachtaster mit LED", 1, "123", "123"},
    {13, "Vierfachtaster ohne LED", "Feller: Vierfachtaster ohne LED", 1, "0123", ""},
    {14, "Vierfachtaster mit LED", "Feller: Vierfachtaster mit LED", 1, "0123", "0123"},
    {15, "Vierfachtaster ohne LED, mit Papier", "Feller: Vierfachtaster ohne LED", 1, "0123", ""},
    {16, "Vierfachtaster mit LED, mit Papier", "Feller: Vierfachtaster mit LED", 1, "0123", "0123"},
    {17, "Einfachtaster mit Zweifachbedienung ohne LED", "Feller: Zweifachtaster ohne LED", 1, "23", ""},
    {18, "Einfachtaster mit Zweifachbedienung mit LED links", "Feller: Zweifachtaster mit LED", 1, "23", "23"},
    {19, "Einfachtaster mit Zweifachbedienung ohne LED, mit Papier", "Feller: Zweifachtaster ohne LED", 1, "23", ""},
    {20, "Einfachtaster mit Zweifachbedienung mit LED links, mit Papier", "Feller: Zweifachtaster mit LED", 1, "23", "23"},
    {21, "Zweifachtaster mit Zweifachbedienung ohne LED", "Feller: Vierfachtaster ohne LED", 1, "0123", ""},
    {22, "Zweifachtaster mit Zweifachbedienung mit LED links", "Feller: Vierfachtaster mit LED", 1, "0123", "0123"},
    {23, "Zweifachtaster mit Zweifachbedienung ohne LED, mit Papier", "Feller: Vierfachtaster ohne LED", 1, "0123", ""},
    {24, "Zweifachtaster mit Zweifachbedienung mit LED links, mit Papier", "Feller: Vierfachtaster mit LED", 1, "0123", "0123"},
    {25, "Sechsfachtaster ohne LED", "Feller: Sechsfachtaster ohne LED", 2, "234567", ""},
    {26, "Sechsfachtaster mit LED", "Feller: Sechsfachtaster mit LED", 2, "234567", "234567"},
    {27, "Sechsfachtaster ohne LED, mit Papier", "Feller: Sechsfachtaster ohne LED", 2, "234567", ""},
    {28, "Sechsfachtaster mit LED, mit Papier", "Feller: Sechsfachtaster mit LED", 2, "234567", "234567"},
    {29, "Achtfachtaster ohne LED", "Feller: Achtfachtaster ohne LED", 2, "01234567", ""},
    {30, "Achtfachtaster mit LED", "Feller: Achtfachtaster mit LED", 2, "01234567", "01234567"},
    {31, "Achtfachtaster ohne LED, mit Papier", "Feller: Achtfachtaster ohne LED", 2, "01234567", ""},
    {32, "Achtfachtaster mit LED, mit Papier", "Feller: Achtfachtaster mit LED", 2, "01234567", "01234567"},
    {33, "Steckdose 1 x T12", "Steckdose Typ 12", 0, "", ""},
    {34, "Steckdose 2 x T12", "Steckdose 2 x Typ 12", 0, "", ""},
    {35, "Steckdose 3 x T12", "Steckdose 3 x Typ 12", 0, "", ""},
    {36, "Steckdose 1 x T13", "Steckdose Typ 13", 0, "", ""},
    {37, "Steckdose 2 x T13", "Steckdose 2 x Typ 13", 0, "", ""},
    {38, "Steckdose 3 x T13", "Steckdose 3 x Typ 13", 0, "", ""},
    {39, "ZAVtherm-1-pot", "ZAVtherm Dreh-Thermostat", 1, "0", "0123", thermostat},
    {40, "ZAVtherm-4-disp", "ZAVtherm Display-Thermostat", 4, "012", "0123", thermostat},
    {41, "Bewegungsmelder \"alt\"", "Feller Bewegungsmelder mit ALTEM Buskoppler (bis Dezember 2008)", 1, "01", ""},
    {42, "Klingeltaste", "Feller: Klingeltaste", 1, "0", ""},
    {43, "Blindabdeckung", "Blindabdeckung", 0, "", ""},
    {44, "Lautsprecherabdeckung (Gong oder Radio)", "Einbau-Gong für Kombinationen", 0, "", ""},
    {45, "Bewegungsmelder \"neu\"", "Feller Bewegungsmelder mit NEUEM Buskoppler (ab Januar 2009)", 2, "01", "", flanken},
    {46, "Levy-Taster 2-fach", "Levy: Zweifachtaster mit LED", 1, "23", "23"},
    {47, "Levy-Taster 4-fach", "Levy: Vierfachtaster mit LED", 1, "0123", "0123"},
    {48, "Levy-Taster 6-fach", "Levy: Sechsfachtaster mit LED", 2, "012367", "012367"},
    {49, "Alte Feller-Taster", "Feller (alt): Einfachtaster ohne LED", 1, "2", ""},
    {50, "Alte Feller-Taster", "Feller (alt): Einfachtaster mit LED", 1, "2", "2"},
    {51, "Alte Feller-Taster", "Feller (alt): Zweifachtaster ohne LED", 1, "23", ""},
    {52, "Alte Feller-Taster", "Feller (alt): Zweifachtaster mit LED", 1, "23", "23"},
    {53, "Alte Feller-Taster", "Feller (alt): Vierfachtaster ohne LED", 1, "0123", ""},
    {54, "Alte Feller-Taster", "Feller (alt): Vierfachtaster mit LED", 1, "0123", "0123"},
    {55, "Alte Feller-Taster", "Feller (alt): Dreifachtaster ohne LED", 1, "123", ""},
    {56, "Alte Feller-Taster", "Feller (alt): Dreifachtaster mit LED", 1, "123", "123"},
    {57, "Alte Feller-Taster", "Feller (alt): Dreifachtaster ohne LED", 1, "023", ""},
    {58, "Alte Feller-Taster", "Feller (alt): Dreifachtaster mit LED", 1, "023", "023"},
    {59, "ZAVtast-a1 ohne LED", "TESSARO: Einfachtaster ohne LED", 1, "2", ""},
    {60, "ZAVtast-a1 mit LED", "TESSARO: Einfachtaster mit LED", 1, "2", "2"},
    {61, "ZAVtast-a2 ohne LED", "TESSARO: Zweifachtaster ohne LED", 1, "23", ""},
    {62, "ZAVtast-a2 mit LED", "TESSARO: Zweifachtaster mit LED", 1, "23", "23"},
    {63, "ZAVtast-a4 ohne LED", "TESSARO: Vierfachtaster ohne LED", 1, "0123", ""},
    {64, "ZAVtast-a4 mit LED", "TESSARO: Vierfachtaster mit LED", 1, "0123", "0123"},
    {65, "IR-Mehrfachsender Feller", "Feller: IR-Mehrfachsender", 6, "", "", diverse},
    {66, "IR-Handsender Feller", "Feller: IR-Handsender", 1, "0123", ""},
    {67, "IR-Wandsender \"alt\"", "Feller: IR-Tisch- und Wandsender", 1, "0123", ""},
    {68, "ZAVin-04LC", "ZAVin-04LC", 1, "0123", "0123"},
    {69, "Universalbaugruppe mit Flanken-Eingängen", "ZAVin-04LC/Universalbaugruppe mit Flanken-Eingängen", 2, "0123", "0123", flanken},
    {70, "IR-Sender Philips Pronto", "Philips: Pronto/Universal RC5-Code", 6, "", "", diverse},
    {71, "IR-Sender B&O", "Bang&Olufsen: IR-Sender Beo4", 6, "", "", diverse},
    {72, "Eingangsbaugruppe ZAVin-0824 ...", "ZAVin-0824", 6, "", "", diverse | flanken_lang},
    {73, "", "Universal-Eingang 4 mit LED", 1, "0123", "0123"},
    {74, "", "Universal-Eingang 8 mit LED", 2, "01234567", "01234567"},
    {75, "Wetterstation", "Wetterstation", 4, "", "", diverse},
    {76, "Eingangsbaugruppe ZAVin-0800h ...", "ZAVin-0800...", 6, "", "", diverse | flanken_lang},
    {77, "Eingangsbaugruppe ZAVin-0400 \"alt\"", "ZAVin-0400...", 1, "0123", "", diverse},
    {78, "Touchpanel-Thermostat", "Touchpanel", 4, "", "0123", thermostat},
    {79, "Touchpanel-Funktionen", "Tasten-Ereignisse von Touchpanel", 6, "", "", diverse},
    {80, "Leer", "Leer", 0, "", ""},
    {81, "Zweifachtaster EnOcean", "EnOcean: Zweifachtaster senkrecht", 1, "01", "", funk},
    {82, "Zweifachtaster EnOcean", "EnOcean: Zweifachtaster senkrecht", 1, "01", "", funk},
    {83, "Zweifachtaster EnOcean", "EnOcean: Zweifachtaster senkrecht", 1, "01", "", funk},
    {84, "Vierfachtaster EnOcean", "EnOcean: Vierfachtaster senkrecht", 1, "0123", "", funk},
    {85, "Vierfachtaster EnOcean", "EnOcean: Vierfachtaster senkrecht", 1, "0123", "", funk},
    {86, "Vierfachtaster EnOcean", "EnOcean: Vierfachtaster senkrecht", 1, "0123", "", funk},
    {87, "Handsender EnOcean", "EnOcean: Handsender", 1, "0123", "", funk},
    {88, "Magnetkontakt EnOcean", "EnOcean: Magnetkontakt", 1, "01", "", funk},
    {89, "Bewegungs-/Präsenzmelder EnOcean", "EnOcean: Bewegungs-/Präsenzmelder", 2, "01", "", flanken | funk},
    {90, "Einfachtaster Elegance mit LED", "Feller Elegance: Einfachtaster mit LED", 1, "0", "0"},
    {91, "Zweifachtaster Elegance mit LED", "Feller Elegance: Zweifachtaster mit LED", 1, "01", "01"},
    {92, "Vierfachtaster Elegance mit LED", "Feller Elegance: Vierfachtaster mit LED", 1, "0123", "0123"},
    {93, "Bedientasten für Kameraseiten", "Bedientasten für Kameraseiten", 6, "", "", diverse},
}};
// clang-format on
static_assert(std::ranges::max(arten, {}, &Apparatart::adressen).adressen == adressen_je_apparat);

constexpr std::string_view waagrecht = "Waagrecht";
constexpr std::string_view quadratisch = "Quadratisch";
constexpr std::string_view senkrecht = "Senkrecht";

// Name, heading, columns, rows. Never renumber: files hold the number.
constexpr std::array<Layout, 17> layouts{{
    {"Grösse 1", quadratisch, 1, 1},
    {"Grösse 1-1 senkrecht", senkrecht, 1, 2},
    {"Grösse 3 senkrecht", senkrecht, 1, 3},
    {"Grösse 4 senkrecht", senkrecht, 1, 4},
    {"Grösse 2-2 quadratisch", quadratisch, 2, 2},
    {"Grösse 3-2 senkrecht", senkrecht, 2, 3},
    {"Grösse 4-2 senkrecht", senkrecht, 2, 4},
    {"Grösse 3-3 quadratisch", quadratisch, 3, 3},
    {"Grösse 4-3 senkrecht", senkrecht, 3, 4},
    {"Grösse 1-2 waagrecht", waagrecht, 2, 1},
    {"Grösse 1-3 waagrecht", waagrecht, 3, 1},
    {"Grösse 1-4 waagrecht", waagrecht, 4, 1},
    {"Grösse 2-3 waagrecht", waagrecht, 3, 2},
    {"Grösse 2-4 waagrecht", waagrecht, 4, 2},
    {"Grösse 3-4 waagrecht", waagrecht, 4, 3},
    {"Grösse 4-4 quadratisch (nicht Standard!)", quadratisch, 4, 4},
    {"Fernbedienungen, Wettersensor, ZAVin-0800 usw.",
     "Diverse (Fernbedienungen, Wettersensor, ZAVin-0800 usw.", 1, 1},
}};

// The class of a radio sender by the last kind that has it.
struct Funkart {
  int bis_typ;
  i16 art;
};
constexpr std::array<Funkart, 5> funkarten{{{83, 1}, {86, 2}, {87, 3}, {88, 4}, {89, 5}}};

constexpr int slots_je_kombination = plaetze * tastenplaetze;

// The two display thermostats keep their LED outputs behind their own slots.
constexpr bool Led_hinter_eigenen(int typ) { return typ == 40 || typ == 78; }

}  // namespace

std::span<const Apparatart> Apparatarten() { return arten; }

const Apparatart* Apparat_art(int typ) {
  return typ >= 1 && typ <= apparat_arten ? &arten.at(static_cast<std::size_t>(typ - 1)) : nullptr;
}

i16 Apparat_funkart(int typ) {
  const Apparatart* const art = Apparat_art(typ);
  if (art == nullptr || !art->ist(gruppe_funk)) return 0;
  return std::find_if(funkarten.begin(), funkarten.end(), [&](const Funkart& f) { return typ <= f.bis_typ; })
      ->art;
}

int Slot_von_versatz(int typ, int j) {
  const Apparatart* const art = Apparat_art(typ);
  if (art == nullptr) return j;
  if (art->ist(gruppe_flanken)) return j / 2;
  if (art->ist(gruppe_flanken_lang)) return j < 16 ? j / 2 : j - 16;
  return j;
}

int Versatz_von_slot(int typ, int n) {
  const Apparatart* const art = Apparat_art(typ);
  const bool doppelt = art != nullptr && (art->ist(gruppe_flanken) || art->ist(gruppe_flanken_lang));
  return doppelt ? 2 * n : n;
}

bool Thermostat_adresse_frei(int typ, int i) {
  return (typ == 40 && i == 1) || (typ == 78 && (i == 0 || i == 1));
}

std::optional<int> Thermostat_adresse(int typ) {
  const Apparatart* const art = Apparat_art(typ);
  if (art == nullptr || !art->ist(gruppe_thermostat)) return std::nullopt;
  return Led_hinter_eigenen(typ) ? 2 : 0;
}

std::optional<Adresslauf> Apparat_adressen(const Projekt& p, int d) {
  const auto von = Zahl_lesen(p.App_text[d], 0, adressen - 1);
  if (!von) return std::nullopt;
  const int anzahl = Zahl_lesen(p.App_text2[d], 0, adressen).value_or(0);
  return Adresslauf{*von, std::min({anzahl, adressen_je_apparat, adressen - *von})};
}

int Apparat_slot(const Projekt& p, int d, int n) {
  const int in_kombination = d % plaetze * tastenplaetze + n;
  if (in_kombination >= slots_je_kombination) return -1;
  const int eintrag = d / plaetze * slots_je_kombination + in_kombination;
  if (n < tastenplaetze || (Led_hinter_eigenen(p.App_typ[d]) && n < 12)) return eintrag;
  const bool eigener = n < 4 * Zahl_lesen(p.App_text2[d], 0, adressen).value_or(0) &&
                       p.App_typ[d + n / tastenplaetze] == apparat_leer;
  return eigener ? eintrag : -1;
}

int Apparat_textslot(const Projekt& p, int d, int n) {
  const int slot = Apparat_slot(p, d, n);
  return slot < 0 || n < tastenplaetze || p.App_typ[slot / tastenplaetze] == apparat_leer ? slot : -1;
}

std::span<const Layout> Layouts() { return layouts; }

const Layout* Layout_von(int nummer) {
  return nummer >= 0 && nummer < static_cast<int>(layouts.size())
             ? &layouts.at(static_cast<std::size_t>(nummer))
             : nullptr;
}

}  // namespace zav
