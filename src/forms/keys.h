// SPDX-License-Identifier: MIT
//
// Keys as the dialogs know them: the platform's key codes, the shift bits, and one stroke of a key.
#pragma once

#include <cstdint>

namespace zqn {

/// The platform's key codes.
namespace key {
constexpr int Backspace = 8;
constexpr int Tab = 9;
constexpr int Enter = 13;
constexpr int Escape = 27;
constexpr int Space = 32;
constexpr int PageUp = 33;
constexpr int PageDown = 34;
constexpr int End = 35;
constexpr int Home = 36;
constexpr int Left = 37;
constexpr int Up = 38;
constexpr int Right = 39;
constexpr int Down = 40;
constexpr int Insert = 45;
constexpr int Delete = 46;
constexpr int F1 = 112;
constexpr int F2 = 113;
constexpr int F3 = 114;
constexpr int F4 = 115;
constexpr int F6 = 117;
constexpr int F9 = 120;
constexpr int F10 = 121;
constexpr int F12 = 123;
}  // namespace key

/// The platform's bits for the keys that are held.
namespace shift {
constexpr int None = 0;
constexpr int Shift = 1;
constexpr int Ctrl = 2;
constexpr int Alt = 4;
}  // namespace shift

/// The character goes into a text: it is none that only controls.
constexpr bool isText(char16_t character) noexcept { return character >= u' ' && character != u'\x7f'; }

/// One press of a key.
struct KeyStroke {
  /// The platform's key code: letters and digits by their capital character, other characters by their key on
  /// a German keyboard (188 for the comma; 231 for a character that no key has), the rest as in namespace
  /// key.
  int code = 0;
  /// Sum of the shift bits.
  int shift = 0;
  /// What the press types, 0 for none. Enter, Tab, Backspace and Escape type 13, 9, 8, 27; Ctrl with a letter
  /// types 1 to 26; Alt with a character, and Ctrl with any other, type nothing.
  char16_t character = 0;

  /// The stroke of a key that is named by its code alone, or of a character.
  static KeyStroke ofCode(int code, int shift = 0);
  static KeyStroke ofCharacter(char16_t character, int shift = 0);
};

}  // namespace zqn
