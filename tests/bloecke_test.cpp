// What goes to the master, byte by byte. Expected values are worked out by hand.
#include <gtest/gtest.h>

#include <functional>

#include "transfer/ereignistabellen.h"
#include "transfer/parameterbloecke.h"
#include "transfer/plan.h"
#include "transfer/uhr_stellen.h"
#include "transfer/zeitbloecke.h"

namespace zav {
namespace {

std::string Hex(const Block& b) {
  std::string text;
  Hex_anfuegen(b.bytes(), text);
  return text;
}

// The digits of n bytes from an offset.
std::string Ab(const Block& b, std::size_t von, std::size_t n) { return Hex(b).substr(2 * von, 2 * n); }

std::string Null(std::size_t n) { return std::string(2 * n, '0'); }

// What a packer makes of its arguments.
Block Gepackt(auto packer, const auto&... argumente) {
  Block b;
  packer(argumente..., b);
  return b;
}

TEST(Parameterbloecke, NeustartDerAktoren) {
  Projekt p;
  EXPECT_EQ(Hex(Gepackt(Block_a, p)), Null(128));
  for (const int ein : {0, 9, 511}) p.Relais_neustart[ein] = 1;
  for (const int vorher : {15, 16}) p.Relais_neustart[vorher] = 2;
  p.Relais_neustart[17] = 3;  // no such state
  const Block b = Gepackt(Block_a, p);
  EXPECT_EQ(Ab(b, 0, 8), "0201800000000001");
  EXPECT_EQ(Ab(b, 124, 4), "80000000");
}

TEST(Parameterbloecke, DimmerUndThermo) {
  Projekt p;
  p.Dimmer_neustart[0] = 100;
  p.Dimmer_neustart[7] = 255;
  p.Dimmer_modus[1] = p.Dimmer_modus[127] = 1;
  p.Dimmer_modus[2] = 2;
  p.Grp_thermo[0] = p.Grp_thermo[3] = p.Grp_thermo[255] = 1;
  p.Grp_thermo[4] = 2;
  EXPECT_EQ(Ab(Gepackt(Block_q, p), 0, 16), "006400000000000000000000FF000000");
  EXPECT_EQ(Gepackt(Block_q, p).laenge(), 256);
  EXPECT_EQ(Ab(Gepackt(Block_p, p), 0, 9), "020000000000000000");
  EXPECT_EQ(Ab(Gepackt(Block_p, p), 248, 8), "0800000000000000");
  EXPECT_EQ(Ab(Gepackt(Block_h, p), 0, 3), "011000");
  EXPECT_EQ(Ab(Gepackt(Block_h, p), 127, 1), "10");
}

TEST(Parameterbloecke, ZuBreiteWerteBeendenDenBlock) {
  Projekt p;
  p.Dimmer_neustart[2] = 256;
  p.Timer_zeit[0] = "01.00.00";
  p.Timer_zeit[1] = "18:12:15";
  p.Timer_zeit[2] = "18.12.16";
  EXPECT_TRUE(Gepackt(Block_q, p).zu_breit());
  EXPECT_EQ(Hex(Gepackt(Block_q, p)), "000000");
  EXPECT_TRUE(Gepackt(Block_t, p).zu_breit());
  EXPECT_EQ(Hex(Gepackt(Block_t, p)), "0E10FFFF");
  p.Dimmer_neustart[0] = -1;
  EXPECT_EQ(Hex(Gepackt(Block_q, p)), "00");
  p.Timer_zeit[2] = "";
  EXPECT_EQ(Hex(Gepackt(Block_t, p)), "0E10FFFF" + Null(92));
}

TEST(Parameterbloecke, Storen) {
  Projekt p;
  EXPECT_EQ(Hex(Gepackt(Block_m, p)), "1E0B0B2EE006");
  p.Store_p4 = 25;   // 2.5 rounds to the even 2
  p.Store_p2 = 115;  // 11.5 to 12
  p.Store_p1 = 655;
  EXPECT_EQ(Hex(Gepackt(Block_m, p)), "020C0BFFDC06");
  p.Store_p1 = 656;
  EXPECT_TRUE(Gepackt(Block_m, p).zu_breit());
  EXPECT_EQ(Hex(Gepackt(Block_m, p)), "020C0B");
}

TEST(Parameterbloecke, Wetter) {
  Projekt p;
  EXPECT_EQ(Gepackt(Block_w, p).laenge(), 242);
  // Function 0 as reset: output 1, thresholds 1, no comparison, no waiting, no repeating.
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 0, 32),
            "FC00000002FF0AB40101010101000A0000000000000000FFFFFFFF0000000000");

