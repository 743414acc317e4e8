// SPDX-License-Identifier: MIT
#include "parity/generic_model.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace zqn::parity {

namespace {

using Focus = GenericModel::Focus;

constexpr std::array names{"tdblShow", "txtKey", "txtKeyText", "cmdOK", "cmdCancel", "cmdNew", "cmdDelete"};

std::string nameOf(Focus control) { return names[static_cast<std::size_t>(control)]; }

std::string upper(std::string text) {
  for (char& letter : text) letter = static_cast<char>(std::toupper(static_cast<unsigned char>(letter)));
  return text;
}

/// Case and trailing blanks do not count; keys here are plain letters, digits and blanks.
std::string folded(std::string text) {
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return upper(std::move(text));
}

bool same(const std::string& left, const std::string& right) { return folded(left) == folded(right); }

bool isBlank(const std::string& text) { return text.find_first_not_of(' ') == std::string::npos; }

std::string literal(const std::string& text) { return "'" + text + "'"; }

}  // namespace

GenericModel::GenericModel(CatalogueSetting setting, std::vector<Row> rows, std::string key)
    : setting_(std::move(setting)),
      rows_(std::move(rows)),
      key_(std::move(key)),
      textField_{.text = {}, .limit = setting_.textLength} {
  say({{"exec", "DELETE FROM " + setting_.table}});
  for (const Row& row : rows_) sayInsert(row);
}

void GenericModel::sayInsert(const Row& row) {
  say({{"exec", "INSERT INTO " + setting_.table + " (" + setting_.keyColumn + ", " + setting_.textColumn +
                    ") VALUES (" + literal(row.key) + ", " + (row.text ? literal(*row.text) : "NULL") +
                    ")"}});
}

// ---- rows

GenericModel::Row* GenericModel::find(const std::string& key) {
  const auto found = std::ranges::find_if(rows_, [&](const Row& row) { return same(row.key, key); });
  return found != rows_.end() ? &*found : nullptr;
}

bool GenericModel::isStored(const std::string& key) const {
  return std::ranges::any_of(rows_, [&](const Row& row) { return same(row.key, key); });
}

int GenericModel::listedRow(const std::string& key) const {
  const auto found = std::ranges::find_if(list_, [&](const std::string& each) { return same(each, key); });
  return found != list_.end() && isStored(key) ? static_cast<int>(found - list_.begin()) : -1;
}

/// The list's text: the key of the marked row, nothing for one that is gone.
std::string GenericModel::listText() const {
  if (marked_ < 0) return "";
  const std::string& key = list_[static_cast<std::size_t>(marked_)];
  return isStored(key) ? key : "";
}

bool GenericModel::isMarked(const std::string& key) const {
  return marked_ >= 0 && same(list_[static_cast<std::size_t>(marked_)], key);
}

bool GenericModel::hasGoneRows() const {
  return !std::ranges::all_of(list_, [&](const std::string& key) { return isStored(key); });
}

void GenericModel::requery() {
  list_.clear();
  for (const Row& row : rows_)
    if (!setting_.reservesDash || row.key != "-") list_.push_back(row.key);
  std::ranges::sort(list_, {}, folded);
  marked_ = list_.empty() ? -1 : 0;
  unannounced_ = true;
}

// ---- steps of the form

void GenericModel::assign(Field& field, const std::string& text) {
  const bool hasFocus = this->field() == &field;
  if (hasFocus && field.text != text) field.caretUnknown = true;
  field.text = text;
  if (hasFocus) field.allSelected = false;
}

void GenericModel::initData() { assign(textField_, ""); }

void GenericModel::loadRecord() {
  const Row* const row = find(keyField_.text);
  if (row == nullptr) return initData();
  const std::string text = row->text.value_or("");
  assign(keyField_, row->key);
  assign(textField_, text);
}

