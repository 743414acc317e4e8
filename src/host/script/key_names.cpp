// SPDX-License-Identifier: MIT
#include "host/script/key_names.h"

#include "forms/keys.h"
#include "runtime/locale.h"
#include "runtime/unicode.h"

namespace zqn::script {

namespace {

struct NamedKey {
  const char* name;
  int code;
};

constexpr NamedKey namedKeys[] = {
    {"F1", key::F1},         {"F2", key::F1 + 1},         {"F3", key::F1 + 2},
    {"F4", key::F1 + 3},     {"F5", key::F1 + 4},         {"F6", key::F1 + 5},
    {"F7", key::F1 + 6},     {"F8", key::F1 + 7},         {"F9", key::F1 + 8},
    {"F10", key::F1 + 9},    {"F11", key::F1 + 10},       {"F12", key::F1 + 11},
    {"Enter", key::Enter},   {"Tab", key::Tab},           {"Escape", key::Escape},
    {"Insert", key::Insert}, {"Delete", key::Delete},     {"Backspace", key::Backspace},
    {"Up", key::Up},         {"Down", key::Down},         {"Left", key::Left},
    {"Right", key::Right},   {"Home", key::Home},         {"End", key::End},
    {"PageUp", key::PageUp}, {"PageDown", key::PageDown}, {"Space", key::Space},
};

Key keyOf(const KeyStroke& stroke) {
  return {stroke.code, stroke.shift, stroke.character == 0 ? String() : String(1, stroke.character)};
}

/// The key of the first character of `text`, which is taken off.
Key takeKey(StringView& text, int shift) {
  const StringView all = text;
  unicode::take(text);
  const StringView character = all.substr(0, all.size() - text.size());
  if (character.size() == 2) {
    const bool types = (shift & (shift::Ctrl | shift::Alt)) == 0;
    return {KeyStroke::ofCharacter(character.front()).code, shift, types ? String(character) : String(),
            String(character)};
  }
  const char16_t unit = (shift & shift::Shift) != 0 ? upperUnit(character.front()) : character.front();
  switch (unit) {
    case u'\n':
    case u'\r':
      return keyOf(KeyStroke::ofCode(key::Enter, shift));
    case u'\t':
      return keyOf(KeyStroke::ofCode(key::Tab, shift));
    default: {
      Key key = keyOf(KeyStroke::ofCharacter(unit, shift));
      key.sign = unit;
      return key;
    }
  }
}

}  // namespace

std::optional<Key> keyOfName(const std::string& name, int shift) {
  for (const NamedKey& named : namedKeys) {
    if (name == named.name) return keyOf(KeyStroke::ofCode(named.code, shift));
  }
  const String text = fromUtf8(name);
  StringView rest = text;
  if (rest.empty()) return std::nullopt;
  Key key = takeKey(rest, shift);
  if (!rest.empty()) return std::nullopt;
  return key;
}

std::vector<Key> keysThatType(StringView text) {
  std::vector<Key> keys;
  while (!text.empty()) {
    if (text.starts_with(u"\r\n")) text.remove_prefix(1);
    keys.push_back(takeKey(text, shift::None));
  }
  return keys;
}

std::string keyNames() {
  std::string names;
  for (const NamedKey& named : namedKeys) names += (names.empty() ? "" : ", ") + std::string(named.name);
  return names;
}

}  // namespace zqn::script
