// SPDX-License-Identifier: MIT
//
// Keys of Qt as keys of the dialogs, and back.
//
//     for (const KeyStroke& stroke : strokesOf(event)) form.keyPressed(stroke);
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <vector>

#include "forms/keys.h"

namespace zqn::qt {

/// The strokes that a press or a release stands for: one, or one for each unit of what it types; none for a
/// key that the dialogs do not know (a media key, a dead key).
std::vector<KeyStroke> strokesOf(const QKeyEvent& event);

/// The shift bits of the keys that are held.
int shiftOf(Qt::KeyboardModifiers held);

/// The event that a stroke makes on a real keyboard, with what the key types there: Alt with S carries "s".
/// `type` is QEvent::KeyPress or QEvent::KeyRelease.
QKeyEvent eventOf(const KeyStroke& stroke, QEvent::Type type);

}  // namespace zqn::qt
