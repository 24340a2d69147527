// Every call fails once, and the process dies after every call: saving a project and the settings, with each
// call to the file system in turn refused, and with the program killed before and after it. On the disk
// stands the old file or the new one, whole.
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

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

  int Oeffnen(const std::string& pfad, int art) override {
    return Ruf([&] { return Dateisystem::Oeffnen(pfad, art); });
  }
  int Privat_anlegen(std::string& anfang) override {
    return Ruf([&] { return Dateisystem::Privat_anlegen(anfang); });
  }
  int Stand(int d, struct stat& stand) override {
    return Ruf([&] { return Dateisystem::Stand(d, stand); });
  }
  int Verweis(const std::string& pfad, std::string& ziel) override {
    return Ruf([&] { return Dateisystem::Verweis(pfad, ziel); });
  }
  long Lesen(int d, char* ziel, std::size_t n) override {
    return Ruf([&] { return Dateisystem::Lesen(d, ziel, n); });
  }
  long Schreiben(int d, const char* bytes, std::size_t n) override {
    // A disk that fills up takes a part first, and a process may die in the middle.
    if (aufrufe + 1 == n_) Dateisystem::Schreiben(d, bytes, n / 2);
    return Ruf([&] { return Dateisystem::Schreiben(d, bytes, n); });
  }
  int An_den_anfang(int d) override {
    return Ruf([&] { return Dateisystem::An_den_anfang(d); });
  }
  int Kuerzen(int d, std::size_t n) override {
    return Ruf([&] { return Dateisystem::Kuerzen(d, n); });
  }
  int Besitzer_setzen(int d, uid_t besitzer, gid_t gruppe) override {
    return Ruf([&] { return Dateisystem::Besitzer_setzen(d, besitzer, gruppe); });
  }
  int Rechte_setzen(int d, mode_t rechte) override {
    return Ruf([&] { return Dateisystem::Rechte_setzen(d, rechte); });
  }
  int Festschreiben(int d) override {
    return Ruf([&] { return Dateisystem::Festschreiben(d); });
  }
  int Schliessen(int d) override {
    // Also a close that fails has closed.
    if (aufrufe + 1 == n_ && art_ == Art::versagen) Dateisystem::Schliessen(d);
    return Ruf([&] { return Dateisystem::Schliessen(d); });
  }
  int Umbenennen(const std::string& von, const std::string& nach) override {
    return Ruf([&] { return Dateisystem::Umbenennen(von, nach); });
  }
  int Entfernen(const std::string& pfad) override {
    return Ruf([&] { return Dateisystem::Entfernen(pfad); });
  }

 private:
  template <class F>
  auto Ruf(F ruf) -> decltype(ruf()) {
    const bool jetzt = ++aufrufe == n_;
    if (jetzt && art_ == Art::versagen) return -fehler_;
    if (jetzt && art_ == Art::tod_davor) ::kill(::getpid(), SIGKILL);
    const auto ergebnis = ruf();
    if (jetzt && art_ == Art::tod_danach) ::kill(::getpid(), SIGKILL);
    return ergebnis;
  }

  int n_;
  Art art_;
  int fehler_;
  Dateisystem* vorher_;
};

// Answers every box and forgets it.
class Stiller_melder : public Melder {
 public:
  Stiller_melder() : vorher_(Melder_setzen(this)) {}
  ~Stiller_melder() override { Melder_setzen(vorher_); }
  Antwort Melden(const Meldung& m) override { return Vorsichtige_antwort(m.knoepfe); }

 private:
  Melder* vorher_;
};

struct Sicherung {
  const char* name;
  std::function<std::string(const Testordner&)> datei;
  std::function<void(bool neu, const Testordner&)> inhalt;  // the values to be saved
  std::function<bool()> speichern;                          // true when it says that it has saved
};

const Sicherung sicherungen[] = {
    {"project", [](const Testordner& o) { return o / "haus.zav"; },
     [](bool neu, const Testordner& o) {
       einstellungen = {};  // the list of last files is written too
       projekt.Datei_version = "910";
       projekt.Projekt_name = o / "haus";
       projekt.Notizen = neu ? "neu" : "alt und etwas länger";
       projekt.Ein_leer[7] = neu ? 1 : 0;
     },
     [] { return Projekt_speichern() == Speichern::gespeichert; }},
    {"settings", [](const Testordner&) { return Einstellungsdatei(); },
     [](bool neu, const Testordner&) {
       einstellungen = {};
       einstellungen.Host_name = neu ? "master.haus" : "192.168.1.20";
     },
     [] { return Einstellungen_schreiben().empty(); }},
    {"last files", [](const Testordner&) { return Einstellungsdatei(); },
     [](bool neu, const Testordner&) {
       einstellungen = {};
       einstellungen.last_file[0] = neu ? "/neu" : "/alt";
     },
     [] { return Letzte_dateien_schreiben().empty(); }},
};

