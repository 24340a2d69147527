// protokoll, update: what is done at the living system, in front of it.
#include <CLI/CLI.hpp>
#include <chrono>
#include <filesystem>
#include <memory>
#include <nlohmann/json.hpp>
#include <ostream>
#include <string>
#include <vector>

#include "argumente.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "befehl.h"
#include "link/leitung.h"
#include "link/statuscode.h"
#include "platform/uhrwerk.h"
#include "service/firmware.h"
#include "service/terminal.h"
#include "store/sitzung.h"

namespace zav {

namespace {

// Lines are data and go out at once; what the program says around them is for people at a terminal.
class Zeilenausgabe final : public Terminalanzeige {
 public:
  explicit Zeilenausgabe(Lauf& lauf) : lauf_(lauf) {}

  void Text_zeigen(const std::string& text) override {
    for (const std::string& zeile : Teilen(Ersetzen(text, "\r", ""), "\n")) {
      if (!zeile.empty()) lauf_.konsole.Protokoll(zeile);
    }
  }
  void Zeile_zeigen(const std::string& zeile) override {
    if (lauf_.json) {
      zeilen.push_back(zeile);
    } else {
      lauf_.aus << zeile << std::endl;
    }
  }

  std::vector<std::string> zeilen;

 private:
  Lauf& lauf_;
};

struct Protokollargumente {
  bool liste = false, zeit = false, datum = false;
  std::vector<std::string> filter;
  std::string dauer;
};

bool Protokollieren(Lauf& lauf, const Protokollargumente& a) {
  Zeilenausgabe ausgabe(lauf);
  Terminal terminal(ausgabe);
  std::ranges::copy(a.filter, terminal.Filter.begin());
  terminal.Check1 = a.zeit;
  terminal.Check2 = a.datum;
  const Abbruchwache wache([] { sitzung.Abbruch = 1; });
  if (const auto sekunden = Zahl_lesen(a.dauer)) {
    const auto ende =
        std::chrono::steady_clock::now() + std::chrono::milliseconds(Echte_millisekunden(*sekunden));
    lauf.konsole.bei_runde = [ende] {
      if (std::chrono::steady_clock::now() >= ende) sitzung.Abbruch = 1;
    };
  }
  const Terminalende ergebnis =
      terminal.Terminal_lauf(a.liste ? Terminalmodus::liste : Terminalmodus::protokoll);
  lauf.konsole.bei_runde = nullptr;
  lauf.konsole.Fortschritt_ende();
  if (ergebnis == Terminalende::abgelehnt) {
    lauf.konsole.Fehler(Uebertragungstext(Links(leitung.Empfang_text, 3)));
  } else if (ergebnis == Terminalende::leitung_weg) {
    lauf.konsole.Fehler("Die Verbindung zum ZAVmaster ist unterbrochen.");
  }
  if (lauf.json) {
    lauf.aus << nlohmann::json(ausgabe.zeilen).dump(2, ' ', false, nlohmann::json::error_handler_t::replace)
             << '\n';
  }
  return ergebnis == Terminalende::verlassen;
}

class Updateanzeige final : public Updatebeobachter {
 public:
  explicit Updateanzeige(Konsole& konsole) : konsole_(konsole) {}
  ~Updateanzeige() override { konsole_.Fortschritt_ende(); }

  void Schritt_zeigen(int nr, const std::string& text) override {
    schritt_ = text;
    if (nr == 2) {
      konsole_.Anmerken(text);  // without this act nothing goes on
    } else {
      konsole_.Protokoll(text);
    }
  }
  void Fortschritt_zeigen(double wert, double bis) override {
    konsole_.Fortschritt_zeigen(bis > 0 ? 100 * wert / bis : 100, schritt_);
  }

 private:
  Konsole& konsole_;
  std::string schritt_;
};

// The running update, for the signal handler's turn.
Firmware_update* laufendes_update = nullptr;

}  // namespace

Ausfuehrung Befehl_protokoll(CLI::App& app) {
  const auto a = std::make_shared<Protokollargumente>();
  app.add_flag("--liste", a->liste, "den ZAVmaster neu starten und alle Busteilnehmer auflisten");
  app.add_option("--filter", a->filter, "nur Zeilen, die einen dieser Texte enthalten (höchstens 8)")
      ->type_name("TEXT ...")
      ->expected(1, static_cast<int>(Terminal::filter_anzahl));
  app.add_flag("--zeit", a->zeit, "die Zeit des Computers hinter jede Zeile schreiben");
  app.add_flag("--datum", a->datum, "das Datum des Computers hinter jede Zeile schreiben");
  app.add_option("--dauer", a->dauer, "nach so vielen Sekunden aufhören (sonst mit Ctrl-C)")
      ->type_name("SEKUNDEN")
      ->take_last()
      ->check(Ganze_zahl_bis(1000000));
  return [a](Lauf& lauf) { return Protokollieren(lauf, *a); };
}

Ausfuehrung Befehl_update(CLI::App& app) {
  struct Argumente {
    std::string datei, host;
  };
  const auto a = std::make_shared<Argumente>();
  app.add_option("DATEI", a->datei, "Update-Datei (.s19), ZAVMAStER_ im Namen")->required();
  app.add_option("--ethernet", a->host, "über einen Serial Device Server im lokalen Netzwerk statt über COM")
      ->type_name("HOST");
  return [a](Lauf& lauf) {
    if (!a->host.empty()) einstellungen.Host_ip = a->host;
    Updateanzeige anzeige(lauf.konsole);
    Firmware_update update(anzeige);
    laufendes_update = &update;
    const Abbruchwache wache([] { laufendes_update->Abbruch = true; });
    const Updateergebnis ergebnis = update.Ausfuehren(a->host.empty() ? Updateweg::com : Updateweg::ethernet,
                                                      std::filesystem::absolute(a->datei).string());
    laufendes_update = nullptr;
    return ergebnis == Updateergebnis::fertig;
  };
}

}  // namespace zav
