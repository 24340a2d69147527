#include "store/funktionen.h"

#include <algorithm>
#include <array>
#include <iterator>

#include "basis/liste.h"
#include "basis/text.h"
#include "basis/zahl.h"

namespace zav {

namespace {

using enum Storenrolle;

constexpr std::array<Relaisfunktion, 8> eingangsfunktionen{{
    {"-", "-", keine},
    {"Aus", "Aus", keine},
    {"Ein", "Ein", unvereinbar},
    {"Impuls", "Impuls", unvereinbar},
    {"Um (Schrittschaltung)", "Um (Schrittschaltung)", unvereinbar},
    {"Store auf", "Store ab", fahren},
    {"Store stop", "Store stop", stoppen},
    {"Thermo", "Thermo", unvereinbar},
}};
constexpr std::size_t timerereignis_codes = 7;  // all of them but "Thermo"

// 1 to 6 alone, with the output's lock set (+ 6), with it released (+ 12). Only "Ein" collides with a blind
// here.
constexpr std::array<Relaisfunktion, 21> uhrfunktionen{{
    {"-", "-", keine},
    {"Aus", "Aus", keine},
    {"Ein", "Ein", unvereinbar},
    {"Impuls", "Impuls", keine},
    {"Um (Schrittschaltung)", "Um (Schrittschaltung)", keine},
    {"Store auf", "Store ab", fahren},
    {"Store stop", "Store stop", stoppen},
    {"Aus und sperren", "Aus und sperren", keine},
    {"Ein und sperren", "Ein und sperren", unvereinbar},
    {"Impuls und sperren", "Impuls und sperren", keine},
    {"Um (Schrittsch.) und sperren", "Um (Schrittsch.) und sperren", keine},
    {"Store auf und sperren", "Store ab und sperren", fahren},
    {"Store stop und sperren", "Store stop und sperren", stoppen},
    {"Aus und entsperren", "Aus und entsperren", keine},
    {"Ein und entsperren", "Ein und entsperren", unvereinbar},
    {"Impuls und entsperren", "Impuls und entsperren", keine},
    {"Um (Schrittsch.) und entsperren", "Um (Schrittsch.) und entsperren", keine},
    {"Store auf und entsperren", "Store ab und entsperren", fahren},
    {"Store stop und entsperren", "Store stop und entsperren", stoppen},
    {"Nur sperren", "Nur sperren", keine},
    {"Nur entsperren", "Nur entsperren", keine},
}};

constexpr std::array timerfunktionen{"-", "Start & Restart", "Stop & Reset", "Start/Reset (um)"};
// From 5 seconds on in steps of 2 seconds: the dimmers know no other values.
constexpr std::array tempi{"Sehr hoch", "Hoch",    "Ambiance", "2 Sek.",  "3 Sek.",  "4 Sek.",
                           "5 Sek.",    "7 Sek.",  "9 Sek.",   "11 Sek.", "13 Sek.", "15 Sek.",
                           "17 Sek.",   "19 Sek.", "21 Sek.",  "23 Sek."};
constexpr std::array sperren{"-", "Sperre ein", "Sperre aus"};

template <class Tabelle>
std::string Wort(const Tabelle& tabelle, int code) {
  return code >= 0 && code < std::ssize(tabelle) ? tabelle.at(static_cast<std::size_t>(code))
                                                 : "Code " + std::to_string(code);
}

// How outputs of one kind are named and counted.
struct Namensform {
  Ziel::Art art;
  char buchstabe;
  int je_gruppe;  // 0: not in groups
  int anzahl;
};
constexpr std::array namensformen{Namensform{Ziel::Art::Relais, 'O', relais_je_gruppe, relaisausgaenge},
                                  Namensform{Ziel::Art::Dimmer, 'D', dimmer_je_gruppe, dimmerausgaenge},
                                  Namensform{Ziel::Art::Timer, 'T', 0, timeranzahl}};

const Namensform& Form_von(Ziel::Art art) {
  return *std::find_if(namensformen.begin(), namensformen.end(),
                       [art](const Namensform& f) { return f.art == art; });
}

}  // namespace

std::span<const Relaisfunktion> Relaisfunktionen(Ereignisart art) {
  if (art == Ereignisart::Uhr) return uhrfunktionen;
  const std::span<const Relaisfunktion> alle = eingangsfunktionen;
  return art == Ereignisart::Timer ? alle.first(timerereignis_codes) : alle;
}

std::vector<std::string> Relaisliste(Ereignisart art, bool gerade) {
  return Texte(Relaisfunktionen(art), gerade ? &Relaisfunktion::gerade : &Relaisfunktion::ungerade);
}
std::vector<std::string> Timerliste() { return Texte(timerfunktionen); }
std::vector<std::string> Tempoliste() { return Texte(tempi); }
std::vector<std::string> Sperrenliste() { return Texte(sperren); }

std::string Relais_in_worten(Ereignisart art, int code, int ausgang) {
  const auto funktionen = Relaisfunktionen(art);
  if (code < 0 || code >= std::ssize(funktionen)) return "Code " + std::to_string(code);
  const Relaisfunktion& f = funktionen[code];
  return ausgang % 2 == 0 ? f.gerade : f.ungerade;
}

std::string Timer_in_worten(int code) { return Wort(timerfunktionen, code); }

std::string Helligkeit_in_worten(int wert) {
  if (wert == 0) return "Keine Änderung";
  return wert == helligkeit_aus ? "Aus" : std::to_string(wert);
}

std::string Dimmer_in_worten(Ereignisart art, std::span<const i16> parameter) {
  if (std::all_of(parameter.begin(), parameter.end(), [](i16 p) { return p == 0; })) return "-";
  const int helligkeit = parameter[dimmer_helligkeit];
  std::string text = Helligkeit_in_worten(helligkeit);
  if (helligkeit > helligkeit_aus) text += " %";
  if (helligkeit != 0) text += ", Tempo " + Wort(tempi, parameter[dimmer_tempo]);
  if (art == Ereignisart::Eingang) {
    if ((parameter[dimmer_auf] & dimmer_lang) != 0) text += ", Aufdimmen";
    if ((parameter[dimmer_ab] & dimmer_lang) != 0) text += ", Abdimmen";
    if ((parameter[dimmer_auf] & dimmer_kurz) != 0) text += ", Um";
    if ((parameter[dimmer_ab] & dimmer_kurz) != 0) text += ", Memory";
  } else if (art == Ereignisart::Uhr && parameter[dimmer_ab] != 0) {
    text += ", " + Wort(sperren, parameter[dimmer_ab]);
  }
  return text;
}

std::string Ziel_name(Ziel z) {
  const Namensform& f = Form_von(z.art);
  if (f.je_gruppe == 0) return f.buchstabe + std::to_string(z.nummer);
  return f.buchstabe + std::to_string(z.nummer / f.je_gruppe) + "-" + std::to_string(z.nummer % f.je_gruppe);
}

std::optional<Ziel> Ziel_lesen(std::string_view name) {
  const std::string gross = Gross(name);
  const auto f = std::find_if(namensformen.begin(), namensformen.end(),
                              [&](const Namensform& n) { return !gross.empty() && gross[0] == n.buchstabe; });
  if (f == namensformen.end()) return std::nullopt;
  const std::string_view zahlen = std::string_view(gross).substr(1);
  const std::size_t strich = zahlen.find('-');
  if ((strich == std::string_view::npos) != (f->je_gruppe == 0)) return std::nullopt;

  std::optional<i32> nummer;
  if (f->je_gruppe == 0) {
    nummer = Zahl_lesen(zahlen, 0, f->anzahl - 1);
  } else {
    const auto gruppe = Zahl_lesen(zahlen.substr(0, strich), 0, f->anzahl / f->je_gruppe - 1);
    const auto stelle = Zahl_lesen(zahlen.substr(strich + 1), 0, f->je_gruppe - 1);
    if (gruppe && stelle) nummer = *gruppe * f->je_gruppe + *stelle;
  }
  if (!nummer) return std::nullopt;
  return Ziel{f->art, *nummer};
}

std::string Ziel_bezeichnung(Ziel z) {
  const str& text = z.art == Ziel::Art::Relais   ? projekt.Relais_text[z.nummer]
                    : z.art == Ziel::Art::Dimmer ? projekt.Dimmer_text[z.nummer]
                                                 : projekt.Timer_text[z.nummer];
  return Ziel_name(z) + ": " + text;
}

std::string Ausgang_bezeichnung(int ausgang) {
  return Ziel_bezeichnung(ausgang < erster_dimmer ? Ziel{Ziel::Art::Relais, ausgang}
                                                  : Ziel{Ziel::Art::Dimmer, ausgang - erster_dimmer});
}

std::vector<std::string> LED_liste() {
  auto texte = Texte(ausgang_keiner, Ausgang_bezeichnung);
  texte.emplace_back("LED dauernd aus");
  texte.emplace_back("LED dauernd ein");
  return texte;
}

Ereigniszeilen Zeilen_von(Ereignisart art, int ereignis) {
  Projekt& p = projekt;
  const int e = ereignis;
  switch (art) {
    case Ereignisart::Eingang:
      return {p.Ein_relais.zeile(e), p.Ein_dimmer.zeile(e), p.Ein_timer.zeile(e), p.Ein_funktext[e],
              p.Ein_leer[e]};
    case Ereignisart::Uhr:
      return {p.Uhr_relais.zeile(e), p.Uhr_dimmer.zeile(e), p.Uhr_timer.zeile(e), p.Uhr_funktext[e],
              p.Uhr_leer[e]};
    case Ereignisart::Timer: break;
  }
  return {p.Tev_relais.zeile(e), p.Tev_dimmer.zeile(e), {}, p.Tev_funktext[e], p.Tev_leer[e]};
}

bool Hat_funktionen(Ereignisart art, int ereignis) {
  const auto benutzt = [](auto zeile) {
    return std::any_of(zeile.begin(), zeile.end(), [](auto w) { return w != 0; });
  };
  const Ereigniszeilen z = Zeilen_von(art, ereignis);
  return benutzt(z.relais) || benutzt(z.dimmer) || benutzt(z.timer);
}

std::string Funktionszeichen(Ereignisart art, int ereignis) {
  const auto benutzt = [](auto wert) { return wert != 0; };
  const Ereigniszeilen z = Zeilen_von(art, ereignis);
  bool dimmt = false;
  for (std::size_t d = 0; d < z.dimmer.size() && !dimmt; d += dimmerparameter) {
    dimmt =
        z.dimmer[d + dimmer_auf] >= 1 || z.dimmer[d + dimmer_ab] >= 1 || z.dimmer[d + dimmer_helligkeit] >= 1;
  }
  std::string zeichen;
  if (std::any_of(z.relais.begin(), z.relais.end(), benutzt)) zeichen += "O";
  if (dimmt) zeichen += "D";
  if (std::any_of(z.timer.begin(), z.timer.end(), benutzt)) zeichen += "T";
  return zeichen;
}

void Leer_berechnen(Ereignisart art, int ereignis) {
  Zeilen_von(art, ereignis).leer = Hat_funktionen(art, ereignis) ? 1 : 0;
}

}  // namespace zav
