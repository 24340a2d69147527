#include "store/katalog.h"

#include <gtest/gtest.h>

#include <string>

namespace zav {
namespace {

// What the kinds are stands in golden_test.
TEST(Katalog, KindsStandAtTheirNumbers) {
  for (int t = 1; t <= apparat_arten; ++t) ASSERT_EQ(Apparat_art(t)->typ, t);
  for (const int t : {0, -1, 94, 32767}) EXPECT_EQ(Apparat_art(t), nullptr);
}

TEST(Katalog, GroupsHoldTheirKinds) {
  const auto in = [](Apparat_gruppe g) {
    std::string z;
    for (const Apparatart& a : Apparatarten()) {
      if (a.ist(g)) z += (z.empty() ? "" : " ") + std::to_string(a.typ);
    }
    return z;
  };
  EXPECT_EQ(in(gruppe_diverse), "65 70 71 72 75 76 77 79 93");
  EXPECT_EQ(in(gruppe_thermostat), "39 40 78");
  EXPECT_EQ(in(gruppe_flanken), "45 69 89");
  EXPECT_EQ(in(gruppe_funk), "81 82 83 84 85 86 87 88 89");
  std::string funk;
  for (int t = 80; t <= 90; ++t) funk += std::to_string(Apparat_funkart(t));
  EXPECT_EQ(funk, "01112223450");
}

TEST(Katalog, EventOffsetsBelongToKeySlots) {
  EXPECT_EQ(Versatz_von_slot(69, 2), 4) << "rising edge of key 2";
  struct {
    int typ, versatz, slot;
  } const faelle[] = {{30, 5, 5}, {69, 5, 2}, {76, 15, 7}, {76, 16, 0}, {72, 23, 7}, {70, 23, 23}};
  for (const auto& f : faelle) EXPECT_EQ(Slot_von_versatz(f.typ, f.versatz), f.slot) << f.typ;
}

TEST(Katalog, RunsOfAddressesEndWhereAddressesEnd) {
  Projekt p;
  struct {
    const char *von, *anzahl;
    std::optional<Adresslauf> lauf;
  } const faelle[] = {{"12", "2", Adresslauf{12, 2}},
                      {"250", "6", Adresslauf{250, 6}},
                      {"253", "6", Adresslauf{253, 3}},
                      {"7", "", Adresslauf{7, 0}},
                      {"7", "viele", Adresslauf{7, 0}},
                      {"", "1", {}},
                      {"256", "1", {}},
                      {"-1", "1", {}},
                      {"i12", "1", {}}};
  for (const auto& f : faelle) {
    p.App_text[4095] = f.von;
    p.App_text2[4095] = f.anzahl;
    EXPECT_EQ(Apparat_adressen(p, 4095), f.lauf) << f.von << " x " << f.anzahl;
  }
}

TEST(Katalog, SlotsBehindTheirPlaceAreOnlyTakenWhileItIsEmpty) {
  Projekt p;
  p.App_typ[16] = 65;
  p.App_text2[16] = "6";
  EXPECT_EQ(Apparat_slot(p, 16, 23), 128 + 23);
  EXPECT_EQ(Apparat_slot(p, 16, 24), -1);
  p.App_typ[18] = 5;
  EXPECT_EQ(Apparat_slot(p, 16, 15), 128 + 15);
  EXPECT_EQ(Apparat_slot(p, 16, 16), -1) << "another device's";

  p.App_typ[32] = 40;
  p.App_text2[32] = "4";
  p.App_typ[33] = 14;
  EXPECT_EQ(Apparat_slot(p, 32, 11), 256 + 11) << "LED of the thermostat, whatever stands there";
  EXPECT_EQ(Apparat_slot(p, 32, 12), -1);
  p.App_typ[4095] = 78;
  EXPECT_EQ(Apparat_slot(p, 4095, 7), 32767);
  EXPECT_EQ(Apparat_slot(p, 4095, 8), -1) << "behind the last place";
}

TEST(Layouts, ShowTheirPlaces) {
  std::string gezeigt;
  for (const auto& layout : Layouts()) {
    for (int platz = 0; platz < plaetze; ++platz) {
      if (layout.hat(platz)) gezeigt += std::to_string(platz) + " ";
    }
    gezeigt.back() = '|';
  }
  EXPECT_EQ(
      gezeigt,
      "0|0 4|0 4 8|0 4 8 12|0 1 4 5|0 1 4 5 8 9|0 1 4 5 8 9 12 13|0 1 2 4 5 6 8 9 10|"
      "0 1 2 4 5 6 8 9 10 12 13 14|0 1|0 1 2|0 1 2 3|0 1 2 4 5 6|0 1 2 3 4 5 6 7|0 1 2 3 4 5 6 7 8 9 10 11|"
      "0 1 2 3 4 5 6 7 8 9 10 11 12 13 14 15|0|");
  EXPECT_EQ(Layout_von(17), nullptr);
  EXPECT_EQ(Layout_von(-1), nullptr);
}

}  // namespace
}  // namespace zav
