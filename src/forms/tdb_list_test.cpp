// SPDX-License-Identifier: MIT
//
// A list and its recordset: binding, the marked row, columns, values, properties.
#include "forms/tdb_list.h"

#include "testing/lists.h"

namespace zqn::testing {
namespace {

using ListBinding = ListTest;
using ListBookmark = ListTest;
using ListColumns = ListTest;
using ListValue = ListTest;
using ListWithoutRows = ListTest;
using ListProperties = ListTest;

std::vector<String> texts(const TDBList& list, int column) {
  std::vector<String> all;
  for (int row = 0; row < list.knownRows(); ++row) all.push_back(list.cellText(row, column));
  return all;
}

// ---- binding

TEST_F(ListBinding, MarksTheFirstRowAndRaisesNothing) {
  insert({u"10", u"20"});
  auto rs = bind();
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(list.Text(), u"10");
  EXPECT_EQ(rs->currentRow(), 0);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListBinding, ShowsTheRowsWithoutMovingTheRecordset) {
  insert({u"10", u"20", u"30"});
  auto rs = open();
  rs->MoveLast();
  list.DataSource(rs);
  EXPECT_THAT(texts(list, 0), ::testing::ElementsAre(u"10", u"20", u"30"));
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(rs->currentRow(), 2);
}

TEST_F(ListBinding, MakesTheColumnsFromTheFieldsEachTime) {
  insert({u"10"});
  bind();
  ASSERT_EQ(list.columnCount(), 3);
  list.Columns(0).Caption(u"Status");
  list.Columns(2).Visible(false);
  list.ReBind();
  EXPECT_EQ(list.Columns(0).Caption(), u"Status");
  EXPECT_TRUE(list.Columns(2).Visible());
  bind(u"SELECT Bezeichnung FROM Stati");
  EXPECT_EQ(list.columnCount(), 1);
  EXPECT_EQ(list.Columns(0).Caption(), u"Bezeichnung");
}

TEST_F(ListBinding, HoldFieldsKeepsTheColumnsUpToTheNextReBind) {
  insert({u"10"});
  auto rs = bind();
  list.Columns(0).Caption(u"Kennung");
  list.Columns(1).Width(300);
  list.HoldFields();
  rs->Requery();
  list.ReBind();
  EXPECT_EQ(list.Columns(0).Caption(), u"Kennung");
  EXPECT_EQ(list.Columns(1).Width(), 300);
  list.ReBind();
  EXPECT_EQ(list.Columns(0).Caption(), u"Status");
}

TEST_F(ListBinding, HoldFieldsKeepsTheColumnsOverANewDataSourceToo) {
  insert({u"10"});
  bind();
  list.Columns(0).Visible(false);
  list.HoldFields();
  bind();
  EXPECT_FALSE(list.Columns(0).Visible());
  list.ReBind();
  EXPECT_FALSE(list.Columns(0).Visible());
  bind();
  EXPECT_TRUE(list.Columns(0).Visible());
}

TEST_F(ListBinding, HoldFieldsWithoutColumnsHoldsNothing) {
  insert({u"10"});
  list.HoldFields();
  bind();
  EXPECT_EQ(list.columnCount(), 3);
}

TEST_F(ListBinding, ReBindShowsWhatARequeryBrought) {
  insert({u"10", u"20"});
  auto rs = bind();
  mark(*rs, 1);
  happened();
  insert({u"05"});
  EXPECT_THAT(texts(list, 0), ::testing::ElementsAre(u"10", u"20"));
  rs->Requery();
  const int before = list.bindings();
  list.ReBind();
  EXPECT_EQ(list.bindings(), before + 1);
  EXPECT_EQ(list.Text(), u"05");
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(happened(), "");
}

// ---- no rows, no recordset

TEST_F(ListWithoutRows, AnEmptyRecordsetMarksNothingAndShowsItsColumns) {
  auto rs = bind();
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(list.knownRows(), 0);
  EXPECT_EQ(list.columnCount(), 3);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(list.rowAsText(), u"");
  EXPECT_TRUE(list.Bookmark().isEmpty());
  EXPECT_TRUE(list.Columns(0).Value().isEmpty());
  EXPECT_EQ(errorNumberOf([&] { list.Bookmark(rs->Bookmark()); }), error::NoCurrentRecord);
}

TEST_F(ListWithoutRows, AClosedRecordsetShowsNeitherColumnsNorRows) {
  insert({u"10"});
  auto rs = bind();
  rs->Close();
  list.DataSource(rs);
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(list.columnCount(), 0);
  EXPECT_EQ(list.knownRows(), 0);
  EXPECT_TRUE(list.rowsComplete());
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(errorNumberOf([&] { list.Bookmark(Variant(1.0)); }), error::ObjectClosed);
}

TEST_F(ListWithoutRows, AClosedRecordsetAfterHoldFieldsKeepsTheColumns) {
  insert({u"10"});
  auto rs = bind();
  list.HoldFields();
  rs->Close();
  list.DataSource(rs);
  EXPECT_EQ(list.columnCount(), 3);
  EXPECT_EQ(list.Row(), -1);
}

TEST_F(ListWithoutRows, ClosingTheBoundRecordsetLeavesNothingToRead) {
  insert({u"10", u"20"});
  auto rs = bind();
  rs->Close();
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(list.knownRows(), 0);
  EXPECT_TRUE(list.Columns(0).Value().isEmpty());
  EXPECT_TRUE(list.Bookmark().isEmpty());
  EXPECT_EQ(list.columnCount(), 3) << "the headings stay";
  show(form, [&] {
    list.SetFocus();
    press(key::Down);
    press(key::End);
    type(u"2");
    list.userSelect(1);
  });
  EXPECT_EQ(happened(), "");
}

TEST_F(ListWithoutRows, ARequeryThatFailsLeavesNoneUntilTheListIsBoundAnew) {
  insert({u"10", u"20"});
  auto rs = bind();
  mark(*rs, 1);
  happened();
  const int before = list.bindings();
  execute(u"ALTER TABLE Stati RENAME TO Fort");
  EXPECT_NE(errorNumberOf([&] { rs->Requery(); }), 0);
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_GT(list.bindings(), before) << "a view starts anew at once";
  execute(u"ALTER TABLE Fort RENAME TO Stati");
  list.HoldFields();
  rs->Requery();
  list.ReBind();
  EXPECT_EQ(list.Text(), u"10");
  EXPECT_EQ(happened(), "");
}

TEST_F(ListWithoutRows, ARecordsetThatIsNoLongerBoundIsNoMatterOfTheList) {
  insert({u"10"});
  auto old = bind();
  auto rs = bind();
  old->Close();
  EXPECT_EQ(list.Text(), u"10");
  rs->Close();
  EXPECT_EQ(list.Row(), -1);
}

TEST_F(ListWithoutRows, NothingShowsNothingAndIsError91ToUse) {
  EXPECT_TRUE(list.DataSource().isNothing());
  EXPECT_EQ(list.Row(), -1);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(errorNumberOf([&] { list.Bookmark(Variant(1.0)); }), error::ObjectNotSet);
  insert({u"10"});
  bind();
  list.DataSource(nothing);
  EXPECT_EQ(list.columnCount(), 0);
  EXPECT_EQ(list.Row(), -1);
  list.ReBind();
  EXPECT_EQ(list.Row(), -1);
  show(form, [&] {
    list.SetFocus();
    press(key::Down);
    press(key::End);
    type(u"1");
  });
  EXPECT_EQ(happened(), "");
}

// ---- Bookmark

TEST_F(ListBookmark, TheFirstAfterABindingRaisesRowColChangeEvenForTheMarkedRow) {
  insert({u"10", u"20"});
  auto rs = bind();
  list.Bookmark(rs->Bookmark());
  EXPECT_EQ(happened(), "RowColChange:10");
  list.ReBind();
  list.Bookmark(rs->Bookmark());
  EXPECT_EQ(happened(), "RowColChange:10");
}

TEST_F(ListBookmark, LaterOnesRaiseItOnlyWhenTheRowChanges) {
  insert({u"10", u"20"});
  auto rs = bind();
  mark(*rs, 0);
  happened();
  mark(*rs, 0);
  EXPECT_EQ(happened(), "");
  mark(*rs, 1);
  EXPECT_EQ(happened(), "RowColChange:20");
  mark(*rs, 1);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListBookmark, MakesTheRowTheCurrentOneOfTheRecordset) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  mark(*rs, 2);
  EXPECT_EQ(rs->Fields(u"Status").Value(), Variant(u"30"));
  EXPECT_EQ(rs->rowOf(list.Bookmark()), 2);
  happened();
}

TEST_F(ListBookmark, MovingTheRecordsetLeavesTheMarkUntilItIsAssigned) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  mark(*rs, 0);
  happened();
  rs->Find(u"Status='30'");
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(list.Text(), u"10");
  EXPECT_EQ(happened(), "");
  list.Bookmark(rs->Bookmark());
  EXPECT_EQ(list.Row(), 2);
  EXPECT_EQ(happened(), "RowColChange:30");
}

