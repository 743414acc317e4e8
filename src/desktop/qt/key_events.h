// SPDX-License-Identifier: MIT
//
// Keys of Qt as keys of the dialogs, and back.
//
//     if (const auto stroke = strokeOf(event)) form.keyPressed(*stroke);
#pragma once

#include <QKeyEvent>
#include <QWidget>
#include <optional>

#include "forms/keys.h"

namespace zqn::qt {

/// The stroke that a press or a release stands for; nullopt for a key that the dialogs do not know (a media
/// key, a dead key, a press that types several characters).
std::optional<KeyStroke> strokeOf(const QKeyEvent& event);

/// The shift bits of the keys that are held.
int shiftOf(Qt::KeyboardModifiers held);

/// The event that a stroke makes; `type` is QEvent::KeyPress or QEvent::KeyRelease.
QKeyEvent eventOf(const KeyStroke& stroke, QEvent::Type type);

}  // namespace zqn::qt
