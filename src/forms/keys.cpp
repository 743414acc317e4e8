// SPDX-License-Identifier: MIT
#include "forms/keys.h"

#include <array>

#include "runtime/locale.h"
#include "runtime/string.h"

namespace zqn {

namespace {

/// What a character is typed with where neither a letter nor a digit says it: the keys of a German keyboard.
struct TypedWith {
  StringView characters;
  int code;
};
constexpr std::array<TypedWith, 26> keyboard{
    {{u"!", '1'},  {u"\"²", '2'},      {u"§³", '3'}, {u"$", '4'},    {u"%", '5'},  {u"&", '6'},
     {u"/{", '7'}, {u"([", '8'},       {u")]", '9'}, {u"=}", '0'},   {u"@", 'Q'},  {u"€", 'E'},
     {u"µ", 'M'},  {u" ", key::Space}, {u"üÜ", 186}, {u"+*~", 187},  {u",;", 188}, {u"-_", 189},
     {u".:", 190}, {u"#'", 191},       {u"öÖ", 192}, {u"ß?\\", 219}, {u"^°", 220}, {u"´`", 221},
     {u"äÄ", 222}, {u"<>|", 226}}};
/// A character that comes from no key.
constexpr int packet = 231;

int codeOf(char16_t character) {
  const char16_t capital = upperUnit(character);
  if ((capital >= u'A' && capital <= u'Z') || (capital >= u'0' && capital <= u'9')) return capital;
  for (const TypedWith& key : keyboard) {
    if (key.characters.find(character) != StringView::npos) return key.code;
  }
  return packet;
}

}  // namespace

KeyStroke KeyStroke::ofCode(int code, int shift) {
  KeyStroke stroke{code, shift, 0};
  const bool typesItself = code == key::Backspace || code == key::Tab || code == key::Enter ||
                           code == key::Escape || code == key::Space;
  if (typesItself && (shift & (shift::Ctrl | shift::Alt)) == 0)
    stroke.character = static_cast<char16_t>(code);
  return stroke;
}

KeyStroke KeyStroke::ofCharacter(char16_t character, int shift) {
  const int code = codeOf(character);
  if ((shift & shift::Alt) != 0) return {code, shift, 0};
  if ((shift & shift::Ctrl) == 0) return {code, shift, character};
  const bool letter = code >= 'A' && code <= 'Z';
  return {code, shift, static_cast<char16_t>(letter ? code - 'A' + 1 : 0)};
}

}  // namespace zqn
