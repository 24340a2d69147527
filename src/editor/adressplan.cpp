#include "editor/adressplan.h"

#include "store/katalog.h"

namespace zav {

namespace {

// Calls f(device, its run) for every placed device with an address.
template <class F>
void Jeder_apparat(F f) {
  for (int k = 0; k < kombinationen; ++k) {
    if (!Kombination_belegt(k)) continue;
    for (int d = plaetze * k; d < plaetze * (k + 1); ++d) {
      if (const auto lauf = Apparat_adressen(projekt, d)) f(d, *lauf);
    }
  }
}

}  // namespace

bool Kombination_belegt(int k) { return projekt.Komb_typ[k] != 0 || !projekt.Komb_text[k].empty(); }

int Kombination_erste_freie() {
  int k = 0;
  while (k < kombinationen && Kombination_belegt(k)) ++k;
  return k;
}

Adressplan::Adressplan() {
  apparate_.fill(-1);
  const auto setzen = [&](const Adresslauf& lauf, int i, int d) {
    apparate_.at(static_cast<std::size_t>(lauf.von) + static_cast<std::size_t>(i)) = d;
  };
  Jeder_apparat([&](int d, const Adresslauf& lauf) {
    for (int i = 0; i < lauf.anzahl; ++i) setzen(lauf, i, d);
  });
  Jeder_apparat([&](int d, const Adresslauf& lauf) {
    for (int i = 0; i < lauf.anzahl; ++i) {
      if (Thermostat_adresse_frei(projekt.App_typ[d], i)) setzen(lauf, i, -1);
    }
  });
}

bool Adresse_fremd(int adresse, int d) {
  bool fremd = false;
  Jeder_apparat([&](int anderer, const Adresslauf& lauf) {
    const int i = adresse - lauf.von;
    if (anderer != d && i >= 0 && i < lauf.anzahl && !Thermostat_adresse_frei(projekt.App_typ[anderer], i))
      fremd = true;
  });
  return fremd;
}

}  // namespace zav
