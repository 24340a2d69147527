#include "platform/datei.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>

#include "hilfen.h"
#include "platform/dateisystem.h"

using namespace zav;

namespace {

// A disk on which the n-th call that fills a file fails, counted from 1; 0 never. The calls of a clean-up go
// on working.
class Kranke_platte : public Dateisystem {
 public:
  explicit Kranke_platte(int n = 0) : n_(n), vorher_(Dateisystem_setzen(this)) {}
  ~Kranke_platte() override { Dateisystem_setzen(vorher_); }

  bool kein_zweiter_name = false;  // the folder takes no new file
  bool ohne_rechte = false;        // permissions cannot be set, files of others not be replaced
  bool nur_haeppchen = false;      // writes take seven bytes at a time
  int aufrufe = 0;

  int Privat_anlegen(std::string& anfang) override {
    return kein_zweiter_name ? -EACCES : Dateisystem::Privat_anlegen(anfang);
  }
  long Schreiben(int d, const char* bytes, std::size_t n) override {
    if (!krank()) return Dateisystem::Schreiben(d, bytes, nur_haeppchen ? std::min<std::size_t>(n, 7) : n);
    // A disk that fills up takes a part first.
    Dateisystem::Schreiben(d, bytes, n / 2);
    return -ENOSPC;
  }
  int Kuerzen(int d, std::size_t n) override { return krank() ? -EIO : Dateisystem::Kuerzen(d, n); }
  int Rechte_setzen(int d, mode_t r) override {
    return ohne_rechte ? -EPERM : Dateisystem::Rechte_setzen(d, r);
  }
  int Festschreiben(int d) override { return krank() ? -EIO : Dateisystem::Festschreiben(d); }
  int Schliessen(int d) override {
    const int r = Dateisystem::Schliessen(d);
    return krank() ? -EIO : r;
  }
  int Umbenennen(const std::string& von, const std::string& nach) override {
    return ohne_rechte ? -EPERM : Dateisystem::Umbenennen(von, nach);
  }

