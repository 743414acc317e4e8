// SPDX-License-Identifier: MIT
//
// The window of a message box, its buttons in German and in the order of the box.
#pragma once

#include <QMessageBox>
#include <optional>
#include <utility>
#include <vector>

#include "forms/message_box.h"

namespace zqn::qt {

class MessageWindow : public QMessageBox {
 public:
  MessageWindow(const MessageBox& box, QWidget* parent);

  /// The button that was pressed; nullopt as long as the box waits.
  std::optional<MsgBoxResult> answer() const;
  /// The button of an answer; nullptr when the box has none.
  QPushButton* buttonFor(MsgBoxResult wanted) const;

 private:
  std::vector<std::pair<MsgBoxResult, QPushButton*>> buttons_;
};

}  // namespace zqn::qt
