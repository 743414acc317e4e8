// SPDX-License-Identifier: MIT
//
// What a character is to somebody who edits a text: part of a word, a blank, a sign, or a mark that belongs to
// the character before it.
#pragma once

namespace zqn {

/// Letters and digits make words, so do other signs among themselves; blanks, line breaks among them, part
/// words.
enum class CharacterClass { Letter, Sign, Blank };

CharacterClass classOf(char32_t character) noexcept;
/// An accent, a vowel sign, a joiner, the colour of an emoji: it stands on the character before it.
bool isCombining(char32_t character) noexcept;

}  // namespace zqn
