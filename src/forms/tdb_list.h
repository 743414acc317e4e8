// SPDX-License-Identifier: MIT
//
// The list of a catalogue: rows and columns of a bound recordset, one row of them marked. It never copies the
// rows; a view asks for the texts it draws, row by row. The marked row and the recordset's current row are
// two things:
//
//     list.DataSource(rs);            // row 0 is marked, no event
//     rs->Find(u"Status='20'");       // moves rs alone, the mark stays
//     list.Bookmark(rs->Bookmark());  // marks that row, raises RowColChange
//
// Marking a row, by a person or by Bookmark, makes it the recordset's current row, and reads it: what the list
// shows and gives of it from then on is what the database held at that moment, nothing when the row was gone
// by then. The other rows may be older. A list whose recordset is closed or was run again shows no marked row
// until it is bound anew. Rows count from 0.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "ado/recordset.h"
#include "forms/control.h"
#include "forms/typed_character.h"
#include "runtime/ref.h"

namespace zqn {

class TDBList : public Control, private ado::Recordset::Watcher {
 public:
  TDBList(Form& form, const ControlDesign& design, int tabIndex);
  ~TDBList() override;

  /// One column of the list: column i shows field i of the recordset.
  class Column {
   public:
    const String& Caption() const noexcept { return caption_; }
    void Caption(StringView caption);
    /// The field of the marked row, Null when that was gone; Empty when no row is marked.
    Variant Value() const;
    bool Visible() const noexcept { return visible_; }
    void Visible(bool visible);
    /// Twips; 0 hides the column from the eye but leaves it Visible.
    int Width() const noexcept { return width_; }
    void Width(int twips);
    bool AllowSizing() const noexcept { return allowSizing_; }
    void AllowSizing(bool allow) { allowSizing_ = allow; }

   private:
    friend class TDBList;
    Column(TDBList& list, int ordinal, String caption)
        : list_(&list), ordinal_(ordinal), caption_(std::move(caption)) {}
    TDBList* list_;
    int ordinal_;
    String caption_;
    bool visible_ = true;
    int width_ = 1500;
    bool allowSizing_ = true;
  };
  /// The list seen through one of its splits; there is one, number 0, and its columns are the list's.
  class Split {
   public:
    TDBList::Column& Columns(int index) { return list_->Columns(index); }

   private:
    friend class TDBList;
    explicit Split(TDBList& list) : list_(&list) {}
    TDBList* list_;
  };
  struct RowStyle {
    std::uint32_t BackColor = colour::Highlight;
    std::uint32_t ForeColor = colour::HighlightText;
  };

  const Ref<ado::Recordset>& DataSource() const noexcept { return source_; }
  /// Binds: marks row 0 when there is one, raises nothing. The columns are made anew from the fields unless
  /// HoldFields holds them. A closed recordset, or Nothing, shows no columns and no rows.
  void DataSource(Ref<ado::Recordset> source);
  /// Leaves the column set-up, if there is one, alone up to the next ReBind, that one included.
  void HoldFields() { holdFields_ = true; }
  /// Shows the data source anew: as DataSource with the same recordset. Ends HoldFields.
  void ReBind();

  /// Error 9 outside the columns.
  Column& Columns(int index);
  const Column& Columns(int index) const;
  int columnCount() const noexcept { return static_cast<int>(columns_.size()); }
  Split Splits(int index);
  bool ColumnHeaders() const noexcept { return columnHeaders_; }
  void ColumnHeaders(bool show);
  const RowStyle& HighlightRowStyle() const noexcept { return highlight_; }
  void HighlightRowStyle(RowStyle style);

  /// Bookmark of the marked row in the recordset's terms; Empty when none is marked.
  Variant Bookmark() const;
  /// Marks that row and makes it the recordset's current row. Raises RowColChange when it is another row, and
  /// at the first assignment after a binding in any case. The recordset's errors for a bookmark that is not
  /// its own (3001), 3704.
  void Bookmark(const Variant& bookmark);
  /// The list's default value: column 0 of the marked row as text, Null as ""; "" without a marked row.
  String Text() const;

