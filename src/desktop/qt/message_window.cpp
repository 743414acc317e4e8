// SPDX-License-Identifier: MIT
#include "desktop/qt/message_window.h"

#include <QPushButton>

#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

QString captionOf(MsgBoxResult result) {
  switch (result) {
    case MsgBoxResult::OK:
      return QStringLiteral("OK");
    case MsgBoxResult::Cancel:
      return QStringLiteral("Abbrechen");
    case MsgBoxResult::Abort:
      return QStringLiteral("&Abbrechen");
    case MsgBoxResult::Retry:
      return QStringLiteral("&Wiederholen");
    case MsgBoxResult::Ignore:
      return QStringLiteral("&Ignorieren");
    case MsgBoxResult::Yes:
      return QStringLiteral("&Ja");
    case MsgBoxResult::No:
      return QStringLiteral("&Nein");
  }
  return {};
}

QMessageBox::Icon iconOf(int style) {
  constexpr int icons = 0x70;
  switch (style & icons) {
    case msgbox::Critical:
      return QMessageBox::Critical;
    case msgbox::Question:
      return QMessageBox::Question;
    case msgbox::Exclamation:
      return QMessageBox::Warning;
    case msgbox::Information:
      return QMessageBox::Information;
    default:
      return QMessageBox::NoIcon;
  }
}

QString withLineBreaks(QString text) {
  text.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  text.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return text;
}

}  // namespace

MessageWindow::MessageWindow(const MessageBox& box, QWidget* parent) : QMessageBox(parent) {
  setObjectName(QStringLiteral("MsgBox"));
  setWindowTitle(toQt(box.title));
  setTextFormat(Qt::PlainText);
  setText(withLineBreaks(toQt(box.text)));
  setIcon(iconOf(box.style));
  setModal(true);
  for (const MsgBoxResult result : box.buttons()) {
    // One role for all: they stand in this order on every desktop, and Qt finds no Esc button by itself.
    QPushButton* const button = addButton(captionOf(result), QMessageBox::ActionRole);
    buttons_.emplace_back(result, button);
    if (result == box.escapeResult()) setEscapeButton(button);
  }
  setDefaultButton(buttons_[static_cast<std::size_t>(box.defaultButton() - 1)].second);
}

std::optional<MsgBoxResult> MessageWindow::answer() const {
  for (const auto& [result, button] : buttons_) {
    if (button == clickedButton()) return result;
  }
  return std::nullopt;
}

QPushButton* MessageWindow::buttonFor(MsgBoxResult wanted) const {
  for (const auto& [result, button] : buttons_) {
    if (result == wanted) return button;
  }
  return nullptr;
}

}  // namespace zqn::qt
