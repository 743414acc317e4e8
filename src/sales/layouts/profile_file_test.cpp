// SPDX-License-Identifier: MIT
//
// What of a profile file is read, and how. The last tests feed the reader with damaged files.
#include "sales/layouts/profile_file.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <random>

#include "testing/profile_file.h"

namespace zqn::testing {
namespace {

/// The description in the section "Common", "-" when it is missing.
std::string description(std::string_view bytes) {
  return toUtf8(ProfileFile(bytes).value(u"Common", u"Description", u"-"));
}

TEST(ProfileFile, GivesTheValueOfAKeyInItsSection) {
  const ProfileFile file(
      "[Other]\r\nDescription=falsch\r\n[Common]\r\nDescription=Rechnung blau\r\nOptionName0=Ja\r\n");
  EXPECT_EQ(file.value(u"Common", u"Description", u""), u"Rechnung blau");
  EXPECT_EQ(file.value(u"Common", u"OptionName0", u""), u"Ja");
  EXPECT_EQ(file.value(u"Other", u"OptionName0", u"keine"), u"keine");
  EXPECT_EQ(file.value(u"Nirgends", u"Description", u"keine"), u"keine");
}

TEST(ProfileFile, TakesSectionsAndKeysInAnyCase) {
  const ProfileFile file("[cOMMON]\nDESCRIPTION=x\nÜberschrift=y\n");
  EXPECT_EQ(file.value(u"Common", u"description", u""), u"x");
  EXPECT_EQ(ProfileFile("[\xDC"
                        "BER]\nk=v")
                .value(u"\u00FCber", u"K", u""),
            u"v");
}

TEST(ProfileFile, TakesTheFirstLineThatMatches) {
  EXPECT_EQ(description("[Common]\nDescription=eins\ndescription=zwei\n"), "eins");
  EXPECT_EQ(description("[Common]\nDescription=eins\n[Common]\nDescription=zwei\n"), "eins");
  EXPECT_EQ(description("[Common]\nX=1\n[Other]\nDescription=y\n[COMMON]\nDescription=zwei\n"), "zwei");
}

TEST(ProfileFile, TakesOffBlanksAndOnePairOfQuotes) {
  EXPECT_EQ(description("  [ Common ] \n\tDescription \t =  zwei Worte \t\n"), "zwei Worte");
  EXPECT_EQ(description("[Common]\nDescription=\"  innen  \"\n"), "  innen  ");
  EXPECT_EQ(description("[Common]\nDescription=  'einfach' \n"), "einfach");
  EXPECT_EQ(description("[Common]\nDescription=\"\"doppelt\"\"\n"), "\"doppelt\"");
  EXPECT_EQ(description("[Common]\nDescription=\"offen\n"), "\"offen");
  EXPECT_EQ(description("[Common]\nDescription=\"ungleich'\n"), "\"ungleich'");
  EXPECT_EQ(description("[Common]\nDescription=\"\n"), "\"");
  EXPECT_EQ(description("[Common]\nDescription=\"\"\n"), "");
}

TEST(ProfileFile, IsUtf16AfterItsMark) {
  const auto littleEndian = [](StringView text) {
    std::string bytes = "\xFF\xFE";
    for (const char16_t unit : text) {
      bytes += static_cast<char>(unit & 0xFF);
      bytes += static_cast<char>(unit >> 8);
    }
    return bytes;
  };
  const std::string file = littleEndian(u"[Common]\r\nDescription=Größe 5 €\r\nX=\U0001F4C4\r\n");
  EXPECT_EQ(description(file), toUtf8(u"Größe 5 €"));
  EXPECT_EQ(ProfileFile(file).value(u"Common", u"x", u""), u"\U0001F4C4");
  EXPECT_EQ(description(littleEndian(u"[Common]\nDescription=ab").substr(0, 47)), "a") << "half a unit";
  EXPECT_EQ(description("\xFF\xFE"), "-");
}

TEST(ProfileFile, KnowsAnEmptyValueFromAMissingOne) {
  EXPECT_EQ(description("[Common]\nDescription=\n"), "");
  EXPECT_EQ(description("[Common]\nDescription\n"), "-") << "a line without a value is no entry";
  EXPECT_EQ(description(""), "-");
}

TEST(ProfileFile, TakesEveryEndOfALine) {
  for (const char* end : {"\n", "\r\n", "\r", "\r\r\n"}) {
    const std::string bytes = std::string("[Common]") + end + "A=1" + end + end + "Description=x" + end;
    EXPECT_EQ(description(bytes), "x");
  }
  EXPECT_EQ(description("[Common]\nDescription=am Ende"), "am Ende");
}

TEST(ProfileFile, PassesOverCommentsAndWhatStandsBeforeTheFirstSection) {
  EXPECT_EQ(description("Description=davor\n[Common]\n;Description=nein\n  ; auch nicht\nDescription=a;b\n"),
            "a;b");
  EXPECT_EQ(description("[]\nDescription=namenlos\n"), "-");
  EXPECT_EQ(description("[Common\nDescription=offen\n"), "-");
}

TEST(ProfileFile, KeepsEqualsSignsInTheValue) {
  EXPECT_EQ(description("[Common]\nDescription=a=b = c\n"), "a=b = c");
}

TEST(ProfileFile, CutsAValueToTheBufferOfTheCall) {
  const std::string longText(3000, 'x');
  EXPECT_EQ(description("[Common]\nDescription=" + longText + "\n"), longText.substr(0, 2047));
  EXPECT_EQ(description("[Common]\nDescription=\"" + longText + "\"\n"), longText.substr(0, 2047))
      << "quotes first";
  EXPECT_EQ(ProfileFile("").value(u"Common", u"Description", fromUtf8(longText)).size(), 2047u);
}

TEST(ProfileFile, TakesOffTheBlanksBehindADefault) {
  EXPECT_EQ(ProfileFile("").value(u"Common", u"Description", u" keine  "), u" keine");
  EXPECT_EQ(ProfileFile("").value(u"Common", u"Description", u"   "), u"");
}

TEST(ProfileFile, ReadsCodePage1252) {
  EXPECT_EQ(description("[Common]\nDescription=Gr\xF6\xDF"
                        "e \x80 5 \x96 \x84"
                        "S\x93\n"),
            "Größe € 5 – „S“");
}

TEST(ProfileFile, ReadsUtf8BehindAByteOrderMark) {
  EXPECT_EQ(description("\xEF\xBB\xBF[Common]\nDescription=Größe € Łódź\n"), "Größe € Łódź");
  EXPECT_EQ(description("[Common]\nDescription=Größe\n"), "GrÃ¶ÃŸe")
      << "without the mark it is code page 1252";
}

TEST(ProfileFile, AFileThatCannotBeReadGivesTheDefault) {
  const auto folder =
      std::filesystem::temp_directory_path() / ("zqn-profile-" + std::to_string(std::random_device()()));
  std::filesystem::create_directories(folder / "ordner.omr");
  std::ofstream(folder / u"Gr\u00F6\u00DFe.omr", std::ios::binary) << "[Common]\nDescription=ja\n";
  EXPECT_EQ(getProfileString(folder / u"Gr\u00F6\u00DFe.omr", u"common", u"description", u"-"), u"ja");
  EXPECT_EQ(getProfileString(folder / "fehlt.omr", u"Common", u"Description", u"-"), u"-");
  EXPECT_EQ(getProfileString(folder / "ordner.omr", u"Common", u"Description", u"-"), u"-");
  std::filesystem::remove_all(folder);
}

// ---- damaged files

TEST(ProfileFile, BearsEveryDamage) {
  const std::string whole =
      "\xEF\xBB\xBF; Layout\r\n[Common]\r\nDescription=\"Rechnung (gro\xC3\x9F)\"\r\nOptionName0 = "
      "'Kopie'\r\n"
      "OptionPage0=ALL,1,2,EOC\r\n\r\n[Print]\r\nDescription=x\r\n[common]\r\nDescription=\r\n";
  std::mt19937 random(2026);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  constexpr std::string_view spice =
      "[]=;\"' \t\r\n\xEF\xBB\xBF\xDF\x80"
      "Aa";
  for (int round = 0; round < 2000; ++round) {
    std::string damaged = whole.substr(below(2) == 0 ? 0 : 3);
    for (std::size_t i = 0, times = 1 + below(12); i < times && !damaged.empty(); ++i) {
      const std::size_t place = below(damaged.size());
      switch (below(5)) {
        case 0:
          damaged[place] = static_cast<char>(random());
          break;
        case 1:
          damaged.erase(place, 1 + below(20));
          break;
        case 2:
          damaged.insert(place, 1 + below(3), spice[below(spice.size())]);
          break;
        case 3:
          damaged.insert(place, damaged.substr(below(damaged.size()), below(40)));
          break;
        default:
          damaged.insert(place, below(2) == 0 ? 3000 : 1, '\0');
      }
    }
    ASSERT_EQ(faultIn(damaged), "") << "round " << round;
  }
}

TEST(ProfileFile, GivesBackEveryValueThatHasBeenWrittenInQuotes) {
  std::mt19937 random(2027);
  for (int round = 0; round < 500; ++round) {
    std::string value;
    for (std::size_t length = random() % 60; value.size() < length;) {
      const char byte = static_cast<char>(random());
      if (byte != '\r' && byte != '\n' && byte != '\0') value += byte;
    }
    const std::string bytes = "[Common]\nDescription=\"" + value + "\"\n";
    // Code page 1252: one character for each byte.
    ASSERT_EQ(ProfileFile(bytes).value(u"Common", u"Description", u"-").size(), value.size());
  }
}

}  // namespace
}  // namespace zqn::testing
