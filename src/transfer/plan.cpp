#include "transfer/plan.h"

#include <array>

#include "basis/melder.h"
#include "platform/uhrwerk.h"
#include "transfer/ereignistabellen.h"
#include "transfer/parameterbloecke.h"
#include "transfer/zeitbloecke.h"

namespace zav {

namespace {

// ---- packers, called alike --------------------------------------------------------------------------------

using Projektpacker = void(const Projekt&, Block&);
using Zeilenpacker = void(const Projekt&, int, Block&);

template <Projektpacker* packer>
void Block_packen(const Quelle& q, int /*zeile*/, Block& b) {
  packer(q.projekt, b);
}
template <Zeilenpacker* packer>
void Zeile_packen(const Quelle& q, int zeile, Block& b) {
  packer(q.projekt, zeile, b);
}
template <int wert>
void Byte_packen(const Quelle& /*q*/, int /*zeile*/, Block& b) {
  b.byte(wert);
}
void Daten_packen(const Quelle& q, int /*zeile*/, Block& b) {
  Datentabelle(q.projekt, q.einstellungen.Richt_modus, q.einstellungen.Sowi_datum, b);
}
void Seite_packen(const Quelle& q, int zeile, Block& b) {
  Schaltzeitenseite(q.Uhr_work, zeile / tage_im_monat, zeile % tage_im_monat, b);
}

// ---- change flags -----------------------------------------------------------------------------------------

template <auto kennzeichen>
bool Ist_gesetzt(const Projekt& p, int zeile) {
  return (p.*kennzeichen)[zeile] == 1;
}
template <auto kennzeichen>
void Loeschen(Projekt& p, int zeile) {
  (p.*kennzeichen)[zeile] = 0;
}

constexpr int seiten_im_jahr = monate_im_jahr * tage_im_monat;

bool Tabelle_geaendert(const Projekt& p, int /*zeile*/) { return p.Uhr_tabelle_geaendert == 1; }
// The pages stand for one table: it has gone when the last of them has.
void Tabelle_erledigt(Projekt& p, int zeile) {
  if (zeile == seiten_im_jahr - 1) p.Uhr_tabelle_geaendert = 0;
}

// ---- the list ---------------------------------------------------------------------------------------------

// Distance of pages and of double pages in addresses: ten bits each address within a page of 528 bytes.
constexpr i32 seite = 0x400;
constexpr i32 doppelseite = 0x800;

constexpr auto block = Abschnitt::Anzeige::block;
constexpr auto zeilen = Abschnitt::Anzeige::zeilen;

constexpr auto plan = std::to_array<Abschnitt>({
    {.protokoll = "A: Initialisierungswerte Aktoren",
     .befehl = "A",
     .packen = Block_packen<Block_a>,
     .anzeige = block,
     .stufe = 1},
    {.protokoll = "Q: Initialisierungswerte Dimmer",
     .befehl = "Q",
     .packen = Block_packen<Block_q>,
     .anzeige = block,
     .stufe = 2},
    {.protokoll = "T: Zeitwerte der Timer",
     .befehl = "T",
     .packen = Block_packen<Block_t>,
     .anzeige = block,
     .stufe = 3},
    {.protokoll = "P: An-/Abschnittparameter der Dimmer",
     .befehl = "P",
     .packen = Block_packen<Block_p>,
     .anzeige = block,
     .stufe = 4},
    {.protokoll = "H: Normal-/Thermo-Parameter",
     .befehl = "H",
     .packen = Block_packen<Block_h>,
     .anzeige = block,
     .stufe = 5},
    {.protokoll = "M: Storen-Parameter",
     .befehl = "M",
     .packen = Block_packen<Block_m>,
     .anzeige = block,
     .stufe = 6,
     .breite_beendet = true},
    {.protokoll = "W: Wetter-Parameter",
     .anfang = 0x6000,
     .packen = Block_packen<Block_w>,
     .anzeige = block,
     .stufe = 7},
    {.protokoll = "Sommer-/Winterzeit, Sequenzer",
     .anfang = 0x362000,
     .packen = Daten_packen,
     .anzeige = block,
     .stufe = 8},
    {.befehl = "LD", .packen = Byte_packen<1>, .nur_gesperrt = true},
    {.befehl = "LS", .packen = Block_packen<Aufholbyte>},
    {.protokoll = "Schaltzeiten genau/Astro/Zufall",
     .anfang = 0x362800,
     .schritt = seite,
     .zeilen = seiten_im_jahr,
     .packen = Seite_packen,
     .faellig = Tabelle_geaendert,
     .erledigt = Tabelle_erledigt,
     .anzeige = zeilen,
     .stufe = 1,
     .erste = 1},
    {.protokoll = "Eingangsereignisse Switch: ",
     .zaehlend = true,
     .anfang = 0x8000,
     .schritt = doppelseite,
     .zeilen = eingangsereignisse,
     .packen = Zeile_packen<Relaisseite_eingang>,
     .faellig = Ist_gesetzt<&Projekt::Ein_funktext>,
     .anzeige = zeilen,
     .stufe = 2},
    {.protokoll = "Eingangsereignisse Dimmer: ",
     .zaehlend = true,
     .anfang = 0x8400,
     .schritt = doppelseite,
     .zeilen = eingangsereignisse,
     .packen = Zeile_packen<Dimmerseite_eingang>,
     .faellig = Ist_gesetzt<&Projekt::Ein_funktext>,
     .erledigt = Loeschen<&Projekt::Ein_funktext>,
     .anzeige = zeilen,
     .stufe = 3},
    {.protokoll = "Uhr-Ereignisse Switch: ",
     .zaehlend = true,
     .anfang = 0x248000,
     .schritt = doppelseite,
     .zeilen = uhrereignisse,
     .packen = Zeile_packen<Relaisseite_uhr>,
     .faellig = Ist_gesetzt<&Projekt::Uhr_funktext>,
     .anzeige = zeilen,
     .stufe = 4},
    {.protokoll = "Uhr-Ereignisse Dimmer: ",
     .zaehlend = true,
     .anfang = 0x248400,
     .schritt = doppelseite,
     .zeilen = uhrereignisse,
     .packen = Zeile_packen<Dimmerseite_uhr>,
     .faellig = Ist_gesetzt<&Projekt::Uhr_funktext>,
     .erledigt = Loeschen<&Projekt::Uhr_funktext>,
     .anzeige = zeilen,
     .stufe = 5},
    {.protokoll = "Timer-Ereignisse Switch: ",
     .zaehlend = true,
     .anfang = 0x208000,
     .schritt = doppelseite,
     .zeilen = timerereignisse,
     .packen = Zeile_packen<Relaisseite_timer>,
     .faellig = Ist_gesetzt<&Projekt::Tev_funktext>,
     .anzeige = zeilen,
     .stufe = 6},
    {.protokoll = "Timer-Ereignisse Dimmer: ",
     .zaehlend = true,
     .anfang = 0x208400,
     .schritt = doppelseite,
     .zeilen = timerereignisse,
     .packen = Zeile_packen<Dimmerseite_timer>,
     .faellig = Ist_gesetzt<&Projekt::Tev_funktext>,
     .erledigt = Loeschen<&Projekt::Tev_funktext>,
     .anzeige = zeilen,
     .stufe = 7},
    {.protokoll = "Tasten-LEDs: ",
     .zaehlend = true,
     .anfang = 0x3C0000,
     .schritt = seite,
     .zeilen = adressen,
     .packen = Zeile_packen<Ledseite>,
     .faellig = Ist_gesetzt<&Projekt::Grp_led>,
     .erledigt = Loeschen<&Projekt::Grp_led>,
     .anzeige = zeilen,
     .stufe = 8},
    {.protokoll = "Code senden: ",
     .zaehlend = true,
     .anfang = 0x800,
     .packen = Block_packen<Stempel>,
     .stempel = true},
    {.befehl = "LD", .packen = Byte_packen<0>, .nur_gesperrt = true},
});

// ---- dry run ----------------------------------------------------------------------------------------------

class Abbildschreiber : public Plangaenger {
 public:
  bool Zeile(const Abschnitt& a, int zeile, const Block& b) override {
    text += a.befehl;
    text += ' ';
    if (a.gefenstert()) {
      const i32 von = a.anfang + zeile * a.schritt;
      Adresse(von);
      Adresse(von + b.laenge() - 1);
    }
    Hex_anfuegen(b.bytes(), text);
    text += '\n';
    return true;
  }

