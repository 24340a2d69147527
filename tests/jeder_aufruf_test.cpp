// Every call fails once, and the process dies after every call: saving a project and the settings, with each
// call to the file system in turn refused, and with the program killed before and after it. On the disk
// stands the old file or the new one, whole.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <functional>
#include <iostream>

#include "hilfen.h"
#include "platform/dateisystem.h"
#include "platform/einstellungen.h"
#include "store/projektdatei.h"
#include "store/sitzung.h"

using namespace zav;

namespace {

// Counts the calls; at the n-th (from 1) something happens before it or after it.
class Zaehlende_platte : public Dateisystem {
 public:
  enum class Art { versagen, tod_davor, tod_danach };

  Zaehlende_platte(int n, Art art, int fehler = 0)
      : n_(n), art_(art), fehler_(fehler), vorher_(Dateisystem_setzen(this)) {}
  ~Zaehlende_platte() override { Dateisystem_setzen(vorher_); }

  int aufrufe = 0;

  int Oeffnen(const std::string& pfad, int art) override { return Ruf(&Dateisystem::Oeffnen, pfad, art); }
  int Privat_anlegen(std::string& anfang) override { return Ruf(&Dateisystem::Privat_anlegen, anfang); }
  int Stand(int d, struct stat& stand) override { return Ruf(&Dateisystem::Stand, d, stand); }
  int Verweis(const std::string& pfad, std::string& ziel) override {
    return Ruf(&Dateisystem::Verweis, pfad, ziel);
  }
  long Lesen(int d, char* ziel, std::size_t n) override { return Ruf(&Dateisystem::Lesen, d, ziel, n); }
  long Schreiben(int d, const char* bytes, std::size_t n) override {
    // A disk that fills up takes a part first, and a process may die in the middle.
    if (aufrufe + 1 == n_) echt_.Schreiben(d, bytes, n / 2);
    return Ruf(&Dateisystem::Schreiben, d, bytes, n);
  }
  int An_den_anfang(int d) override { return Ruf(&Dateisystem::An_den_anfang, d); }
  int Kuerzen(int d, std::size_t n) override { return Ruf(&Dateisystem::Kuerzen, d, n); }
  int Besitzer_setzen(int d, uid_t besitzer, gid_t gruppe) override {
    return Ruf(&Dateisystem::Besitzer_setzen, d, besitzer, gruppe);
  }
  int Rechte_setzen(int d, mode_t rechte) override { return Ruf(&Dateisystem::Rechte_setzen, d, rechte); }
  int Festschreiben(int d) override { return Ruf(&Dateisystem::Festschreiben, d); }
  int Schliessen(int d) override {
    // Also a close that fails has closed.
    if (aufrufe + 1 == n_ && art_ == Art::versagen) echt_.Schliessen(d);
    return Ruf(&Dateisystem::Schliessen, d);
  }
  int Umbenennen(const std::string& von, const std::string& nach) override {
    return Ruf(&Dateisystem::Umbenennen, von, nach);
  }
  int Entfernen(const std::string& pfad) override { return Ruf(&Dateisystem::Entfernen, pfad); }

 private:
  template <class E, class... P, class... A>
  E Ruf(E (Dateisystem::*ruf)(P...), A&&... werte) {
    const bool jetzt = ++aufrufe == n_;
    if (jetzt && art_ == Art::versagen) return -fehler_;
    if (jetzt && art_ == Art::tod_davor) ::kill(::getpid(), SIGKILL);
    const E ergebnis = (echt_.*ruf)(werte...);
    if (jetzt && art_ == Art::tod_danach) ::kill(::getpid(), SIGKILL);
    return ergebnis;
  }

  Dateisystem echt_;
  int n_;
  Art art_;
  int fehler_;
  Dateisystem* vorher_;
};

struct Sicherung {
  const char* name;
  std::string (*datei)(const Testordner&);
  void (*werte)(const Testordner&, bool neu);  // puts those to be saved in place
  bool (*speichern)();                         // true when it says that it has saved
};

const Sicherung sicherungen[] = {
    {"project", [](const Testordner& o) { return o / "haus.zav"; },
     [](const Testordner& o, bool neu) {
       projekt.Datei_version = "910";
       projekt.Projekt_name = o / "haus";
       projekt.Notizen = neu ? "neu" : "alt und etwas länger";
       projekt.Ein_leer[7] = neu ? 1 : 0;
     },
     [] { return Projekt_speichern() == Speichern::gespeichert; }},
    {"settings", [](const Testordner&) { return Einstellungsdatei(); },
     [](const Testordner&, bool neu) { einstellungen.Host_name = neu ? "master.haus" : "192.168.1.20"; },
     [] { return Einstellungen_schreiben().empty(); }},
    {"last files", [](const Testordner&) { return Einstellungsdatei(); },
     [](const Testordner&, bool neu) { einstellungen.last_file[0] = neu ? "/neu" : "/alt"; },
     [] { return Letzte_dateien_schreiben().empty(); }},
};

// One of them, onto an old file or onto none, as often as wanted.
class Versuch {
 public:
  Versuch(const Sicherung& s, bool gab_es) : s_(s), gab_es_(gab_es), datei_(s.datei(ordner_)) {
    Alt_hinlegen();
    EXPECT_TRUE(!gab_es || speichern(false));
    alt = inhalt();
    Alt_hinlegen();
    const Zaehlende_platte platte(0, Zaehlende_platte::Art::versagen);
    EXPECT_TRUE(speichern());
    aufrufe = platte.aufrufe;
    neu = inhalt();
    EXPECT_NE(alt, neu);
    EXPECT_GE(aufrufe, 8);
  }

