// SPDX-License-Identifier: MIT
//
// The places of a text where a caret can stand, and how the editing keys lead from one to the next. Positions
// and lengths count UTF-16 units. A character of two units, a letter with its combining marks, and a line
// break of CR LF are one step:
//
//     placeBehind(u"a\r\nb", 1) == 3
//     wordBehind(u"eins zwei", 0) == 5     // the blank belongs to the word before it
#pragma once

#include "runtime/string.h"

namespace zqn {

/// Where the caret stands when it is put at `position`: there, or at the beginning of the character that it
/// would part. Beyond the text: at its end.
int placeAt(StringView text, int position) noexcept;
/// One step to the left and to the right; the ends of the text lead nowhere.
int placeBefore(StringView text, int position) noexcept;
int placeBehind(StringView text, int position) noexcept;
/// The beginning of the word before, or of the next one. A word is a run of letters and digits, or of other
/// signs; blanks belong to the word before them.
int wordBefore(StringView text, int position) noexcept;
int wordBehind(StringView text, int position) noexcept;
/// Beginning and end of the stored line.
int lineStart(StringView text, int position) noexcept;
int lineEnd(StringView text, int position) noexcept;

/// The front of a text, at most so many units, and never half a character or half a line break.
StringView cutToLength(StringView text, int units) noexcept;
/// The text with each of its line breaks (CR LF, CR or LF) written like this.
String withBreaks(StringView text, StringView lineBreak);

}  // namespace zqn
