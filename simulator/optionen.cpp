#include "simulator/optionen.h"

#include <charconv>
#include <stdexcept>

namespace zav::simulator {

namespace {

constexpr std::string_view hilfe =
    R"(zavmaster [OPTION ...]   simulierter ZAVmaster

Bedient das Leitungsprotokoll auf TCP (nur 127.0.0.1) und auf einem Pseudo-Terminal
und gibt "TCP <Port>" und "PTY <Gerät>" aus, sobald er bereit ist.

  --tcp PORT           TCP-Port, 0 = irgendein freier (Vorgabe)
  --pty                zusätzlich ein Pseudo-Terminal; ohne --tcp nur dieses
  --version TEXT       Versionstext, höchstens 10 Zeichen (Vorgabe "REV 09.04")
  --speicher DATEI     behält den Speicher über das Ende hinaus in dieser Datei
  --fehler REGEL ...   baut Leitungsfehler ein, siehe unten; mehrere möglich
  --baud BAUD          bremst beide Richtungen auf diese Geschwindigkeit (10 Bit je Zeichen)
  --startladen         beginnt im Bootloader
  --hilfe              diese Hilfe

REGEL ist ART[=WERT][@[BEFEHL][NR][xMAL]]
  ART     F01 bis F99  dieser Code statt der Ausführung
          stumm        nicht ausgeführt, keine Antwort
          verloren     ausgeführt, Antwort verloren
          kurz         der Antwort fehlen am Ende WERT Zeichen (1)
          lang         WERT Zeichen zu viel hinter der Antwort (1)
          muell        WERT Störzeichen vor der Antwort (3)
          trenn        nicht ausgeführt, Verbindung getrennt
  BEFEHL  zählt nur Meldungen dieses Befehls (z. B. W, LD oder *)
  NR      Nummer der Meldung, ab 1; ohne NR sind alle gemeint
  MAL     so viele Meldungen nacheinander
  Beispiele: F07@W3   stumm@20   F07@12x9   kurz=2@V

Signale: SIGINT und SIGTERM beenden, SIGUSR1 schaltet die Stromzufuhr aus und ein.
)";

constexpr std::size_t version_hoechstens = 10;

long zahl(const std::string& option, const std::string& text, long von, long bis) {
  long wert = 0;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
  if (fehler != std::errc{} || ende != text.data() + text.size() || wert < von || wert > bis)
    throw std::invalid_argument(option + ": \"" + text + "\" ist keine Zahl von " + std::to_string(von) +
                                " bis " + std::to_string(bis));
  return wert;
}

}  // namespace

Aufruf Aufruf_lesen(const std::vector<std::string>& argumente) {
  Optionen o;
  o.mitschreiben = false;
  bool mit_tcp = false;
  try {
    for (std::size_t k = 0; k < argumente.size(); ++k) {
      const std::string& name = argumente[k];
      const auto wert = [&]() -> const std::string& {
        if (k + 1 == argumente.size()) throw std::invalid_argument(name + ": der Wert fehlt");
        return argumente[++k];
      };
      if (name == "--hilfe") return {std::nullopt, 0, std::string(hilfe)};
      if (name == "--tcp") {
        o.tcp = static_cast<int>(zahl(name, wert(), 0, 65535));
        mit_tcp = true;
      } else if (name == "--pty") {
        o.pty = true;
      } else if (name == "--startladen") {
        o.startladen = true;
      } else if (name == "--baud") {
        o.baud = zahl(name, wert(), 50, 10'000'000);
      } else if (name == "--speicher") {
        o.speicher = wert();
        if (o.speicher.empty()) throw std::invalid_argument("--speicher: der Name der Datei ist leer");
      } else if (name == "--version") {
        o.version = wert();
        if (o.version.size() > version_hoechstens)
          throw std::invalid_argument("--version: höchstens 10 Zeichen");
      } else if (name == "--fehler") {
        o.fehler.push_back(Fehlerregel_lesen(wert()));
        while (k + 1 < argumente.size() && !argumente[k + 1].starts_with("--"))
          o.fehler.push_back(Fehlerregel_lesen(argumente[++k]));
      } else {
        throw std::invalid_argument("unbekannte Option \"" + name + "\"");
      }
    }
  } catch (const std::invalid_argument& fehler) {
    return {std::nullopt, 2, "zavmaster: " + std::string(fehler.what()) + "\nHilfe mit zavmaster --hilfe\n"};
  }
  if (o.pty && !mit_tcp) o.tcp.reset();
  return {std::move(o), 0, ""};
}

}  // namespace zav::simulator
