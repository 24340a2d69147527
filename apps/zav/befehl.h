// What a command of the command line is, and what it gets to work with.
#pragma once

#include <functional>
#include <iosfwd>
#include <span>
#include <string>

#include "konsole.h"
#include "platform/einstellungen.h"

namespace CLI {
class App;
}

namespace zav {

// One call of the program, after its options have been understood.
struct Lauf {
  std::ostream& aus;  // data
  Konsole& konsole;   // everything else
  bool json = false;
  bool simulator = false;          // the master is a simulated one of this call
  Einstellungen gespeichert = {};  // the settings as stored, before options overrode them
};

// True: done.
using Ausfuehrung = std::function<bool(Lauf&)>;

// `einrichten` declares the command's own arguments and returns what runs with their values.
struct Befehl {
  const char* name;
  const char* hilfe;     // one sentence without its point
  const char* beispiel;  // a call that works
  Ausfuehrung (*einrichten)(CLI::App& app);
};

// All commands, in the order of the help.
std::span<const Befehl> Befehle();

Ausfuehrung Befehl_neu(CLI::App& app);
Ausfuehrung Befehl_zeigen(CLI::App& app);
Ausfuehrung Befehl_umwandeln(CLI::App& app);
Ausfuehrung Befehl_abbild(CLI::App& app);
Ausfuehrung Befehl_senden(CLI::App& app);
Ausfuehrung Befehl_master(CLI::App& app);
Ausfuehrung Befehl_neustart(CLI::App& app);
Ausfuehrung Befehl_uhr(CLI::App& app);
Ausfuehrung Befehl_protokoll(CLI::App& app);
Ausfuehrung Befehl_ereignis(CLI::App& app);
Ausfuehrung Befehl_wetter(CLI::App& app);
Ausfuehrung Befehl_enocean(CLI::App& app);
Ausfuehrung Befehl_app(CLI::App& app);
Ausfuehrung Befehl_suche(CLI::App& app);
Ausfuehrung Befehl_touchpanel(CLI::App& app);
Ausfuehrung Befehl_sonne(CLI::App& app);
Ausfuehrung Befehl_ports(CLI::App& app);
Ausfuehrung Befehl_update(CLI::App& app);

}  // namespace zav