  // Puts the old state on the disk.
  void Alt_hinlegen() const {
    std::filesystem::remove_all(ordner_ / "einstellungen");
    std::filesystem::remove(datei_);
    std::filesystem::create_directories(std::filesystem::path(datei_).parent_path());
    if (gab_es_) Datei_anlegen(datei_, alt);
  }
  bool speichern(bool neue_werte = true) const {
    einstellungen = {};  // a project that is saved writes the list of last files too
    s_.werte(ordner_, neue_werte);
    return s_.speichern();
  }
  std::string inhalt() const { return Dateibytes(datei_); }
  // Of the file, half made.
  bool reste() const {
    const std::filesystem::directory_iterator ordner(std::filesystem::path(datei_).parent_path());
    return std::any_of(begin(ordner), end(ordner),
                       [](const auto& e) { return e.path().filename().string().starts_with(".zav-"); });
  }

  std::string alt, neu;
  int aufrufe = 0;

 private:
  Testordner ordner_;
  const Sicherung& s_;
  bool gab_es_;
  std::string datei_;
};

// Runs f for each kind of save and each of its calls, numbered from 1.
int An_jedem_aufruf(const std::function<void(const Versuch&, int)>& f) {
  int faelle = 0;
  for (const Sicherung& s : sicherungen) {
    for (const bool gab_es : {true, false}) {
      const Versuch v(s, gab_es);
      for (int n = 1; n <= v.aufrufe; ++n, ++faelle) {
        SCOPED_TRACE(std::string(s.name) + (gab_es ? " replaced" : " made new") + ", call " +
                     std::to_string(n));
        f(v, n);
      }
    }
  }
  return faelle;
}

TEST(Jeder_aufruf, VersagtEinmal) {
  int faelle = 0;
  for (const int fehler : {ENOSPC, EIO, EACCES}) {
    faelle += An_jedem_aufruf([&](const Versuch& v, int n) {
      v.Alt_hinlegen();
      bool gespeichert = false;
      {
        const Zaehlende_platte platte(n, Zaehlende_platte::Art::versagen, fehler);
        gespeichert = v.speichern();
      }
      const std::string inhalt = v.inhalt();
      EXPECT_TRUE(inhalt == v.neu || (!gespeichert && inhalt == v.alt)) << inhalt.size() << " bytes";
      EXPECT_FALSE(v.reste());
      if (fehler != ENOSPC) return;
      // What is there can be saved over again.
      EXPECT_TRUE(v.speichern());
      EXPECT_TRUE(v.inhalt() == v.neu);
    });
  }
  std::cout << faelle << " failing calls survived\n";
}

TEST(Jeder_aufruf, IstDerLetzte) {
  int faelle = 0;
  for (const auto art : {Zaehlende_platte::Art::tod_davor, Zaehlende_platte::Art::tod_danach}) {
    faelle += An_jedem_aufruf([&](const Versuch& v, int n) {
      v.Alt_hinlegen();
      const pid_t kind = ::fork();
      ASSERT_GE(kind, 0);
      if (kind == 0) {
        const Zaehlende_platte platte(n, art);
        v.speichern();
        ::_exit(0);
      }
      int status = 0;
      ASSERT_EQ(::waitpid(kind, &status, 0), kind);
      EXPECT_TRUE(WIFSIGNALED(status));
      const std::string inhalt = v.inhalt();
      EXPECT_TRUE(inhalt == v.neu || inhalt == v.alt) << inhalt.size() << " bytes";
      EXPECT_TRUE(n > 1 || inhalt == v.alt);
      EXPECT_TRUE(n < v.aufrufe || inhalt == v.neu);
    });
  }
  std::cout << faelle << " deaths survived\n";
}

}  // namespace
