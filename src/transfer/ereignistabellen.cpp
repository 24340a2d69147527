#include "transfer/ereignistabellen.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>

namespace zav {

namespace {

// ---- relays -----------------------------------------------------------------------------------------------

// The planes that a function code sets, bit n for plane n, by code. Never renumber.
//   plane 0 on, plane 1 off, both: pulse or blind; plane 2 toggle; plane 3 lock; plane 4 release the lock
constexpr u8 E0 = 1, E1 = 2, E2 = 4, E3 = 8, E4 = 16;
constexpr std::array<u8, 8> ebenen_eingang{0, E1, E0, E0 | E1, E2, E0 | E1, E0 | E1, E0 | E1};
constexpr std::array<u8, 7> ebenen_timer{0, E1, E0, E0 | E1, E2, E0 | E1, E0 | E1};
constexpr std::array<u8, 21> ebenen_uhr{
    0,       E1,      E0,           E0 | E1, E2,           E0 | E1,      E0 | E1,  //
    E1 | E3, E0 | E3, E0 | E1 | E3, E2 | E3, E0 | E1 | E3, E0 | E1 | E3,           //
    E1 | E4, E0 | E4, E0 | E1 | E4, E2 | E4, E0 | E1 | E4, E0 | E1 | E4, E3,      E4};

// The same for packing: byte n of an entry is 1 when the code sets plane n, so that one shift and one "or"
// for each output fill all planes at once. Codes outside the table end up in the last entry, which sets
// nothing.
using Faecher = std::array<std::uint64_t, 32>;
template <std::size_t N>
constexpr Faecher Auffaechern(const std::array<u8, N>& ebenen) {
  static_assert(N < 32);
  Faecher f{};
  for (std::size_t code = 0; code < N; ++code) {
    for (int n = 0; n < 5; ++n) f[code] |= static_cast<std::uint64_t>(ebenen[code] >> n & 1) << (8 * n);
  }
  return f;
}
constexpr Faecher faecher_eingang = Auffaechern(ebenen_eingang);
constexpr Faecher faecher_timer = Auffaechern(ebenen_timer);
constexpr Faecher faecher_uhr = Auffaechern(ebenen_uhr);

// Byte n of the result is plane n of the group of eight outputs.
std::uint64_t Gruppe_packen(const i16* codes, const Faecher& faecher) {
  std::uint64_t ebenen = 0;
  for (int k = 0; k < 8; ++k) ebenen |= faecher[std::min<u16>(static_cast<u16>(codes[k]), 31)] << k;
  return ebenen;
}

u8 Ebene(std::uint64_t ebenen, int n) { return static_cast<u8>(ebenen >> (8 * n)); }

bool Alle_null(const i16* werte, std::size_t anzahl) {
  std::uint64_t bits = 0;
  for (std::size_t i = 0; i < anzahl; i += 4) {
    std::uint64_t vier = 0;
    std::memcpy(&vier, werte + i, sizeof vier);
    bits |= vier;
  }
  return bits == 0;
}

constexpr std::size_t relaiskopf = 12;
constexpr std::size_t sperren_anfang = 204;
constexpr std::size_t dimmersperren_anfang = 332;
constexpr std::size_t relaisseite_laenge = 204;
constexpr std::size_t relaisseite_uhr_laenge = 364;

// Planes 0 to 2 and, for a page that has room for them, 3 and 4.
template <bool mit_sperren>
void Ebenen_packen(std::span<const i16> codes, const Faecher& faecher, std::span<u8> seite) {
  for (std::size_t paar = 0; paar < relaisausgaenge / 16; ++paar) {
    const i16* const zelle = codes.data() + 16 * paar;
    if (Alle_null(zelle, 16)) continue;
    const std::uint64_t gerade = Gruppe_packen(zelle, faecher);
    const std::uint64_t ungerade = Gruppe_packen(zelle + 8, faecher);
    u8* ziel = seite.data() + relaiskopf + 6 * paar;
    for (int n = 0; n < 3; ++n) {
      *ziel++ = Ebene(ungerade, n);
      *ziel++ = Ebene(gerade, n);
    }
    if constexpr (mit_sperren) {
      ziel = seite.data() + sperren_anfang + 4 * paar;
      for (int n = 3; n < 5; ++n) {
        *ziel++ = Ebene(ungerade, n);
        *ziel++ = Ebene(gerade, n);
      }
    }
  }
}

// ---- timers -----------------------------------------------------------------------------------------------

void Wort_schreiben(u8* ziel, unsigned wert) {
  ziel[0] = static_cast<u8>(wert >> 8);
  ziel[1] = static_cast<u8>(wert);
}

// Codes: 1 start, 2 stop, 3 the one or the other in turn.
void Timerworte_packen(std::span<const i32> codes, std::span<u8> seite) {
  unsigned start = 0;
  unsigned stopp = 0;
  for (std::size_t t = 0; t < codes.size(); ++t) {
    const i32 code = codes[t];
    start |= static_cast<unsigned>(code == 1 || code == 3) << t;
    stopp |= static_cast<unsigned>(code == 2 || code == 3) << t;
  }
  Wort_schreiben(seite.data(), start);
  Wort_schreiben(seite.data() + 2, stopp);
}

// ---- dimmers ----------------------------------------------------------------------------------------------

constexpr std::size_t gruppe_zellen = 16;  // four dimmers of four parameters
constexpr std::size_t dimmerseite_laenge = 256;

// Level as the master counts it: 0 and 1 have changed places.
u8 Helligkeit(i16 wert) {
  const auto w = static_cast<u16>(wert);
  return static_cast<u8>(w < 2 ? w ^ 1 : w);
}
// Parameters 0 and 1 hold a flag each in bit 0 and in bit 4; other values are not theirs and set nothing.
unsigned Tastenbit(i16 wert) { return (static_cast<u16>(wert) & ~16U) == 1; }
unsigned Zusatzbit(i16 wert) { return (static_cast<u16>(wert) & ~1U) == 16; }

u8 Tempopaar(i16 hoch, i16 tief) { return static_cast<u8>(hoch * 16 + tief); }

template <bool mit_tasten>
void Dimmer_packen(std::span<const i16> zellen, std::span<u8> seite) {
  static constexpr std::array<u8, 8> leer{0, 1, 1, 1, 1, 0, 0, 0};
  u8* ziel = seite.data();
  for (const i16* p = zellen.data(); p != zellen.data() + zellen.size();
       p += gruppe_zellen, ziel += leer.size()) {
    if (Alle_null(p, gruppe_zellen)) {
      std::memcpy(ziel, leer.data(), leer.size());
      continue;
    }
    for (std::size_t k = 0; k < 4; ++k) {
      const i16* const dimmer = p + 4 * k;
      if constexpr (mit_tasten) {
        ziel[0] =
            static_cast<u8>(ziel[0] | Tastenbit(dimmer[0]) << (2 * k) | Tastenbit(dimmer[1]) << (2 * k + 1));
        ziel[7] = static_cast<u8>(ziel[7] | Zusatzbit(dimmer[0]) << k | Zusatzbit(dimmer[1]) << (4 + k));
      }
      ziel[1 + k] = Helligkeit(dimmer[2]);
    }
    ziel[5] = Tempopaar(p[3], p[7]);
    ziel[6] = Tempopaar(p[11], p[15]);
  }
}

// Parameter 1 of a clock event: 1 locks the dimmer, 2 releases it.
void Dimmersperren_packen(std::span<const i16> zellen, std::span<u8> seite) {
  u8* ziel = seite.data() + dimmersperren_anfang;
  for (const i16* p = zellen.data(); p != zellen.data() + zellen.size(); p += 2 * gruppe_zellen, ziel += 2) {
    if (Alle_null(p, 2 * gruppe_zellen)) continue;
    for (int k = 0; k < 8; ++k) {
      const i16 sperre = p[4 * k + 1];
      ziel[0] = static_cast<u8>(ziel[0] | (sperre == 1) << k);
      ziel[1] = static_cast<u8>(ziel[1] | (sperre == 2) << k);
    }
  }
}

}  // namespace

void Relaisseite_eingang(const Projekt& p, int e, Block& b) {
  const std::span<u8> seite = b.raum(relaisseite_laenge);
  Timerworte_packen(p.Ein_timer.zeile(e), seite);
  Ebenen_packen<false>(p.Ein_relais.zeile(e), faecher_eingang, seite);
}

void Relaisseite_timer(const Projekt& p, int t, Block& b) {
  Ebenen_packen<false>(p.Tev_relais.zeile(t), faecher_timer, b.raum(relaisseite_laenge));
}

void Relaisseite_uhr(const Projekt& p, int e, Block& b) {
  const std::span<u8> seite = b.raum(relaisseite_uhr_laenge);
  Timerworte_packen(p.Uhr_timer.zeile(e), seite);
  Ebenen_packen<true>(p.Uhr_relais.zeile(e), faecher_uhr, seite);
  Dimmersperren_packen(p.Uhr_dimmer.zeile(e), seite);
}

void Dimmerseite_eingang(const Projekt& p, int e, Block& b) {
  Dimmer_packen<true>(p.Ein_dimmer.zeile(e), b.raum(dimmerseite_laenge));
}
void Dimmerseite_uhr(const Projekt& p, int e, Block& b) {
  Dimmer_packen<false>(p.Uhr_dimmer.zeile(e), b.raum(dimmerseite_laenge));
}
void Dimmerseite_timer(const Projekt& p, int t, Block& b) {
  Dimmer_packen<false>(p.Tev_dimmer.zeile(t), b.raum(dimmerseite_laenge));
}

void Ledseite(const Projekt& p, int g, Block& b) {
  constexpr unsigned alle_vier = 0x3C;
  unsigned ohne = 0;
  unsigned dauernd = 0;
  for (int k = 0; k < 4; ++k) {
    const i16 led = p.Ein_led[4 * g + k];
    ohne |= static_cast<unsigned>(led == ausgang_keiner) << (k + 2);
    dauernd |= static_cast<unsigned>(led == ausgang_dauernd_ein) << (k + 2);
  }
  b.byte(ohne).byte(dauernd);
  if (ohne + dauernd == alle_vier) return;

  const std::span<u8> karte = b.raum(320);
  for (int k = 0; k < 4; ++k) {
    const i16 led = p.Ein_led[4 * g + k];
    if (led >= 0 && led < ausgang_keiner) {
      Wort_schreiben(&karte[2 * static_cast<std::size_t>(led / 16 * 4 + k)], 1U << (led % 16));
    }
  }
}

}  // namespace zav
