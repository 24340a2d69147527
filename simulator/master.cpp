#include "simulator/master.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <utility>

namespace zav::simulator {

namespace {

constexpr std::size_t zeile_hoechstens = 2048;        // characters; the longest good message has 1059
constexpr std::size_t mitschrift_hoechstens = 16384;  // entries of each record

constexpr std::string_view F00 = "F00", F01 = "F01", F02 = "F02", F05 = "F05", F06 = "F06", F07 = "F07",
                           F60 = "F60", F61 = "F61", F62 = "F62", F63 = "F63", F64 = "F64", F65 = "F65",
                           F66 = "F66", F68 = "F68", F80 = "F80", F81 = "F81", F99 = "F99";

constexpr int erase_zeilen = 60, punkte_je_zeile = 16;
constexpr std::uint32_t eingang_erster = 0x400,
                        eingang_letzter = 0x400 + 2 * 255;  // bus numbers of the ZAVin, even
constexpr std::uint32_t can_letzte = 0x7FF;

template <class T>
void anhaengen(std::deque<T>& reihe, T neu) {
  if (reihe.size() >= mitschrift_hoechstens) reihe.pop_front();
  reihe.push_back(std::move(neu));
}

// Two decimal digits at ab; more than 99 when they are none.
unsigned zwei(std::string_view ziffern, std::size_t ab) {
  const auto d = [&](std::size_t k) {
    return ziffern[k] <= '9' ? static_cast<unsigned>(ziffern[k] - '0') : 100U;
  };
  return d(ab) * 10 + d(ab + 1);
}

}  // namespace

// One row for each command: digits that it takes, what a wrong number of them draws, and who carries it out.
struct Befehlstabelle {
  static constexpr int fenster = -1;  // as many as the window says

  struct Zeile {
    std::string_view name;
    int ziffern;
    std::string_view zu_wenig, zu_viel;
    bool aufbewahren;  // the digits stay as a parameter block
    std::string (Master::*ausfuehren)(std::string_view);
  };

  // Two letters before one, so that the first hit is the right one.
  static constexpr std::array zeilen{
      Zeile{"LD", 2, F01, F01, false, &Master::sperren},
      Zeile{"LS", 2, F01, F01, true, &Master::nachholen},
      Zeile{"EI", 0, F01, F01, false, &Master::loeschen},
      Zeile{"i", 0, F01, F01, false, &Master::lebenszeichen},
      Zeile{"V", 0, F01, F01, false, &Master::version_nennen},
      Zeile{"D", 12, F01, F01, false, &Master::fenster},
      Zeile{"W", fenster, F01, F01, false, &Master::schreiben},
      Zeile{"R", 0, F01, F01, false, &Master::lesen},
      Zeile{"A", 256, F01, F01, true, &Master::gut},
      Zeile{"Q", 512, F01, F01, true, &Master::gut},
      Zeile{"T", 192, F01, F01, true, &Master::gut},
      Zeile{"P", 512, F01, F01, true, &Master::gut},
      Zeile{"H", 256, F01, F01, true, &Master::gut},
      Zeile{"M", 12, F01, F01, true, &Master::gut},
      Zeile{"U", 16, F01, F01, true, &Master::uhr},
      Zeile{"I", 0, F01, F01, false, &Master::gut},
      Zeile{"X", 22, F66, F68, false, &Master::telegramm_senden},
      Zeile{"Y", 8, F68, F68, false, &Master::ereignis_erzeugen},
      Zeile{"x", 0, F01, F01, false, &Master::telegramm_nennen},
      Zeile{"s", 0, F01, F01, false, &Master::wetter_nennen},
      Zeile{"&", 0, F01, F01, false, &Master::abholen},
  };

