// Switching times of a year. The sun tables are made up here, so that every value can be worked out by hand.
#include <gtest/gtest.h>

#include "basis/datum.h"
#include "transfer/tageszeiten.h"

namespace zav {
namespace {

int Sekunden(int h, int m, int s) { return 3600 * h + 60 * m + s; }

class Tageszeiten : public ::testing::Test {
 protected:
  Tageszeiten() {
    sonne.Sonne_auf = decltype(sonne.Sonne_auf)(Sekunden(7, 0, 0));
    sonne.Sonne_unter = decltype(sonne.Sonne_unter)(Sekunden(20, 0, 0));
  }
  // The row's value on the first day, in seconds; -1 when it does not switch.
  int Am_ersten(int e = 0) {
    const i32 wert = Tageszeiten_berechnen(p, sonne, [this] { return Naechste(); })(0, 0, e);
    return wert == schaltet_nicht ? -1 : 2 * wert;
  }
  double Naechste() { return zahlen.empty() ? 0.0 : zahlen[gezogen++ % zahlen.size()]; }
  void Zeile(int e, i16 art, const str& zeit) {
    p.Uhr_astro[e] = art;
    p.Uhr_zeit[e] = zeit;
  }

  Projekt p;
  Sonnentafeln sonne;
  std::vector<double> zahlen;
  std::size_t gezogen = 0;
};

TEST_F(Tageszeiten, FesteZeiten) {
  Zeile(0, Zeit_fest, "12.30.01");
  EXPECT_EQ(Am_ersten(), Sekunden(12, 30, 0));  // in steps of two seconds
  EXPECT_EQ(Am_ersten(1), -1);
  Zeile(0, Zeit_fest, "99.00.00");  // no clamp
  EXPECT_EQ(Am_ersten(), Sekunden(99, 0, 0));
  Zeile(0, Zeit_fest_zufall, "99.00.00 mit Zufall");
  EXPECT_EQ(Am_ersten(), 86398);
  Zeile(0, Zeit_fest_zufall, "12.00.00 mit Zufall");
  p.Uhr_tag[0] = 2;  // offset and limits are none of its
  p.Uhr_f1[0] = "01.00.00";
  p.Uhr_f2[0] = "13.00.00";
  EXPECT_EQ(Am_ersten(), Sekunden(12, 0, 0));
  Zeile(0, 6, "12.00.00");
  EXPECT_EQ(Am_ersten(), -1);
  Zeile(0, Zeit_aufgang, "");
  EXPECT_EQ(Am_ersten(), -1);
}

TEST_F(Tageszeiten, SonneMitVersatzUndGrenzen) {
  struct Fall {
    i16 art, tag;
    const char *f1, *f2, *f3;
    i16 f6, f7;
    int soll;
  };
  const Fall faelle[] = {
      {Zeit_aufgang, 0, "01.00.00", "", "", 0, 0, Sekunden(7, 0, 0)},
      {Zeit_untergang, 0, "", "", "", 0, 0, Sekunden(20, 0, 0)},
      {Zeit_aufgang, 1, "00.30.00", "", "", 0, 0, Sekunden(6, 30, 0)},
      {Zeit_untergang, 2, "01.30.00", "", "", 0, 0, Sekunden(21, 30, 0)},
      {Zeit_aufgang, 1, "08.00.00", "", "", 0, 0, 0},
      {Zeit_untergang, 2, "08.00.00", "", "", 0, 0, 86398},
      // exactly at a limit nothing happens to it; a second beyond it does
      {Zeit_aufgang, 0, "", "07.00.00", "", 1, 0, Sekunden(7, 0, 0)},
      {Zeit_aufgang, 1, "00.00.01", "07.00.00", "", 1, 0, -1},
      {Zeit_aufgang, 1, "00.00.01", "07.00.00", "", 0, 0, Sekunden(7, 0, 0)},
      {Zeit_untergang, 0, "", "", "20.00.00", 0, 1, Sekunden(20, 0, 0)},
      {Zeit_untergang, 2, "00.00.02", "", "20.00.00", 0, 1, -1},
      {Zeit_untergang, 2, "00.00.02", "", "20.00.00", 0, 0, Sekunden(20, 0, 0)},
      // the lower limit first, then the upper one
      {Zeit_untergang, 0, "", "22.00.00", "21.00.00", 0, 0, Sekunden(21, 0, 0)},
      // a time that is the mark itself does not switch
      {Zeit_untergang, 0, "", "", "18.12.15", 0, 0, -1},
      {Zeit_untergang, 0, "", "", "18.12.16", 0, 0, Sekunden(18, 12, 16)},
  };
  for (const Fall& f : faelle) {
    Zeile(0, f.art, "Sonne");
    p.Uhr_tag[0] = f.tag;
    p.Uhr_f1[0] = f.f1;
    p.Uhr_f2[0] = f.f2;
    p.Uhr_f3[0] = f.f3;
    p.Uhr_f6[0] = f.f6;
    p.Uhr_f7[0] = f.f7;
    EXPECT_EQ(Am_ersten(), f.soll) << "case " << &f - faelle;
  }
}

TEST_F(Tageszeiten, ZufallWirktUndBleibtStehen) {
  zahlen = {0.5};
  Zeile(0, Zeit_fest_zufall, "12.00.00 mit Zufall");
  p.Uhr_f4[0] = "00.10.00";  // Int(601 / 2) = 300 s
  p.Uhr_f5[0] = "00.20.00";  // Int(1201 / 2) = 600 s
  EXPECT_EQ(Am_ersten(), Sekunden(12, 5, 0));
  // A sun row without bounds keeps what the row before drew; a fixed row with a shift starts from nothing.
  Zeile(1, Zeit_aufgang_zufall, "Aufgang + Zufall");
  EXPECT_EQ(Am_ersten(1), Sekunden(7, 5, 0));
  Zeile(2, Zeit_fest_zufall, "08.00.00 mit Zufall");
  Zeile(3, Zeit_untergang_zufall, "Untergang + Zufall");
  EXPECT_EQ(Am_ersten(2), Sekunden(8, 0, 0));
  EXPECT_EQ(Am_ersten(3), Sekunden(20, 0, 0));
  p.Uhr_f4[3] = "00.10.00";
  EXPECT_EQ(Am_ersten(3), Sekunden(19, 55, 0));
  // Drawn before the limits.
  p.Uhr_f2[3] = "20.00.00";
  p.Uhr_f6[3] = 1;
  EXPECT_EQ(Am_ersten(3), -1);
}

TEST_F(Tageszeiten, JederTagZiehtNeu) {
  zahlen = {0.0, 0.9999};
  Zeile(7, Zeit_fest_zufall, "12.00.00 mit Zufall");
  p.Uhr_f5[7] = "00.30.00";
  EXPECT_EQ(Am_ersten(7), Sekunden(12, 0, 0));
  EXPECT_EQ(gezogen, 372U);
  gezogen = 1;
  EXPECT_EQ(Am_ersten(7), Sekunden(12, 30, 0));
}

TEST(Sonnentafel, UebergelaufeneTageUndUmstellung) {
  const Sonnentafeln t = Sonnen_tabellen_fuellen(2026);
  EXPECT_EQ(t.Sonne_auf(1, 28), t.Sonne_auf(2, 0));  // 29 February is 1 March
  EXPECT_EQ(t.Sonne_unter(10, 30), t.Sonne_unter(11, 0));
  // Day 80, 21 March: 7.581 h and 19.783 h in summer reading, an hour less in winter.
  EXPECT_NEAR(t.Sonne_auf(2, 20), 6.581 * 3600, 2);
  EXPECT_NEAR(t.Sonne_unter(2, 20), 18.783 * 3600, 2);
  // The clock jumps on 29 March, the sun does not.
  EXPECT_NEAR(t.Sonne_auf(2, 28) - t.Sonne_auf(2, 27), 3600, 240);
  EXPECT_NEAR(t.Sonne_auf(9, 24) - t.Sonne_auf(9, 23), -3600, 240);
}

}  // namespace
}  // namespace zav