  std::string text;

 private:
  void Adresse(i32 adresse) {
    const std::array<u8, 3> bytes{static_cast<u8>(adresse >> 16), static_cast<u8>(adresse >> 8),
                                  static_cast<u8>(adresse)};
    Hex_anfuegen(bytes, text);
    text += ' ';
  }
};

}  // namespace

std::span<const Abschnitt> Plan() { return plan; }

std::optional<Fortschritt> Fortschritt_bei(const Abschnitt& a, int zeile) {
  switch (a.anzeige) {
    case Abschnitt::Anzeige::block: return Fortschritt{static_cast<double>(a.stufe), 11 * a.stufe};
    case Abschnitt::Anzeige::zeilen: {
      const int aktuell = (zeile + a.erste) * 100 / (a.zeilen - 1 + a.erste);
      return Fortschritt{11.1 * a.stufe + 0.111 * aktuell, aktuell};
    }
    case Abschnitt::Anzeige::keine: break;
  }
  return std::nullopt;
}

bool Plan_gehen(const Quelle& q, const Umfang& umfang, Plangaenger& gaenger) {
  Block b;
  for (const Abschnitt& a : plan) {
    if (a.nur_gesperrt && !umfang.sperren) continue;
    gaenger.Abschnitt_beginnt(a);
    int gesendet = 0;
    for (int zeile = 0; zeile < a.zeilen; ++zeile) {
      const bool faellig = !umfang.nur_geaenderte || a.faellig == nullptr || a.faellig(q.projekt, zeile);
      if (faellig) {
        b.leeren();
        a.packen(q, zeile, b);
        if (b.zu_breit()) {
          if (a.breite_beendet) return false;
          Melden("Ungültige Daten!", "Senden", Symbol::Stopp);
        }
        if (!gaenger.Zeile(a, zeile, b)) return false;
        ++gesendet;
      }
      gaenger.Zeile_vorbei(a, zeile);
    }
    gaenger.Abschnitt_endet(a, gesendet);
  }
  return true;
}

Uhr_tafel Uhr_tafel_heute(const Projekt& p) {
  Zufall_neu_gesaet();
  return Tageszeiten_berechnen(p, Sonnen_tabellen_fuellen(Heute().jahr), Zufall);
}

std::string Abbild(const Projekt& p, const Einstellungen& e, const Umfang& umfang) {
  const Uhr_tafel Uhr_work = Uhr_tafel_heute(p);
  Abbildschreiber schreiber;
  Plan_gehen({p, e, Uhr_work}, umfang, schreiber);
  return std::move(schreiber.text);
}

}  // namespace zav