TEST_F(ListBookmark, AfterAFindWithoutMatchTheMarkStays) {
  insert({u"10", u"20"});
  auto rs = bind();
  mark(*rs, 1);
  happened();
  rs->Find(u"Status='99'");
  EXPECT_EQ(errorNumberOf([&] { list.Bookmark(rs->Bookmark()); }), error::NoCurrentRecord);
  EXPECT_EQ(list.Text(), u"20");
  EXPECT_EQ(happened(), "");
}

TEST_F(ListBookmark, OneThatIsNotTheRecordsetsIsError3001AndChangesNothing) {
  insert({u"10", u"20"});
  auto rs = bind();
  const Variant old = rs->bookmarkOf(1);
  rs->Requery();
  list.ReBind();
  for (const Variant& wrong : {old, Variant(), Variant(Null), Variant(u"20"), Variant(-1.0)}) {
    EXPECT_EQ(errorNumberOf([&] { list.Bookmark(wrong); }), error::InvalidArgument);
  }
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(happened(), "");
}

TEST_F(ListBookmark, AnErrorInRowColChangeGoesToTheDesktopAndTheRowIsMarked) {
  insert({u"10", u"20"});
  auto rs = bind();
  list.RowColChange = [] { throw RuntimeError(error::TypeMismatch); };
  mark(*rs, 1);
  EXPECT_EQ(happened(), "!List_RowColChange:13");
  EXPECT_EQ(list.Row(), 1);
}