// The file before and after a good save, and the calls that it takes.
struct Zustaende {
  std::string alt, neu;
  int aufrufe = 0;
};

// Puts the old state back.
void Zuruecksetzen(const Sicherung& s, const Testordner& o, const Zustaende& z, bool gab_es) {
  std::filesystem::remove_all(o / "einstellungen");
  std::filesystem::remove(o / "haus.zav");
  const std::string datei = s.datei(o);
  std::filesystem::create_directories(std::filesystem::path(datei).parent_path());
  if (gab_es) Datei_anlegen(datei, z.alt);
  s.inhalt(true, o);
}

Zustaende Gut_gespeichert(const Sicherung& s, const Testordner& o, bool gab_es) {
  Zustaende z;
  if (gab_es) {
    s.inhalt(false, o);
    EXPECT_TRUE(s.speichern());
    z.alt = Dateibytes(s.datei(o));
  }
  Zuruecksetzen(s, o, z, gab_es);
  Zaehlende_platte platte(0, Zaehlende_platte::Art::versagen);
  EXPECT_TRUE(s.speichern());
  z.aufrufe = platte.aufrufe;
  z.neu = Dateibytes(s.datei(o));
  EXPECT_NE(z.alt, z.neu);
  return z;
}

void Pruefen(const Sicherung& s,
             const std::function<void(const Testordner&, const Zustaende&, bool gab_es)>& f) {
  for (const bool gab_es : {true, false}) {
    SCOPED_TRACE(std::string(s.name) + (gab_es ? " replaced" : " made new"));
    const Testordner o;
    f(o, Gut_gespeichert(s, o, gab_es), gab_es);
  }
}

std::size_t Nachbarn(const std::string& datei) {
  std::size_t n = 0;
  for (const auto& e : std::filesystem::directory_iterator(std::filesystem::path(datei).parent_path())) {
    n += e.path().filename().string().starts_with(".zav-");
  }
  return n;
}

TEST(Jeder_aufruf, VersagtEinmal) {
  const Stiller_melder still;
  int faelle = 0;
  for (const Sicherung& s : sicherungen) {
    Pruefen(s, [&](const Testordner& o, const Zustaende& z, bool gab_es) {
      ASSERT_GE(z.aufrufe, 8);
      for (const int fehler : {ENOSPC, EIO, EACCES}) {
        for (int n = 1; n <= z.aufrufe; ++n) {
          SCOPED_TRACE("call " + std::to_string(n) + " error " + std::to_string(fehler));
          Zuruecksetzen(s, o, z, gab_es);
          bool gespeichert = false;
          {
            const Zaehlende_platte platte(n, Zaehlende_platte::Art::versagen, fehler);
            gespeichert = s.speichern();
          }
          const std::string inhalt = Dateibytes(s.datei(o));
          EXPECT_TRUE(inhalt == z.neu || (!gespeichert && inhalt == z.alt)) << inhalt.size() << " bytes";
          EXPECT_EQ(Nachbarn(s.datei(o)), 0U);
          ++faelle;
          if (fehler != ENOSPC) continue;
          // What is there can be saved over again.
          s.inhalt(true, o);
          EXPECT_TRUE(s.speichern());
          EXPECT_TRUE(Dateibytes(s.datei(o)) == z.neu);
        }
      }
    });
  }
  std::cout << faelle << " failing calls survived\n";
}

TEST(Jeder_aufruf, IstDerLetzte) {
  const Stiller_melder still;
  int faelle = 0;
  for (const Sicherung& s : sicherungen) {
    Pruefen(s, [&](const Testordner& o, const Zustaende& z, bool gab_es) {
      bool alt_gesehen = false;
      bool neu_gesehen = false;
      for (const auto art : {Zaehlende_platte::Art::tod_davor, Zaehlende_platte::Art::tod_danach}) {
        for (int n = 1; n <= z.aufrufe; ++n) {
          SCOPED_TRACE("call " + std::to_string(n));
          Zuruecksetzen(s, o, z, gab_es);
          const pid_t kind = ::fork();
          ASSERT_GE(kind, 0);
          if (kind == 0) {
            const Zaehlende_platte platte(n, art);
            s.speichern();
            ::_exit(0);
          }
          int status = 0;
          ASSERT_EQ(::waitpid(kind, &status, 0), kind);
          EXPECT_TRUE(WIFSIGNALED(status));
          const std::string inhalt = Dateibytes(s.datei(o));
          EXPECT_TRUE(inhalt == z.neu || inhalt == z.alt) << inhalt.size() << " bytes";
          alt_gesehen |= inhalt == z.alt;
          neu_gesehen |= inhalt == z.neu;
          ++faelle;
        }
      }
      EXPECT_TRUE(alt_gesehen && neu_gesehen);
    });
  }
  std::cout << faelle << " deaths survived\n";
}

}  // namespace
