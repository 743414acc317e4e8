// SPDX-License-Identifier: MIT
#include "host/database/messages.h"

#include <gtest/gtest.h>

namespace zqn::host {

TEST(AMessage, ShowsTextAsItIs) {
  for (const char* text : {"", "database 'a b.sqlite'", "Größe 10 €, \U0001F600", "\u00A0\u00FF"})
    EXPECT_EQ(printable(text), text);
}

TEST(AMessage, ShowsControlCharactersInsteadOfObeyingThem) {
  EXPECT_EQ(printable("a\x1B[2Jb\nc\td\re\x7F"), "a\\x1b[2Jb\\nc\\td\\re\\x7f");
  EXPECT_EQ(printable("\u0085\u009B"), "\\xc2\\x85\\xc2\\x9b");
  EXPECT_EQ(printable(std::string_view("a\0b", 3)), "a\\x00b");
}

TEST(AMessage, ShowsBytesThatAreNoText) {
  EXPECT_EQ(printable("a\xE4z\xFF"), "a\\xe4z\\xff");
  EXPECT_EQ(printable("\xC3"), "\\xc3");
  EXPECT_EQ(printable("\xE2\x82ö"), "\\xe2\\x82ö");
}

TEST(AMessage, KeepsWhatItsWriterAsksFor) { EXPECT_EQ(printable("a\nb\x1B\tc", "\n\t"), "a\nb\\x1b\tc"); }

}  // namespace zqn::host
