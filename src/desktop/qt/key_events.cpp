// SPDX-License-Identifier: MIT
#include "desktop/qt/key_events.h"

#include <algorithm>
#include <array>
#include <utility>

namespace zqn::qt {

namespace {

/// Keys that have a code of their own, whatever they type.
constexpr std::array<std::pair<int, int>, 25> namedKeys{{
    {Qt::Key_Backspace, key::Backspace},
    {Qt::Key_Tab, key::Tab},
    {Qt::Key_Return, key::Enter},
    {Qt::Key_Enter, key::Enter},
    {Qt::Key_Backtab, key::Tab},
    {Qt::Key_Shift, 16},
    {Qt::Key_Control, 17},
    {Qt::Key_Alt, 18},
    {Qt::Key_Pause, 19},
    {Qt::Key_CapsLock, 20},
    {Qt::Key_Escape, key::Escape},
    {Qt::Key_Space, key::Space},
    {Qt::Key_PageUp, key::PageUp},
    {Qt::Key_PageDown, key::PageDown},
    {Qt::Key_End, key::End},
    {Qt::Key_Home, key::Home},
    {Qt::Key_Left, key::Left},
    {Qt::Key_Up, key::Up},
    {Qt::Key_Right, key::Right},
    {Qt::Key_Down, key::Down},
    {Qt::Key_Insert, key::Insert},
    {Qt::Key_Delete, key::Delete},
    {Qt::Key_Menu, 93},
    {Qt::Key_NumLock, 144},
    {Qt::Key_ScrollLock, 145},
}};
constexpr int numpadZero = 96;
constexpr int functionKeys = 24;
/// Keys up to here are the characters that they stand for.
constexpr int lastPlainKey = 0xFFFF;

int shiftOfKey(const QKeyEvent& event) {
  int bits = shiftOf(event.modifiers());
  if (event.key() == Qt::Key_Backtab) bits |= shift::Shift;
  // Whether a shift key counts in its own event differs from one window system to the next.
  const int own = event.key() == Qt::Key_Shift     ? shift::Shift
                  : event.key() == Qt::Key_Control ? shift::Ctrl
                  : event.key() == Qt::Key_Alt     ? shift::Alt
                                                   : shift::None;
  return event.type() == QEvent::KeyRelease ? bits & ~own : bits | own;
}

bool isLetterOrDigit(int key) {
  return (key >= Qt::Key_A && key <= Qt::Key_Z) || (key >= Qt::Key_0 && key <= Qt::Key_9);
}

}  // namespace

int shiftOf(Qt::KeyboardModifiers held) {
  int bits = shift::None;
  if (held & Qt::ShiftModifier) bits |= shift::Shift;
  if (held & Qt::ControlModifier) bits |= shift::Ctrl;
  if (held & Qt::AltModifier) bits |= shift::Alt;
  return bits;
}

std::vector<KeyStroke> strokesOf(const QKeyEvent& event) {
  const int held = shiftOfKey(event);
  const int pressed = event.key();
  if (pressed >= Qt::Key_F1 && pressed < Qt::Key_F1 + functionKeys)
    return {KeyStroke::ofCode(key::F1 + pressed - Qt::Key_F1, held)};
  const auto* named = std::ranges::find(namedKeys, pressed, [](const auto& entry) { return entry.first; });
  if (named != namedKeys.end()) return {KeyStroke::ofCode(named->second, held)};

  const bool shortcut = ((held & shift::Ctrl) != 0) != ((held & shift::Alt) != 0);
  std::vector<KeyStroke> strokes;
  for (const QChar unit : shortcut ? QString() : event.text()) {
    if (!isText(unit.unicode())) continue;
    strokes.push_back(KeyStroke::ofCharacter(unit.unicode(), held & shift::Shift));
    const bool digit = pressed >= Qt::Key_0 && pressed <= Qt::Key_9;
    if (digit && (event.modifiers() & Qt::KeypadModifier))
      strokes.back().code = numpadZero + pressed - Qt::Key_0;
  }
  if (!strokes.empty()) return strokes;
  // What the key would type by itself is no matter: a shortcut, or a key that types nothing.
  const bool character = pressed >= Qt::Key_Space && pressed <= lastPlainKey;
  if (!character && !shortcut) return {};
  KeyStroke stroke =
      character ? KeyStroke::ofCharacter(static_cast<char16_t>(pressed), held) : KeyStroke{0, held, 0};
  if (!shortcut) stroke.character = 0;
  return {stroke};
}

namespace {

/// What a key types on a real keyboard, also where the dialogs make nothing of it.
QString textOf(const KeyStroke& stroke) {
  if (stroke.character != 0) return QString(QChar(stroke.character));
  if (stroke.code == key::Delete) return QStringLiteral("\x7f");
  if (stroke.shift == shift::Alt && isLetterOrDigit(stroke.code))
    return QString(QChar(stroke.code)).toLower();
  if (stroke.shift == (shift::Alt | shift::Shift) && isLetterOrDigit(stroke.code))
    return QString(QChar(stroke.code));
  return {};
}

}  // namespace

QKeyEvent eventOf(const KeyStroke& stroke, QEvent::Type type) {
  Qt::KeyboardModifiers held = Qt::NoModifier;
  if ((stroke.shift & shift::Shift) != 0) held |= Qt::ShiftModifier;
  if ((stroke.shift & shift::Ctrl) != 0) held |= Qt::ControlModifier;
  if ((stroke.shift & shift::Alt) != 0) held |= Qt::AltModifier;
  const QString text = textOf(stroke);

  if (stroke.code == key::Tab && (stroke.shift & shift::Shift) != 0)
    return {type, Qt::Key_Backtab, held, text};
  if (stroke.code >= key::F1 && stroke.code < key::F1 + functionKeys)
    return {type, Qt::Key_F1 + stroke.code - key::F1, held, text};
  if (stroke.code >= numpadZero && stroke.code < numpadZero + 10)
    return {type, Qt::Key_0 + stroke.code - numpadZero, held | Qt::KeypadModifier, text};
  const auto* named =
      std::ranges::find(namedKeys, stroke.code, [](const auto& entry) { return entry.second; });
  if (named != namedKeys.end()) return {type, named->first, held, text};
  if (isLetterOrDigit(stroke.code)) return {type, stroke.code, held, text};
  const int typed = QChar(stroke.character).toUpper().unicode();
  return {type, typed != 0 ? typed : static_cast<int>(Qt::Key_unknown), held, text};
}

}  // namespace zqn::qt
