// SPDX-License-Identifier: MIT
//
// The generic form over a catalogue of keys and texts, told a second time: rows in memory, a focus, two fields,
// four buttons, and what each action makes of them. It shares nothing with the form; a random walk through it
// gives a script and the transcript that the form must write.
//
//     GenericModel model(setting);
//     model.open();
//     model.clickNew();
//     model.look();          // adds a probe to the script and its values to the transcript
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "host/script/json_values.h"

namespace zqn::parity {

struct CatalogueSetting {
  std::string table, keyColumn, textColumn, caption, keyCaption;
  std::size_t textLength = 30;
  /// The key "-" is hidden and never written.
  bool reservesDash = false;
  bool allowsChanges = true;
  bool multiselect = false;
};

class GenericModel {
 public:
  using Json = script::Json;
  struct Row {
    std::string key;
    std::optional<std::string> text;
  };
  enum class Focus { List, Key, Text, Ok, Cancel, New, Delete };

  GenericModel(CatalogueSetting setting, std::vector<Row> rows, std::string key);

  const std::vector<std::string>& script() const noexcept { return script_; }
  const std::vector<Json>& transcript() const noexcept { return transcript_; }
  /// What Show must return.
  const std::string& returned() const noexcept { return returned_; }

  bool isOpen() const noexcept { return open_; }
  bool isAsking() const noexcept { return box_ != Box::None; }
  Focus focus() const noexcept { return focus_; }
  int listedRows() const noexcept { return static_cast<int>(list_.size()); }
  int markedRow() const noexcept { return marked_; }
  const std::vector<Row>& rows() const noexcept { return rows_; }
  bool isMarked(const std::string& key) const;
  /// Rows of the list that somebody has deleted since it was read.
  bool hasGoneRows() const;
  /// A pick leaves the form open.
  bool staysOnPick() const noexcept { return setting_.multiselect; }

  // ---- what the host and the clerk do

  void open();
  void answer(bool yes);
  void clickField(Focus field);
  void clickButton(Focus button);
  void selectRow(int row);
  void doubleClickRow(int row);
  /// Plain characters, into a field.
  void type(const std::string& text);
  void pressBackspace();
  void pressTab(bool back);
  void pressEnter();
  void pressSpace();
  /// Up, Down, Home, End on the list; to another row.
  void pressOnList(const std::string& key);
  void pressDeleteOnList(bool byLetter);
  void pressNewKey();
  void pressSaveKey();
  void pressCloseKey(const std::string& key);
  void closeBox();

  // ---- other users, and a database that fails

  void othersInsert(const Row& row);
  void othersDelete(const std::string& key);
  void othersRename(const std::string& key, const std::string& text);
  void nextUpdateFails();

  // ---- probes

  void look();
  void lookAtList();
  void lookAtTable();

  /// What of it can be said beforehand: the clerk's own guess is as good.
  bool canType() const;
  bool canPress(Focus button) const;

 private:
  enum class Box { None, Rights, Question };
  struct Field {
    std::string text;
    std::size_t limit;
    bool allSelected = false;
    /// Code has put something in while the clerk was there.
    bool caretUnknown = false;
  };

  void say(Json action) { script_.push_back(action.dump()); }
  void expect(Json line) { transcript_.push_back(std::move(line)); }
  void sayInsert(const Row& row);
  void refuse(const Json& action, const std::string& reason);
  Row* find(const std::string& key);
  bool isStored(const std::string& key) const;
  Field* field();
  bool enabled(Focus control) const;
  void assign(Field& field, const std::string& text);
  void moveFocus(Focus to);
  void leaveByHand();
  /// False when the list is disabled.
  bool pressRow(const char* gesture, int row);
  void initData();
  void loadRecord();
  void findKey();
  void updateOk();
  void updateListState();
  void requery();
  void bookmark(int row);
  void rowColChange();
  int listedRow(const std::string& key) const;
  std::string listText() const;
  void pick();
  void tellMissingRights(const std::string& doing);
  void save();
  void remove();
  void removeAnswered();
  void startNew();
  void press(Focus button);
  void end();

  CatalogueSetting setting_;
  std::vector<Row> rows_;
  std::string key_;
  std::vector<std::string> script_;
  std::vector<Json> transcript_;
  std::string returned_;

  bool open_ = false;
  Box box_ = Box::None;
  Focus focus_ = Focus::List;
  Field keyField_{.text = {}, .limit = 15}, textField_;
  bool okEnabled_ = true, deleteEnabled_ = true, listEnabled_ = true;
  std::vector<std::string> list_;
  int marked_ = -1;
  /// No RowColChange has come since the binding.
  bool unannounced_ = false;
  bool updateFails_ = false;
};

}  // namespace zqn::parity