// ---- value

TEST_F(ListValue, IsColumn0OfTheMarkedRowHiddenOrNot) {
  insert({u"10", u"20"});
  auto rs = bind();
  list.Columns(0).Visible(false);
  mark(*rs, 1);
  EXPECT_EQ(list.Text(), u"20");
  EXPECT_EQ(list.content(), u"20");
  happened();
}

TEST_F(ListValue, OfNullIsTheEmptyText) {
  execute(u"INSERT INTO Stati VALUES (NULL, 'ohne Schlüssel', 1.5)");
  bind();
  EXPECT_EQ(list.Row(), 0);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(list.cellText(0, 2), u"1,5");
}

TEST_F(ListValue, OfARowThatOthersDeletedIsTheEmptyText) {
  insert({u"10", u"20"});
  auto rs = bind();
  execute(u"DELETE FROM Stati WHERE Status='20'");
  mark(*rs, 0);
  list.userSelect(1);
  EXPECT_EQ(list.Row(), 1);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(list.Columns(1).Value(), Variant(Null));
  EXPECT_EQ(happened(), "RowColChange:10 RowColChange:");
}

TEST_F(ListValue, IsReadAtTheMomentTheRowIsMarked) {
  insert({u"10", u"20", u"30"});
  auto rs = bind();
  EXPECT_THAT(texts(list, 1), ::testing::ElementsAre(u"Text 10", u"Text 20", u"Text 30"));
  execute(u"UPDATE Stati SET Bezeichnung='anders'");
  execute(u"DELETE FROM Stati WHERE Status='30'");
  EXPECT_THAT(texts(list, 1), ::testing::ElementsAre(u"Text 10", u"Text 20", u"Text 30"));

  list.userSelect(1);
  EXPECT_EQ(list.cellText(1, 1), u"anders") << "shown";
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"anders")) << "and given";
  EXPECT_EQ(list.cellText(0, 1), u"Text 10") << "what is merely drawn may be older";
  list.userSelect(2);
  EXPECT_EQ(list.Text(), u"") << "gone: an empty line";
  EXPECT_EQ(list.rowAsText(), u"\t\t");
  mark(*rs, 0);
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"anders"));
  EXPECT_EQ(happened(), "RowColChange:20 RowColChange: RowColChange:10");
}

