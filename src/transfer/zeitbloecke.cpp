#include "transfer/zeitbloecke.h"

#include <algorithm>
#include <string_view>

#include "basis/datum.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "basis/zahl.h"

namespace zav {

namespace {

constexpr int sequenzer_eintraege = 6;
constexpr int jedes_jahr = 0xE000;  // stands where the year's part of a date word stands
constexpr std::size_t namenslaenge = 24;

int Sequenzerdatum(const Projekt& p, int i) {
  const str& text = p.Seq_datum[i];
  if (text.empty() || p.Seq_flag[i] != 1) return Tag_nummer(text);
  return jedes_jahr + Tag_nummer(Links(text, 6));  // a text without a year counts as year 0
}

}  // namespace

void Umstellungstabelle(int Richt_modus, const Feld<str, 20>& Sowi_datum, Block& b) {
  b.byte((Richt_modus == 1) | (Richt_modus == 2) << 1);
  for (const str& tag : Sowi_datum.alle()) b.wort(Tag_nummer(tag));
}

void Datentabelle(const Projekt& p, int Richt_modus, const Feld<str, 20>& Sowi_datum, Block& b) {
  Umstellungstabelle(Richt_modus, Sowi_datum, b);
  b.fuellen(23, 0);
  b.byte((p.Seq_manuell == 1) | (p.Seq_mitternacht == 1) << 1 | (p.Seq_neustart == 1) << 2);
  for (int i = 0; i < sequenzer_eintraege; ++i) {
    b.byte((p.Seq_uhr[i] == 1) | (p.Seq_uhr[i] == 2) << 1 | (p.Seq_mo_so[i] == 1) << 2 |
           (p.Seq_taeglich[i] == 1) << 3);
    b.wort(Sequenzerdatum(p, i));
  }
}

void Aufholbyte(const Projekt& p, Block& b) {
  b.byte((p.Sowi_modus[0] != 0) | (p.Sowi_modus[1] != 0) << 1 | (p.Sowi_modus[2] != 0) << 2);
}

void Schaltzeitenseite(const Uhr_tafel& Uhr_work, int m, int d, Block& b) {
  const auto zeiten = Teilzeile(Uhr_work.zeile(m), d, uhrereignisse);
  std::uint32_t alle_bits = 0;
  for (const i32 z : zeiten) alle_bits |= static_cast<std::uint32_t>(z);
  if (alle_bits > 0xFFFF) {
    for (const i32 z : zeiten) b.wort(z);
    return;
  }
  const std::span<u8> seite = b.raum(2 * zeiten.size());
  for (std::size_t e = 0; e < zeiten.size(); ++e) {
    seite[2 * e] = static_cast<u8>(zeiten[e] >> 8);
    seite[2 * e + 1] = static_cast<u8>(zeiten[e]);
  }
  b.fuellen(16, 0xFF);
}

void Stempel(const Projekt& p, Block& b) {
  const auto hoch = Hex_zahl(std::string_view(p.Projekt_kennung).substr(0, 8));
  const auto tief =
      p.Projekt_kennung.size() == 16 ? Hex_zahl(std::string_view(p.Projekt_kennung).substr(8)) : std::nullopt;
  if (!hoch || !tief) return b.schliessen();
  for (const std::uint32_t wert : {*hoch, *tief}) b.wort(wert >> 16).wort(wert & 0xFFFF);

  std::string name = Nach_1252(p.Projekt_name.substr(p.Projekt_name.find_last_of("\\/") + 1));
  name.resize(namenslaenge, ' ');
  for (const char zeichen : name) b.byte(static_cast<unsigned char>(zeichen));
}

}  // namespace zav
