// Tells people what a master holds, from the memory file of the simulated one. Knows the master's side of the layout
// alone and shares no code with the tool that sent it, so that what it says is a second opinion.
//
// Addresses of the master's memory; a page has 1024 addresses, 528 of them in use:
//   0x000800  stamp: identification (8 bytes), name of the project (24)
//   0x006000  weather: station, 00, eight functions of 30 bytes; flags at 13, comparisons at 14 and 16
//   0x008000  input events, 0x800 apart: relay page (planes from 12 on), dimmer page 0x400 behind it
//   0x208000  timer events, 0x248000 clock events, likewise
//   0x362800  switching times: one page for each day, months of 31 days; words of two seconds, FFFF = none
#include <array>
#include <bit>
#include <cstdio>
#include <exception>
#include <string>
#include <vector>

#include "simulator/ablage.h"

namespace {

using zav::simulator::Bestand;
using zav::simulator::Bytes;

constexpr unsigned stempel = 0x800, wetter = 0x6000, schaltzeiten = 0x362800;
constexpr unsigned ereignisabstand = 0x800, dimmerseite = 0x400, ebenen_ab = 12, ebenen = 192;
constexpr int uhrereignisse = 256;
constexpr int schaltet_nicht = 0xFFFF;

int Wort(const Bytes& b, std::size_t i) { return b[i] * 256 + b[i + 1]; }

// What one event does to the relays: counted over the planes, which alternate from byte pair to byte pair.
struct Wirkung {
  int ein = 0, aus = 0, um = 0;
  int alle() const { return ein + aus + um; }
};

Wirkung Relaiswirkung(const Bestand& b, unsigned adresse) {
  const Bytes bytes = b.speicher.lesen(adresse + ebenen_ab, ebenen);
  Wirkung w;
  for (std::size_t i = 0; i < ebenen; i += 6) {
    for (const std::size_t gruppe : {i, i + 1}) {
      const unsigned ebene0 = bytes[gruppe], ebene1 = bytes[gruppe + 2];
      w.ein += std::popcount(ebene0 & ~ebene1);
      w.aus += std::popcount(ebene1 & ~ebene0);
      w.um += std::popcount(static_cast<unsigned>(bytes[gruppe + 4])) + std::popcount(ebene0 & ebene1);
    }
  }
  return w;
}

// A dimmer page says nothing where all levels read "no change".
bool Dimmt(const Bestand& b, unsigned adresse) {
  const Bytes seite = b.speicher.lesen(adresse + dimmerseite, 256);
  for (std::size_t gruppe = 0; gruppe < seite.size(); gruppe += 8) {
    for (std::size_t k = 1; k <= 4; ++k) {
      if (seite[gruppe + k] != 1) return true;
    }
  }
  return false;
}

struct Ereignisart {
  const char* name;
  unsigned adresse;
  int anzahl;
};
constexpr std::array ereignisarten{Ereignisart{"Tasten und Eingänge", 0x8000, 1024},
                                   Ereignisart{"Schaltzeiten", 0x248000, uhrereignisse},
                                   Ereignisart{"Timer", 0x208000, 64}};

void Ereignisse_berichten(const Bestand& b) {
  for (const Ereignisart& art : ereignisarten) {
    int relais = 0, dimmer = 0, groesstes = 0;
    Wirkung groesste;
    for (int e = 0; e < art.anzahl; ++e) {
      const unsigned adresse = art.adresse + static_cast<unsigned>(e) * ereignisabstand;
      if (b.speicher.seite(adresse / 1024) == nullptr) continue;
      const Wirkung w = Relaiswirkung(b, adresse);
      relais += w.alle() > 0;
      dimmer += Dimmt(b, adresse);
      if (w.alle() > groesste.alle()) groesste = w, groesstes = e;
    }
    std::printf("  %-20s %d schalten Relais, %d dimmen\n", art.name, relais, dimmer);
    if (art.anzahl == 1024) {
      std::printf("  %-20s Taste I%d-%d: %d aus, %d ein, %d um oder Storen\n", "  am meisten bewirkt", groesstes / 4,
                  groesstes % 4 + 1, groesste.aus, groesste.ein, groesste.um);
    }
  }
}

std::string Uhrzeit(int wort) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%02d:%02d:%02d", wort * 2 / 3600, wort * 2 / 60 % 60, wort * 2 % 60);
  return text.data();
}

Bytes Tagesseite(const Bestand& b, int tag, int monat) {
  return b.speicher.lesen(schaltzeiten + static_cast<unsigned>((monat - 1) * 31 + tag - 1) * 0x400, 2 * uhrereignisse);
}

// The row of the clocks that moves most with the sun.
void Schaltzeiten_berichten(const Bestand& b) {
  const Bytes sommer = Tagesseite(b, 21, 6), winter = Tagesseite(b, 21, 12);
  int zeiten = 0, beste = 0, weiteste = 0;
  for (int e = 0; e < uhrereignisse; ++e) {
    const int s = Wort(sommer, 2 * static_cast<std::size_t>(e)), w = Wort(winter, 2 * static_cast<std::size_t>(e));
    if (s == schaltet_nicht || w == schaltet_nicht) continue;
    ++zeiten;
    if (s - w > weiteste) weiteste = s - w, beste = e;
  }
  std::printf("  %-20s %d, das ganze Jahr im Voraus berechnet\n", "Schaltzeiten am Tag", zeiten);
  if (weiteste == 0) return;
  const auto i = 2 * static_cast<std::size_t>(beste);
  std::printf("  %-20s Schaltuhr %d, U%d: am 21. Juni %s, am 21. Dezember %s\n", "  mit der Sonne", beste / 128 + 1,
              beste % 16, Uhrzeit(Wort(sommer, i)).c_str(), Uhrzeit(Wort(winter, i)).c_str());
}

void Wetter_berichten(const Bestand& b) {
  const Bytes block = b.speicher.lesen(wetter, 2 + 8 * 30);
  int mit_bedingung = 0;
  for (std::size_t f = 2; f < block.size(); f += 30) {
    mit_bedingung += (block[f + 13] & 1) != 0 || block[f + 14] != 0 || block[f + 15] != 0 || block[f + 16] != 0;
  }
  std::printf("  %-20s Station an Adresse %d, %d Funktionen mit Bedingungen\n", "Wetter", block[0], mit_bedingung);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::fputs("Aufruf: masterbericht SPEICHERDATEI\n", stderr);
    return 2;
  }
  try {
    Bestand b;
    Bestand_laden(argv[1], b);
    int seiten = 0;
    for (unsigned n = 0; n < zav::simulator::Speicher::seitenzahl; ++n) seiten += b.speicher.seite(n) != nullptr;
    const Bytes marke = b.speicher.lesen(stempel, 32);
    std::printf("  %-20s %.24s\n", "Projekt", reinterpret_cast<const char*>(marke.data() + 8));
    std::printf("  %-20s %s\n", "Kennung", zav::simulator::hex(std::span(marke).first(8)).c_str());
    std::printf("  %-20s %d von 4096\n", "Beschriebene Seiten", seiten);
    Ereignisse_berichten(b);
    Schaltzeiten_berichten(b);
    Wetter_berichten(b);
  } catch (const std::exception& fehler) {
    std::fprintf(stderr, "%s\n", fehler.what());
    return 1;
  }
}