void GenericModel::rowColChange() {
  unannounced_ = false;
  const std::string text = listText();
  if (!isBlank(text)) {
    deleteEnabled_ = true;
    assign(keyField_, text);
    loadRecord();
  }
  updateOk();
}

void GenericModel::bookmark(int row) {
  const bool raises = unannounced_ || row != marked_;
  marked_ = row;
  if (raises) rowColChange();
}

void GenericModel::findKey() {
  const int row = listedRow(keyField_.text);
  if (row >= 0) bookmark(row);
  loadRecord();
}

void GenericModel::updateOk() { okEnabled_ = !isBlank(keyField_.text); }

void GenericModel::updateListState() {
  deleteEnabled_ = listEnabled_ = !list_.empty();
  if (list_.empty()) moveFocus(Focus::Key);
}

// ---- focus

GenericModel::Field* GenericModel::field() {
  if (focus_ == Focus::Key) return &keyField_;
  if (focus_ == Focus::Text) return &textField_;
  return nullptr;
}

bool GenericModel::enabled(Focus control) const {
  switch (control) {
    case Focus::List:
      return listEnabled_;
    case Focus::Ok:
      return okEnabled_;
    case Focus::Delete:
      return deleteEnabled_;
    default:
      return true;
  }
}

void GenericModel::moveFocus(Focus to) {
  if (!enabled(to) || focus_ == to) return;
  focus_ = to;
  if (Field* const entered = field()) {
    entered->allSelected = true;
    entered->caretUnknown = false;
  }
}

void GenericModel::leaveByHand() {
  if (focus_ != Focus::Key) return;
  findKey();
  updateOk();
}

bool GenericModel::canType() const {
  if (focus_ == Focus::Key) return !keyField_.caretUnknown;
  return focus_ == Focus::Text && !textField_.caretUnknown;
}

bool GenericModel::canPress(Focus button) const {
  // Leaving the key field would take the button away under the finger.
  return !(button == Focus::Ok && focus_ == Focus::Key && isBlank(keyField_.text));
}

void GenericModel::refuse(const Json& action, const std::string& reason) {
  expect({{"refused", reason}, {"action", action}});
}

// ---- commands

void GenericModel::pick() {
  const std::string text = listText();
  if (isBlank(text)) return;
  deleteEnabled_ = true;
  assign(keyField_, text);
  loadRecord();
  key_ = keyField_.text;
  if (!setting_.multiselect) return end();
  expect({{"event", "DblClick"}, {"result", key_}});
}

void GenericModel::tellMissingRights(const std::string& doing) {
  box_ = Box::Rights;
  const Json box{
      {"text", "Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu " + doing + "."},
      {"title", "TALVEX Software"},
      {"buttons", "okonly"},
      {"icon", "information"},
      {"default", 1}};
  expect({{"msgbox", box}});
}

void GenericModel::save() {
  if (isBlank(keyField_.text)) return;
  if (!setting_.allowsChanges) return tellMissingRights("speichern");
  if (!(setting_.reservesDash && keyField_.text == "-")) {
    const std::optional<std::string> text =
        textField_.text.empty() ? std::nullopt : std::optional(textField_.text);
    if (!std::exchange(updateFails_, false)) {
      if (Row* const row = find(keyField_.text)) {
        row->text = text;
      } else {
        rows_.push_back({keyField_.text, text});
      }
    }
  }
  key_ = keyField_.text;
  requery();
  if (const int row = listedRow(keyField_.text); row >= 0) bookmark(row);
  moveFocus(Focus::List);
  if (list_.size() == 1) updateListState();
}

void GenericModel::remove() {
  if (!setting_.allowsChanges) return tellMissingRights("löschen");
  box_ = Box::Question;
  const Json box{{"text", "Datensatz löschen?"},
                 {"title", "Abfrage"},
                 {"buttons", "yesno"},
                 {"icon", "question"},
                 {"default", 1}};
  expect({{"msgbox", box}});
}