  p.App_typ[0] = 75;  // the first Kombination is none for devices
  p.App_text[0] = "7";
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 0, 1), "FC");
  for (const auto& [apparat, adresse] : {std::pair{16, "12"}, {4080, "200"}}) {
    p.App_typ[apparat] = 75;
    p.App_text[apparat] = adresse;
  }
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 0, 1), "C8");

  const int f = 7;
  p.Wetter_ausgang[f] = 31;
  p.Wetter_aussen[f] = "-20";
  p.Wetter_sonne_sued[f] = "10";
  p.Wetter_sonne_west[f] = "11";
  p.Wetter_sonne_ost[f] = "12";
  p.Wetter_licht[f] = "249";
  p.Wetter_innen[f] = "50";
  p.Wetter_wind[f] = "20";
  for (auto* eins : {&p.Wetter_v_regen, &p.Wetter_undoder, &p.Wetter_start, &p.Wetter_v_defekt,
                     &p.Wetter_v_innen, &p.Wetter_v_sued, &p.Wetter_v_west}) {
    (*eins)[f] = 1;
  }
  p.Wetter_v_wind[f] = p.Wetter_v_aussen[f] = 2;
  p.Wetter_warte1[f] = "00.00.30";
  p.Wetter_warte2[f] = "00.00.01";
  p.Wetter_wiederh1[f] = "01.00.00";
  p.Wetter_wiederh2[f] = "";
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 212, 30), "018000FF09E20A0B0CF93200C8E1410032001D00000E0FFFFF0000000000");
  p.Wetter_aktiv[f] = "0";
  p.Wetter_v_regen[f] = 2;
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 225, 4), "00000000");
  p.Wetter_aktiv[f] = "1";
  EXPECT_EQ(Ab(Gepackt(Block_w, p), 225, 4), "E0410132");

  p.Wetter_warte1[0] = "00.00.00";  // less one fits no field
  EXPECT_TRUE(Gepackt(Block_w, p).zu_breit());
  EXPECT_EQ(Gepackt(Block_w, p).laenge(), 2 + 17);
}

TEST(Zeitbloecke, Datentabelle) {
  Projekt p;
  Einstellungen e;
  e.Sowi_datum = Feld<str, 20>(str());
  e.Sowi_datum[0] = "29.03.2026";
  e.Sowi_datum[19] = "25.10.35";
  e.Richt_modus = 2;
  p.Seq_manuell = 1;
  p.Seq_neustart = 1;
  p.Seq_datum[0] = "01.02.2026";
  p.Seq_uhr[0] = 2;
  p.Seq_taeglich[0] = 1;
  p.Seq_datum[5] = "31.12.2026";
  p.Seq_flag[5] = 1;
  p.Seq_uhr[5] = 1;
  p.Seq_mo_so[5] = 1;
  const Block b = Gepackt(Datentabelle, p, e.Richt_modus, e.Sowi_datum);
  EXPECT_EQ(b.laenge(), 83);
  EXPECT_EQ(Ab(b, 0, 5), "022622FFFF");             // 26 x 372 + 2 x 31 + 28 = 9762
  EXPECT_EQ(Ab(b, 39, 2 + 23), "340B" + Null(23));  // 35 x 372 + 9 x 31 + 24 = 13323
  EXPECT_EQ(Ab(b, 64, 1), "05");
  EXPECT_EQ(Ab(b, 65, 6), "0A25E700FFFF");  // 26 x 372 + 31 = 9703
  EXPECT_EQ(Ab(b, 80, 3), "05E173");        // 0xE000 + 11 x 31 + 30

  e.Sowi_datum[1] = "kein Tag";  // before the first day: negative, fits nowhere
  const Block kurz = Gepackt(Datentabelle, p, 1, e.Sowi_datum);
  EXPECT_TRUE(kurz.zu_breit());
  EXPECT_EQ(Hex(kurz), "012622");
  EXPECT_EQ(Hex(Gepackt(Aufholbyte, p)), "07");
  p.Sowi_modus[1] = 0;
  EXPECT_EQ(Hex(Gepackt(Aufholbyte, p)), "05");
}

