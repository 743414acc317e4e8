// SPDX-License-Identifier: MIT
#include "desktop/qt/control_widgets.h"

#include <stdexcept>

#include "desktop/qt/check_box.h"
#include "desktop/qt/combo_box.h"
#include "desktop/qt/command_button.h"
#include "desktop/qt/day_entry.h"
#include "desktop/qt/decoration.h"
#include "desktop/qt/flex_grid.h"
#include "desktop/qt/frame.h"
#include "desktop/qt/label.h"
#include "desktop/qt/list_box.h"
#include "desktop/qt/list_field.h"
#include "desktop/qt/multi_line_text_box.h"
#include "desktop/qt/option_button.h"
#include "desktop/qt/picture_box.h"
#include "desktop/qt/tdb_list.h"
#include "desktop/qt/tdb_number.h"
#include "desktop/qt/text_box.h"
#include "desktop/qt/toggle_button.h"
#include "runtime/enumeration_table.h"

namespace zqn::qt {

namespace {

template <class Widget, class Model>
ControlWidget* make(Control& control, QWidget& parent) {
  return new Widget(static_cast<Model&>(control), &parent);
}

ControlWidget* makeTextBox(Control& control, QWidget& parent) {
  const bool severalLines = static_cast<zqn::TextBox&>(control).MultiLine();
  return severalLines ? make<MultiLineTextBox, zqn::TextBox>(control, parent)
                      : make<TextBox, zqn::TextBox>(control, parent);
}

ControlWidget* makeComboBox(Control& control, QWidget& parent) {
  return static_cast<zqn::ComboBox&>(control).allowedit() ? make<ComboField, zqn::ComboBox>(control, parent)
                                                          : make<ComboBox, zqn::ComboBox>(control, parent);
}

struct Row {
  ControlKind kind;
  ControlWidget* (*make)(Control&, QWidget&);
};

constexpr Row table[] = {
    {ControlKind::CheckBox, make<CheckBox, zqn::CheckBox>},
    {ControlKind::ComboBox, makeComboBox},
    {ControlKind::CommandButton, make<CommandButton, zqn::CommandButton>},
    {ControlKind::DateInput, make<DayEntry, zqn::DayEntry>},
    {ControlKind::Frame, make<Frame, zqn::Frame>},
    {ControlKind::ImageList, make<Undrawn, Control>},
    {ControlKind::Label, make<Label, zqn::Label>},
    {ControlKind::MSFlexGrid, make<FlexGrid, zqn::FlexGrid>},
    {ControlKind::MSHFlexGrid, make<FlexGrid, zqn::FlexGrid>},
    {ControlKind::PictureBox, make<PictureBox, zqn::PictureBox>},
    {ControlKind::ListBox, make<ListBox, zqn::ListBox>},
    {ControlKind::Menu, make<Undrawn, Control>},
    {ControlKind::OptionButton, make<OptionButton, zqn::OptionButton>},
    {ControlKind::Shape, make<Shape, zqn::Shape>},
    {ControlKind::TDBDate, make<DayEntry, zqn::DayEntry>},
    {ControlKind::TDBList, make<TDBList, zqn::TDBList>},
    {ControlKind::TDBNumber, make<TDBNumber, zqn::TDBNumber>},
    {ControlKind::TextBox, makeTextBox},
    {ControlKind::Timer, make<Undrawn, Control>},
    {ControlKind::ToggleButton, make<ToggleButton, zqn::ToggleButton>},
    {ControlKind::zqCombo, make<zqCombo, zqn::zqCombo>},
};
static_assert(hasRowForEach<ControlKind::zqCombo>(table, &Row::kind));

}  // namespace

ControlWidget* makeControlWidget(Control& control, QWidget& parent) {
  for (const Row& row : table) {
    if (row.kind == control.kind()) return row.make(control, parent);
  }
  throw std::logic_error("a kind of control without a widget");
}

}  // namespace zqn::qt
