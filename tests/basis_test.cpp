#include <gtest/gtest.h>

#include "basis/datum.h"
#include "basis/feld.h"
#include "basis/text.h"
#include "basis/windows1252.h"
#include "basis/zahl.h"

namespace zav {
namespace {

TEST(Feld, RowsIndicesAndBounds) {
  Feld<i16, 3, 4> f{7};
  f(2, 3) = 1;
  EXPECT_EQ(f.zeile(2)[3], 1);
  EXPECT_EQ(f.alle()[11], 1);
  EXPECT_EQ(f(0, 0), 7);
  EXPECT_THROW(f(3, 0), std::out_of_range);
  EXPECT_THROW(f(0, -1), std::out_of_range);
  EXPECT_THROW(f(0, 4), std::out_of_range);
}

TEST(Text, CountsAndCutsCharactersNotBytes) {
  const std::string s = "Küche – Tür";
  EXPECT_EQ(Zeichen_anzahl(s), 11u);
  EXPECT_EQ(Mitte(s, 2, 2), "üc");
  EXPECT_EQ(Rechts(s, 3), "Tür");
  EXPECT_EQ(Mitte(s, 12), "");
  EXPECT_EQ(Gross("äöÿžß"), "ÄÖŸŽß");
  EXPECT_EQ(Klein("ÄÉŠ×"), "äéš×");
  EXPECT_EQ(Zeichen_anzahl("\xC3"), 1u) << "a cut-off sequence is one character";
  EXPECT_EQ(Teilen("a||b", "|"), (std::vector<std::string>{"a", "", "b"}));
}

TEST(Windows1252, EveryByteGoesThereAndBack) {
  std::string bytes;
  for (int b = 0; b < 256; ++b) bytes += static_cast<char>(b);
  EXPECT_EQ(Nach_1252(Aus_1252(bytes)), bytes);
  EXPECT_EQ(Aus_1252("\x80\xE4\x9F"), "€äŸ");
  EXPECT_TRUE(Ist_1252("Zürich €"));
  EXPECT_FALSE(Ist_1252("Ω"));
  EXPECT_EQ(Nach_1252("aΩ"), "a?");
}

TEST(Zahl, ReadsOnlyPlainNumbers) {
  EXPECT_EQ(Zahl_lesen("-12"), -12);
  for (const char* schlecht : {"", "-", "+1", " 1", "1 ", "1.0", "99999999999", "0x1"}) {
    EXPECT_FALSE(Zahl_lesen(schlecht)) << schlecht;
  }
  EXPECT_EQ(Hex_text(0), "0");
  EXPECT_EQ(Hex_text(65536), "10000");
  EXPECT_EQ(Hex_text(-1), "FFFFFFFF");
  EXPECT_EQ(Hex_zahl("0aAA"), 0xAAAu);
  EXPECT_FALSE(Hex_zahl("G"));
  EXPECT_EQ(Runden(0.5), 0);
  EXPECT_EQ(Runden(1.5), 2);
}

TEST(Datum, SummerTimeFollowsTheLastSundays) {
  EXPECT_EQ(Letzter_sonntag(2026, 3), (Datum{2026, 3, 29}));
  EXPECT_EQ(Letzter_sonntag(2024, 3), (Datum{2024, 3, 31})) << "31 March is a Sunday itself";
  EXPECT_EQ(Sommerzeit({2026, 3, 28}), 0);
  EXPECT_EQ(Sommerzeit({2026, 3, 29}), 1);
  EXPECT_EQ(Sommerzeit({2026, 10, 24}), 1);
  EXPECT_EQ(Sommerzeit({2026, 10, 25}), 0);
}

TEST(Datum, TextsRollOverAndDayNumbers) {
  EXPECT_EQ(Datum_aus(2026, 2, 31), (Datum{2026, 3, 3}));
  EXPECT_EQ(Wochentag({2026, 3, 29}), 6);
  EXPECT_EQ(Datum_lesen("29.02.24"), (Datum{2024, 2, 29}));
  for (const char* schlecht : {"29.02.2026", "1.2.2026", "01-02-2026", "32.01.2026", ""}) {
    EXPECT_FALSE(Datum_lesen(schlecht)) << schlecht;
  }
  EXPECT_EQ(Tag_nummer("29.03.2026"), 9762);
  EXPECT_EQ(Tag_nummer("29.03.26"), 9762);
  EXPECT_EQ(Tag_nummer(""), 0xFFFF);
  EXPECT_EQ(Zeit_sekunden("07.30.05 mit Zufall"), 27005);
  EXPECT_EQ(Zeit_sekunden("07:30:05"), 27005);
  EXPECT_EQ(Zeit_text(27005), "07.30.05");
}

}  // namespace
}  // namespace zav
