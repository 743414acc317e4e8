// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "forms/keys.h"
#include "host/script/json_values.h"
#include "host/script/key_names.h"
#include "runtime/convert.h"
#include "testing/runtime.h"

namespace zqn::script {
namespace {

TEST(JsonValues, KeepTheKindsOfValuesApart) {
  EXPECT_EQ(jsonValue(Variant()).dump(), R"({"empty":true})");
  EXPECT_EQ(jsonValue(Null).dump(), "null");
  EXPECT_EQ(jsonValue(true).dump(), "true");
  EXPECT_EQ(jsonValue(std::int16_t{-5}).dump(), "-5");
  EXPECT_EQ(jsonValue(2147483647).dump(), "2147483647");
  EXPECT_EQ(jsonValue(0.1).dump(), "0.1");
  EXPECT_EQ(jsonValue(-3.0).dump(), "-3");
  EXPECT_EQ(jsonValue(4294967295.0).dump(), "4294967295");
  EXPECT_EQ(jsonValue(1e300).dump(), "1e+300");
  EXPECT_EQ(jsonValue(dateSerial(2026, 11, 21)).dump(), R"("21.11.2026")");
  EXPECT_EQ(jsonValue(u"ä\"\n").dump(), R"("ä\"\n")");
  EXPECT_EQ(jsonValue(u"\xD83D").dump(), "\"\xEF\xBF\xBD\"");
}

TEST(JsonValues, ReadNumbersAsLongOrDouble) {
  EXPECT_EQ(variantOf(Json::parse("5")), Variant(5));
  EXPECT_EQ(variantOf(Json::parse("-2147483648")), Variant(std::numeric_limits<std::int32_t>::min()));
  EXPECT_EQ(variantOf(Json::parse("2147483648")), Variant(2147483648.0));
  EXPECT_EQ(variantOf(Json::parse("5.0")), Variant(5.0));
  EXPECT_EQ(variantOf(Json::parse("18446744073709551615")), Variant(18446744073709551615.0));
  EXPECT_EQ(variantOf(Json::parse("\"ÿÿÿ\"")), Variant(u"ÿÿÿ"));
  EXPECT_EQ(variantOf(Json::parse("false")), Variant(false));
  EXPECT_EQ(variantOf(Json::parse("null")), Variant(Null));
  EXPECT_EQ(errorNumberOf([] { return variantOf(Json::parse("[]")); }), error::TypeMismatch);
}

struct Stroke {
  int code;
  int shift;
  String text;
  bool operator==(const Stroke&) const = default;
};

Stroke strokeOf(const std::string& name, int shift = 0) {
  const std::optional<Key> key = keyOfName(name, shift);
  return key ? Stroke{key->code, key->shift, key->text} : Stroke{-1, -1, {}};
}

TEST(KeyNames, AreKeysOrSingleCharacters) {
  EXPECT_EQ(strokeOf("F1"), (Stroke{112, 0, u""}));
  EXPECT_EQ(strokeOf("F12", 3), (Stroke{123, 3, u""}));
  EXPECT_EQ(strokeOf("Enter"), (Stroke{13, 0, u"\r"}));
  EXPECT_EQ(strokeOf("Tab", 1), (Stroke{9, 1, u"\t"}));
  EXPECT_EQ(strokeOf("Escape"), (Stroke{27, 0, u"\x1b"}));
  EXPECT_EQ(strokeOf("PageDown"), (Stroke{34, 0, u""}));
  EXPECT_EQ(strokeOf("Space"), (Stroke{32, 0, u" "}));
  EXPECT_EQ(strokeOf(" "), (Stroke{32, 0, u" "}));
  EXPECT_EQ(strokeOf("a"), (Stroke{65, 0, u"a"}));
  EXPECT_EQ(strokeOf("ü", 1), (Stroke{KeyStroke::ofCharacter(u'ü').code, 1, u"Ü"}));
  EXPECT_EQ(strokeOf("l", 2), (Stroke{76, 2, u"\x0c"}));
  EXPECT_EQ(strokeOf("Insert", 1), (Stroke{45, 1, u""}));
  EXPECT_EQ(strokeOf("s", 4), (Stroke{83, 4, u""})) << "Alt types nothing";
  EXPECT_EQ(keyOfName("s", 4)->sign, u"s") << "but the key says what it stands for";
  EXPECT_EQ(strokeOf("q", 6), (Stroke{81, 6, u""}));
  EXPECT_EQ(strokeOf("😀", 4).text, u"");
  EXPECT_EQ(strokeOf("😀"), (Stroke{KeyStroke::ofCharacter(0xD83D).code, 0, u"😀"}));
  EXPECT_EQ(strokeOf("-"), (Stroke{KeyStroke::ofCharacter(u'-').code, 0, u"-"}));
  for (const char* wrong : {"", "F13", "F0", "enter", "ab", "PgUp"})
    EXPECT_EQ(strokeOf(wrong).code, -1) << wrong;
}

TEST(KeyNames, LineBreaksOfATextAreEnter) {
  const std::vector<Key> keys = keysThatType(u"a\r\nb\nc\rd\t");
  std::vector<int> codes;
  for (const Key& key : keys) codes.push_back(key.code);
  EXPECT_THAT(codes, ::testing::ElementsAre('A', 13, 'B', 13, 'C', 13, 'D', 9));
}

}  // namespace
}  // namespace zqn::script