TEST(Zeitbloecke, Schaltzeitenseite) {
  Uhr_tafel t{schaltet_nicht};
  t(11, 30, 0) = 0x0102;
  t(11, 30, 255) = 0;
  const Block b = Gepackt(Schaltzeitenseite, t, 11, 30);
  EXPECT_EQ(b.laenge(), 528);
  EXPECT_EQ(Ab(b, 0, 4), "0102FFFF");
  EXPECT_EQ(Ab(b, 510, 18), "0000" + std::string(32, 'F'));
  t(0, 0, 3) = 65536;
  EXPECT_TRUE(Gepackt(Schaltzeitenseite, t, 0, 0).zu_breit());
  EXPECT_EQ(Hex(Gepackt(Schaltzeitenseite, t, 0, 0)), "FFFFFFFFFFFF");
}

TEST(Zeitbloecke, Stempel) {
  Projekt p;
  p.Projekt_kennung = "0123456789ABCDEF";
  p.Projekt_name = "C:\\Häuser/Villa Ä€";
  EXPECT_EQ(Hex(Gepackt(Stempel, p)),
            "0123456789ABCDEF56696C6C6120C480" + Null(0) + std::string("20202020202020202020202020202020"));
  p.Projekt_name = "/a/abcdefghijklmnopqrstuvwxyz";
  EXPECT_EQ(Ab(Gepackt(Stempel, p), 8, 30), "6162636465666768696A6B6C6D6E6F707172737475767778");
  for (const char* schlecht : {"", "0123456789ABCDE", "0123456789ABCDEG", "0123456789ABCDEF0"}) {
    p.Projekt_kennung = schlecht;
    EXPECT_TRUE(Gepackt(Stempel, p).zu_breit()) << schlecht;
  }
}

// One code on one output: which planes of the page carry its bit.
struct Codefall {
  int code;
  std::vector<int> ebenen;
};

std::size_t Ebenenstelle(int ebene, std::size_t gruppe) {
  const std::size_t paar = gruppe / 2;
  const std::size_t in_paar = gruppe % 2 == 0 ? 1 : 0;
  const auto n = static_cast<std::size_t>(ebene);
  return ebene < 3 ? 12 + 6 * paar + 2 * n + in_paar : 204 + 4 * paar + 2 * (n - 3) + in_paar;
}

template <class Matrix>
void Pruefe_codes(Projekt& p, Matrix& matrix, void (*packer)(const Projekt&, int, Block&), std::size_t laenge,
                  const std::vector<Codefall>& faelle) {
  for (const auto& [code, ebenen] : faelle) {
    for (const std::size_t ausgang : {0U, 13U, 511U}) {
      matrix(1, ausgang) = static_cast<i16>(code);
      std::vector<u8> soll(laenge);
      for (const int e : ebenen) soll[Ebenenstelle(e, ausgang / 8)] = static_cast<u8>(1U << (ausgang % 8));
      const Block b = Gepackt(packer, p, 1);
      EXPECT_TRUE(std::ranges::equal(b.bytes(), soll))
          << "code " << code << " output " << ausgang << ": " << Hex(b);
      matrix(1, ausgang) = 0;
    }
  }
}

