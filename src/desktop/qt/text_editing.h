// SPDX-License-Identifier: MIT
//
// What fields of one line and of several share in editing natively: the German context menu, and characters
// that an input method commits.
#pragma once

#include <QMenu>
#include <functional>
#include <memory>

#include "forms/text_entry.h"

class QInputMethodEvent;

namespace zqn::qt {

/// What a field can do at the moment, and how.
struct Editing {
  std::function<void()> undo, redo, cut, copy, paste, remove, selectAll;
  bool writable, canUndo, canRedo, selected, filled;
};

/// The context menu of a field.
std::unique_ptr<QMenu> makeEditMenu(QWidget& field, const Editing& editing);

/// One committed character is a key press like any other: form and field hear of it, and the event commits
/// what they leave.
void passAsKeyPress(QInputMethodEvent& event, zqn::TextEntry& model);

}  // namespace zqn::qt
