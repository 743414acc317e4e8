// SPDX-License-Identifier: MIT
#include "forms/text_places.h"

#include <algorithm>

#include "forms/characters.h"
#include "runtime/unicode.h"

namespace zqn {

namespace {

constexpr StringView breaks = u"\r\n";

char16_t unitAt(StringView text, int position) noexcept { return text[static_cast<std::size_t>(position)]; }

char32_t characterAt(StringView text, int position) noexcept {
  StringView rest = text.substr(static_cast<std::size_t>(position));
  return unicode::take(rest);
}

int sizeOf(StringView text) noexcept { return static_cast<int>(text.size()); }

/// No character, and no line break, reaches over this position.
bool isPlace(StringView text, int position) noexcept {
  if (position <= 0 || position >= sizeOf(text)) return true;
  const char16_t before = unitAt(text, position - 1);
  const char16_t behind = unitAt(text, position);
  if (unicode::isHighSurrogate(before) && unicode::isLowSurrogate(behind)) return false;
  if (before == u'\r' && behind == u'\n') return false;
  return before < u' ' || !isCombining(characterAt(text, position));
}

CharacterClass classAt(StringView text, int position) noexcept {
  return classOf(characterAt(text, position));
}

}  // namespace

int placeAt(StringView text, int position) noexcept {
  int place = std::clamp(position, 0, sizeOf(text));
  while (!isPlace(text, place)) --place;
  return place;
}

int placeBefore(StringView text, int position) noexcept { return placeAt(text, position - 1); }

int placeBehind(StringView text, int position) noexcept {
  int place = std::min(position + 1, sizeOf(text));
  while (!isPlace(text, place)) ++place;
  return place;
}

int wordBefore(StringView text, int position) noexcept {
  int place = position;
  const auto before = [&] { return classAt(text, placeBefore(text, place)); };
  while (place > 0 && before() == CharacterClass::Blank) place = placeBefore(text, place);
  if (place == 0) return 0;
  const CharacterClass word = before();
  while (place > 0 && before() == word) place = placeBefore(text, place);
  return place;
}

int wordBehind(StringView text, int position) noexcept {
  const int size = sizeOf(text);
  int place = position;
  if (place >= size) return size;
  const CharacterClass word = classAt(text, place);
  while (place < size && classAt(text, place) == word) place = placeBehind(text, place);
  while (place < size && classAt(text, place) == CharacterClass::Blank) place = placeBehind(text, place);
  return place;
}

int lineStart(StringView text, int position) noexcept {
  const auto end = text.substr(0, static_cast<std::size_t>(placeAt(text, position))).find_last_of(breaks);
  return end == StringView::npos ? 0 : static_cast<int>(end) + 1;
}

int lineEnd(StringView text, int position) noexcept {
  const auto end = text.find_first_of(breaks, static_cast<std::size_t>(placeAt(text, position)));
  return end == StringView::npos ? sizeOf(text) : static_cast<int>(end);
}

StringView cutToLength(StringView text, int units) noexcept {
  return text.substr(0, static_cast<std::size_t>(placeAt(text, units)));
}

String withBreaks(StringView text, StringView lineBreak) {
  String all;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isBreak = text[i] == u'\r' || text[i] == u'\n';
    all += isBreak ? lineBreak : text.substr(i, 1);
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return all;
}

}  // namespace zqn
