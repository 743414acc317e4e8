// SPDX-License-Identifier: MIT
#include <algorithm>
#include <array>
#include <chrono>
#include <utility>

#include "forms/drop_down.h"
#include "forms/flex_grid.h"
#include "host/script/control_traits.h"
#include "host/script/key_names.h"
#include "host/script/line_functions.h"
#include "host/script/script_error.h"

namespace zqn::script::user {

namespace {

constexpr std::array<std::pair<const char*, MsgBoxResult>, 4> answers{{{"ok", MsgBoxResult::OK},
                                                                       {"yes", MsgBoxResult::Yes},
                                                                       {"no", MsgBoxResult::No},
                                                                       {"cancel", MsgBoxResult::Cancel}}};

struct MouseEvent {
  std::string_view name;
  void (Gestures::*act)(const MouseTarget&);
};
constexpr std::array<MouseEvent, 4> mouseEvents{{{"down", &Gestures::mouseDown},
                                                 {"up", &Gestures::mouseUp},
                                                 {"click", &Gestures::click},
                                                 {"dblclick", &Gestures::doubleClick}}};

std::string describe(const Control& control) { return nameOf(control) + " is a " + kindOf(control); }

/// The first column of a grid that is no heading and can be seen.
int freeColumn(const FlexGrid& grid) {
  int col = std::min(grid.FixedCols(), grid.Cols() - 1);
  while (col + 1 < grid.Cols() && grid.ColWidth(col) <= 0) ++col;
  return col;
}

/// A row of a control that a person can click on.
MouseTarget rowTarget(const LineContext& context, const std::string& name, int row) {
  Control& control = context.usableControl(name);
  const RowAccess* rows = traitsOf(control).rows;
  if (rows == nullptr || rows->inDropDown) throw Refusal(describe(control) + " and has no rows to click on");
  if (!rows->hasRow(control, row)) throw Refusal(nameOf(control) + " has no row " + std::to_string(row));
  const auto* grid = dynamic_cast<const FlexGrid*>(&control);
  return {control, row, grid != nullptr ? freeColumn(*grid) : -1};
}

MouseTarget targetOf(Control& control) {
  const auto* grid = dynamic_cast<const FlexGrid*>(&control);
  if (grid != nullptr && grid->Rows() > 0)
    return {control, std::max(grid->Row(), std::min(grid->FixedRows(), grid->Rows() - 1)), freeColumn(*grid)};
  const RowAccess* rows = traitsOf(control).rows;
  if (rows == nullptr || rows->inDropDown) return {control};
  // Where no row is marked, a click into a list falls on the first one.
  const int marked = rows->markedRow(control);
  return {control, marked < 0 && rows->hasRow(control, 0) ? 0 : marked};
}

/// A cell of a grid, or a place beside its cells, that a person can point at.
MouseTarget cellTarget(FlexGrid& grid, int row, int col) {
  if (row < -1 || row >= grid.Rows()) throw Refusal(nameOf(grid) + " has no row " + std::to_string(row));
  if (col < -1 || col >= grid.Cols()) throw Refusal(nameOf(grid) + " has no column " + std::to_string(col));
  if (col >= 0 && grid.ColWidth(col) <= 0)
    throw Refusal("column " + std::to_string(col) + " of " + nameOf(grid) + " is hidden");
  if (row >= 0 && grid.RowHeight(row) <= 0)
    throw Refusal("row " + std::to_string(row) + " of " + nameOf(grid) + " is hidden");
  const FlexGridLayout place = grid.layout();
  if ((row < 0 && !place.yOf(row)) || (col < 0 && !place.xOf(col)))
    throw Refusal(nameOf(grid) + " shows no place beside its cells");
  return {grid, row, col};
}

FlexGrid& usableGrid(const LineContext& context, const std::string& name) {
  Control& control = context.usableControl(name);
  auto* grid = dynamic_cast<FlexGrid*>(&control);
  if (grid == nullptr) throw Refusal(describe(control) + ", which is no grid");
  return *grid;
}

/// [row, column].
std::pair<int, int> cellOf(const Arguments& line, const char* member) {
  const Json& cell = line.any(member);
  const bool isPair = cell.is_array() && cell.size() == 2;
  const auto row = isPair ? wholeNumberIn(cell[0]) : std::nullopt;
  const auto col = isPair ? wholeNumberIn(cell[1]) : std::nullopt;
  if (!row || !col) throw ScriptError(std::string("\"") + member + "\" must be [row, column]");
  return {*row, *col};
}

/// Takes an entry of a drop-down by its number or its text.
void selectEntry(const LineContext& context, const Arguments& line) {
  const int index = line.wholeNumber("index", std::int32_t{-1});
  const std::string text = line.text("text", "");
  Control& control = context.usableControl(line.text("select"));
  const RowAccess* rows = traitsOf(control).rows;
  if (rows == nullptr || !rows->inDropDown) throw Refusal(describe(control) + ", which is no drop-down");
  const int entry = line.has("index") ? index : rows->rowOfText(control, fromUtf8(text));
  if (!rows->hasRow(control, entry))
    throw Refusal(nameOf(control) + " has no entry " + line.any(line.has("index") ? "index" : "text").dump());
  context.input.takeEntry(control, entry);
}

/// Leaves exactly these rows of a list selected: a click on the first, and one with Ctrl on each other.
void selectRows(const LineContext& context, const Arguments& line) {
  const std::vector<int> rows = line.wholeNumbers("rows");
  const std::string name = line.text("select");
  Control& control = context.usableControl(name);
  if (control.kind() != ControlKind::ListBox)
    throw Refusal(describe(control) + ", which takes no several rows");
  for (const int row : rows) rowTarget(context, name, row);
  if (rows.empty()) {
    // A click selects one row alone, a second one with Ctrl takes it out.
    if (!traitsOf(control).rows->hasRow(control, 0)) return;
    context.gestures.click({.control = control, .row = 0});
    return context.gestures.click({.control = control, .row = 0, .shift = shift::Ctrl});
  }
  for (const int row : rows) {
    const int held = row == rows.front() ? shift::None : shift::Ctrl;
    context.gestures.click({.control = control, .row = row, .shift = held});
  }
}

}  // namespace

void click(const LineContext& context, const Arguments& line) {
  context.gestures.click(targetOf(context.usableControl(line.text("click"))));
}

void focus(const LineContext& context, const Arguments& line) {
  Control& control = context.usableControl(line.text("focus"));
  if (!traitsOf(control).entry) throw Refusal(describe(control) + ", which is no entry control");
  context.gestures.click(targetOf(control));
  // A click opens a drop-down; another one closes it again.
  const auto* drop = dynamic_cast<const DropDown*>(&control);
  if (drop != nullptr && drop->isOpen()) context.gestures.click(targetOf(control));
}

void type(const LineContext& context, const Arguments& line) {
  const std::string text = line.text("type");
  context.gestures.type(context.usableForm(), keysThatType(fromUtf8(text)));
}

void key(const LineContext& context, const Arguments& line) {
  const std::string name = line.text("key");
  const int shift = line.has("shift") ? line.wholeNumber("shift", 0, 7) : 0;
  const std::optional<Key> key = keyOfName(name, shift);
  if (!key) throw ScriptError("unknown key \"" + name + "\"; there is one character, " + keyNames());
  const bool overMenu =
      context.desktop.openPopupMenu() != nullptr && context.desktop.openMessageBox() == nullptr;
  if (overMenu && key->code == key::Escape) return context.input.closeMenu();
  context.gestures.press(context.usableForm(), *key);
}

void select(const LineContext& context, const Arguments& line) {
  if (line.has("row")) {
    const int row = line.wholeNumber("row");
    context.gestures.click(rowTarget(context, line.text("select"), row));
  } else if (line.has("index") || line.has("text")) {
    selectEntry(context, line);
  } else if (line.has("rows")) {
    selectRows(context, line);
  } else {
    throw ScriptError(R"("select" needs "row", "rows", "index" or "text")");
  }
}

void dblclick(const LineContext& context, const Arguments& line) {
  const int row = line.wholeNumber("row");
  context.gestures.doubleClick(rowTarget(context, line.text("dblclick"), row));
}

void mouse(const LineContext& context, const Arguments& line) {
  const std::string name = line.text("mouse");
  const int row = line.wholeNumber("row");
  const int col = line.wholeNumber("col");
  const int button = line.has("button") ? line.wholeNumber("button", 1, 2) : 1;
  const int held = line.has("shift") ? line.wholeNumber("shift", 0, 7) : shift::None;
  const std::string event = line.text("event", "click");
  const auto known = std::ranges::find(mouseEvents, event, &MouseEvent::name);
  if (known == mouseEvents.end())
    throw ScriptError("unknown event \"" + event + "\"; there is down, up, click, dblclick");
  MouseTarget target = cellTarget(usableGrid(context, name), row, col);
  target.button = button;
  target.shift = held;
  (context.gestures.*known->act)(target);
}

void drag(const LineContext& context, const Arguments& line) {
  const std::string name = line.text("drag");
  const auto from = cellOf(line, "from");
  const auto to = cellOf(line, "to");
  FlexGrid& grid = usableGrid(context, name);
  context.gestures.drag(cellTarget(grid, from.first, from.second), cellTarget(grid, to.first, to.second));
}

void menu(const LineContext& context, const Arguments& line) {
  const std::string name = line.text("menu");
  const Menu* open = context.desktop.openPopupMenu();
  if (open == nullptr) {
    context.usableForm();
    throw Refusal("no popup menu is open");
  }
  const std::vector<Menu*> items = open->items();
  const auto item = std::ranges::find_if(items, [&](const Menu* each) { return nameOf(*each) == name; });
  if (item == items.end()) throw Refusal("the popup menu has no item \"" + name + "\"");
  if (!(*item)->Enabled()) throw Refusal(name + " is disabled");
  context.input.takeItem(**item);
}

void close(const LineContext& context, const Arguments& line) {
  line.requireTrue("close");
  context.input.closeBox(context.usableForm());
}

void answer(const LineContext& context, const Arguments& line) {
  const std::string word = line.text("answer");
  const auto named = std::ranges::find_if(answers, [&](const auto& each) { return word == each.first; });
  const bool byDefault = word == "default";
  if (named == answers.end() && !byDefault)
    throw ScriptError("unknown answer \"" + word + "\"; there is ok, yes, no, cancel, default");
  const MessageBox* box = context.desktop.openMessageBox();
  if (box == nullptr) throw Refusal("no message box is open");
  const std::vector<MsgBoxResult> buttons = box->buttons();
  const auto button =
      byDefault ? buttons.begin() + (box->defaultButton() - 1) : std::ranges::find(buttons, named->second);
  if (button == buttons.end()) throw Refusal("the message box has no button \"" + word + "\"");
  context.input.answer(*button);
}

void wait(const LineContext& context, const Arguments& line) {
  constexpr int hour = 3'600'000;
  const std::chrono::milliseconds time(line.wholeNumber("wait", 0, hour));
  context.form();
  context.gestures.rest(time);
}

}  // namespace zqn::script::user
