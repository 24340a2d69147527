#include "simulator/speicher.h"

namespace zav::simulator {

namespace {

struct Ort {
  std::uint32_t seite, platz;
  bool gibt_es;
};

Ort ort(std::uint64_t adresse) {
  const auto platz = static_cast<std::uint32_t>(adresse % Speicher::seitenabstand);
  return {static_cast<std::uint32_t>(adresse / Speicher::seitenabstand % Speicher::seitenzahl), platz,
          adresse < Speicher::adressen && platz < Speicher::seitengroesse};
}

}  // namespace

Bytes Speicher::lesen(std::uint32_t adresse, std::size_t n) const {
  Bytes bytes(n, 0);
  for (std::size_t k = 0; k < n; ++k)
    if (const Ort o = ort(std::uint64_t{adresse} + k); o.gibt_es && seiten[o.seite])
      bytes[k] = (*seiten[o.seite])[o.platz];
  return bytes;
}

void Speicher::schreiben(std::uint32_t adresse, std::span<const std::uint8_t> bytes) {
  for (std::size_t k = 0; k < bytes.size(); ++k) {
    const Ort o = ort(std::uint64_t{adresse} + k);
    if (!o.gibt_es) continue;
    if (!seiten[o.seite]) seiten[o.seite] = std::make_unique<Seite>();
    (*seiten[o.seite])[o.platz] = bytes[k];
  }
}

void Speicher::loeschen() {
  for (auto& s : seiten) s.reset();
}

}  // namespace zav::simulator