TEST(Ereignistabellen, CodesInEbenen) {
  Projekt p;
  Pruefe_codes(p, p.Ein_relais, Relaisseite_eingang, 204,
               {{1, {1}},
                {2, {0}},
                {3, {0, 1}},
                {4, {2}},
                {5, {0, 1}},
                {6, {0, 1}},
                {7, {0, 1}},
                {8, {}},
                {-1, {}},
                {32767, {}}});
  Pruefe_codes(p, p.Tev_relais, Relaisseite_timer, 204,
               {{1, {1}}, {2, {0}}, {3, {0, 1}}, {4, {2}}, {5, {0, 1}}, {6, {0, 1}}, {7, {}}});
  Pruefe_codes(p, p.Uhr_relais, Relaisseite_uhr, 364,
               {{1, {1}},     {2, {0}},     {3, {0, 1}},     {4, {2}},     {5, {0, 1}},     {6, {0, 1}},
                {7, {1, 3}},  {8, {0, 3}},  {9, {0, 1, 3}},  {10, {2, 3}}, {11, {0, 1, 3}}, {12, {0, 1, 3}},
                {13, {1, 4}}, {14, {0, 4}}, {15, {0, 1, 4}}, {16, {2, 4}}, {17, {0, 1, 4}}, {18, {0, 1, 4}},
                {19, {3}},    {20, {4}},    {21, {}}});
}

TEST(Ereignistabellen, TimerUndSperren) {
  Projekt p;
  p.Ein_relais(0, 0) = 2;
  p.Ein_timer(0, 0) = 1;
  p.Ein_timer(0, 9) = 3;
  p.Ein_timer(0, 15) = 2;
  p.Ein_timer(0, 4) = 4;
  const Block b = Gepackt(Relaisseite_eingang, p, 0);
  EXPECT_EQ(Ab(b, 0, 14), "02018200" + Null(9) + "01");

  p.Uhr_timer(255, 8) = 2;
  p.Uhr_dimmer(255, 0, 1) = 1;
  p.Uhr_dimmer(255, 7, 1) = 1;
  p.Uhr_dimmer(255, 5, 1) = 2;
  p.Uhr_dimmer(255, 6, 1) = 3;
  p.Uhr_dimmer(255, 127, 1) = 2;
  const Block uhr = Gepackt(Relaisseite_uhr, p, 255);
  EXPECT_EQ(Ab(uhr, 0, 4), "00000100");
  EXPECT_EQ(Ab(uhr, 332, 4), "81200000");
  EXPECT_EQ(Ab(uhr, 362, 2), "0080");
}

TEST(Ereignistabellen, Dimmerseiten) {
  Projekt p;
  std::string leer;
  for (int n = 0; n < 32; ++n) leer += "0001010101000000";
  EXPECT_EQ(Hex(Gepackt(Dimmerseite_eingang, p, 5)), leer);

  const std::pair<int, std::array<i16, 4>> dimmer[] = {{0, {1, 17, 1, 15}},
                                                       {1, {16, 0, 2, 3}},
                                                       {2, {17, 1, 100, 0}},
                                                       {3, {0, 16, 0, 8}},
                                                       {127, {18, 2, 300, 0}}};
  for (const auto& [d, werte] : dimmer) {
    for (const auto zeile : {p.Ein_dimmer.zeile(5), p.Uhr_dimmer.zeile(5), p.Tev_dimmer.zeile(5)}) {
      std::ranges::copy(werte, zeile.subspan(4 * d, 4).begin());
    }
  }
  // Bits 0 (up 0), 1 (down 0), 4 (up 2), 5 (down 2); toggle 1 and 2, memory 0 and 3.
  EXPECT_EQ(Ab(Gepackt(Dimmerseite_eingang, p, 5), 0, 8), "3300026401F30896");
  EXPECT_EQ(Ab(Gepackt(Dimmerseite_eingang, p, 5), 248, 8), "000101012C000000");
  EXPECT_EQ(Ab(Gepackt(Dimmerseite_uhr, p, 5), 0, 8), "0000026401F30800");
  EXPECT_EQ(Ab(Gepackt(Dimmerseite_timer, p, 5), 0, 8), "0000026401F30800");
}