  /// The marked row has changed, by a person or by Bookmark.
  Event<> RowColChange{*this, u"RowColChange"};

  // ---- for toolkits and automation

  /// The marked row, -1 for none.
  int Row() const noexcept { return row_; }
  /// Rows known so far, and whether these are all. fetchRows makes more of them known, `atMost` in one call;
  /// the provider's errors.
  int knownRows() const;
  bool rowsComplete() const;
  void fetchRows(int atMost);
  /// Text of a cell as the list shows it; Null and rows that cannot be read are "".
  String cellText(int row, int column) const;
  /// The texts of all columns as the database holds the row now; none when it is gone or cannot be read. What
  /// the list shows and gives stays as it is.
  std::vector<String> rowTextsNow(int row) const;
  /// Counts up with each binding: a view with another number starts anew.
  int bindings() const noexcept { return bindings_; }
  /// Rows that a page of the list holds, from its height: PageUp and PageDown move by them.
  int rowsPerPage() const noexcept;
  static constexpr int rowHeight = 240;     // twips
  static constexpr int headerHeight = 285;  // twips
  /// Width of a column as drawn, in twips: the last visible one reaches to the right edge at least.
  int drawnWidth(int column) const;

  /// The left button goes down on a row, -1 beside all of them: on the row that is under the pointer now,
  /// whatever scrolls when the focus comes here, which is first. A list that is bound anew by that has no such
  /// row any more. False when the click is over, as Form::mousePressed.
  bool userPressed(int row);
  /// The second press of a double click, wherever the rows have scrolled meanwhile: it means the row of the
  /// first one. Where the first press was refused it is a press on `row`.
  bool userPressedAgain(int row);
  /// A person marks a row. Raises RowColChange when the row changes, or when none has come since the binding.
  /// Where the recordset fails to move, the mark stays and the person is told, as of an error in an event
  /// procedure.
  void userSelect(int row);
  void userDoubleClick(int row);
  /// The marked row's visible texts, tabs between them: what Ctrl+C copies.
  String rowAsText() const;
  /// The list sees Enter before the form does.
  void keepsEnter(bool keeps) { keepsEnter_ = keeps; }
  bool wantsEnter() const noexcept override { return keepsEnter_; }
  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override {}
  using Control::Property;
  Variant Property(StringView name) const override;
  String content() const override { return Text(); }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  /// A row as it was read: a value a field, Null in all of one that was gone.
  using RowValues = std::vector<Variant>;

  void rowsReplaced() noexcept override;
  bool isOpen() const;
  bool hasRows() const;
  void requireColumn(int index) const;
  /// The values of the marked row as it was marked. The provider's errors where it could not be read then, nor
  /// now.
  const RowValues& marked() const;
  /// Marks a row of a recordset that has just been read.
  void place(int row) noexcept;
  /// Reads a row afresh and marks it.
  void mark(int row, bool raise);
  /// A person's move: the row becomes the recordset's current one, too.
  void moveTo(int row, bool raise);
  bool keyPressed(const KeyStroke& stroke);
  bool searchTyped(const String& character);
  int rowStartingWith(StringView prefix);
  /// Column 0 as the database holds it now; nullopt for a row that is gone.
  std::optional<String> keyNow(int row) const;
  int firstNotBefore(StringView prefix) const;
  Variant valueNow(int column) const;

  Ref<ado::Recordset> source_;
  std::vector<Column> columns_;
  RowStyle highlight_;
  bool columnHeaders_ = true;
  bool holdFields_ = false;
  bool keepsEnter_ = false;
  /// No RowColChange has come since the binding.
  bool unannounced_ = false;
  int row_ = -1;
  /// The marked row; nullopt while it could not be read.
  mutable std::optional<RowValues> marked_;
  int bindings_ = 0;
  /// The row that the last press of the button meant, and in which binding.
  int pressedRow_ = -1;
  int pressedBinding_ = -1;
  /// What has been typed to find a row, and the row that it led to.
  String typed_;
  int typedRow_ = -1;
  TypedCharacter character_;
};

}  // namespace zqn
