// SPDX-License-Identifier: MIT
#include "forms/control_kinds.h"

#include <algorithm>
#include <iterator>

#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/command_button.h"
#include "forms/date_input.h"
#include "forms/decoration.h"
#include "forms/flex_grid.h"
#include "forms/frame.h"
#include "forms/image_list.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/option_button.h"
#include "forms/picture_box.h"
#include "forms/tdb_date.h"
#include "forms/tdb_list.h"
#include "forms/tdb_number.h"
#include "forms/text_box.h"
#include "forms/timer.h"
#include "forms/toggle_button.h"
#include "forms/zq_combo.h"
#include "runtime/enumeration_table.h"

namespace zqn {

namespace {

template <class C>
std::unique_ptr<Control> make(Form& form, const ControlDesign& design, int tabIndex) {
  return std::make_unique<C>(form, design, tabIndex);
}

struct Kind {
  ControlKind kind;
  StringView name;
  std::unique_ptr<Control> (*make)(Form&, const ControlDesign&, int);
};

constexpr Kind kinds[] = {
    {ControlKind::CheckBox, u"CheckBox", make<CheckBox>},
    {ControlKind::ComboBox, u"ComboBox", make<ComboBox>},
    {ControlKind::CommandButton, u"CommandButton", make<CommandButton>},
    {ControlKind::DateInput, u"DateInput", make<DateInput>},
    {ControlKind::Frame, u"Frame", make<Frame>},
    {ControlKind::ImageList, u"ImageList", make<ImageList>},
    {ControlKind::Label, u"Label", make<Label>},
    {ControlKind::MSFlexGrid, u"MSFlexGrid", make<MSFlexGrid>},
    {ControlKind::MSHFlexGrid, u"MSHFlexGrid", make<MSHFlexGrid>},
    {ControlKind::PictureBox, u"PictureBox", make<PictureBox>},
    {ControlKind::ListBox, u"ListBox", make<ListBox>},
    {ControlKind::Menu, u"Menu", make<Menu>},
    {ControlKind::OptionButton, u"OptionButton", make<OptionButton>},
    {ControlKind::Shape, u"Shape", make<Shape>},
    {ControlKind::TDBDate, u"TDBDate", make<TDBDate>},
    {ControlKind::TDBList, u"TDBList", make<TDBList>},
    {ControlKind::TDBNumber, u"TDBNumber", make<TDBNumber>},
    {ControlKind::TextBox, u"TextBox", make<TextBox>},
    {ControlKind::Timer, u"Timer", make<Timer>},
    {ControlKind::ToggleButton, u"ToggleButton", make<ToggleButton>},
    {ControlKind::zqCombo, u"zqCombo", make<zqCombo>},
};
static_assert(hasRowForEach<ControlKind::zqCombo>(kinds, &Kind::kind));

static_assert(std::size(kinds) == static_cast<std::size_t>(ControlKind::zqCombo) + 1, "a row for each kind");

const Kind& row(ControlKind kind) noexcept { return *std::ranges::find(kinds, kind, &Kind::kind); }

}  // namespace

StringView kindName(ControlKind kind) noexcept { return row(kind).name; }

std::unique_ptr<Control> makeControl(Form& form, const ControlDesign& design, int tabIndex) {
  return row(design.kind).make(form, design, tabIndex);
}

}  // namespace zqn
