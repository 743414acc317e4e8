// SPDX-License-Identifier: MIT
//
// The quantity split as it opens: rows, marks, running total.
#include "forms/label.h"
#include "testing/split.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::SizeIs;

using SplitOpens = SplitTest;
using SplitRunningTotal = SplitTest;

TEST_F(SplitOpens, WithoutATextStandsOnTheBottomRow) {
  split(1, u"", 5.0, [&] {
    EXPECT_EQ(form().Caption(), u"Chargenaufteilung");
    EXPECT_THAT(gridRows(), ElementsAre(u"5,000|Stk|||"));
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(focus(), u"txtEdit");
    EXPECT_EQ(total(), u"0,000");
    EXPECT_EQ(*get(u"lblAufteilungstext", u"Caption").as<String>(), u"von 5,000 Stk aufgeteilt.");
  });
}

TEST_F(SplitOpens, ShowsTheRowsOfTheTextAndOneMore) {
  split(1, twoBatches, 10.0, [&] {
    EXPECT_THAT(gridRows(), ElementsAre(u"2,000|Stk|L-1|30.06.2026|", u"3,000|Stk|L-2||", u"5,000|Stk|||"));
    EXPECT_EQ(at(), "3,3");
    EXPECT_EQ(marks(), "- - picCurrent");
    EXPECT_EQ(total(), u"5,000");
    for (const auto& [col, heading] : std::vector<std::pair<int, String>>{
             {0, u""}, {1, u"Menge"}, {2, u"ME"}, {3, u"Chargen-Nr."}, {4, u"Verfalldatum"}, {5, u"S/N"}})
      EXPECT_EQ(grid().TextMatrix(0, col), heading);
    EXPECT_EQ(grid().ColWidth(0), 250);
    EXPECT_EQ(grid().cell(1, 1).alignment, cell_alignment::RightCenter);
    for (const int col : {2, 3, 4, 5}) EXPECT_EQ(grid().cell(1, col).alignment, cell_alignment::LeftCenter);
    EXPECT_EQ(grid().cell(3, 0).pictureAlignment, cell_alignment::CenterCenter);
    EXPECT_EQ(grid().cell(0, 1).alignment, 7);
    EXPECT_EQ(grid().cell(0, 2).alignment, cell_alignment::General);
  });
}

TEST_F(SplitOpens, EachKindWithItsColumnsAndCaption) {
  split(2, twoSerials, 2.0, [&] {
    EXPECT_EQ(form().Caption(), u"Seriennummernaufteilung");
    EXPECT_EQ(at(), "3,5");
    EXPECT_EQ(grid().ColWidth(3), 0);
    EXPECT_EQ(grid().ColWidth(5), 2000);
    EXPECT_EQ(grid().cell(1, 1).backColor, colour::ButtonFace);
    EXPECT_EQ(grid().cell(1, 5).backColor, colour::WindowBackground);
  });
  split(3, u"", 2.0, [&] {
    EXPECT_EQ(form().Caption(), u"Chargen/Seriennummernaufteilung");
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(grid().Width(), 1000 + 700 + 2000 + 1100 + 2000 + 520);
    EXPECT_EQ(form().Width(), grid().Width() + 300);
    const Control& cancel = form().control(u"btnCancel");
    EXPECT_EQ(cancel.Left() + cancel.Width(), grid().Left() + grid().Width());
    EXPECT_EQ(form().control(u"btnOK").Left(), cancel.Left() - 1215 - 105);
  });
}

TEST_F(SplitOpens, AnUnknownKindHasNoCaptionAndEditsNothing) {
  for (const Variant& kind : {Variant(std::int32_t{7}), Variant(u"abc"), Variant(Null)}) {
    show(34, {twoBatches, 5.0, u"Stk", kind, false}, [&] {
      EXPECT_EQ(form().Caption(), u" ");
      EXPECT_THAT(gridRows(), SizeIs(3));
      EXPECT_EQ(at(), "3,1");
      EXPECT_EQ(grid().ColWidth(3), FlexGrid::defaultColWidth);
      EXPECT_EQ(editor().Text(), u"1,000") << "the text of the cell at the cursor";
      type(u"9");
      press(key::Up);
      EXPECT_EQ(grid().TextMatrix(3, 1), u"1,000") << "nothing of it goes into the cell";
    });
  }
}