void GenericModel::removeAnswered() {
  const std::string key = listText();
  std::erase_if(rows_, [&](const Row& row) { return same(row.key, key); });
  requery();
  if (list_.empty()) {
    assign(keyField_, "");
    initData();
  } else {
    bookmark(0);
    moveFocus(Focus::List);
  }
  updateListState();
}

void GenericModel::startNew() {
  initData();
  moveFocus(Focus::Key);
  keyField_ = {.text = {}, .limit = keyField_.limit};
  updateOk();
}

void GenericModel::press(Focus button) {
  switch (button) {
    case Focus::Ok:
      return save();
    case Focus::Cancel:
      return end();
    case Focus::New:
      return startNew();
    default:
      return remove();
  }
}

void GenericModel::end() {
  open_ = false;
  returned_ = key_;
  expect({{"closed", "frmDialog"}});
}

// ---- actions

void GenericModel::open() {
  open_ = true;
  returned_ = key_;
  focus_ = Focus::Cancel;  // no field yet
  requery();
  keyField_.text = key_;
  findKey();
  updateOk();
  expect({{"shown", "frmDialog"}, {"caption", setting_.caption}});
  focus_ = Focus::List;
  updateListState();
  if (upper(keyField_.text) != upper(listText())) {
    deleteEnabled_ = false;
    moveFocus(Focus::Key);
  } else {
    moveFocus(Focus::List);
  }
}

void GenericModel::answer(bool yes) {
  const Box box = std::exchange(box_, Box::None);
  say({{"answer", box == Box::Rights ? "ok" : yes ? "yes" : "no"}});
  if (box == Box::Question && yes) removeAnswered();
}

void GenericModel::clickField(Focus target) {
  say({{"focus", nameOf(target)}});
  if (focus_ != target) {
    leaveByHand();
    return moveFocus(target);
  }
  Field& there = *field();
  there.allSelected = false;
  there.caretUnknown = false;
}

void GenericModel::clickButton(Focus button) {
  const Json action{{"click", nameOf(button)}};
  say(action);
  if (!enabled(button)) return refuse(action, nameOf(button) + " is disabled");
  leaveByHand();
  moveFocus(button);
  press(button);
}

bool GenericModel::pressRow(const char* gesture, int row) {
  const Json action{{gesture, "tdblShow"}, {"row", row}};
  say(action);
  if (!listEnabled_) {
    refuse(action, "tdblShow is disabled");
    return false;
  }
  leaveByHand();
  moveFocus(Focus::List);
  bookmark(row);
  return true;
}

void GenericModel::selectRow(int row) { pressRow("select", row); }

void GenericModel::doubleClickRow(int row) {
  if (pressRow("dblclick", row)) pick();
}

void GenericModel::type(const std::string& text) {
  say({{"type", text}});
  Field& there = *field();
  if (there.allSelected && !text.empty()) there.text.clear();
  there.allSelected = false;
  there.text += text.substr(0, there.limit - std::min(there.limit, there.text.size()));
}

void GenericModel::pressBackspace() {
  say({{"key", "Backspace"}});
  Field& there = *field();
  if (there.allSelected) {
    there.text.clear();
  } else if (!there.text.empty()) {
    there.text.pop_back();
  }
  there.allSelected = false;
}

void GenericModel::pressTab(bool back) {
  say(back ? Json{{"key", "Tab"}, {"shift", 1}} : Json{{"key", "Tab"}});
  leaveByHand();
  int next = static_cast<int>(focus_);
  do {
    next = (next + (back ? 6 : 1)) % 7;
  } while (!enabled(static_cast<Focus>(next)));
  moveFocus(static_cast<Focus>(next));
}

void GenericModel::pressEnter() {
  if (focus_ == Focus::List) {
    say({{"key", "Enter"}});
    return pick();
  }
  if (focus_ != Focus::Key && focus_ != Focus::Text) {
    say({{"key", "Enter"}});
    return press(focus_);
  }
  pressTab(false);
  script_.back() = Json{{"key", "Enter"}}.dump();
}