TEST_F(ListValue, StaysWhatItWasWhenTheRowWasMarked) {
  insertMany(600);
  auto rs = bind();
  list.fetchRows(600);
  mark(*rs, 1);
  execute(u"DELETE FROM Stati WHERE Status='00002'");
  for (int row = 2; row < 600; ++row) list.cellText(row, 0);
  EXPECT_EQ(list.Text(), u"00002") << "however many rows are drawn meanwhile";
  list.userSelect(1);
  EXPECT_EQ(list.Text(), u"") << "a press on the marked row marks it anew";
  happened();
}

TEST_F(ListValue, OfARowThatWasGoneIsNullInAllColumns) {
  insert({u"10", u"20"});
  bind();
  execute(u"DELETE FROM Stati WHERE Status='20'");
  list.userSelect(1);
  EXPECT_EQ(list.Columns(0).Value(), Variant(Null));
  happened();
}

TEST_F(ListValue, OfAClientsListIsReadWhenTheRowIsMarkedToo) {
  insert({u"10", u"20", u"30"});
  auto rs = Ref<ado::Recordset>::make();
  rs->CursorLocation(ado::adUseClient);
  rs->Open(u"SELECT * FROM Stati ORDER BY Status", connection, ado::adOpenKeyset, ado::adLockReadOnly);
  list.DataSource(rs);
  execute(u"UPDATE Stati SET Bezeichnung='anders' WHERE Status='20'");
  execute(u"DELETE FROM Stati WHERE Status='30'");
  EXPECT_THAT(list.rowTextsNow(1), ::testing::ElementsAre(u"20", u"anders", u""));
  EXPECT_THAT(list.rowTextsNow(2), ::testing::IsEmpty());
  EXPECT_THAT(texts(list, 1), ::testing::ElementsAre(u"Text 10", u"Text 20", u"Text 30"));
  list.userSelect(1);
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"anders"));
  list.userSelect(2);
  EXPECT_EQ(list.Text(), u"");
  EXPECT_EQ(happened(), "RowColChange:20 RowColChange:");
}

TEST_F(ListValue, ForAScriptIsReadAfreshAndNothingComesOfThat) {
  insert({u"10", u"20"});
  bind();
  list.userSelect(1);
  happened();
  execute(u"UPDATE Stati SET Bezeichnung='anders'");
  EXPECT_EQ(list.Property(u"Columns(1).Value"), Variant(u"anders"));
  EXPECT_THAT(list.rowTextsNow(0), ::testing::ElementsAre(u"10", u"anders", u""));
  execute(u"DELETE FROM Stati WHERE Status='20'");
  EXPECT_EQ(list.Property(u"Text"), Variant(u""));
  EXPECT_THAT(list.rowTextsNow(1), ::testing::IsEmpty());
  EXPECT_EQ(list.Text(), u"20");
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"Text 20"));
}

// ---- columns