TEST_F(SplitOpens, OnlyTheEditorIsReachedByTab) {
  split(1, twoBatches, 5.0, [&] {
    EXPECT_EQ(get(u"txtEdit", u"TabStop"), Variant(true));
    for (const StringView control : {u"MSHFlexGrid1", u"btnOK", u"btnCancel"})
      EXPECT_EQ(get(control, u"TabStop"), Variant(false));
    for (const StringView mark :
         {u"picCurrent", u"picEdit", u"picNew", u"picCurrenti", u"picEditi", u"picNewi"})
      EXPECT_EQ(get(mark, u"Visible"), Variant(false));
  });
}

TEST_F(SplitOpens, WithTheTotalInBoldBesideItsTarget) {
  split(1, twoBatches, 5.0, [&] {
    EXPECT_EQ(form().control(u"lblGmenge").design().other.Alignment, Alignment::Right);
    for (const StringView label : {u"lblGmenge", u"lblAufteilungstext"})
      EXPECT_TRUE(form().control(label).design().other.Bold);
  });
}

TEST_F(SplitOpens, WhatIsNoTextReadsAsNothing) {
  const Variant noText{std::shared_ptr<Object>()};
  show(34, {noText, noText, noText, std::int32_t{1}, false}, [&] {
    EXPECT_EQ(form().Caption(), u"Chargenaufteilung");
    EXPECT_THAT(gridRows(), ElementsAre(u"0,000||||"));
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(*get(u"lblAufteilungstext", u"Caption").as<String>(), u"");
  });
}

