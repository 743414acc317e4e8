// SPDX-License-Identifier: MIT
#include "host/script/qt_user.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QListWidget>
#include <QMenu>
#include <QMouseEvent>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyleOptionButton>
#include <QTableView>

#include "desktop/qt/flex_grid.h"
#include "desktop/qt/key_events.h"
#include "desktop/qt/list_field.h"
#include "desktop/qt/text.h"
#include "forms/text_entry.h"

namespace zqn::script {

namespace {

void sendMouse(QWidget& widget, QEvent::Type type, QPoint place, int number = 1,
               Qt::KeyboardModifiers keys = Qt::NoModifier) {
  const Qt::MouseButton button = number == 1 ? Qt::LeftButton : Qt::RightButton;
  const Qt::MouseButton changed = type == QEvent::MouseMove ? Qt::NoButton : button;
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, place, widget.mapToGlobal(place), changed, held, keys);
  QApplication::sendEvent(&widget, &event);
}

/// A point of the widget that a person would click on: in the middle, but on the box itself of a check box.
QPoint placeOn(const QWidget& widget) {
  const auto* box = qobject_cast<const QCheckBox*>(&widget);
  if (box == nullptr) return widget.rect().center();
  QStyleOptionButton option;
  option.initFrom(box);
  return box->style()->subElementRect(QStyle::SE_CheckBoxIndicator, &option, box).center();
}

Qt::KeyboardModifiers heldKeys(int shift) {
  Qt::KeyboardModifiers keys = Qt::NoModifier;
  if ((shift & shift::Shift) != 0) keys |= Qt::ShiftModifier;
  if ((shift & shift::Ctrl) != 0) keys |= Qt::ControlModifier;
  if ((shift & shift::Alt) != 0) keys |= Qt::AltModifier;
  return keys;
}

QPoint placeOfRow(QListWidget& list, int row) {
  list.scrollToItem(list.item(row));
  return list.visualItemRect(list.item(row)).center();
}

/// The middle of a row, which is scrolled into view.
QPoint placeOfRow(QTableView& list, int row) {
  int column = 0;
  while (list.isColumnHidden(column) && column + 1 < list.model()->columnCount()) ++column;
  list.scrollTo(list.model()->index(row, column));
  return {list.viewport()->width() / 2, list.rowViewportPosition(row) + list.rowHeight(row) / 2};
}

/// As a real keyboard gives it: Alt with S carries "s", Ctrl with A the character 1, and beyond U+FFFF both
/// halves come at once.
QKeyEvent keyEvent(const Key& key, QEvent::Type type) {
  const QString sign = qt::toQt(key.sign);
  const bool shortcut = (key.shift & (shift::Ctrl | shift::Alt)) != 0;
  if (sign.isEmpty() || (!shortcut && sign.size() < 2))
    return qt::eventOf({key.code, key.shift, key.text.empty() ? u'\0' : key.text.front()}, type);
  const bool carriesSign = (key.shift & shift::Ctrl) == 0;
  return {type, static_cast<int>(sign.toUpper().toUcs4().front()), heldKeys(key.shift),
          carriesSign ? sign : qt::toQt(key.text)};
}

/// What hears the keyboard: an open list or calendar before the window.
QWidget& keyTarget(QWidget& window) {
  QWidget* const top =
      QApplication::activePopupWidget() != nullptr ? QApplication::activePopupWidget() : &window;
  return top->focusWidget() != nullptr ? *top->focusWidget() : *top;
}

/// The words of a text; a line break may be drawn as another one.
QStringList linesOf(StringView text) {
  return qt::toQt(text).split(QRegularExpression(QStringLiteral("\\r\\n|\\r|\\n")));
}

bool showsBox(const QMessageBox& window, const MessageBox& box) {
  return window.windowTitle() == qt::toQt(box.title) &&
         window.text().split(QLatin1Char('\n')) == linesOf(box.text) &&
         window.buttons().size() == static_cast<qsizetype>(box.buttons().size());
}

}  // namespace

// ---- mouse

void QtUser::point(const MouseTarget& target) {
  QWidget* const widget = desktop_.widgetOf(target.control);
  if (auto* grid = dynamic_cast<qt::FlexGrid*>(widget)) {
    grid->scrollToCell({target.row, target.col});
    pointer_ = grid->placeOf({target.row, target.col}).value_or(grid->middle());
    return;
  }
  auto* const table = qobject_cast<QTableView*>(widget);
  auto* const list = qobject_cast<QListWidget*>(widget);
  if (table != nullptr && target.row >= 0) {
    pointer_ = placeOfRow(*table, target.row);
  } else if (list != nullptr && target.row >= 0) {
    pointer_ = placeOfRow(*list, target.row);
  } else {
    pointer_ = placeOn(*desktop_.mouseAreaOf(target.control));
  }
}