TEST_F(ListColumns, OutsideOfThemIsError9) {
  insert({u"10"});
  bind();
  EXPECT_EQ(errorNumberOf([&] { list.Columns(-1); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { list.Columns(3); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { std::as_const(list).Columns(3); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { list.Splits(1); }), error::SubscriptOutOfRange);
  EXPECT_EQ(&list.Splits(0).Columns(1), &list.Columns(1));
}

TEST_F(ListColumns, ValueIsTheFieldOfTheMarkedRowWhereverTheRecordsetStands) {
  execute(u"INSERT INTO Stati VALUES ('10', 'eins', 1.5)");
  execute(u"INSERT INTO Stati VALUES ('20', NULL, 2)");
  auto rs = bind();
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"eins"));
  EXPECT_EQ(list.Columns(2).Value(), Variant(1.5));
  rs->MoveLast();
  EXPECT_EQ(list.Columns(1).Value(), Variant(u"eins"));
  mark(*rs, 1);
  EXPECT_EQ(list.Columns(1).Value(), Variant(Null));
  happened();
}

TEST_F(ListColumns, TheLastVisibleOneReachesToTheRightEdge) {
  bind();
  list.Columns(0).Width(1000);
  list.Columns(1).Width(500);
  list.Columns(2).Visible(false);
  EXPECT_EQ(list.drawnWidth(0), 1000);
  EXPECT_EQ(list.drawnWidth(2), 0);
  const int rest = list.drawnWidth(1);
  EXPECT_GT(rest, 2000);
  EXPECT_LT(1000 + rest, list.Width());
  list.Columns(1).Width(9000);
  EXPECT_EQ(list.drawnWidth(1), 9000);
  list.Columns(1).Width(0);
  EXPECT_EQ(list.drawnWidth(1), 0);
  EXPECT_EQ(list.drawnWidth(0), 1000 + rest);
}

// ---- properties

TEST_F(ListProperties, ReadColumnsByIndexAndMember) {
  insert({u"10"});
  bind();
  list.Columns(1).Caption(u"Text");
  list.Columns(1).AllowSizing(false);
  EXPECT_EQ(list.Property(u"Columns(1).Caption"), Variant(u"Text"));
  EXPECT_EQ(list.Property(u"columns(0).VALUE"), Variant(u"10"));
  EXPECT_EQ(list.Property(u"Columns(1).Visible"), Variant(true));
  EXPECT_EQ(list.Property(u"Columns(1).Width"), Variant(std::int32_t{1500}));
  EXPECT_EQ(list.Property(u"Columns(1).AllowSizing"), Variant(false));
  EXPECT_EQ(list.Property(u"Splits(0).Columns(1).AllowSizing"), Variant(false));
  EXPECT_EQ(list.Property(u"splits(0).columns(0).AllowSizing"), Variant(true));
  EXPECT_EQ(list.Property(u"Splits(0).Columns(1).Caption"), Variant(u"Text"));
}

TEST_F(ListProperties, OfAColumnThatIsNotThereAreError9AndOfAnUnknownMember438) {
  bind();
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Columns(3).Caption"); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Columns(x).Caption"); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Columns(0).Color"); }), error::NoSuchMember);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Columns(0)"); }), error::NoSuchMember);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Columns"); }), error::NoSuchMember);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Splits(1).Columns(0).Width"); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Splits(0).Columns(3).Width"); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Splits(0).Row"); }), error::NoSuchMember);
}

TEST_F(ListProperties, TellTheMarkedRowAndTheLooks) {
  insert({u"10", u"20"});
  auto rs = bind();
  mark(*rs, 1);
  EXPECT_EQ(list.Property(u"Row"), Variant(std::int32_t{1}));
  EXPECT_EQ(list.Property(u"Text"), Variant(u"20"));
  EXPECT_EQ(list.Property(u"ColumnHeaders"), Variant(true));
  list.HighlightRowStyle({colour::ButtonFace, colour::WindowText});
  EXPECT_EQ(list.Property(u"HighlightRowStyle.BackColor"), Variant(2147483663.0));
  EXPECT_EQ(list.Property(u"HighlightRowStyle.ForeColor"), Variant(2147483656.0));
  EXPECT_EQ(errorNumberOf([&] { list.Property(u"Row", std::int32_t{0}); }), error::PropertyIsReadOnly);
  happened();
  list.Property(u"Bookmark", rs->bookmarkOf(0));
  EXPECT_EQ(happened(), "RowColChange:10");
}

}  // namespace
}  // namespace zqn::testing
