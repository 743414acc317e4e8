// SPDX-License-Identifier: MIT
#include "forms/zq_combo.h"

#include <algorithm>
#include <initializer_list>
#include <utility>

#include "ado/recordset.h"
#include "ado/unobserved.h"
#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

/// Key and text of each entry, in the order of the list.
struct Source {
  int rowsourcetype;
  StringView statement;
};

constexpr Source sources[] = {
    {2, u"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status<>'-' ORDER BY Status"},
    {4, u"SELECT Herkunft, Bezeichnung FROM Adressherkunft WHERE Herkunft<>'-' ORDER BY Herkunft"},
    {7, u"SELECT ZahlBedSchl, Kurztext FROM Zahlungsbedingungen ORDER BY ZahlBedSchl"},
    {9, u"SELECT Preisliste, Langtext FROM Preislistenkopf WHERE Preisliste<>'-' ORDER BY Preisliste"},
};

}  // namespace

zqCombo::zqCombo(Form& form, const ControlDesign& design, int tabIndex)
    : ValueEntry(form, design, tabIndex), enabledMember_(design.other.Enabled) {
  showValue();
}

void zqCombo::Connection(Ref<ado::Connection> connection) {
  connection_ = std::move(connection);
  entriesKnown_ = false;
  entries_.clear();
  userClosed();
  showValue();
}

void zqCombo::Enabled(bool enabled) {
  enabledMember_ = enabled;
  Control::Enabled(enabledMember_ || entryEnabled_);
}

void zqCombo::EntryEnabled(bool enabled) {
  entryEnabled_ = enabled;
  Control::Enabled(enabledMember_ || entryEnabled_);
}

// ---- entries

void zqCombo::needEntries() const {
  if (std::exchange(entriesKnown_, true)) return;
  entries_.clear();
  const auto* source = std::ranges::find(sources, design().other.rowsourcetype, &Source::rowsourcetype);
  if (connection_.isNothing() || source == std::end(sources)) return;
  try {
    const ado::Unobserved quiet(*connection_);
    ado::Recordset rs;
    rs.CursorLocation(ado::adUseClient);
    for (rs.Open(source->statement, connection_); !rs.IsEOF(); rs.MoveNext()) {
      Entry entry{concatenate(rs.Fields(0).Value()), concatenate(rs.Fields(1).Value()), {}};
      entry.line = entry.key;
      if (!entry.text.empty()) entry.line += u" " + entry.text;
      entries_.push_back(std::move(entry));
    }
  } catch (const RuntimeError&) {
    // Whoever opens the list sees that it has no entries; the value stands by itself.
    entries_.clear();
  }
}

void zqCombo::readEntries() {
  if (isOpen()) return;
  entriesKnown_ = false;
  needEntries();
}

bool zqCombo::mayOpen() {
  if (!isUsable()) return false;
  readEntries();
  return true;
}

const zqCombo::Entry& zqCombo::entry(int index) const {
  static const Entry none;
  return index >= 0 && index < ListCount() ? entries_[static_cast<std::size_t>(index)] : none;
}

int zqCombo::entryOf(const Variant& value) const {
  const String key = concatenate(value);
  if (Trim(key).empty()) return -1;
  needEntries();
  const auto found = std::ranges::find_if(
      entries_, [&](const Entry& entry) { return compareCollated(entry.key, key) == 0; });
  return found == entries_.end() ? -1 : static_cast<int>(found - entries_.begin());
}

String zqCombo::displayText() const {
  const int entry = entryOf(Value());
  return entry < 0 ? concatenate(Value()) : List(entry);
}

// ---- a person types

std::optional<Variant> zqCombo::read(StringView typed) const {
  if (typed.empty()) return Variant(Null);
  needEntries();
  for (const String Entry::*part : {&Entry::key, &Entry::line, &Entry::text}) {
    const auto found = std::ranges::find_if(
        entries_, [&](const Entry& entry) { return compareCollated(entry.*part, typed) == 0; });
    if (found != entries_.end()) return Variant(found->key);
  }
  return std::nullopt;
}

String zqCombo::pastedAs(StringView text) const { return withBreaks(text, u" "); }

StringView zqCombo::completionOf(StringView front) const {
  needEntries();
  for (const String Entry::*part : {&Entry::line, &Entry::text}) {
    const auto found = std::ranges::find_if(entries_, [&](const Entry& entry) {
      return sameName(StringView(entry.*part).substr(0, front.size()), front);
    });
    if (found != entries_.end()) return (*found).*part;
  }
  return {};
}

void zqCombo::complete(TextState& next) const {
  // Something was typed at the end; what is deleted is never brought back.
  const bool longer = next.text.size() > Text().size() - static_cast<std::size_t>(SelLength());
  const int size = static_cast<int>(next.text.size());
  if (!longer || next.anchor != size || next.caret != size) return;
  const StringView whole = completionOf(next.text);
  if (whole.empty()) return;
  next.text += whole.substr(next.text.size());
  next.caret = static_cast<int>(next.text.size());
}

void zqCombo::took(const std::optional<Variant>& typed) {
  const int before = ListIndex();
  ValueEntry::took(typed);
  markChosen();
  if (ListIndex() >= 0 && ListIndex() != before) Click.raise();
}

// ---- a person chooses

void zqCombo::choose(int index) {
  assignValue(Variant(keyOf(index)));
  if (form().ActiveControl() == this) selectAll();
  changed();
  Click.raise();
}

void zqCombo::rememberStanding() {
  standing_ = {Text(), anchor(), caret()};
  standingValue_ = Value();
}

void zqCombo::restoreStanding() {
  if (!allowedit()) return;
  assignText(standing_.text);
  if (Value() != standingValue_) assignValue(standingValue_);
  userSelected(standing_.anchor, standing_.caret);
}

bool zqCombo::ownKey(const KeyStroke& stroke) {
  needEntries();
  if (closedListTakes(stroke)) return true;
  // Without an editor there is still something to copy.
  const bool copies =
      stroke.shift == shift::Ctrl && (stroke.code == 'A' || stroke.code == 'C' || stroke.code == key::Insert);
  return (allowedit() || copies) && ValueEntry::ownKey(stroke);
}

void zqCombo::clicked() {
  if (!allowedit()) userToggled();
}

void zqCombo::focusLeft() {
  userClosed();
  ValueEntry::focusLeft();
}

// ---- automation

const PropertyEntry* zqCombo::findProperty(StringView name) const {
  static constexpr auto combo = [](const Control& c) -> const zqCombo& {
    return static_cast<const zqCombo&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return combo(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<zqCombo&>(c).Value(value); }},
      {u"Enabled", [](const Control& c) { return Variant(combo(c).Enabled()); },
       [](Control& c, const Variant& value) { static_cast<zqCombo&>(c).Enabled(CBool(value)); }},
      {u"EntryEnabled", [](const Control& c) { return Variant(combo(c).EntryEnabled()); },
       [](Control& c, const Variant& value) { static_cast<zqCombo&>(c).EntryEnabled(CBool(value)); }},
      {u"rowsourcetype",
       [](const Control& c) { return Variant(std::int32_t{c.design().other.rowsourcetype}); }, nullptr},
      {u"maxrows", [](const Control& c) { return Variant(std::int32_t{combo(c).maxrows()}); }, nullptr},
      {u"allowedit", [](const Control& c) { return Variant(combo(c).allowedit()); }, nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : ValueEntry::findProperty(name);
}

}  // namespace zqn
