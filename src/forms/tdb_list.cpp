// SPDX-License-Identifier: MIT
#include "forms/tdb_list.h"

#include <algorithm>

#include "forms/desktop.h"
#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

/// Rows that are made known in one go when the marked row comes to the end of what is known.
constexpr int fetchStep = 1000;
/// Rows that a search by typing looks at one by one, where the order of the list does not lead to the row.
constexpr int scannedRows = 2000;
/// Rows in a row that somebody else has deleted, and over which a search by typing looks for the next one.
constexpr int deletedRows = 64;
/// What the frame and the scroll bar take of the list's width, in twips.
constexpr int frameAndScrollBar = 330;

bool startsWith(StringView text, StringView prefix) {
  return text.size() >= prefix.size() && compareCollated(text.substr(0, prefix.size()), prefix) == 0;
}

}  // namespace

// ---- columns

void TDBList::Column::Caption(StringView caption) {
  caption_ = caption;
  list_->changed();
}

Variant TDBList::Column::Value() const {
  if (list_->row_ < 0) return {};
  return list_->marked().at(static_cast<std::size_t>(ordinal_));
}

void TDBList::Column::Visible(bool visible) {
  visible_ = visible;
  list_->changed();
}

void TDBList::Column::Width(int twips) {
  width_ = twips;
  list_->changed();
}

TDBList::TDBList(Form& form, const ControlDesign& design, int tabIndex) : Control(form, design, tabIndex) {}

TDBList::~TDBList() {
  if (!source_.isNothing()) source_->removeWatcher(*this);
}

TDBList::Column& TDBList::Columns(int index) {
  requireColumn(index);
  return columns_[static_cast<std::size_t>(index)];
}

const TDBList::Column& TDBList::Columns(int index) const {
  requireColumn(index);
  return columns_[static_cast<std::size_t>(index)];
}

void TDBList::requireColumn(int index) const {
  if (index < 0 || index >= columnCount()) throw RuntimeError(error::SubscriptOutOfRange);
}

TDBList::Split TDBList::Splits(int index) {
  if (index != 0) throw RuntimeError(error::SubscriptOutOfRange);
  return Split(*this);
}

void TDBList::ColumnHeaders(bool show) {
  columnHeaders_ = show;
  changed();
}

void TDBList::HighlightRowStyle(RowStyle style) {
  highlight_ = style;
  changed();
}

int TDBList::drawnWidth(int column) const {
  const Column& wanted = columns_.at(static_cast<std::size_t>(column));
  int used = 0;
  int last = -1;
  for (int i = 0; i < columnCount(); ++i) {
    const Column& each = columns_[static_cast<std::size_t>(i)];
    if (!each.visible_ || each.width_ <= 0) continue;
    used += each.width_;
    last = i;
  }
  if (column != last) return wanted.visible_ ? wanted.width_ : 0;
  return std::max(wanted.width_, Width() - frameAndScrollBar - (used - wanted.width_));
}

// ---- binding

void TDBList::DataSource(Ref<ado::Recordset> source) {
  if (!source_.isNothing()) source_->removeWatcher(*this);
  source_ = std::move(source);
  if (!source_.isNothing()) source_->addWatcher(*this);
  const bool open = isOpen();
  if (!holdFields_ || columns_.empty()) {
    columns_.clear();
    const int fields = open ? source_->Fields().Count() : 0;
    for (int i = 0; i < fields; ++i) columns_.push_back(Column(*this, i, source_->Fields(i).Name()));
  }
  if (open && knownRows() == 0) source_->fetchKeys(rowsPerPage());
  place(hasRows() ? 0 : -1);
  unannounced_ = true;
  typed_.clear();
  ++bindings_;
  changed();
}

void TDBList::rowsReplaced() noexcept {
  place(-1);
  typed_.clear();
  ++bindings_;
  changed();
}

void TDBList::ReBind() {
  const Ref<ado::Recordset> source = source_;
  DataSource(source);
  holdFields_ = false;
}

bool TDBList::isOpen() const { return !source_.isNothing() && source_->State() != ado::adStateClosed; }

bool TDBList::hasRows() const { return knownRows() > 0; }

int TDBList::knownRows() const { return source_.isNothing() ? 0 : source_->knownRows(); }

bool TDBList::rowsComplete() const { return source_.isNothing() || source_->rowsComplete(); }

void TDBList::fetchRows(int atMost) {
  if (source_.isNothing() || source_->rowsComplete()) return;
  source_->fetchKeys(atMost);
  changed();
}

String TDBList::cellText(int row, int column) const {
  try {
    if (row != row_ || row_ < 0) return source_->rowText(row, column);
    return concatenate(marked().at(static_cast<std::size_t>(column)));
  } catch (const RuntimeError&) {
    return {};
  }
}

