#include "shell/portsuche.h"

#include <algorithm>
#include <chrono>

#include "basis/melder.h"
#include "link/leitung.h"
#include "platform/uhrwerk.h"

namespace zav {

namespace {

using Geraete = std::vector<Serielles_geraet>;

constexpr const char* titel = "Port finden";
// Until an adapter that is put in has its device file, and that file the group dialout.
constexpr double geduld_sekunden = 4.0;
constexpr int runde_ms = 50;  // longest wait without a turn of the front end

bool Gefragt(const std::string& text) {
  return melder().Melden({.text = text,
                          .titel = titel,
                          .knoepfe = Knoepfe::OK_Abbrechen,
                          .symbol = Symbol::Information}) == Antwort::OK;
}

// The devices that were not there before; an adapter may hold several ports.
Geraete Neue(const Geraete& vorher) {
  Geraete neue = Serielle_geraete();
  std::erase_if(neue, [&vorher](const Serielles_geraet& g) {
    return std::ranges::find(vorher, g.datei, &Serielles_geraet::datei) != vorher.end();
  });
  return neue;
}

Geraete Neue_abwarten(const Geraete& vorher, const Geraetewache& wache) {
  using Uhr = std::chrono::steady_clock;
  const Wartezeiger zeiger;
  const auto ende = Uhr::now() + std::chrono::milliseconds(Echte_millisekunden(geduld_sekunden));
  for (;;) {
    Geraete neue = Neue(vorher);
    const bool bereit = !neue.empty() && std::ranges::all_of(neue, &Serielles_geraet::zugaenglich);
    if (bereit || Uhr::now() >= ende) return neue;
    melder().DoEvents();
    wache.Warten(runde_ms);
  }
}

std::string Zeile(int port, const Serielles_geraet& g) {
  const std::string bezeichnung = Bezeichnung(g);
  return (port < 0 ? "ohne COM-Nummer: " : "Com " + std::to_string(port + 1) + ": ") +
         (bezeichnung.empty() ? g.datei : bezeichnung + " (" + g.datei + ")");
}

void Nichts_gefunden() {
  melder().Melden({.text = "Es ist kein Adapter dazugekommen. Prüfen Sie Stecker und Kabel, nehmen Sie einen "
                           "anderen USB-Anschluss "
                           "und versuchen Sie es noch einmal.",
                   .titel = titel,
                   .symbol = Symbol::Warnung});
}

void Fund_melden(const Geraete& neue, std::optional<int> port) {
  std::string text = neue.size() == 1 ? "Ihr Adapter ist\r\n\r\n" : "Dazugekommen sind\r\n\r\n";
  for (const Serielles_geraet& g : neue) text += Zeile(Portnummer(g.datei), g) + "\r\n";
  bool gut = false;
  if (!port) {
    text += "\r\nEs gibt nur acht COM-Nummern: Stecken Sie Adapter aus, die Sie nicht brauchen.";
  } else if (leitung.Com_frei[*port] == 0) {
    text += "\r\n" + leitung.Com_ursache[*port];
  } else {
    gut = true;
    text +=
        neue.size() == 1
            ? "\r\nDer Port ist jetzt gewählt."
            : "\r\nDer erste ist jetzt gewählt. Antwortet der ZAVmaster dort nicht, wählen Sie den nächsten.";
  }
  melder().Melden({.text = text, .titel = titel, .symbol = gut ? Symbol::Information : Symbol::Warnung});
}

}  // namespace

std::optional<int> Port_suchen() {
  if (!Gefragt("Stecken Sie den Adapter aus und drücken Sie dann OK.")) return std::nullopt;
  const Geraetewache wache;
  const Geraete ohne = Serielle_geraete();
  if (!Gefragt("Stecken Sie den Adapter jetzt ein und drücken Sie dann OK.")) return std::nullopt;
  const Geraete neue = Neue_abwarten(ohne, wache);
  leitung.Com_gesucht = 0;
  Com_suche();
  if (neue.empty()) {
    Nichts_gefunden();
    return std::nullopt;
  }
  const int nummer = Portnummer(neue.front().datei);
  const std::optional<int> port = nummer < 0 ? std::nullopt : std::optional(nummer);
  Fund_melden(neue, port);
  return port;
}

std::string Portliste() {
  std::string liste;
  const auto ports = Comports();
  for (std::size_t n = 0; n < ports.size(); ++n) {
    if (!ports[n].datei.empty()) liste += (liste.empty() ? "" : "\n") + Zeile(static_cast<int>(n), ports[n]);
  }
  return liste.empty() ? "Dieser Computer hat keine serielle Schnittstelle." : liste;
}

}  // namespace zav