TEST(Ereignistabellen, Tastenleds) {
  Projekt p;
  EXPECT_EQ(Hex(Gepackt(Ledseite, p, 255)), "3C00");
  for (int k = 0; k < 4; ++k) p.Ein_led[4 + k] = k < 2 ? 641 : 640;
  EXPECT_EQ(Hex(Gepackt(Ledseite, p, 1)), "300C");
  p.Ein_led[4] = 17;
  p.Ein_led[7] = 639;
  const Block b = Gepackt(Ledseite, p, 1);
  EXPECT_EQ(b.laenge(), 322);
  EXPECT_EQ(Ab(b, 0, 12), "1008" + Null(8) + "0002");
  EXPECT_EQ(Ab(b, 12, 308), Null(308));
  EXPECT_EQ(Ab(b, 320, 2), "8000");
  p.Ein_led[4] = -5;  // no output at all
  p.Ein_led[7] = 642;
  EXPECT_EQ(Hex(Gepackt(Ledseite, p, 1)), "1008" + Null(320));
}

TEST(Plan, BloeckeFensterUndFortschritt) {
  Projekt p;
  p.Projekt_name = "Test";
  p.Projekt_kennung = "00000000000000AA";
  Einstellungen e;
  const auto zeilen = [&](const Umfang& a) {
    std::vector<std::string> z;
    std::istringstream s(Abbild(p, e, a));
    for (std::string zeile; std::getline(s, zeile);) z.push_back(zeile);
    return z;
  };
  // A fresh project has all its LED tables to send: 8 blocks, LS, 256 groups, stamp.
  const auto neu = zeilen({.nur_geaenderte = true});
  ASSERT_EQ(neu.size(), 8U + 1 + 256 + 1);
  EXPECT_EQ(neu[6].substr(0, 20), "W 006000 0060F1 FC00");

  p.Uhr_tabelle_geaendert = 1;
  p.Ein_funktext[1023] = p.Uhr_funktext[255] = p.Tev_funktext[63] = 1;
  EXPECT_EQ(zeilen({.nur_geaenderte = true}).size(), 8U + 1 + 372 + 6 + 256 + 1);
  // The last windows of the sections, the first of the timer events.
  const auto alle = zeilen({.nur_geaenderte = false, .sperren = true});
  ASSERT_EQ(alle.size(), 8U + 2 + 372 + 2 * (1024 + 256 + 64) + 256 + 1 + 1);
  const std::pair<std::size_t, const char*> fenster[] = {{7, "W 362000 362052 "},
                                                         {8, "LD 01"},
                                                         {9, "LS 07"},
                                                         {10, "W 362800 362A0F "},
                                                         {381, "W 3BF400 3BF60F "},
                                                         {1405, "W 207800 2078CB "},
                                                         {2429, "W 207C00 207CFF "},
                                                         {2685, "W 2C7800 2C796B "},
                                                         {2942, "W 208000 2080CB "},
                                                         {3325, "W 3FFC00 3FFC01 3C00"},
                                                         {3326, "W 000800 00081F 00000000000000AA"},
                                                         {3327, "LD 00"}};
  for (const auto& [n, anfang] : fenster) EXPECT_TRUE(alle.at(n).starts_with(anfang)) << alle.at(n);

  const auto plan = Plan();
  EXPECT_EQ(Fortschritt_bei(plan[2], 0), (Fortschritt{3, 33}));
  EXPECT_FALSE(Fortschritt_bei(plan[9], 0));
  EXPECT_EQ(Fortschritt_bei(plan[10], 0)->aktuell, 0);  // 100 / 372
  EXPECT_EQ(Fortschritt_bei(plan[10], 371)->aktuell, 100);
  EXPECT_NEAR(Fortschritt_bei(plan[11], 1022)->gesamt, 22.2 + 0.111 * 99, 1e-9);
  EXPECT_NEAR(Fortschritt_bei(plan[17], 255)->gesamt, 99.9, 1e-9);
}

// The clock's page and its transfer show the rest.
TEST(Uhrstellen, JahrZweistelligOderNull) {
  Uhrstellung u{.Akt_zeit_text = "13:45:59", .Akt_datum_text = "01.12.27", .Akt_wochentag = 2};
  EXPECT_EQ(Uhrziffern(u), "5945130201122700");
  u.Akt_datum_text = "01.12.7";
  EXPECT_EQ(Uhrziffern(u), "5945130201120000");
}

}  // namespace
}  // namespace zav