std::vector<String> TDBList::rowTextsNow(int row) const {
  std::vector<String> texts;
  if (row < 0) return texts;
  try {
    for (const Variant& value : source_->readRow(row)) texts.push_back(concatenate(value));
  } catch (const RuntimeError&) {
    texts.clear();
  }
  return texts;
}

String TDBList::Text() const { return row_ < 0 ? String() : cellText(row_, 0); }

int TDBList::rowsPerPage() const noexcept {
  const int rows = (Height() - (columnHeaders_ ? headerHeight : 0)) / rowHeight;
  return std::max(rows, 1);
}

// ---- the marked row

Variant TDBList::Bookmark() const { return row_ < 0 ? Variant() : source_->bookmarkOf(row_); }

void TDBList::Bookmark(const Variant& bookmark) {
  const int row = source_->rowOf(bookmark);
  source_->Bookmark(bookmark);
  mark(row, unannounced_ || row != row_);
}

const TDBList::RowValues& TDBList::marked() const {
  if (!marked_) {
    RowValues values;
    const int fields = source_->Fields().Count();
    for (int i = 0; i < fields; ++i) values.push_back(source_->rowValue(row_, i));
    marked_ = std::move(values);
  }
  return *marked_;
}

void TDBList::place(int row) noexcept {
  row_ = row;
  marked_.reset();
  if (row < 0) return;
  try {
    marked();
  } catch (const RuntimeError&) {
    // Asked for again when it is needed.
  }
}

void TDBList::mark(int row, bool raise) {
  std::optional<RuntimeError> failure;
  try {
    source_->refreshRow(row);
  } catch (const RuntimeError& each) {
    failure = each;
  }
  place(row);
  changed();
  if (!raise) return;
  unannounced_ = false;
  // A row that cannot be read, also when asked again, shows nothing and loads nothing; the person is told why.
  if (failure && !marked_)
    eventFailed(u"RowColChange", *failure);
  else
    RowColChange.raise();
}

bool TDBList::userPressed(int row) {
  pressedRow_ = -1;
  const int bound = bindings_;
  if (!form().mousePressed(*this)) return false;
  if (bound != bindings_) return true;
  pressedRow_ = row;
  pressedBinding_ = bound;
  userSelect(row);
  return true;
}

bool TDBList::userPressedAgain(int row) {
  if (pressedRow_ < 0 || pressedBinding_ != bindings_) return userPressed(row);
  if (!form().mousePressed(*this)) return false;
  if (pressedBinding_ == bindings_) userDoubleClick(std::exchange(pressedRow_, -1));
  return true;
}

void TDBList::userSelect(int row) {
  typed_.clear();
  if (row < 0 || row >= knownRows()) return;
  try {
    moveTo(row, unannounced_ || row != row_);
  } catch (const RuntimeError& failure) {
    eventFailed(u"MouseDown", failure);
  }
}

void TDBList::moveTo(int row, bool raise) {
  source_->Bookmark(source_->bookmarkOf(row));
  mark(row, raise);
}

void TDBList::userDoubleClick(int row) {
  if (row == row_ && row_ >= 0) DblClick.raise();
}

String TDBList::rowAsText() const {
  String line;
  bool first = true;
  for (int i = 0; i < columnCount() && row_ >= 0; ++i) {
    const Column& each = columns_[static_cast<std::size_t>(i)];
    if (!each.visible_ || each.width_ <= 0) continue;
    if (!std::exchange(first, false)) line += u'\t';
    line += cellText(row_, i);
  }
  return line;
}

// ---- keys

bool TDBList::ownKey(const KeyStroke& stroke) {
  try {
    return keyPressed(stroke);
  } catch (const RuntimeError& failure) {
    eventFailed(u"KeyDown", failure);
    return true;
  }
}

bool TDBList::keyPressed(const KeyStroke& stroke) {
  const bool control = (stroke.shift & shift::Ctrl) != 0;
  if (control && stroke.code == 'C') {
    if (row_ >= 0) Desktop::current().copyToClipboard(rowAsText());
    return true;
  }
  if (stroke.character >= u' ') {
    if ((stroke.shift & (shift::Ctrl | shift::Alt)) != 0) return false;
    const String character = character_.take(stroke.character);
    return character.empty() || searchTyped(character);
  }
  character_.forget();

  int target = row_;
  switch (stroke.code) {
    case key::Up:
      target = row_ - 1;
      break;
    case key::Down:
      target = row_ + 1;
      break;
    case key::PageUp:
      target = row_ - rowsPerPage();
      break;
    case key::PageDown:
      target = row_ + rowsPerPage();
      break;
    case key::Home:
      target = 0;
      break;
    case key::End:
      while (!rowsComplete()) fetchRows(100 * fetchStep);
      target = knownRows() - 1;
      break;
    default:
      return false;
  }
  typed_.clear();
  if (target >= knownRows()) fetchRows(fetchStep);
  if (!hasRows()) return true;
  target = std::clamp(target, 0, knownRows() - 1);
  if (target != row_) moveTo(target, true);
  return true;
}

