// SPDX-License-Identifier: MIT
#include "forms/keys.h"

#include "runtime/locale.h"

namespace zqn {

namespace {

bool isLetterOrDigit(int code) { return (code >= 'A' && code <= 'Z') || (code >= '0' && code <= '9'); }

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
  const int code = upperUnit(character);
  if ((shift & shift::Ctrl) != 0) {
    const bool letter = code >= 'A' && code <= 'Z';
    return {code, shift, static_cast<char16_t>(letter ? code - 'A' + 1 : 0)};
  }
  if ((shift & shift::Alt) != 0) return {code, shift, 0};
  return {isLetterOrDigit(code) || code == key::Space ? code : 0, shift, character};
}

}  // namespace zqn
