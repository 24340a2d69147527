#include "simulator/fehlerregel.h"

#include <array>
#include <charconv>
#include <limits>
#include <stdexcept>

#include "simulator/master.h"

namespace zav::simulator {

namespace {

struct Wort {
  std::string_view name;
  Fehlerart art;
  int vorgabe;  // bytes when no value is given; 0 = takes no value
};

constexpr std::array woerter{
    Wort{"stumm", Fehlerart::stumm, 0}, Wort{"verloren", Fehlerart::verloren, 0},
    Wort{"kurz", Fehlerart::kurz, 1},   Wort{"lang", Fehlerart::lang, 1},
    Wort{"muell", Fehlerart::muell, 3}, Wort{"trenn", Fehlerart::trenn, 0},
};

// Takes the digits at the begin of text; -1 when there are none or the number is out of 1 to 1000000.
long zahl_abnehmen(std::string_view& text) {
  long wert = -1;
  const auto [ende, fehler] = std::from_chars(text.data(), text.data() + text.size(), wert);
  if (fehler != std::errc{} || wert < 1 || wert > 1'000'000) return -1;
  text.remove_prefix(static_cast<std::size_t>(ende - text.data()));
  return wert;
}

bool beginnt_mit_ziffer(std::string_view text) { return !text.empty() && text[0] >= '0' && text[0] <= '9'; }

}  // namespace

Fehlerregel Fehlerregel_lesen(std::string_view text) {
  const auto ablehnen = [&](std::string grund) {
    throw std::invalid_argument("Fehlerregel \"" + std::string(text) + "\": " + std::move(grund));
  };

  const auto at = text.find('@');
  std::string_view art = text.substr(0, at);
  std::string_view wo = at == std::string_view::npos ? "" : text.substr(at + 1);
  const auto gleich = art.find('=');
  std::string_view wert = gleich == std::string_view::npos ? "" : art.substr(gleich + 1);
  art = art.substr(0, gleich);

  Fehlerregel regel;
  int vorgabe = 0;
  if (art.size() == 3 && art[0] == 'F' && beginnt_mit_ziffer(art.substr(1)) &&
      beginnt_mit_ziffer(art.substr(2)) && art != "F00") {
    regel.code = art;
  } else {
    const Wort* gefunden = nullptr;
    for (const Wort& w : woerter)
      if (w.name == art) gefunden = &w;
    if (!gefunden)
      ablehnen("unbekannte Art, möglich sind F01 bis F99, stumm, verloren, kurz, lang, muell, trenn");
    regel.art = gefunden->art;
    regel.wert = vorgabe = gefunden->vorgabe;
  }
  if (gleich != std::string_view::npos) {
    if (vorgabe == 0) ablehnen("diese Art hat keinen Wert");
    const long n = zahl_abnehmen(wert);
    if (n < 0 || n > 4096 || !wert.empty()) ablehnen("der Wert muss eine Zahl von 1 bis 4096 sein");
    regel.wert = static_cast<int>(n);
  }

  if (at != std::string_view::npos && wo.empty()) ablehnen("hinter @ fehlt die Angabe der Meldung");
  regel.befehl = Befehl_am_anfang(wo);
  wo.remove_prefix(regel.befehl.size());
  bool mit_nr = false;
  if (beginnt_mit_ziffer(wo)) {
    regel.nr = zahl_abnehmen(wo);
    if (regel.nr < 0) ablehnen("die Nummer der Meldung muss von 1 bis 1000000 sein");
    mit_nr = true;
  }
  regel.mal = mit_nr ? 1 : std::numeric_limits<long>::max();
  if (wo.starts_with('x')) {
    wo.remove_prefix(1);
    regel.mal = zahl_abnehmen(wo);
    if (regel.mal < 0) ablehnen("hinter x muss eine Anzahl von 1 bis 1000000 stehen");
  }
  if (!wo.empty()) ablehnen("\"" + std::string(wo) + "\" ist kein Befehl, keine Nummer und keine Anzahl");
  return regel;
}

void Fehlerplan::setzen(std::vector<Fehlerregel> neue) {
  regeln = std::move(neue);
  nummer.clear();
}

const Fehlerregel* Fehlerplan::zaehlen(const std::string& befehl) {
  if (regeln.empty()) return nullptr;
  ++nummer[""];
  if (!befehl.empty()) ++nummer[befehl];
  for (const Fehlerregel& r : regeln)
    if (r.befehl.empty() || r.befehl == befehl)
      if (const long n = nummer[r.befehl]; n >= r.nr && n - r.nr < r.mal) return &r;
  return nullptr;
}

}  // namespace zav::simulator
