// Runs the command line as a script does: arguments in; exit status, standard output, standard error and
// files out.
#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "befehlszeile.h"
#include "hilfen.h"
#include "platform/einstellungen.h"
#include "simulator/simulator.h"
#include "store/projektdatei.h"

namespace zav {

struct Ergebnis {
  int status = -1;
  std::string aus, fehler;
};

using Argumente = std::vector<std::string>;

inline Argumente operator+(Argumente a, const Argumente& b) {
  a.insert(a.end(), b.begin(), b.end());
  return a;
}

class Zav : public testing::Test {
 protected:
  // Runs one call in this process. With `tippt` a person sits at the terminal and types that.
  Ergebnis zav(Argumente argumente, const char* tippt = nullptr) {
    std::istringstream ein(tippt == nullptr ? "" : tippt);
    std::ostringstream aus, fehler;
    const bool person = tippt != nullptr;
    const int status = Befehlszeile(std::move(argumente), {ein, aus, fehler, person, person});
    return {status, aus.str(), fehler.str()};
  }

  std::string pfad(const std::string& name) const { return ordner / name; }
  std::string lesen(const std::string& name) const { return Dateibytes(pfad(name)); }
  void schreiben(const std::string& name, const std::string& bytes) const {
    Datei_anlegen(pfad(name), bytes);
  }
  Projekt projekt_in(const std::string& name) const {
    Projekt p;
    EXPECT_TRUE(Projekt_lesen(lesen(name), p)) << name;
    return p;
  }
  // A project file with a handful of functions, everything marked.
  void haus_anlegen(const std::string& name) const {
    Projekt p;
    p.Datei_version = "910";
    p.Projekt_kennung = "0123456789ABCDEF";
    p.Ein_relais(5, 29) = 2;
    p.Ein_dimmer(7, 1, 2) = 55;
    for (const int e : {5, 7}) p.Ein_leer[e] = p.Ein_funktext[e] = 1;
    p.Uhr_tabelle_geaendert = 1;
    schreiben(name, Projekt_schreiben(p));
  }

  Testordner ordner;
};

class Zav_mit_master : public Zav {
 protected:
  Zav_mit_master() { master.start(); }
  // A call to the master over the network.
  Ergebnis am_master(const Argumente& argumente, const char* tippt = nullptr) {
    return zav(tcp() + argumente, tippt);
  }
  Argumente tcp() const { return {"--tcp", "127.0.0.1:" + std::to_string(master.tcp_port())}; }

  simulator::Simulator master{{.pty = true}};
};

// Starts a program itself, in a shell.
inline int starten(const std::string& befehl) {
  const int status = std::system(befehl.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace zav