void GenericModel::pressSpace() {
  say({{"key", "Space"}});
  press(focus_);
}

void GenericModel::pressOnList(const std::string& key) {
  say({{"key", key}});
  const int last = listedRows() - 1;
  const int row = key == "Up" ? marked_ - 1 : key == "Down" ? marked_ + 1 : key == "Home" ? 0 : last;
  bookmark(std::clamp(row, 0, last));
}

void GenericModel::pressDeleteOnList(bool byLetter) {
  say(byLetter ? Json{{"key", "l"}, {"shift", 2}} : Json{{"key", "Delete"}});
  remove();
}

void GenericModel::pressNewKey() {
  say({{"key", "F6"}});
  startNew();
}

void GenericModel::pressSaveKey() {
  say({{"key", "F9"}});
  return focus_ == Focus::List ? pick() : save();
}

void GenericModel::pressCloseKey(const std::string& key) {
  say({{"key", key}});
  end();
}

void GenericModel::closeBox() {
  say({{"close", true}});
  end();
}

// ---- others

void GenericModel::othersInsert(const Row& row) {
  if (find(row.key) != nullptr) return;
  sayInsert(row);
  rows_.push_back(row);
}

void GenericModel::othersDelete(const std::string& key) {
  say({{"exec", "DELETE FROM " + setting_.table + " WHERE " + setting_.keyColumn + "=" + literal(key)}});
  std::erase_if(rows_, [&](const Row& row) { return same(row.key, key); });
}

void GenericModel::othersRename(const std::string& key, const std::string& text) {
  say({{"exec", "UPDATE " + setting_.table + " SET " + setting_.textColumn + "=" + literal(text) + " WHERE " +
                    setting_.keyColumn + "=" + literal(key)}});
  if (Row* const row = find(key)) row->text = text;
}

void GenericModel::nextUpdateFails() {
  say({{"fail", {{"operation", "Update"}, {"match", setting_.table}, {"number", -2147217900}}}});
  updateFails_ = true;
}

// ---- probes

void GenericModel::look() {
  say({{"get",
        {"Form.ActiveControl", "txtKey.Text", "txtKeyText.Text", "cmdOK.Enabled", "cmdDelete.Enabled",
         "tdblShow.Enabled", "tdblShow.Row", "tdblShow.Text"}}});
  const Json values{{"Form.ActiveControl", nameOf(focus_)},
                    {"txtKey.Text", keyField_.text},
                    {"txtKeyText.Text", textField_.text},
                    {"cmdOK.Enabled", okEnabled_},
                    {"cmdDelete.Enabled", deleteEnabled_},
                    {"tdblShow.Enabled", listEnabled_},
                    {"tdblShow.Row", marked_},
                    {"tdblShow.Text", listText()}};
  expect({{"values", values}});
}

void GenericModel::lookAtList() {
  say({{"list", "tdblShow"}});
  Json rows = Json::array();
  for (const std::string& key : list_) {
    const Row* const row = find(key);
    rows.push_back(row != nullptr ? Json::array({row->key, row->text.value_or("")}) : Json::array({"", ""}));
  }
  expect({{"list", "tdblShow"},
          {"columns", Json::array({setting_.keyCaption, "Bezeichnung"})},
          {"rows", rows},
          {"row", marked_}});
}

void GenericModel::lookAtTable() {
  say({{"sql", "SELECT " + setting_.keyColumn + ", " + setting_.textColumn + " FROM " + setting_.table +
                   " ORDER BY " + setting_.keyColumn}});
  std::vector<Row> sorted = rows_;
  std::ranges::sort(sorted, {}, [](const Row& row) { return folded(row.key); });
  Json rows = Json::array();
  for (const Row& row : sorted)
    rows.push_back(Json::array({Json(row.key), row.text ? Json(*row.text) : Json(nullptr)}));
  expect({{"rows", rows}});
}

}  // namespace zqn::parity
