#include "konsole.h"

#include <cmath>
#include <istream>
#include <ostream>
#include <stdexcept>
#include <utility>

#include "basis/text.h"
#include "form/formular.h"
#include "klartext.h"

namespace zav {

namespace {

volatile std::sig_atomic_t abbruch_verlangt = 0;
void (*abbruch_handlung)() = nullptr;

void Abbruch_merken(int) { abbruch_verlangt = 1; }

constexpr std::array abbruchsignale{SIGINT, SIGTERM};

struct Antwortwahl {
  Knoepfe knoepfe;
  const char* hinweis;  // what the user may type
  Antwort ja;
  Antwort nein;
};

constexpr std::array antwortwahlen{
    Antwortwahl{Knoepfe::OK, "", Antwort::OK, Antwort::OK},
    Antwortwahl{Knoepfe::OK_Abbrechen, " (j = OK, a = Abbrechen) ", Antwort::OK, Antwort::Abbrechen},
    Antwortwahl{Knoepfe::Ja_Nein, " (j = Ja, n = Nein) ", Antwort::Ja, Antwort::Nein},
    Antwortwahl{Knoepfe::Ja_Nein_Abbrechen, " (j = Ja, n = Nein, a = Abbrechen) ", Antwort::Ja,
                Antwort::Nein},
};

constexpr int balkenbreite = 30;
constexpr const char* zeile_loeschen = "\r\x1b[K";

}  // namespace

Konsole::Konsole(Endgeraet g) : geraet_(g), vorher_(Oberflaeche_setzen(this)) {}

Konsole::~Konsole() {
  Fortschritt_ende();
  Oberflaeche_setzen(vorher_);
}

Antwort Konsole::Melden(const Meldung& m) {
  const bool ernst = m.symbol == Symbol::Stopp || m.symbol == Symbol::Warnung;
  if (ernst && m.knoepfe == Knoepfe::OK) fehler_gezeigt_ = true;
  std::string text = Ersetzen(m.text, "\r\n", "\n");
  while (text.ends_with('\n')) text.pop_back();
  Zeile(m.titel.empty() ? text : "[" + m.titel + "] " + text);
  return Antwort_holen(m);
}

Antwort Konsole::Antwort_holen(const Meldung& m) {
  const Knoepfe k = m.knoepfe;
  const Antwortwahl& wahl = antwortwahlen.at(static_cast<std::size_t>(k));
  if (k == Knoepfe::OK) return Antwort::OK;
  if (fragen == Fragen_art::ja || (!bejahter_titel.empty() && m.titel == bejahter_titel)) return wahl.ja;
  if (fragen == Fragen_art::nein) return wahl.nein;
  if (!geraet_.ein_terminal) return Vorsichtige_antwort(k);
  for (std::string zeile;;) {
    geraet_.fehler << wahl.hinweis << std::flush;
    if (!std::getline(geraet_.ein, zeile)) return Vorsichtige_antwort(k);
    const std::string z = Klein(Zeichen(Ohne_rand(zeile), 1));
    if (z == "j") return wahl.ja;
    if (z == "n" && wahl.nein == Antwort::Nein) return Antwort::Nein;
    if (z == "a" && k != Knoepfe::Ja_Nein) return Antwort::Abbrechen;
  }
}

void Konsole::Fehler(std::string_view text) {
  fehler_gezeigt_ = true;
  Zeile(text);
}

void Konsole::Anmerken(std::string_view text) { Zeile(text); }

void Konsole::Hinweis(const std::string& text) {
  if (text.empty()) {
    Fortschritt_ende();
  } else if (anzeigen()) {
    Fluechtige_zeile(text);
  }
}

void Konsole::Zeile(std::string_view text) {
  Fortschritt_ende();
  geraet_.fehler << (geraet_.fehler_terminal ? Klartext(text) : std::string(text)) << '\n' << std::flush;
}

void Konsole::Protokoll(std::string_view zeile) {
  if (anzeigen()) Zeile(zeile);
}

void Konsole::Fortschritt_zeigen(double gesamt, std::string_view taetigkeit) {
  if (!anzeigen()) return;
  const int prozent = static_cast<int>(std::lround(gesamt));
  const int voll = prozent * balkenbreite / 100;
  std::string balken;
  for (int i = 0; i < balkenbreite; ++i) balken += i < voll ? "━" : "─";
  balken += " " + std::to_string(prozent) + " %  ";
  balken += taetigkeit;
  Fluechtige_zeile(std::move(balken));
}

void Konsole::Fluechtige_zeile(std::string text) {
  if (text == fluechtig_) return;
  geraet_.fehler << zeile_loeschen << Klartext(text) << std::flush;
  fluechtig_ = std::move(text);
}

void Konsole::Fortschritt_ende() {
  if (fluechtig_.empty()) return;
  fluechtig_.clear();
  geraet_.fehler << zeile_loeschen << std::flush;
}

void Konsole::DoEvents() {
  if (bei_runde) bei_runde();
  if (abbruch_verlangt != 0 && abbruch_handlung != nullptr) std::exchange(abbruch_handlung, nullptr)();
}

void Konsole::Zeigen(Formular& f) { throw std::logic_error("no window for " + f.name()); }

Abbruchwache::Abbruchwache(void (*bei_abbruch)()) {
  abbruch_verlangt = 0;
  abbruch_handlung = bei_abbruch;
  struct sigaction a {};
  a.sa_handler = Abbruch_merken;
  a.sa_flags = static_cast<int>(SA_RESETHAND);  // the second signal ends the program
  for (std::size_t i = 0; i < abbruchsignale.size(); ++i) sigaction(abbruchsignale[i], &a, &vorher_[i]);
}

Abbruchwache::~Abbruchwache() {
  abbruch_handlung = nullptr;
  for (std::size_t i = 0; i < abbruchsignale.size(); ++i) sigaction(abbruchsignale[i], &vorher_[i], nullptr);
}

bool Abbruchwache::verlangt() { return abbruch_verlangt != 0; }

}  // namespace zav