bool TDBList::searchTyped(const String& character) {
  if (typedRow_ != row_) typed_.clear();
  int found = rowStartingWith(typed_ + character);
  if (found >= 0) {
    typed_ += character;
  } else {
    typed_ = character;
    found = rowStartingWith(typed_);
  }
  if (found < 0) {
    typed_.clear();
    return true;
  }
  if (found != row_) moveTo(found, true);
  typedRow_ = row_;
  return true;
}

std::optional<String> TDBList::keyNow(int row) const {
  const RowValues values = source_->readRow(row);
  return values.empty() ? std::nullopt : std::optional(concatenate(values.front()));
}

/// Where the prefix would stand in a list that is ordered by its key. A row that is gone says nothing: the
/// next one that is there is asked.
int TDBList::firstNotBefore(StringView prefix) const {
  int first = 0;
  int end = knownRows();
  while (first < end) {
    const int half = first + (end - first) / 2;
    int asked = half;
    std::optional<String> key = keyNow(asked);
    while (!key && asked + 1 < std::min(end, half + deletedRows)) key = keyNow(++asked);
    if (key && compareCollated(*key, prefix) < 0) {
      first = asked + 1;
    } else {
      end = half;
    }
  }
  return first;
}

int TDBList::rowStartingWith(StringView prefix) {
  while (!rowsComplete()) fetchRows(100 * fetchStep);
  // Lists are ordered by their key: the row is where the prefix would stand, or, with accents, shortly
  // behind.
  const auto scan = [&](int from) {
    const int end = std::min(knownRows(), from + scannedRows);
    for (int row = from; row < end; ++row) {
      const std::optional<String> key = keyNow(row);
      if (key && startsWith(*key, prefix)) return row;
    }
    return -1;
  };
  const int found = scan(firstNotBefore(prefix));
  return found >= 0 ? found : scan(0);
}

// ---- automation

Variant TDBList::valueNow(int column) const {
  if (row_ < 0) return {};
  const RowValues values = source_->readRow(row_);
  return values.empty() ? Variant(Null) : values.at(static_cast<std::size_t>(column));
}

namespace {

/// Takes "Columns(1)." off the front of a name: its index; nullopt for a name that begins otherwise.
std::optional<std::int32_t> takeElement(StringView& name, StringView element) {
  const auto end = name.find(u").");
  if (end == StringView::npos || end <= element.size() || name[element.size()] != u'(') return std::nullopt;
  if (!sameName(name.substr(0, element.size()), element)) return std::nullopt;
  const Variant index = String(name.substr(element.size() + 1, end - element.size() - 1));
  name.remove_prefix(end + 2);
  return CLng(index);
}

}  // namespace

Variant TDBList::Property(StringView name) const {
  StringView member = name;
  const std::optional<std::int32_t> split = takeElement(member, u"Splits");
  if (split && *split != 0) throw RuntimeError(error::SubscriptOutOfRange);
  if (const std::optional<std::int32_t> index = takeElement(member, u"Columns")) {
    const Column& column = Columns(*index);
    if (sameName(member, u"Caption")) return column.Caption();
    if (sameName(member, u"Value")) return valueNow(*index);
    if (sameName(member, u"Visible")) return column.Visible();
    if (sameName(member, u"Width")) return std::int32_t{column.Width()};
    if (sameName(member, u"AllowSizing")) return column.AllowSizing();
    throw RuntimeError(error::NoSuchMember);
  }
  if (split) throw RuntimeError(error::NoSuchMember);
  return Control::Property(name);
}

const PropertyEntry* TDBList::findProperty(StringView name) const {
  static constexpr auto list = [](const Control& c) -> const TDBList& {
    return static_cast<const TDBList&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Row", [](const Control& c) { return Variant(std::int32_t{list(c).Row()}); }, nullptr},
      {u"Text",
       [](const Control& c) {
         const std::vector<String> texts = list(c).rowTextsNow(list(c).Row());
         return Variant(texts.empty() ? String() : texts.front());
       },
       nullptr},
      {u"Bookmark", [](const Control& c) { return list(c).Bookmark(); },
       [](Control& c, const Variant& value) { static_cast<TDBList&>(c).Bookmark(value); }},
      {u"ColumnHeaders", [](const Control& c) { return Variant(list(c).ColumnHeaders()); },
       [](Control& c, const Variant& value) { static_cast<TDBList&>(c).ColumnHeaders(CBool(value)); }},
      {u"HighlightRowStyle.BackColor",
       [](const Control& c) { return Variant(double{1.0 * list(c).HighlightRowStyle().BackColor}); },
       nullptr},
      {u"HighlightRowStyle.ForeColor",
       [](const Control& c) { return Variant(double{1.0 * list(c).HighlightRowStyle().ForeColor}); },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
