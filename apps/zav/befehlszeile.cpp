#include "befehlszeile.h"

#include <algorithm>
#include <array>
#include <memory>
#include <optional>
#include <ostream>

#include "basis/datum.h"
#include "basis/text.h"
#include "basis/zahl.h"
#include "befehl.h"
#include "hilfe.h"
#include "link/leitung.h"
#include "platform/uhrwerk.h"
#include "simulierter_master.h"
#include "store/projekt.h"
#include "store/sitzung.h"
#include "zav/version.h"

namespace zav {

namespace {

constexpr std::array befehle{
    Befehl{"neu", "Legt ein neues Projekt der Generation 910 an", "zav neu haus", Befehl_neu},
    Befehl{"zeigen", "Zeigt die Kennzahlen eines Projekts, mit --json das ganze Projekt",
           "zav zeigen haus --json", Befehl_zeigen},
    Befehl{"umwandeln", "Öffnet ein Projekt jeder Generation und speichert es unter neuem Namen",
           "zav umwandeln alt neu --als 910", Befehl_umwandeln},
    Befehl{"abbild", "Gibt alles aus, was eine Übertragung schreiben würde", "zav abbild haus -o haus.txt",
           Befehl_abbild},
    Befehl{"senden", "Überträgt ein Projekt zum ZAVmaster",
           "zav --tcp 192.168.1.20:4001 senden haus --neustart", Befehl_senden},
    Befehl{"master", "Fragt Version und Projektname des ZAVmasters ab", "zav --com 1 master", Befehl_master},
    Befehl{"neustart", "Startet den ZAVmaster neu", "zav --ja neustart", Befehl_neustart},
    Befehl{"uhr", "Stellt die Uhr des ZAVmasters und die Daten der Zeitumstellung",
           "zav --ja uhr --umstellung 1", Befehl_uhr},
    Befehl{"protokoll", "Zeigt die Ereignisse am Bus, wie sie geschehen, mit --liste alle Busteilnehmer",
           "zav --com 1 protokoll --filter K000 --zeit", Befehl_protokoll},
    Befehl{"ereignis", "Drückt, löst oder tippt eine Taste, als täte es jemand im Haus",
           "zav --com 1 ereignis 12 0 kurz", Befehl_ereignis},
    Befehl{"wetter", "Zeigt die aktuellen Werte der Wetterstation", "zav --com 1 wetter", Befehl_wetter},
    Befehl{"enocean", "Programmiert die Funkempfänger", "zav --com 1 enocean haus --alle", Befehl_enocean},
    Befehl{"app", "Schreibt den Deskriptor für die Telefon-App ZAVapp", "zav app haus -o haus.xml",
           Befehl_app},
    Befehl{"suche", "Listet alle Ereignisse, die auf einen Ausgang oder Timer wirken", "zav suche haus O3-5",
           Befehl_suche},
    Befehl{"touchpanel", "Zeigt die Adressen-Referenz für Touchpanels", "zav touchpanel haus",
           Befehl_touchpanel},
    Befehl{"sonne", "Zeigt Sonnenzeiten und Zeitumstellung eines Tages oder Jahres",
           "zav --heute 21.06.2026 sonne", Befehl_sonne},
    Befehl{"ports", "Listet die seriellen Schnittstellen COM 1 bis COM 8 und ob sie frei sind", "zav ports",
           Befehl_ports},
    Befehl{"update", "Ersetzt das Betriebssystem des ZAVmasters", "zav --com 1 update ZAVMAStER_0904.s19",
           Befehl_update},
};

// What stands before, behind or between the command's own arguments.
struct Optionen {
  std::string tcp, com, heute, zufall;
  bool simulator = false, ja = false, nein = false, json = false, leise = false;
};

struct Gegenstelle {
  std::string host;
  i32 port = 0;
};

// HOST:PORT; the host may be an IPv6 address in brackets.
std::optional<Gegenstelle> Gegenstelle_lesen(const std::string& text) {
  const auto punkt = text.rfind(':');
  if (punkt == std::string::npos || punkt == 0) return std::nullopt;
  const auto port = Zahl_lesen(std::string_view(text).substr(punkt + 1), 1, 65535);
  std::string host = text.substr(0, punkt);
  if (host.starts_with('[') && host.ends_with(']')) host = host.substr(1, host.size() - 2);
  if (!port || host.empty()) return std::nullopt;
  return Gegenstelle{host, *port};
}

std::optional<i16> Comnummer_lesen(const std::string& text) {
  const auto n = Zahl_lesen(text, 1, 8);
  return n ? std::optional(static_cast<i16>(*n)) : std::nullopt;
}

// The checks of option values: "" when good, else the whole message.
std::string Pruefe_tcp(const std::string& t) {
  return Gegenstelle_lesen(t) ? "" : "\"" + t + "\" ist kein HOST:PORT (Port 1 bis 65535)";
}
std::string Pruefe_com(const std::string& t) {
  const bool ziffern = !t.empty() && t.find_first_not_of("0123456789") == std::string::npos;
  if (t.empty() || (ziffern && !Comnummer_lesen(t)))
    return "\"" + t + "\" ist weder 1 bis 8 noch eine Gerätedatei";
  return "";
}
std::string Pruefe_heute(const std::string& t) {
  return Zeichen_anzahl(t) == 10 && Datum_lesen(t) ? "" : "\"" + t + "\" ist kein Datum der Form TT.MM.JJJJ";
}
std::string Pruefe_zufall(const std::string& t) {
  return Zahl_lesen(t, 0, INT32_MAX) ? "" : "\"" + t + "\" ist keine Zahl von 0 bis 2147483647";
}

// An option whose value is checked when it is read, with a message of ours.
void Geprueft(CLI::App& app, const char* name, std::string& ziel, const char* wert, const char* hilfe,
              std::string (*pruefen)(const std::string&)) {
  app.add_option(name, ziel, hilfe)->type_name(wert)->take_last()->check(pruefen);
}

void Optionen_anmelden(CLI::App& app, Optionen& o) {
  Geprueft(app, "--tcp", o.tcp, "HOST:PORT", "über TCP mit dem ZAVmaster sprechen", Pruefe_tcp);
  Geprueft(app, "--com", o.com, "N|GERÄT", "über COM-Port N (1 bis 8) oder die Gerätedatei sprechen",
           Pruefe_com);
  app.add_flag("--simulator", o.simulator, "für diesen Befehl einen simulierten ZAVmaster starten");
  Geprueft(app, "--heute", o.heute, "TT.MM.JJJJ", "Datum, das als heute gilt (sonst das des Computers)",
           Pruefe_heute);
  Geprueft(app, "--zufall", o.zufall, "N", "Saat der Zufallsverschiebungen (sonst von der Uhr)",
           Pruefe_zufall);
  app.add_flag("--ja", o.ja, "jede Frage mit Ja beantworten");
  app.add_flag("--nein", o.nein, "jede Frage mit Nein beantworten");
  app.add_flag("--json", o.json, "Daten als ein JSON-Dokument");
  app.add_flag("--leise", o.leise, "ohne Fortschritt und Protokollzeilen");
  app.get_option("--ja")->excludes("--nein");
  app.get_option("--tcp")->excludes("--com")->excludes("--simulator");
  app.get_option("--com")->excludes("--simulator");
}

// Puts what the options say in place of the stored settings, for this call.
void Schnittstelle_waehlen(const Optionen& o) {
  if (!o.com.empty()) {
    einstellungen.Com_art = 0;
    const auto nummer = Comnummer_lesen(o.com);
    if (nummer) einstellungen.Com_port = *nummer;
    einstellungen.Com_geraet = nummer ? "" : o.com;
  } else if (const auto ziel = Gegenstelle_lesen(o.tcp)) {
    einstellungen.Com_art = 1;
    einstellungen.Host_name = einstellungen.Host_ip = ziel->host;
    einstellungen.Host_port = ziel->port;
  }
}

// Everything that a former call in the same process may have left behind.
void Frisch_beginnen() {
  sitzung = {};
  leitung = {};
  projekt.Projekt_name = "Namenlos";
  projekt.Datei_version = "910";
}

int Ausfuehren(const Optionen& o, const Ausfuehrung& befehl, Endgeraet& geraet) {
  Konsole konsole(geraet);
  konsole.fragen = o.ja ? Fragen_art::ja : o.nein ? Fragen_art::nein : Fragen_art::stellen;
  konsole.leise = o.leise;

  Frisch_beginnen();
  const std::string mangel = Einstellungen_lesen();
  if (!mangel.empty()) konsole.Anmerken(mangel);
  Lauf lauf{.aus = geraet.aus, .konsole = konsole, .json = o.json, .simulator = o.simulator};
  lauf.gespeichert = einstellungen;
  if (!o.heute.empty()) Heute_setzen(*Datum_lesen(o.heute));
  if (!o.zufall.empty()) Zufall_saeen(static_cast<std::uint32_t>(*Zahl_lesen(o.zufall)));
  Schnittstelle_waehlen(o);
  std::unique_ptr<Simulierter_master> simuliert;
  if (o.simulator) simuliert = std::make_unique<Simulierter_master>();
  Com_art_setzen();

  bool gut = befehl(lauf);
  geraet.aus.flush();
  if (!geraet.aus) {
    konsole.Fehler("Die Ausgabe konnte nicht geschrieben werden.");
    gut = false;
  }
  return gut && !konsole.fehler_gezeigt() ? 0 : 1;
}

}  // namespace

std::span<const Befehl> Befehle() { return befehle; }

int Befehlszeile(std::vector<std::string> argumente, Endgeraet geraet) {
  Optionen optionen;
  CLI::App app("zav richtet die Gebäudesteuerung ZAVnet ein und wartet sie, wie das Fensterprogramm ZAVlink");
  app.formatter(std::make_shared<Hilfeseite>());
  app.set_help_flag("--hilfe", "diese Hilfe zeigen");
  app.set_version_flag("--version", "zav " + std::string(version), "die Version zeigen");
  app.footer(
      "Rückgabewert:\n"
      "  0  erledigt\n"
      "  1  misslungen, abgelehnt, oder es gab eine Fehlermeldung\n"
      "  2  falsch aufgerufen\n\n"
      "zav BEFEHL --hilfe zeigt die Argumente eines Befehls.\n"
      "Beispiel: zav --simulator --ja senden haus --initialisieren");
  app.fallthrough();
  app.require_subcommand(1);
  Optionen_anmelden(app, optionen);

  Ausfuehrung gewaehlt;
  for (const Befehl& b : befehle) {
    CLI::App& unter = *app.add_subcommand(b.name, b.hilfe);
    unter.footer(std::string("Beispiel: ") + b.beispiel);
    unter.final_callback([&gewaehlt, lauf = b.einrichten(unter)] { gewaehlt = lauf; });
  }

  try {
    std::reverse(argumente.begin(), argumente.end());  // the parser takes them from the back
    app.parse(argumente);
  } catch (const CLI::CallForHelp&) {
    geraet.aus << app.help() << std::flush;
    return geraet.aus ? 0 : 1;
  } catch (const CLI::CallForVersion&) {
    geraet.aus << "zav " << version << '\n' << std::flush;
    return geraet.aus ? 0 : 1;
  } catch (const CLI::ParseError& fehler) {
    geraet.fehler << Bedienfehler(fehler, app) << "\nzav --hilfe zeigt alle Befehle und Optionen.\n"
                  << std::flush;
    return 2;
  }
  try {
    return Ausfuehren(optionen, gewaehlt, geraet);
  } catch (const std::exception& fehler) {
    geraet.fehler << "Interner Fehler: " << fehler.what() << '\n' << std::flush;
    return 1;
  }
}

}  // namespace zav
