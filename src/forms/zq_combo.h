// SPDX-License-Identifier: MIT
//
// A drop-down over the keys of a catalogue, each with its text: "30 Besuch vereinbart". `Value` is the key.
// The entries come from the control's own Connection once they are needed, and anew whenever the list opens.
// Which ones, the design says by `rowsourcetype`: 2 sales statuses, 4 address origins, 7 payment terms, 9
// price lists; a reserved key "-" is not among them.
//
//     VertriebsStatus.Connection(connection);
//     VertriebsStatus.Value(u"30");
//
// With `allowedit` a person may type: the front of an entry, or of its text, is completed. Value follows each
// key and is always the entry that the present text says; while it says none, Value is what it was when the
// focus came. Without `allowedit` a letter leads to the next entry that begins with it.
#pragma once

#include <vector>

#include "ado/connection.h"
#include "forms/drop_down.h"
#include "forms/value_entry.h"
#include "runtime/ref.h"

namespace zqn {

class zqCombo : public ValueEntry, public DropDown {
 public:
  zqCombo(Form& form, const ControlDesign& design, int tabIndex);

  /// Where the entries come from; Nothing, or a query that fails, gives none.
  const Ref<ado::Connection>& Connection() const noexcept { return connection_; }
  void Connection(Ref<ado::Connection> connection);

  using ValueEntry::Value;
  /// A key, or Null for none. One that is not offered is kept as it is, and shown. Raises ValueChange when it
  /// differs, and no Click.
  void Value(const Variant& value) { assignValue(value); }

  /// A person can use the control when either is True; EntryEnabled is False at first. To everybody else the
  /// control is enabled then.
  bool Enabled() const noexcept { return enabledMember_; }
  bool EntryEnabled() const noexcept { return entryEnabled_; }
  void Enabled(bool enabled);
  void EntryEnabled(bool enabled);

  /// How many entries the open list shows at once.
  int maxrows() const noexcept { return design().other.maxrows; }
  /// A person may type into the field.
  bool allowedit() const noexcept { return design().other.allowedit; }

  // Click: a person has chosen an entry. From the open list that counts also when it was chosen already.

  // ---- the entries as they were last read

  int ListCount() const override { return static_cast<int>(entries_.size()); }
  /// "30 Besuch vereinbart".
  const String& List(int index) const override { return entry(index).line; }
  int ListIndex() const override { return entryOf(Value()); }
  /// "30" and "Besuch vereinbart"; "" outside.
  const String& keyOf(int index) const { return entry(index).key; }
  const String& textOf(int index) const { return entry(index).text; }
  /// Reads the entries anew, unless the list is open.
  void readEntries();

  // ---- for toolkits

  bool isReadOnly() const noexcept override { return !allowedit(); }
  bool hasCaret() const noexcept override { return allowedit(); }
  bool takesKeyFirst(const KeyStroke& stroke) override { return openListTakes(stroke); }
  bool ownKey(const KeyStroke& stroke) override;
  /// Opens the list of a field without an editor; otherwise a click sets the caret.
  void clicked() override;
  void focusLeft() override;
  /// Blanks around it stay: a key, or a text, may have them.
  String pastedAs(StringView text) const override;

 protected:
  bool mayOpen() override;
  void choose(int index) override;
  void rememberStanding() override;
  void restoreStanding() override;
  void listChanged() override { changed(); }
  bool hasEditor() const noexcept override { return allowedit(); }
  void complete(TextState& next) const override;
  void took(const std::optional<Variant>& typed) override;
  String displayText() const override;
  String editText() const override { return displayText(); }
  std::optional<Variant> read(StringView typed) const override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  struct Entry {
    String key, text, line;
  };

  const Entry& entry(int index) const;
  void needEntries() const;
  int entryOf(const Variant& value) const;
  /// The entry, or the text of one, that begins so; "" for none.
  StringView completionOf(StringView front) const;

  Ref<ado::Connection> connection_;
  /// Read when they are first needed.
  mutable std::vector<Entry> entries_;
  mutable bool entriesKnown_ = false;
  /// The field when the list was opened.
  StandingText standing_;
  Variant standingValue_;
  bool enabledMember_;
  bool entryEnabled_ = false;
};

}  // namespace zqn
