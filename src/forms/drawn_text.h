// SPDX-License-Identifier: MIT
//
// A text as a field draws it. Stored line breaks and control characters, which have no look of their own, are
// one sign each; in a field of several lines a break is u'\n', however it is stored. The places of the two
// texts lead to each other:
//
//     const DrawnText drawn(u"a\r\nb", DrawnText::Lines::One);
//     drawn.text() == u"a↵b";  drawn.inDrawn(3) == 2;  drawn.inStored(2) == 3;
#pragma once

#include <vector>

#include "runtime/string.h"

namespace zqn {

class DrawnText {
 public:
  enum class Lines { One, Several };

  DrawnText(StringView stored, Lines lines);

  const String& text() const noexcept { return text_; }
  /// A position in the stored text as one in the drawn text, and back. Beyond the end: the end.
  int inDrawn(int position) const noexcept;
  int inStored(int position) const noexcept;

 private:
  String text_;
  int storedSize_;
  /// Where a break of two units stands in the drawn text, in order.
  std::vector<int> longBreaks_;
};

}  // namespace zqn
