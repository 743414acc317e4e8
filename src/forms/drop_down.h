// SPDX-License-Identifier: MIT
//
// What drop-downs share: entries, one of which is chosen or none, and the list of them that opens below the
// field. While it is open one entry is marked, and nothing is chosen until a click, Enter or Tab takes the
// marked one, which counts also when it stands already; Esc puts back what stood when the list was opened. A
// kind of drop-down is a control that derives from it:
//
//     class ComboBox : public Control, public DropDown { ... };
#pragma once

#include <optional>

#include "forms/keys.h"
#include "runtime/string.h"

namespace zqn {

class DropDown {
 public:
  virtual int ListCount() const = 0;
  /// Entry `index` from 0 as a person reads it; "" outside, without an error.
  virtual const String& List(int index) const = 0;
  /// The chosen entry, -1 for none.
  virtual int ListIndex() const = 0;

  // ---- for toolkits

  /// The list is open, and its marked entry, -1 for none.
  bool isOpen() const noexcept { return open_; }
  int markedEntry() const noexcept { return marked_; }
  /// Opens the list, unless it has no entries.
  void userOpened();
  void userClosed();
  /// The button of the field: opens the list, or closes it.
  void userToggled();
  /// The pointer or a screen reader goes to an entry of the open list.
  void userMarked(int index);
  /// A person takes an entry, from the open list or by keys, and the list closes. Nothing is chosen outside
  /// the entries.
  void userChose(int index);
  /// The closed field answers to this key by opening the list or choosing from it.
  bool isListKey(const KeyStroke& stroke) const;

 protected:
  ~DropDown() = default;
  /// What a field with an editor held when the list was opened.
  struct StandingText {
    String text;
    int anchor = 0, caret = 0;
  };

  /// A person may open the list now; a kind that fetches its entries fetches them here.
  virtual bool mayOpen() = 0;
  /// A person has chosen an entry that is there, perhaps the one that stands already: raises Click.
  virtual void choose(int index) = 0;
  /// The list opens: what stands now is remembered. Esc in the open list puts it back.
  virtual void rememberStanding() {}
  virtual void restoreStanding() {}
  /// Entries, choice or open list have changed: they are drawn anew.
  virtual void listChanged() = 0;
  /// A person edits a text beside the list: letters and caret keys belong to that.
  virtual bool hasEditor() const noexcept { return false; }

  /// A key while the list is open. True when the key is over.
  bool openListTakes(const KeyStroke& stroke);
  /// What the closed field makes of a key. True when it did something.
  bool closedListTakes(const KeyStroke& stroke);
  /// Closes the list without a word: its entries are gone.
  void dropList() noexcept;
  /// The marked entry follows what is typed.
  void markChosen();

 private:
  std::optional<int> entryFor(const KeyStroke& stroke, int from) const;
  int nextWithLetter(char16_t letter, int from) const;

  bool open_ = false;
  int marked_ = -1;
};

}  // namespace zqn
