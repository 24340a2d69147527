#include "editor/actmask.h"

namespace zav {

namespace {

// The bit of a held key, alone and together with the bit of a short press; other values have no meaning here
// and pass through.
bool Hat_kurzwirkung(i16 wert) { return wert == dimmer_kurz || wert == dimmer_kurz + dimmer_lang; }

void Bit_setzen(i16& wert, bool an) {
  wert = static_cast<i16>(an ? wert | dimmer_lang : wert & ~dimmer_lang);
}

}  // namespace

Actmask::Actmask(int ereignis, const std::string& text)
    : Funktionsmaske("Actmask", "Funktionen für Ereignis: " + text, Ereignisart::Eingang, ereignis,
                     "Funktion für diesen Ausgang, wenn die gewählte Taste gedrückt wurde") {
  anmelden("Check_auf", Check_auf);
  anmelden("Check_ab", Check_ab);
  anmelden("Check3", Check3);
  anmelden("Check_mem", Check_mem);
  Kurzwirkungen_lesen();

  struct Zusatz {
    std::array<Kaestchen, dimmer_je_gruppe + 1>& kaestchen;
    const char* titel;
    const char* sammeltitel;
    const char* hinweis;
    std::function<void(int dimmer, bool an)> schreiben;
  };
  for (const Zusatz& z : {
           Zusatz{Check_auf, "Auf", "Alle 4 Ausgänge aufdimmen", "Aufdimmen bei langem Tastendruck",
                  [this](int d, bool an) { Bit_setzen(Parameter(d, dimmer_auf), an); }},
           {Check_ab, "Ab", "Alle 4 Ausgänge abdimmen", "Abdimmen bei langem Tastendruck",
            [this](int d, bool an) { Bit_setzen(Parameter(d, dimmer_ab), an); }},
           {Check3, "Um", "Alle 4 Ausgänge Um",
            "Szenenlicht und Ausschalten wechseln sich bei jedem Tastendruck ab",
            [this](int d, bool an) { um_[d] = an; }},
           {Check_mem, "Memory", "Alle 4 Ausgänge Memory",
            "Bei kurzem Tastendruck wird auf die letzte Helligkeit gedimmt (bei Neustart wird auf den "
            "Szenenwert gedimmt)",
            [this](int d, bool an) { memory_[d] = an; }},
       }) {
    for (int i = 0; i <= dimmer_je_gruppe; ++i) {
      Kaestchen& k = z.kaestchen[i];
      const bool alle = i == dimmer_je_gruppe;
      k.titel = alle ? z.sammeltitel : z.titel;
      k.hinweis = z.hinweis;
      k.wenn_geaendert =
          alle ? Sammelhandler([this, &k, schreiben = z.schreiben](int j) { schreiben(Dimmer(j), k.an()); })
               : Zeilenhandler(i, [this, &k, i, schreiben = z.schreiben] { schreiben(Dimmer(i), k.an()); });
    }
  }
  Anfang_zeigen();
}

void Actmask::Kurzwirkungen_lesen() {
  for (int d = 0; d < dimmerausgaenge; ++d) {
    const auto trennen = [&](Dimmerparameter p, std::bitset<dimmerausgaenge>& merker) {
      i16& wert = Parameter(d, p);
      if (!Hat_kurzwirkung(wert)) return;
      merker.set(d);
      wert = static_cast<i16>(wert - dimmer_kurz);
    };
    trennen(dimmer_auf, um_);
    trennen(dimmer_ab, memory_);
  }
}

void Actmask::Zusatz_zeigen(int i, bool an, bool hell) {
  const int d = Dimmer(i);
  Check_auf[i].sichtbar = an;
  Check_auf[i].setzen((Parameter(Dimmer(i), dimmer_auf) & dimmer_lang) != 0);
  Check_ab[i].sichtbar = an;
  Check_ab[i].setzen((Parameter(Dimmer(i), dimmer_ab) & dimmer_lang) != 0);
  Check3[i].sichtbar = hell;
  Check3[i].setzen(um_[d]);
  Check_mem[i].sichtbar = hell;
  Check_mem[i].setzen(memory_[d]);
}

void Actmask::Zusatz_loeschen(int dimmer) {
  um_.reset(dimmer);
  memory_.reset(dimmer);
}

bool Actmask::Zusatz_benutzt(int dimmer) const { return um_[dimmer] || memory_[dimmer]; }

void Actmask::Sammelzusatz_ruecksetzen() {
  for (auto* k : {&Check_auf, &Check_ab, &Check3, &Check_mem}) k->back().setzen(false);
}

void Actmask::Zusatz_einrechnen() {
  for (int d = 0; d < dimmerausgaenge; ++d) {
    const auto vereinen = [&](Dimmerparameter p, const std::bitset<dimmerausgaenge>& merker) {
      i16& wert = Parameter(d, p);
      if (merker[d]) wert = static_cast<i16>(wert + dimmer_kurz);
    };
    vereinen(dimmer_auf, um_);
    vereinen(dimmer_ab, memory_);
  }
}

Anordnungsfolge Actmask::Zusatzzellen(int i) {
  return {{Check_auf[i], Check_ab[i], Check_mem[i], Check3[i]}};
}

}  // namespace zav