/// A click into a text falls behind its last character, however far the text reaches.
QPoint QtUser::pressedAt(const MouseTarget& target) const {
  if (dynamic_cast<TextEntry*>(&target.control) == nullptr) return pointer_;
  constexpr int farOut = 1 << 20;
  const bool lines = dynamic_cast<QPlainTextEdit*>(desktop_.widgetOf(target.control)) != nullptr;
  return {farOut, lines ? farOut : pointer_.y()};
}

void QtUser::mouseDown(const MouseTarget& target) {
  point(target);
  sendMouse(*desktop_.mouseAreaOf(target.control), QEvent::MouseButtonPress, pressedAt(target), target.button,
            heldKeys(target.shift));
}

void QtUser::mouseMove(const MouseTarget& target) {
  point(target);
  sendMouse(*desktop_.mouseAreaOf(target.control), QEvent::MouseMove, pointer_, target.button);
}

void QtUser::mouseUp(const MouseTarget& target) {
  // A cell may have moved under the pointer meanwhile.
  const auto* grid = dynamic_cast<qt::FlexGrid*>(desktop_.widgetOf(target.control));
  if (grid != nullptr) pointer_ = grid->placeOf({target.row, target.col}).value_or(pointer_);
  sendMouse(*desktop_.mouseAreaOf(target.control), QEvent::MouseButtonRelease, pointer_, target.button,
            heldKeys(target.shift));
}

void QtUser::mouseDownAgain(const MouseTarget& target) {
  sendMouse(*desktop_.mouseAreaOf(target.control), QEvent::MouseButtonDblClick, pointer_, target.button,
            heldKeys(target.shift));
}

void QtUser::takeEntry(Control& control, int entry) {
  QWidget& field = *desktop_.widgetOf(control);
  auto* withButton = dynamic_cast<qt::ListField*>(&field);
  QAbstractItemView& drop =
      withButton != nullptr ? withButton->list() : *dynamic_cast<QComboBox&>(field).view();
  if (!drop.isVisible()) {
    QWidget& opener = withButton != nullptr ? withButton->button() : field;
    sendMouse(opener, QEvent::MouseButtonPress, opener.rect().center());
    sendMouse(opener, QEvent::MouseButtonRelease, opener.rect().center());
    // The window system hears that the list stands open before it is closed again: else the keyboard stays
    // with a window that is gone.
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  }
  if (!drop.isVisible()) return;
  const QModelIndex row = drop.model()->index(entry, 0);
  drop.scrollTo(row);
  const QPoint place = drop.visualRect(row).center();
  sendMouse(*drop.viewport(), QEvent::MouseMove, place);
  sendMouse(*drop.viewport(), QEvent::MouseButtonPress, place);
  sendMouse(*drop.viewport(), QEvent::MouseButtonRelease, place);
}

void QtUser::takeItem(Menu& item) {
  QMenu& menu = *desktop_.openMenu();
  const QPoint place = menu.actionGeometry(menu.findChild<QAction*>(qt::toQt(item.fullName()))).center();
  sendMouse(menu, QEvent::MouseMove, place);
  sendMouse(menu, QEvent::MouseButtonPress, place);
  sendMouse(menu, QEvent::MouseButtonRelease, place);
}

void QtUser::closeMenu() {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    QKeyEvent event = qt::eventOf(KeyStroke::ofCode(key::Escape), type);
    QApplication::sendEvent(desktop_.openMenu(), &event);
    if (desktop_.openMenu() == nullptr) return;
  }
}

// ---- keys

void QtUser::keyDown(Form& form, const Key& key) {
  QKeyEvent event = keyEvent(key, QEvent::KeyPress);
  QApplication::sendEvent(&keyTarget(*desktop_.windowOf(form)), &event);
}

void QtUser::keyUp(Form& form, const Key& key) {
  QKeyEvent event = keyEvent(key, QEvent::KeyRelease);
  QApplication::sendEvent(&keyTarget(*desktop_.windowOf(form)), &event);
}

// ---- windows

void QtUser::closeBox(Form& form) { desktop_.windowOf(form)->close(); }

void QtUser::answer(MsgBoxResult button) {
  QAbstractButton& widget = *desktop_.boxButton(button);
  sendMouse(widget, QEvent::MouseButtonPress, widget.rect().center());
  sendMouse(widget, QEvent::MouseButtonRelease, widget.rect().center());
}

bool QtUser::screenshot(Form& form, const std::filesystem::path& file) {
  return desktop_.windowOf(form)->grab().save(qt::toQt(file.u16string()));
}

std::vector<String> QtUser::differences(Form& form) {
  std::vector<String> lines;
  for (const QString& line : desktop_.differences(form).split(QLatin1Char('\n'), Qt::SkipEmptyParts))
    lines.emplace_back(qt::fromQt(line));
  const MessageBox* box = desktop_.openMessageBox();
  if (box != nullptr && desktop_.openBox() != nullptr && !showsBox(*desktop_.openBox(), *box))
    lines.emplace_back(u"the message box says something else");
  return lines;
}

}  // namespace zqn::script
