// SPDX-License-Identifier: MIT
#include "parity/script_source.h"

#include <algorithm>
#include <array>

#include "forms/drop_down.h"
#include "forms/flex_grid.h"
#include "forms/list_box.h"
#include "forms/menu.h"
#include "forms/message_box.h"
#include "forms/names.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "host/script/key_names.h"
#include "parity/call.h"
#include "parity/texts.h"
#include "parity/world_lines.h"

namespace zqn::parity {

namespace {

using script::Json;
using std::string_view_literals::operator""sv;

/// What a script reads of each kind of control.
struct Readable {
  ControlKind kind;
  /// How often it is acted upon, against the others.
  int weight;
  std::vector<const char*> properties;
};

const std::array<Readable, 17> readables{{
    {ControlKind::CheckBox, 4, {"Value", "Enabled", "Caption"}},
    {ControlKind::ComboBox, 6, {"Text", "ListIndex", "ListCount", "Enabled"}},
    {ControlKind::CommandButton, 4, {"Enabled", "Visible", "Caption"}},
    {ControlKind::DateInput, 8, {"Text", "Value", "SelStart", "SelLength", "Enabled"}},
    {ControlKind::Frame, 1, {"Enabled"}},
    {ControlKind::Label, 1, {"Caption", "ForeColor", "Width"}},
    {ControlKind::ListBox, 12, {"Text", "ListIndex", "ListCount", "SelCount", "Selected(0)"}},
    {ControlKind::MSFlexGrid, 12, {"Row", "Col", "RowSel", "ColSel", "TopRow", "Rows", "Text"}},
    {ControlKind::MSHFlexGrid, 12, {"Row", "Col", "RowSel", "ColSel", "TopRow", "LeftCol", "Rows", "Text"}},
    {ControlKind::OptionButton, 4, {"Value", "Enabled"}},
    {ControlKind::PictureBox, 1, {"Visible"}},
    {ControlKind::TDBDate, 6, {"Text", "Value", "SelStart", "SelLength", "Enabled"}},
    {ControlKind::TDBList, 12, {"Row", "Text", "HighlightRowStyle.BackColor", "Enabled"}},
    {ControlKind::TDBNumber, 6, {"Text", "Value", "SelStart", "SelLength"}},
    {ControlKind::TextBox, 9, {"Text", "SelStart", "SelLength", "Enabled", "Visible", "MaxLength"}},
    {ControlKind::ToggleButton, 3, {"Value", "Enabled"}},
    {ControlKind::zqCombo, 6, {"Value", "Text", "Enabled"}},
}};

const Readable* readableOf(const Control& control) {
  const auto found = std::ranges::find(readables, control.kind(), &Readable::kind);
  return found != readables.end() ? &*found : nullptr;
}

std::string nameOf(const Control& control) { return toUtf8(control.fullName()); }

/// A button that ends the dialog.
bool closes(const Control& control) {
  static constexpr std::array<StringView, 4> names{u"cmdCancel", u"btnCancel", u"CancelButton", u"OKButton"};
  return std::ranges::any_of(names, [&](StringView name) { return sameName(control.Name(), name); });
}

bool namesKey(const std::string& name) { return script::keyNames().find(name) != std::string::npos; }

/// In a box of several lines these keys follow the lines as they are drawn, which each desktop breaks by its own
/// fonts: the one thing that a toolkit may decide.
constexpr std::array lineKeys{"Up"sv, "Down"sv, "PageUp"sv, "PageDown"sv};

bool followsDrawnLines(const Form& form) {
  const auto* box = dynamic_cast<const TextBox*>(form.ActiveControl());
  return box != nullptr && box->MultiLine();
}

int rowsOf(const Control& control) {
  if (const auto* list = dynamic_cast<const TDBList*>(&control)) return list->knownRows();
  if (const auto* list = dynamic_cast<const ListBox*>(&control)) return list->ListCount();
  if (const auto* drop = dynamic_cast<const DropDown*>(&control)) return drop->ListCount();
  return 0;
}

}  // namespace

ScriptSource::ScriptSource(Random& chance, int kind, const Stage& stage, const Desktop& desktop)
    : chance_(chance),
      stage_(stage),
      desktop_(desktop),
      tables_(tablesOf(kind)),
      length_(chance.between(4, chance.percent(20) ? 60 : 30)) {}

std::optional<std::string> ScriptSource::next() {
  ++written_;
  const Form* const form = desktop_.activeForm();
  if (form == nullptr && !seen_ && written_ < 4 && chance_.percent(30))
    return anyWorldLine(chance_, tables_, stage_).dump();
  if (written_ > length_ || (form == nullptr && seen_ && chance_.percent(60))) {
    const Json line = lastProbe();
    if (line.is_null()) return std::nullopt;
    return line.dump();
  }
  if (form == nullptr) {
    const bool before = !seen_;
    seen_ = true;
    return (before ? Json{{"dump", true}} : lineAfterEnd()).dump();
  }
  if (desktop_.openMessageBox() != nullptr && chance_.percent(92)) return lineAtBox().dump();
  if (desktop_.openPopupMenu() != nullptr && chance_.percent(85)) return lineAtMenu().dump();
  const int what = chance_.between(0, 99);
  if (what < 8) return anyWorldLine(chance_, tables_, stage_).dump();
  if (what < 28) return probe().dump();
  return lineAtForm().dump();
}

bool ScriptSource::mayClose() { return chance_.percent(written_ * 3 < length_ * 2 ? 4 : 30); }

// ---- where the script stands

ScriptSource::Json ScriptSource::lineAtBox() {
  static constexpr std::array answers{"ok", "yes", "no", "cancel", "default"};
  if (chance_.percent(10)) return {{"answer", chance_.oneOf(answers)}};
  const std::vector<MsgBoxResult> buttons = desktop_.openMessageBox()->buttons();
  switch (chance_.oneOf(buttons)) {
    case MsgBoxResult::OK:
      return {{"answer", "ok"}};
    case MsgBoxResult::Yes:
      return {{"answer", "yes"}};
    case MsgBoxResult::No:
      return {{"answer", "no"}};
    default:
      return {{"answer", "default"}};
  }
}

ScriptSource::Json ScriptSource::lineAtMenu() {
  const std::vector<Menu*> items = desktop_.openPopupMenu()->items();
  if (items.empty() || chance_.percent(25)) return {{"key", "Escape"}};
  return {{"menu", nameOf(*chance_.oneOf(items))}};
}

ScriptSource::Json ScriptSource::lineAtForm() {
  const int what = chance_.between(0, 99);
  if (what < 30) return key();
  if (what < 52) return typing();
  if (what < 53 && mayClose()) return {{"close", true}};
  if (what < 54) return {{"wait", chance_.between(1, 12)}};
  const Control* const control = anyControl();
  return control != nullptr ? act(*control) : key();
}

ScriptSource::Json ScriptSource::lineAfterEnd() {
  static const std::array<Json, 5> lines{Json{{"key", "F9"}}, Json{{"statements", true}},
                                         Json{{"dump", true}}, Json{{"close", true}}, Json{{"type", "x"}}};
  return chance_.oneOf(lines);
}

/// What the whole came to: statements, failures passed over, and the rows of each table.
ScriptSource::Json ScriptSource::lastProbe() {
  const int number = last_++;
  if (number == 0) return {{"statements", true}};
  if (number == 1) return {{"passedOver", true}};
  const auto table = static_cast<std::size_t>(number - 2);
  return table < tables_.size() ? Json{{"sql", readingStatement(tables_[table])}} : Json();
}

const Control* ScriptSource::anyControl() {
  const Form& form = *desktop_.activeForm();
  std::vector<const Control*> choices;
  for (const auto& control : form.controls()) {
    const Readable* const readable = readableOf(*control);
    if (readable == nullptr) continue;
    if (!control->isUsable() && !chance_.percent(3)) continue;
    choices.insert(choices.end(), static_cast<std::size_t>(readable->weight), control.get());
  }
  return choices.empty() ? nullptr : chance_.oneOf(choices);
}

// ---- mouse

ScriptSource::Json ScriptSource::act(const Control& control) {
  if (closes(control) && !mayClose()) return key();
  switch (control.kind()) {
    case ControlKind::TDBList:
      return actOnList(control);
    case ControlKind::ListBox:
      return actOnListBox(control);
    case ControlKind::MSFlexGrid:
    case ControlKind::MSHFlexGrid:
      return actOnGrid(control);
    case ControlKind::ComboBox:
    case ControlKind::zqCombo:
      return actOnDropDown(control);
    case ControlKind::DateInput:
    case ControlKind::TDBDate:
    case ControlKind::TDBNumber:
    case ControlKind::TextBox:
      return {{"focus", nameOf(control)}};
    default:
      return {{"click", nameOf(control)}};
  }
}

ScriptSource::Json ScriptSource::actOnList(const Control& control) {
  const int rows = rowsOf(control);
  const int row = rows > 0 && chance_.percent(96) ? chance_.between(0, rows - 1) : rows;
  const int what = chance_.between(0, 99);
  if (what < 8 && mayClose()) return {{"dblclick", nameOf(control)}, {"row", row}};
  if (what < 20) return {{"click", nameOf(control)}};
  if (what < 28) return {{"focus", nameOf(control)}};
  return {{"select", nameOf(control)}, {"row", row}};
}

ScriptSource::Json ScriptSource::actOnGrid(const Control& control) {
  const auto& grid = dynamic_cast<const FlexGrid&>(control);
  const auto row = [&] {
    return chance_.between(chance_.percent(10) ? -1 : 0, std::max(grid.Rows() - 1, 0));
  };
  const auto col = [&] {
    return chance_.between(chance_.percent(10) ? -1 : 0, std::max(grid.Cols() - 1, 0));
  };
  const int what = chance_.between(0, 99);
  if (what < 15) {
    const Json from{row(), col()};
    return {{"drag", nameOf(control)}, {"from", from}, {"to", {row(), col()}}};
  }
  if (what < 20) return {{"click", nameOf(control)}};
  static constexpr std::array events{"click", "click", "click", "dblclick", "down", "up"};
  Json line{{"mouse", nameOf(control)}, {"row", row()}};
  line["col"] = col();
  line["button"] = chance_.percent(80) ? 1 : 2;
  line["event"] = chance_.oneOf(events);
  return line;
}

ScriptSource::Json ScriptSource::actOnListBox(const Control& control) {
  const int rows = std::max(rowsOf(control), 1);
  if (chance_.percent(60)) return {{"select", nameOf(control)}, {"row", chance_.between(0, rows - 1)}};
  Json chosen = Json::array();
  for (int row = 0; row < rows; ++row)
    if (chance_.percent(30)) chosen.push_back(row);
  return {{"select", nameOf(control)}, {"rows", chosen}};
}

ScriptSource::Json ScriptSource::actOnDropDown(const Control& control) {
  const int entries = rowsOf(control);
  const int what = chance_.between(0, 99);
  if (what < 25) return {{"focus", nameOf(control)}};
  if (what < 40) return {{"click", nameOf(control)}};
  return {{"select", nameOf(control)},
          {"index", chance_.between(0, std::max(entries - (what < 95 ? 1 : 0), 0))}};
}

// ---- keyboard

ScriptSource::Json ScriptSource::typing() {
  const Control* const focused = desktop_.activeForm()->ActiveControl();
  const bool takesNumbers = focused != nullptr && focused->kind() == ControlKind::TDBNumber;
  const bool takesDays = focused != nullptr && (focused->kind() == ControlKind::DateInput ||
                                                focused->kind() == ControlKind::TDBDate);
  if (takesDays ? chance_.percent(80) : chance_.percent(4)) return {{"type", anyDay(chance_)}};
  if (takesNumbers ? chance_.percent(80) : chance_.percent(12)) return {{"type", anyNumber(chance_)}};
  if (tables_.empty() || chance_.percent(85)) return {{"type", anyText(chance_)}};
  // A key of the sample, as somebody knows it by heart.
  const auto& rows = stage_.rows(tables_.front());
  const Json value = rows.empty() ? Json() : script::jsonValue(chance_.oneOf(rows).front());
  return {{"type", value.is_string() ? value : Json(value.dump())}};
}

ScriptSource::Json ScriptSource::key() {
  static constexpr std::array moving{"Left", "Right", "Home", "End", "Left", "Right", "Up", "Down"};
  static constexpr std::array pages{"PageUp", "PageDown", "Up", "Down", "Home", "End"};
  static constexpr std::array taking{"Delete", "Backspace", "Backspace", "Insert"};
  static constexpr std::array letters{"a", "c", "v", "x", "z", "y", "v", "c", "l", "A", "V"};
  static constexpr std::array functions{"F1", "F2", "F3", "F4", "F4", "F5",  "F6",
                                        "F6", "F7", "F8", "F9", "F9", "F11", "F12"};
  static constexpr std::array shifts{0, 0, 0, 1, 1, 2, 2, 3};
  const bool alongLines = followsDrawnLines(*desktop_.activeForm());
  const auto press = [&](const std::string& wanted, int shift) {
    const bool byLine = alongLines && std::ranges::find(lineKeys, wanted) != lineKeys.end();
    const std::string name = byLine ? "Right" : wanted;
    Json line{{"key", namesKey(name) || name.size() == 1 ? name : "Delete"}};
    if (shift != 0) line["shift"] = shift;
    return line;
  };
  const int what = chance_.between(0, 99);
  if (what < 26) {
    const char* const name = chance_.oneOf(moving);
    return press(name, chance_.oneOf(shifts));
  }
  if (what < 38) {
    const char* const name = chance_.oneOf(taking);
    return press(name, chance_.oneOf(shifts));
  }
  if (what < 52) return press(chance_.oneOf(letters), 2);
  if (what < 66) return press("Tab", chance_.percent(30) ? 1 : 0);
  if (what < 72) return press("Enter", chance_.percent(90) ? 0 : chance_.between(1, 7));
  if (what < 80) return press(chance_.oneOf(pages), 0);
  if (what < 88) {
    const char* const name = chance_.oneOf(functions);
    return press(name, chance_.percent(92) ? 0 : chance_.between(1, 7));
  }
  if (what < 90) return mayClose() ? press("Escape", 0) : press("Space", 0);
  if (what < 91) return mayClose() ? press("F10", 0) : press("F6", 0);
  if (what < 96) {
    const char letter = static_cast<char>('a' + chance_.between(0, 25));
    return press(std::string(1, letter), chance_.percent(80) ? 4 : chance_.between(1, 7));
  }
  if (what < 98) return press("Down", 4);
  // A character as a key of its own.
  const std::string character = anyCharacter(chance_);
  const bool one = script::keyOfName(character, 0).has_value();
  return press("Space", 0).is_null() || !one ? press("Space", 0) : Json{{"key", character}};
}

// ---- probes

ScriptSource::Json ScriptSource::probe() {
  const int what = chance_.between(0, 99);
  const Form& form = *desktop_.activeForm();
  if (what < 8) return {{"dump", true}};
  if (what < 13) return {{"statements", true}};
  if (what < 16) return {{"passedOver", true}};
  if (what < 21 && !tables_.empty()) return {{"sql", readingStatement(chance_.oneOf(tables_))}};
  if (what < 24 && tables_.empty()) return {{"settings", "Belegdruck"}};
  if (what < 45) {
    for (int tries = 0; tries < 20; ++tries) {
      const auto& control = *chance_.oneOf(form.controls());
      switch (control.kind()) {
        case ControlKind::TDBList:
        case ControlKind::ComboBox:
        case ControlKind::zqCombo:
        case ControlKind::ListBox:
        case ControlKind::MSFlexGrid:
        case ControlKind::MSHFlexGrid:
          return {{"list", nameOf(control)}};
        default:
          break;
      }
    }
  }
  Json names = Json::array({"Form.ActiveControl"});
  const auto readAll = [&](const Control& control) {
    const Readable* const readable = readableOf(control);
    if (readable == nullptr) return;
    // A row and a cell that are there.
    if (control.kind() == ControlKind::ListBox && rowsOf(control) == 0) return;
    const auto* grid = dynamic_cast<const FlexGrid*>(&control);
    if (grid != nullptr && (grid->Row() >= grid->Rows() || grid->Col() >= grid->Cols())) return;
    for (const char* const property : readable->properties) {
      const std::string name = nameOf(control) + "." + property;
      if (std::ranges::find(names, Json(name)) == names.end()) names.push_back(name);
    }
  };
  if (const Control* const focused = form.ActiveControl()) readAll(*focused);
  for (int more = chance_.between(0, 4); more > 0; --more) {
    if (const Control* const control = anyControl()) readAll(*control);
  }
  return {{"get", names}};
}

}  // namespace zqn::parity
