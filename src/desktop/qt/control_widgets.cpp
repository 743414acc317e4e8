// SPDX-License-Identifier: MIT
#include "desktop/qt/control_widgets.h"

#include <stdexcept>

#include "desktop/qt/check_box.h"
#include "desktop/qt/command_button.h"
#include "desktop/qt/label.h"
#include "desktop/qt/tdb_list.h"
#include "desktop/qt/text_box.h"

namespace zqn::qt {

namespace {

template <class Widget, class Model>
ControlWidget* make(Control& control, QWidget& parent) {
  return new Widget(static_cast<Model&>(control), &parent);
}

struct Row {
  ControlKind kind;
  ControlWidget* (*make)(Control&, QWidget&);
};

constexpr Row table[] = {
    {ControlKind::CheckBox, make<CheckBox, zqn::CheckBox>},
    {ControlKind::CommandButton, make<CommandButton, zqn::CommandButton>},
    {ControlKind::Label, make<Label, zqn::Label>},
    {ControlKind::TDBList, make<TDBList, zqn::TDBList>},
    {ControlKind::TextBox, make<TextBox, zqn::TextBox>},
};

}  // namespace

ControlWidget* makeControlWidget(Control& control, QWidget& parent) {
  for (const Row& row : table) {
    if (row.kind == control.kind()) return row.make(control, parent);
  }
  throw std::logic_error("a kind of control without a widget");
}

}  // namespace zqn::qt
