// SPDX-License-Identifier: MIT
#include "forms/tdb_list.h"

#include <algorithm>

#include "forms/desktop.h"
#include "forms/names.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {

namespace {

/// Rows that are made known in one go when the marked row comes to the end of what is known.
constexpr int fetchStep = 1000;
/// Rows that a search by typing looks at one by one, where the order of the list does not lead to the row.
constexpr int scannedRows = 2000;
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
  return list_->row_ < 0 ? Variant() : list_->source_->rowValue(list_->row_, ordinal_);
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
  source_ = std::move(source);
  const bool open = !source_.isNothing() && source_->State() != ado::adStateClosed;
  if (!holdFields_ || columns_.empty()) {
    columns_.clear();
    const int fields = open ? source_->Fields().Count() : 0;
    for (int i = 0; i < fields; ++i) columns_.push_back(Column(*this, i, source_->Fields(i).Name()));
  }
  if (open && knownRows() == 0) source_->fetchKeys(rowsPerPage());
  row_ = hasRows() ? 0 : -1;
  unannounced_ = true;
  typed_.clear();
  ++bindings_;
  changed();
}

void TDBList::ReBind() {
  const Ref<ado::Recordset> source = source_;
  DataSource(source);
  holdFields_ = false;
}

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
    return source_->rowText(row, column);
  } catch (const RuntimeError&) {
    return {};
  }
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

void TDBList::mark(int row, bool raise) {
  if (row != row_) {
    row_ = row;
    changed();
  }
  if (!raise) return;
  unannounced_ = false;
  RowColChange.raise();
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
  if (!control && stroke.character >= u' ') return searchTyped(stroke.character);

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

bool TDBList::searchTyped(char16_t character) {
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

int TDBList::rowStartingWith(StringView prefix) {
  while (!rowsComplete()) fetchRows(100 * fetchStep);
  // Lists are ordered by their key: the row is where the prefix would stand, or, with accents, shortly
  // behind.
  int first = 0;
  int count = knownRows();
  while (count > 0) {
    const int half = count / 2;
    const bool before = compareCollated(cellText(first + half, 0), prefix) < 0;
    first = before ? first + half + 1 : first;
    count = before ? count - half - 1 : half;
  }
  const auto scan = [&](int from) {
    const int end = std::min(knownRows(), from + scannedRows);
    for (int row = from; row < end; ++row) {
      if (startsWith(cellText(row, 0), prefix)) return row;
    }
    return -1;
  };
  const int found = scan(first);
  return found >= 0 ? found : scan(0);
}

// ---- automation

Variant TDBList::Property(StringView name) const {
  constexpr StringView columnsOpen = u"Columns(";
  const auto dot = name.find(u").");
  if (name.size() > columnsOpen.size() && sameName(name.substr(0, columnsOpen.size()), columnsOpen) &&
      dot != StringView::npos) {
    const Variant index = String(name.substr(columnsOpen.size(), dot - columnsOpen.size()));
    const Column& column = Columns(CLng(index));
    const StringView member = name.substr(dot + 2);
    if (sameName(member, u"Caption")) return column.Caption();
    if (sameName(member, u"Value")) return column.Value();
    if (sameName(member, u"Visible")) return column.Visible();
    if (sameName(member, u"Width")) return std::int32_t{column.Width()};
    if (sameName(member, u"AllowSizing")) return column.AllowSizing();
    throw RuntimeError(error::NoSuchMember);
  }
  return Control::Property(name);
}

const PropertyEntry* TDBList::findProperty(StringView name) const {
  static constexpr auto list = [](const Control& c) -> const TDBList& {
    return static_cast<const TDBList&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Row", [](const Control& c) { return Variant(std::int32_t{list(c).Row()}); }, nullptr},
      {u"Text", [](const Control& c) { return Variant(list(c).Text()); }, nullptr},
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
