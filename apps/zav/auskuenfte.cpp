// suche, touchpanel, sonne, ports: reports that read and change nothing.
#include <CLI/CLI.hpp>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "argumente.h"
#include "basis/text.h"
#include "befehl.h"
#include "editor/ereignissuche.h"
#include "editor/touchpanel_referenz.h"
#include "link/leitung.h"
#include "platform/ports.h"
#include "platform/uhrwerk.h"
#include "projektzugriff.h"
#include "time/sonneninfo.h"

namespace zav {

namespace {

using Json = nlohmann::ordered_json;

// A report whose lines end with CR LF: as lines, or as a list of them.
void Bericht_ausgeben(Lauf& lauf, const std::string& bericht) {
  const std::string text = Ersetzen(bericht, "\r\n", "\n");
  if (!lauf.json) {
    lauf.aus << text;
    return;
  }
  std::vector<std::string> zeilen = Teilen(text, "\n");
  zeilen.pop_back();  // behind the last line end
  lauf.aus << Json(zeilen).dump(2) << '\n';
}

Json Tag_json(const Sonneninfo& s) {
  return {{"datum", Datum_text(s.tag)}, {"aufgang", s.aufgang}, {"untergang", s.untergang}, {"zeit", s.zeit}};
}

void Jahr_ausgeben(Lauf& lauf, int jahr) {
  if (!lauf.json) {
    lauf.aus << Sonnenliste(jahr);
    return;
  }
  Json tage = Json::array();
  for (Datum d{jahr, 1, 1}; d.jahr == jahr; d = Plus_tage(d, 1)) tage.push_back(Tag_json(Sonneninfo_am(d)));
  lauf.aus << tage.dump(2) << '\n';
}

void Tag_ausgeben(Lauf& lauf, const Sonneninfo& s) {
  if (lauf.json) {
    Json tag = Tag_json(s);
    tag["auf_sommerzeit"] = Datum_text(s.auf_sommerzeit);
    tag["auf_winterzeit"] = Datum_text(s.auf_winterzeit);
    lauf.aus << tag.dump(2) << '\n';
    return;
  }
  lauf.aus << "Datum                         " << Datum_text(s.tag) << "\nSonnenaufgang um              "
           << s.aufgang << "\nSonnenuntergang um            " << s.untergang
           << "\nZeit                          " << s.zeit << "\nWinterzeit auf Sommerzeit am  "
           << Datum_text(s.auf_sommerzeit) << "\nSommerzeit auf Winterzeit am  "
           << Datum_text(s.auf_winterzeit) << '\n';
}

}  // namespace

Ausfuehrung Befehl_suche(CLI::App& app) {
  struct Argumente {
    std::string datei, ausgang;
  };
  const auto a = std::make_shared<Argumente>();
  Projektargument(app, a->datei);
  app.add_option("AUSGANG", a->ausgang,
                 "Relaisausgang O0-0 bis O63-7, Dimmer D0-0 bis D31-3 oder Timer T0 bis T15")
      ->required()
      ->check([](const std::string& t) {
        return Ziel_lesen(t) ? "" : "\"" + t + "\" ist kein Ausgang wie O3-5, D1-2 oder T4";
      });
  return [a](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, a->datei)) return false;
    Bericht_ausgeben(lauf, Ereignisse_suchen(*Ziel_lesen(a->ausgang)));
    return true;
  };
}

Ausfuehrung Befehl_touchpanel(CLI::App& app) {
  const auto datei = std::make_shared<std::string>();
  Projektargument(app, *datei);
  return [datei](Lauf& lauf) {
    if (!Projekt_oeffnen(lauf, *datei)) return false;
    Bericht_ausgeben(lauf, Touchpanel_text());
    return true;
  };
}

Ausfuehrung Befehl_sonne(CLI::App& app) {
  const auto liste = std::make_shared<bool>(false);
  app.add_flag("--liste", *liste, "jeden Tag des Jahres auflisten");
  return [liste](Lauf& lauf) {
    if (*liste) {
      Jahr_ausgeben(lauf, Heute().jahr);
    } else {
      Tag_ausgeben(lauf, Sonneninfo_am(Heute()));
    }
    return true;
  };
}

Ausfuehrung Befehl_ports(CLI::App& /*app*/) {
  return [](Lauf& lauf) {
    Com_suche();
    const auto ports = Comports();
    Json liste = Json::array();
    for (std::size_t n = 0; n < ports.size(); ++n) {
      const int port = static_cast<int>(n);
      const Serielles_geraet& g = ports[n];
      if (g.datei.empty()) continue;
      const bool frei = leitung.Com_frei[port] == 1;
      const std::string& ursache = leitung.Com_ursache[port];
      liste.push_back({{"com", port + 1},
                       {"geraet", g.datei},
                       {"bezeichnung", Bezeichnung(g)},
                       {"frei", frei},
                       {"ursache", ursache}});
      if (lauf.json) continue;
      lauf.aus << port + 1 << (frei ? "  frei   " : "  nicht  ") << g.datei << "  " << Bezeichnung(g)
               << std::endl;
      if (!frei) lauf.konsole.Anmerken("COM " + std::to_string(port + 1) + ": " + ursache);
    }
    if (lauf.json) lauf.aus << liste.dump(2) << '\n';
    if (liste.empty()) lauf.konsole.Anmerken("Dieser Computer hat keine serielle Schnittstelle.");
    return true;
  };
}

}  // namespace zav
