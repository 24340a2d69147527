#include "simulator/empfaenger.h"

#include <algorithm>
#include <numeric>

namespace zav::simulator {

namespace {

constexpr int je_pegel = 5;  // the level word counts fifths of what the tool shows

Telegramm antworttelegramm(const Telegramm& frage, std::span<const std::uint8_t, 6> inhalt) {
  Telegramm t{frage.adresse, 8, frage.daten};
  std::ranges::copy(inhalt, t.daten.begin() + 2);
  return t;
}

// Length that the telegram of this letter has; 0 = no such telegram.
int laenge_von(char buchstabe) {
  switch (buchstabe) {
    case 'C':
    case 'I':
    case 'R':
    case 'W':
    case 'V': return 2;
    case 'T':
    case 't': return 5;
    case 'P': return 6;
    default: return 0;
  }
}

}  // namespace

std::optional<Telegramm> Empfaenger::empfangen(const Telegramm& t) {
  const auto& d = t.daten;
  const char buchstabe = static_cast<char>(d[1]);
  if (d[0] != 'A' || t.laenge != laenge_von(buchstabe)) return std::nullopt;

  const std::size_t ab = static_cast<std::size_t>(d[2]) << 8 | d[3];
  const bool seite_gibt_es = ab % seitengroesse == 0 && ab < tabellengroesse && d[4] == seitengroesse;
  switch (buchstabe) {
    case 'C': puffer.clear(); break;
    case 'P':
      if (puffer.size() < seitengroesse) puffer.insert(puffer.end(), d.begin() + 2, d.begin() + 6);
      break;
    case 'T':
      if (seite_gibt_es && puffer.size() == seitengroesse) {
        std::ranges::copy(puffer, geschrieben.begin() + static_cast<std::ptrdiff_t>(ab));
        if (seite_defekt[ab / seitengroesse]) geschrieben[ab] ^= 0xFF;
      }
      break;
    case 'I': gueltig = geschrieben; break;
    case 't':
      if (seite_gibt_es) {
        const auto von = geschrieben.begin() + static_cast<std::ptrdiff_t>(ab);
        const unsigned summe = std::accumulate(von, von + seitengroesse, 0U);
        antwort = {static_cast<std::uint8_t>(summe >> 8), static_cast<std::uint8_t>(summe), 0, 0, 0, 0};
      }
      break;
    case 'R': return antworttelegramm(t, antwort);
    case 'W': return antworttelegramm(t, gehoert);
    default: {  // 'V'
      std::uint8_t sender = 0;
      for (std::size_t e = 0; e < tabellengroesse; e += 8)
        sender += static_cast<std::uint8_t>(gueltig[e] || gueltig[e + 1] || gueltig[e + 2] || gueltig[e + 3]);
      return antworttelegramm(t, std::array<std::uint8_t, 6>{1, 4, sender, 0, 0, 0});
    }
  }
  return std::nullopt;
}

void Empfaenger::funk(std::uint32_t id, int pegel) {
  const int wort = std::clamp(pegel, 0, 0xFFFF / je_pegel) * je_pegel;
  for (int k = 0; k < 4; ++k)
    gehoert[static_cast<std::size_t>(k)] = static_cast<std::uint8_t>(id >> (24 - 8 * k));
  gehoert[4] = static_cast<std::uint8_t>(wort >> 8);
  gehoert[5] = static_cast<std::uint8_t>(wort);
}

void Empfaenger::seite_setzen(std::size_t seite, std::span<const std::uint8_t> bytes) {
  if (seite >= tabellengroesse / seitengroesse) return;
  const auto n = std::min(bytes.size(), seitengroesse);
  for (Tabelle* t : {&geschrieben, &gueltig})
    std::copy_n(bytes.begin(), n, t->begin() + static_cast<std::ptrdiff_t>(seite * seitengroesse));
}

}  // namespace zav::simulator