 private:
  bool krank() { return ++aufrufe == n_; }
  int n_;
  Dateisystem* vorher_;
};

mode_t Rechte(const std::string& pfad) {
  struct stat s {};
  EXPECT_EQ(::stat(pfad.c_str(), &s), 0);
  return s.st_mode & 07777;
}

TEST(Datei, HoldsWhatWasWrittenWhateverTheBytesAndHoweverTheyGo) {
  const Testordner o;
  std::string bytes;
  for (int i = 0; i < 200000; ++i) bytes += static_cast<char>(i * 7 % 256);
  Kranke_platte platte;
  for (const std::string& inhalt : {bytes, std::string(), std::string("\0\r\n", 3), bytes.substr(0, 65537)}) {
    platte.nur_haeppchen = inhalt.size() < 100000;
    ASSERT_TRUE(Datei_schreiben(o / "a", inhalt));
    std::string gelesen = "alt";
    ASSERT_TRUE(Datei_lesen(o / "a", gelesen));
    EXPECT_EQ(gelesen, inhalt);
  }
  EXPECT_EQ(o.eintraege(), 1u);
}

// Beside the old file, jeder_aufruf_test does the same. A folder that takes no second name is written in
// place.
TEST(Datei, EveryFailingStepInPlaceLeavesTheOldOrTheNewContentWhole) {
  const std::string alt = "der alte Inhalt", neu = "neuer Inhalt, laenger als der alte";
  int gescheitert = 0;
  for (int n = 1; n <= 12; ++n) {
    const Testordner o;
    Datei_anlegen(o / "a", alt);
    Dateiergebnis e;
    {
      Kranke_platte platte(n);
      platte.kein_zweiter_name = true;
      e = Datei_schreiben(o / "a", neu);
      if (platte.aufrufe < n) break;
    }
    const std::string inhalt = Dateibytes(o / "a");
    EXPECT_TRUE(inhalt == neu || (!e && inhalt == alt)) << n << inhalt;
    EXPECT_TRUE(e || (e.fehler != 0 && e.gescheitert != Dateischritt::oeffnen)) << n;
    EXPECT_EQ(o.eintraege(), 1U) << n;
    gescheitert += e ? 0 : 1;
  }
  EXPECT_GE(gescheitert, 4);
}

TEST(Datei, KeepsPermissionsAndFollowsLinks) {
  const Testordner o;
  const mode_t maske = ::umask(027);
  ASSERT_TRUE(Datei_schreiben(o / "neu", "1"));
  ::umask(maske);
  EXPECT_EQ(Rechte(o / "neu"), 0640u);
  ::chmod((o / "neu").c_str(), 0606);
  ASSERT_TRUE(Datei_schreiben(o / "neu", "2"));
  EXPECT_EQ(Rechte(o / "neu"), 0606u);

  {
    Kranke_platte platte;
    platte.ohne_rechte = true;
    ASSERT_TRUE(Datei_schreiben(o / "neu", "3"));
  }
  EXPECT_EQ(Dateibytes(o / "neu"), "3");
  EXPECT_EQ(o.eintraege(), 1u);

  std::filesystem::create_directory(o / "tief");
  std::filesystem::create_symlink("tief/ziel", o / "link");
  std::filesystem::create_symlink("link", o / "link2");
  for (const char* inhalt : {"durch einen leeren Link", "und noch einmal"}) {
    ASSERT_TRUE(Datei_schreiben(o / "link2", inhalt));
    EXPECT_TRUE(std::filesystem::is_symlink(o / "link2") && std::filesystem::is_symlink(o / "link"));
    EXPECT_EQ(Dateibytes(o / "tief/ziel"), inhalt);
  }
  std::filesystem::create_symlink("kreis", o / "kreis");
  EXPECT_EQ(Datei_schreiben(o / "kreis", "x").fehler, ELOOP);
}

TEST(Datei, RespectsWriteProtection) {
  // Permissions mean nothing to the superuser: acts as nobody meanwhile.
  const bool root = ::geteuid() == 0;
  ASSERT_TRUE(!root || ::seteuid(65534) == 0);
  const Testordner mein;
  Datei_anlegen(mein / "fest", "alt");
  ::chmod((mein / "fest").c_str(), 0444);
  const Dateiergebnis e = Datei_schreiben(mein / "fest", "neu");
  EXPECT_EQ(e.gescheitert, Dateischritt::oeffnen);
  EXPECT_EQ(e.fehler, EACCES);
  EXPECT_EQ(Dateibytes(mein / "fest"), "alt");

  Datei_anlegen(mein / "offen", "ein langer alter Inhalt");
  ::chmod(mein.pfad().c_str(), 0555);
  EXPECT_TRUE(Datei_schreiben(mein / "offen", "an Ort"));
  EXPECT_EQ(Dateibytes(mein / "offen"), "an Ort");
  EXPECT_EQ(Datei_schreiben(mein / "weitere", "x").gescheitert, Dateischritt::oeffnen);
  ::chmod(mein.pfad().c_str(), 0755);
  ASSERT_TRUE(!root || ::seteuid(0) == 0);
}

TEST(Datei, TellsOpeningFromALaterFailure) {
  const Testordner o;
  std::string bytes = "alt";
  EXPECT_EQ(Datei_lesen(o / "fehlt", bytes).fehler, ENOENT);
  EXPECT_EQ(bytes, "");
  EXPECT_EQ(Datei_lesen(o.pfad(), bytes).fehler, EISDIR);
  EXPECT_EQ(Datei_lesen("/dev/zero", bytes).fehler, EFBIG);
  EXPECT_EQ(Datei_schreiben(o.pfad(), "x").gescheitert, Dateischritt::oeffnen);
  EXPECT_EQ(Datei_schreiben(o / "kein/ordner", "x").fehler, ENOENT);

  const Dateiergebnis voll = Datei_schreiben("/dev/full", "x");
  EXPECT_EQ(voll.gescheitert, Dateischritt::uebertragen);
  EXPECT_EQ(voll.fehler, ENOSPC);
  EXPECT_EQ(Systemfehler_text(ENOSPC), "Kein Speicherplatz mehr frei");

  // A pipe without its other end must not hang.
  ASSERT_EQ(::mkfifo((o / "rohr").c_str(), 0600), 0);
  EXPECT_EQ(Datei_schreiben(o / "rohr", "x").fehler, ENXIO);
  EXPECT_TRUE(Datei_lesen(o / "rohr", bytes));
}

}  // namespace