  static const Zeile* finden(std::string_view text) {
    const auto z = std::ranges::find_if(zeilen, [&](const Zeile& x) { return text.starts_with(x.name); });
    return z == zeilen.end() ? nullptr : &*z;
  }
};

std::string Befehl_am_anfang(std::string_view text) {
  if (text.starts_with('*')) return "*";
  const auto* zeile = Befehlstabelle::finden(text);
  return zeile ? std::string(zeile->name) : "";
}

Master::Master(std::string versionstext)
    : version(std::move(versionstext)), teilnehmer{"K000 ZAVin",  "K001 ZAVin",   "O0 ZAVswitch",
                                                   "O1 ZAVmotor", "D0 ZAVdimmer", "I252 Wetterstation"} {}

void Master::empfangen(Zustand& z, char c, Ausgabe& aus) {
  if (c == '%') {
    z.zeile.clear();
    z.verwerfen = z.nach_i = false;
    mitschrift_ergaenzen("%");
    return;
  }
  if (c == '*') return stern(z, aus);

  // Right after a restart a bare "i" is enough; what makes a whole message of it is then of no more use.
  if (neustart_ungemeldet && c == 'i' && z.zeile.empty() && !z.verwerfen) {
    mitschrift_ergaenzen("i");
    beantworten("i", aus, [&] { return lebenszeichen({}); });
    z.nach_i = true;
    return;
  }
  if (z.nach_i) {
    if (z.zeile + c == std::string_view("i69\r").substr(1, z.zeile.size() + 1)) {
      z.zeile = c == '\r' ? "" : z.zeile + c;
      z.nach_i = c != '\r';
      return;
    }
    z.nach_i = false;
  }

  if (c == '\r') {
    if (!std::exchange(z.verwerfen, false)) zeile_beantworten(z, aus);
    z.zeile.clear();
  } else if (!z.verwerfen) {
    z.zeile += c;
    if (z.zeile.size() <= zeile_hoechstens) return;
    z.zeile.clear();
    z.verwerfen = true;
    beantworten("", aus, [] { return std::string(F02); });
  }
}

// Counts the message, lets the fault rules have their say, and puts the reply on the line.
template <class Ausfuehrung>
void Master::beantworten(const std::string& befehl, Ausgabe& aus, Ausfuehrung ausfuehren) {
  ++zaehler[befehl];
  const Fehlerregel* regel = fehler.zaehlen(befehl);
  if (regel) {
    if (regel->art == Fehlerart::code) aus.bytes += rahmen(regel->code);
    if (regel->art == Fehlerart::trenn) aus.trennen = true;
    if (regel->art == Fehlerart::code || regel->art == Fehlerart::trenn || regel->art == Fehlerart::stumm)
      return;
  }
  vorlauf.clear();
  const std::string nutzlast = ausfuehren();
  std::string antwort = vorlauf + (nutzlast.empty() ? "" : rahmen(nutzlast));
  if (regel) {
    const auto n = static_cast<std::size_t>(regel->wert);
    switch (regel->art) {
      case Fehlerart::verloren: antwort.clear(); break;
      case Fehlerart::kurz: antwort.resize(antwort.size() - std::min(n, antwort.size())); break;
      case Fehlerart::lang: antwort.append(n, 'Z'); break;
      case Fehlerart::muell: antwort.insert(0, n, '#'); break;
      default: break;
    }
  }
  aus.bytes += antwort;
}

void Master::zeile_beantworten(Zustand& z, Ausgabe& aus) {
  const std::size_t summe = z.zeile.size() < 3 ? z.zeile.size() : z.zeile.size() - 2;
  mitschrift_ergaenzen(z.zeile.substr(0, summe));
  beantworten(Befehl_am_anfang(z.zeile), aus, [&] { return nachricht_ausfuehren(z, z.zeile); });
}

std::string Master::nachricht_ausfuehren(Zustand& z, const std::string& zeile) {
  const auto* befehl = Befehlstabelle::finden(zeile);
  if (!befehl || zeile.size() < befehl->name.size() + 2) return std::string(F01);
  const std::string_view text = std::string_view(zeile).substr(0, zeile.size() - 2);
  const std::string_view summe = std::string_view(zeile).substr(text.size());
  if (!ist_hex(summe)) return std::string(F05);
  if (summe != pruefsumme(text)) return std::string(F07);

  const std::string_view ziffern = text.substr(befehl->name.size());
  if (!ist_hex(ziffern)) return std::string(F05);
  constexpr std::size_t puffer = std::size_t{2} * Speicher::seitengroesse;
  if (befehl->ziffern == Befehlstabelle::fenster) {
    if (!fenster_gilt) return std::string(F06);
    if (ziffern.size() > puffer) return std::string(F64);
    if (ziffern.size() != std::size_t{2} * (fenster_bis - fenster_von + 1)) return std::string(F01);
  } else if (const auto soll = static_cast<std::size_t>(befehl->ziffern); ziffern.size() != soll) {
    if (ziffern.size() > puffer) return std::string(F65);
    return std::string(ziffern.size() < soll ? befehl->zu_wenig : befehl->zu_viel);
  }

  std::string antwort = (this->*befehl->ausfuehren)(ziffern);
  if (befehl->name == "I") z.anzeige = true;
  if (befehl->aufbewahren && antwort == F00) {
    bestand.bloecke[std::string(befehl->name)] = ziffern;
    geaendert = true;
  }
  return antwort;
}

// With the event display on, "*" ends it and lists the bus; the lines are all that comes back.
void Master::stern(Zustand& z, Ausgabe& aus) {
  mitschrift_ergaenzen("*");
  z.zeile.clear();
  z.verwerfen = z.nach_i = false;
  const bool liste = z.anzeige;
  beantworten("*", aus, [&] {
    z.anzeige = false;
    hochfahren();
    if (liste) auflisten();
    return liste ? std::string() : std::string(F00);
  });
}

void Master::hochfahren() {
  ++neustarts;
  neustart_ungemeldet = true;
  fenster_gilt = gesperrt = false;
  empfangenes = {};
}

void Master::auflisten() {
  for (const auto& zeile : teilnehmer) vorlauf += zeile + '\r';
  vorlauf += std::to_string(teilnehmer.size()) + " Teilnehmer\r";
}

void Master::mitschrift_ergaenzen(std::string text) {
  if (mitschreiben) anhaengen(mitschrift, std::move(text));
}

std::string Master::gut(std::string_view) { return std::string(F00); }

std::string Master::lebenszeichen(std::string_view) {
  return std::string(std::exchange(neustart_ungemeldet, false) ? F99 : F00);
}

std::string Master::version_nennen(std::string_view) {
  std::string text = version;
  text.resize(10, ' ');
  return text;
}

std::string Master::fenster(std::string_view ziffern) {
  const std::uint32_t von = *hex_zahl(ziffern.substr(0, 6)), bis = *hex_zahl(ziffern.substr(6));
  const auto platz = [](std::uint32_t adresse) { return adresse % Speicher::seitenabstand; };
  fenster_gilt = false;
  if (von >= Speicher::adressen || bis >= Speicher::adressen) return std::string(F06);
  if (bis < von) return std::string(F60);
  if (platz(von) >= Speicher::seitengroesse) return std::string(F61);
  if (platz(bis) >= Speicher::seitengroesse) return std::string(F62);
  if (von / Speicher::seitenabstand != bis / Speicher::seitenabstand) return std::string(F63);
  fenster_von = von;
  fenster_bis = bis;
  fenster_gilt = true;
  return std::string(F00);
}

std::string Master::schreiben(std::string_view ziffern) {
  bestand.speicher.schreiben(fenster_von, hex_bytes(ziffern));
  geaendert = true;
  return std::string(F00);
}

std::string Master::lesen(std::string_view) {
  if (!fenster_gilt) return std::string(F06);
  return hex(bestand.speicher.lesen(fenster_von, fenster_bis - fenster_von + 1));
}

std::string Master::sperren(std::string_view ziffern) {
  if (ziffern != "00" && ziffern != "01") return std::string(F06);
  gesperrt = ziffern == "01";
  return std::string(F00);
}

std::string Master::nachholen(std::string_view ziffern) {
  return std::string(ziffern >= "00" && ziffern <= "07" ? F00 : F06);
}

// Seconds, minutes, hours, summer time, weekday, day, month, year, "00"; decimal.
std::string Master::uhr(std::string_view ziffern) {
  if (!std::ranges::all_of(ziffern, [](char c) { return c <= '9'; })) return std::string(F05);
  const auto bereich = [](unsigned wert, unsigned von, unsigned bis) { return wert >= von && wert <= bis; };
  const bool gut_so = bereich(zwei(ziffern, 0), 0, 59) && bereich(zwei(ziffern, 2), 0, 59) &&
                      bereich(zwei(ziffern, 4), 0, 23) && ziffern[6] <= '1' && ziffern[7] <= '6' &&
                      bereich(zwei(ziffern, 8), 1, 31) && bereich(zwei(ziffern, 10), 1, 12) &&
                      ziffern.substr(14) == "00";
  return std::string(gut_so ? F00 : F06);
}

// Erases and tests: a dot for each step, a line for each block. The lines hold no "e" and no "E", which tell
// of a fault.
std::string Master::loeschen(std::string_view) {
  bestand.loeschen();
  geaendert = true;
  for (int n = 1; n <= erase_zeilen; ++n) {
    char zeile[32];
    std::snprintf(zeile, sizeof zeile, "Block %02d von %d ", n, erase_zeilen);
    vorlauf += zeile + std::string(punkte_je_zeile, '.');
    vorlauf += flash_defekt && n == erase_zeilen / 2 ? " E\r" : " ok\r";
  }
  return std::string(F00);
}

std::string Master::telegramm_senden(std::string_view ziffern) {
  Telegramm t{
      *hex_zahl(ziffern.substr(0, 4)), static_cast<std::uint8_t>(*hex_zahl(ziffern.substr(4, 2))), {}};
  std::ranges::copy(hex_bytes(ziffern.substr(6)), t.daten.begin());
  if (t.adresse == 0 || t.adresse > can_letzte) return std::string(F80);
  if (t.laenge < 1 || t.laenge > 8) return std::string(F81);
  if (mitschreiben) anhaengen(telegramme, t);
  for (int r = 0; r < Empfaenger::anzahl; ++r)
    if (t.adresse == Empfaenger::busadresse(r)) {
      auto& empfaenger = bestand.empfaenger[static_cast<std::size_t>(r)];
      if (const auto antwort = empfaenger.empfangen(t)) empfangenes = *antwort;
      geaendert = true;
    }
  return std::string(F00);
}

std::string Master::ereignis_erzeugen(std::string_view ziffern) {
  const std::uint32_t geraet = *hex_zahl(ziffern.substr(0, 4)), aktion = *hex_zahl(ziffern.substr(4, 2)),
                      taste = *hex_zahl(ziffern.substr(6));
  if (geraet < eingang_erster || geraet > eingang_letzter || geraet % 2 != 0) return std::string(F80);
  if (aktion > 2 || taste < 1 || taste > 4) return std::string(F06);
  const Ereignis e{static_cast<int>(geraet - eingang_erster) / 2, static_cast<int>(taste),
                   static_cast<Tastenaktion>(aktion)};
  if (mitschreiben) anhaengen(ereignisse, e);
  ereignis(e);
  return std::string(F00);
}

// "---" is the closed contact of a pressed key, "-/-" the open one.
void Master::ereignis(const Ereignis& e) {
  char taste[32];
  std::snprintf(taste, sizeof taste, "K%03d T%d ", e.adresse, e.taste);
  if (e.aktion != Tastenaktion::loesen) anzeigezeilen.push_back(std::string(taste) + "---\r");
  if (e.aktion != Tastenaktion::druecken) anzeigezeilen.push_back(std::string(taste) + "-/-\r");
}

std::string Master::telegramm_nennen(std::string_view) {
  return hex(empfangenes.adresse, 4) + hex(empfangenes.laenge, 2) + hex(empfangenes.daten) + "000000";
}

std::string Master::wetter_nennen(std::string_view) { return Wetter_text(wetter); }

// Makes room for a receiver's answer: what came before is gone.
std::string Master::abholen(std::string_view) {
  empfangenes = {};
  return std::string(F00);
}

}  // namespace zav::simulator