TEST_F(SplitOpens, WithTheTextOfTheFirstCellSelected) {
  split(1, u"1|\"Stk\"|\"L-1\"", 5.0, [&] {
    press(key::Up);
    EXPECT_EQ(at(), "1,3");
    EXPECT_EQ(editor().Text(), u"L-1");
    EXPECT_EQ(editor().SelLength(), 3);
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitOpens, WithAnEditorThatSaysWhereItStands) {
  const auto name = [this] { return grid().wordsForPlace(grid().Row(), grid().Col()); };
  split(1, twoBatches, 5.0, [&] {
    EXPECT_EQ(grid().Editor(), &editor());
    EXPECT_EQ(name(), u"Chargen-Nr., Zeile 3");
    clickCell(2, 4);
    EXPECT_EQ(name(), u"Verfalldatum, Zeile 2");
    press(key::Enter);
    EXPECT_EQ(name(), u"Menge, Zeile 3");
    press(key::Up);
    EXPECT_EQ(name(), u"Menge, Zeile 2");
    EXPECT_EQ(grid().AccessibleName(), u"Aufteilung");
  });
}

TEST_F(SplitOpens, AShortLineHasEmptyCells) {
  split(3, u"1", 5.0, [&] { EXPECT_EQ(gridRows().front(), u"1,000||||"); });
}

TEST_F(SplitOpens, AHoleInTheTextIsAnEmptyRowAndTheLastLineIsNotReached) {
  split(1, u"2|\"Stk\"|\"A\"\r\n\r\n3|\"Stk\"|\"B\"", 5.0,
        [&] { EXPECT_THAT(gridRows(), ElementsAre(u"2,000|Stk|A||", u"0,000||||", u"3,000|Stk|||")); });
}

TEST_F(SplitOpens, AnyBytesAsText) {
  const std::vector<std::pair<const char*, std::vector<String>>> cases = {
      {"\x01\xff\xfe|\"\"\"|", {u"0,000|||||"}},
      {"\"", {u"0,000||||"}},
      {"|||||||||", {u"0,000||||"}},
      {"\r\n\r\n\r\n", {}},
      {"9e999|x", {u"0,000|x|||"}},
      {"&HFFFFFFFFFF", {u"0,000||||"}},
      {"1|\"\n\"|\"\r\"", {u"1,000|\n|\r||"}},
      {"€5|(5)|5-", {u"0,000|0|5||"}},
      {"\t", {u"0,000||||"}},
  };
  for (const auto& each : cases) {
    split(1, fromUtf8(each.first), std::int32_t{0}, [&] {
      auto withBottomRow = each.second;
      withBottomRow.push_back(u"0,000|Stk|||");
      EXPECT_EQ(gridRows(), withBottomRow) << each.first;
    });
  }
}

TEST_F(SplitOpens, WithLessThanFiveElementsOfParam) {
  show(34, {}, [&] { EXPECT_THAT(gridRows(), SizeIs(1)); });
  show(34, {twoSerials, 2.0, u"Stk", std::int32_t{2}}, [&] { EXPECT_THAT(gridRows(), SizeIs(3)); });
  EXPECT_EQ(param.elements()[0], Variant(twoSerials));
}

TEST(SplitWithoutADesktop, GivesBackWhatCameIn) {
  ORBDialog dialog;
  VariantArray args{twoBatches, 5.0, u"Stk", std::int32_t{1}, false};
  ASSERT_EQ(errorNumberOf([] { Desktop::current(); }), error::CannotCreateObject);
  EXPECT_EQ(dialog.Show(34, args), Variant(twoBatches));
  EXPECT_EQ(args.at(0), Variant(twoBatches));
  EXPECT_EQ(args.at(1), Variant(5.0));
}

// ---- the running total

TEST_F(SplitRunningTotal, WithoutATargetTheUnitAloneStandsThereAndNothingIsColoured) {
  split(1, u"2|\"Stk\"|\"L-1\"", std::int32_t{0}, [&] {
    EXPECT_EQ(*get(u"lblAufteilungstext", u"Caption").as<String>(), u"Stk");
    EXPECT_EQ(gridRows().back(), u"0,000|Stk|||");
    EXPECT_EQ(total(), u"2,000");
    EXPECT_EQ(totalColour(), 1.0 * colour::WindowText);
  });
}

TEST_F(SplitRunningTotal, IsGreenWhenEverythingIsDivided) {
  split(1, twoBatches, 5.0, [&] {
    EXPECT_EQ(totalColour(), green);
    EXPECT_EQ(gridRows().back(), u"0,000|Stk|||");
  });
  split(1, twoBatches, u"5,0001", [&] { EXPECT_EQ(totalColour(), red); });
}

TEST_F(SplitRunningTotal, SaysWhatIsLeftAsItsTip) {
  const auto tip = [this] { return *get(u"lblGmenge", u"ToolTipText").as<String>(); };
  split(1, u"6,5|\"Stk\"|\"L-1\"", 10.0, [&] {
    EXPECT_EQ(tip(), u"noch 3,5 von 10 zu verteilen");
    clickCell(1, 1);
    type(u"10");
    EXPECT_EQ(tip(), u"10 von 10 verteilt");
    type(u",25");
    EXPECT_EQ(tip(), u"0,25 mehr als 10 verteilt");
  });
  split(1, u"2|\"Stk\"|\"L-1\"", std::int32_t{0}, [&] { EXPECT_EQ(tip(), u"") << "without a target"; });
}

TEST_F(SplitRunningTotal, ReadsThePointOfItsTargetAsThousandsSign) {
  split(1, u"", u"1.5", [&] { EXPECT_EQ(gridRows().back(), u"15,000|Stk|||"); });
}

TEST_F(SplitRunningTotal, FollowsEachKey) {
  split(1, twoBatches, 5.0, [&] {
    clickCell(1, 1);
    EXPECT_EQ(editor().Text(), u"2,000");
    type(u"1");
    EXPECT_EQ(total(), u"4,000");
    EXPECT_EQ(totalColour(), red);
    EXPECT_EQ(gridRows().back(), u"1,000|Stk|||");
    type(u",5");
    EXPECT_EQ(total(), u"4,500");
    EXPECT_EQ(grid().TextMatrix(1, 1), u"2,000") << "the cell waits";
    press(key::Enter);
    EXPECT_EQ(grid().TextMatrix(1, 1), u"1,500");
    EXPECT_EQ(total(), u"4,500");
  });
}

TEST_F(SplitRunningTotal, OffersWhatIsLeftInTheBottomRow) {
  split(1, u"", 10.0, [&] {
    type(u"A");
    EXPECT_EQ(total(), u"10,000") << "what was offered counts as soon as somebody types";
    EXPECT_EQ(totalColour(), green);
    EXPECT_EQ(gridRows().back(), u"0,000|Stk|||");
    clickCell(1, 1);
    typeAnd(u"4", key::Tab);
    EXPECT_EQ(gridRows().back(), u"6,000|Stk|||");
  });
}

TEST_F(SplitRunningTotal, OffersOneUnitWhereSerialNumbersAreKept) {
  split(3, u"", 5.0, [&] {
    EXPECT_EQ(gridRows().back(), u"1,000|Stk|||");
    type(u"A");
    EXPECT_EQ(total(), u"1,000");
    EXPECT_EQ(gridRows().back(), u"1,000|Stk|||");
  });
}

TEST_F(SplitRunningTotal, IsTheSumOfTenThousandRows) {
  String text;
  for (int i = 0; i < 10'000; ++i) text += u"0,001|\"Stk\"|\"L\"\r\n";
  split(1, text, 10.0, [&] {
    EXPECT_EQ(grid().Rows(), 10'002);
    EXPECT_EQ(total(), u"10,000");
    EXPECT_EQ(totalColour(), green);
  });
}

}  // namespace
}  // namespace zqn::testing
