// SPDX-License-Identifier: MIT
//
// OK and Abbrechen of the quantity split: what is checked, and what goes back.
#include "testing/split.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class SplitCheck : public SplitTest {
 protected:
  void expectComplaint(StringView text) {
    expectBox(text, u"Ungültige Eingabe", msgbox::OKOnly | msgbox::Exclamation);
  }
  void expectNoQuantity() {
    expectComplaint(
        u"Für mindestens eine Zeile wurde als Aufteilungsmenge 0 angegeben. Bitte geben Sie eine gültige "
        u"Aufteilungsmenge an oder löschen sie die Zeile!");
  }
  void expectMissing(StringView what) {
    expectComplaint(u"Für mindestens eine Zeile wurde " + String(what) +
                    u" angegeben. Bitte vervollständigen Sie die Angaben!");
  }
};
using SplitResult = SplitCheck;

TEST_F(SplitCheck, AskForAQuantityFirst) {
  split(1, u"0|\"Stk\"|\"\"\r\n1|\"Stk\"|\"\"", 5.0, [&] {
    expectNoQuantity();
    click(u"btnOK");
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(at(), "1,1");
    EXPECT_EQ(focus(), u"txtEdit");
    EXPECT_EQ(editor().Text(), u"0,000");
    EXPECT_EQ(editor().SelLength(), 5);
  });
  EXPECT_EQ(param.elements()[0], Variant(u"0|\"Stk\"|\"\"\r\n1|\"Stk\"|\"\"")) << "nothing was taken over";
}

TEST_F(SplitCheck, ThenForTheBatchThenForTheDate) {
  split(
      1, u"1|\"Stk\"|\"L-1\"|\"20260630\"\r\n1|\"Stk\"|\"  \"", 2.0,
      [&] {
        expectMissing(u"keine Chargennummer");
        click(u"btnOK");
        EXPECT_EQ(at(), "2,3");
        typeAnd(u"L-2", key::Enter);
        expectMissing(u"kein Verfalldatum");
        click(u"btnOK");
        EXPECT_EQ(at(), "2,4");
        type(u"010127");
        click(u"btnOK");
        EXPECT_FALSE(form().Visible());
      },
      true);
  EXPECT_EQ(
      param.elements()[0],
      Variant(u"1|\"Stk\"|\"L-1\"|\"20260630000000\"|\"\"\r\n1|\"Stk\"|\"L-2\"|\"20270101000000\"|\"\""));
}

TEST_F(SplitCheck, AMissingDatePassesWhereNoneIsRequired) {
  const Variant result = split(1, u"2|\"Stk\"|\"L-1\"", 2.0, [&] { press(key::F9); });
  EXPECT_EQ(result, Variant(u"2|\"Stk\"|\"L-1\"|\"\"|\"\""));
}

TEST_F(SplitCheck, SerialNumbersInKindsTwoAndThree) {
  split(2, u"1|\"Stk\"|||\"\"", 1.0, [&] {
    expectMissing(u"keine Seriennummer");
    click(u"btnOK");
    EXPECT_EQ(at(), "1,5");
  });
  split(3, u"1|\"Stk\"|\"L\"", 1.0, [&] {
    expectMissing(u"keine Seriennummer");
    click(u"btnOK");
    EXPECT_EQ(at(), "1,5");
  });
}

TEST_F(SplitCheck, AQuantityThatNobodyCanEditLeadsToItsRow) {
  split(3, u"1|\"Stk\"|\"A\"||\"S1\"\r\n0|\"Stk\"|\"B\"||\"S2\"", 2.0, [&] {
    expectNoQuantity();
    click(u"btnOK");
    EXPECT_EQ(at(), "2,3");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(editor().Text(), u"B");
  });
}

TEST_F(SplitCheck, OutOfRowModeTheEditorComesBack) {
  split(1, u"1|\"Stk\"|\"\"", 1.0, [&] {
    clickCell(1, 0);
    expectMissing(u"keine Chargennummer");
    press(key::F9);
    EXPECT_FALSE(isRowMode());
    EXPECT_EQ(at(), "1,3");
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(focus(), u"txtEdit");
    type(u"L-9");
    press(key::F9);
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(param.elements()[0], Variant(u"1|\"Stk\"|\"L-9\"|\"\"|\"\"")) << "it writes into that cell";
}

TEST_F(SplitCheck, OutOfRowModeTheEditorComesBackAlsoToAnEmptyCell) {
  split(3, u"1|\"Stk\"|\"\"", 1.0, [&] {
    clickCell(1, 0);
    EXPECT_FALSE(editor().Visible());
    EXPECT_EQ(editor().Text(), u"");
    expectMissing(u"keine Chargennummer");
    press(key::F9);
    EXPECT_TRUE(editor().Visible());
    EXPECT_EQ(focus(), u"txtEdit");
  });
}

TEST_F(SplitCheck, TheBottomRowIsNeverLookedAt) {
  EXPECT_EQ(split(1, u"", std::int32_t{0},
                  [&] {
                    press(key::F9);
                    EXPECT_FALSE(form().Visible());
                  }),
            Variant(u""));
}

TEST_F(SplitCheck, StopsAtTheFirstRowThatFails) {
  split(1, u"1|\"Stk\"|\"L-1\"\r\n1|\"Stk\"|\"\"\r\n0|\"Stk\"|\"\"", 2.0, [&] {
    expectMissing(u"keine Chargennummer");
    press(key::F9);
    EXPECT_EQ(at(), "2,3");
  });
}

TEST_F(SplitCheck, SerialNumbersNeedNoQuantityNorBatchNorDate) {
  split(
      2, u"0|\"Stk\"|||\"S0\"", std::int32_t{0},
      [&] {
        press(key::F9);
        EXPECT_FALSE(form().Visible());
      },
      true);
  EXPECT_EQ(param.elements()[0], Variant(u""));
}

TEST_F(SplitCheck, BothKindsNeedTheDateBeforeTheSerialNumber) {
  split(
      3, u"1|\"Stk\"|\"L-1\"", 1.0,
      [&] {
        expectMissing(u"kein Verfalldatum");
        press(key::F9);
        EXPECT_EQ(at(), "1,4");
      },
      true);
}

// ---- the difference

TEST_F(SplitCheck, ADifferenceIsAskedForAndEitherAnswerCounts) {
  const Variant result = split(1, u"2|\"Stk\"|\"L-1\"", 5.0, [&] {
    expectDifference(MsgBoxResult::No);
    click(u"btnOK");
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(focus(), u"txtEdit");
    expectDifference(MsgBoxResult::Yes);
    press(key::F9);
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(result, Variant(u"2|\"Stk\"|\"L-1\"|\"\"|\"\""));
  EXPECT_EQ(param.elements()[1], Variant(2.0)) << "what was really divided";
}

TEST_F(SplitCheck, AfterNoTheCallersValuesAreStillThere) {
  const Variant result = split(1, twoBatches, 9.0, [&] {
    clickCell(1, 0);
    expectDifference(MsgBoxResult::No);
    click(u"btnOK");
    EXPECT_EQ(focus(), u"MSHFlexGrid1") << "rows are still taken";
    click(u"btnCancel");
  });
  EXPECT_EQ(result, Variant(twoBatches));
  EXPECT_EQ(param.elements()[1], Variant(9.0));
}

TEST_F(SplitCheck, NoRowsAtAllAreADifference) {
  const Variant result = split(1, u"", 5.0, [&] {
    expectDifference(MsgBoxResult::Yes);
    press(key::F9);
  });
  EXPECT_EQ(result, Variant(u""));
  EXPECT_EQ(param.elements()[1], Variant(0.0));
}

TEST_F(SplitCheck, ATenthOfAThousandthPassesThoughItIsRed) {
  split(1, u"1|\"Stk\"|\"L-1\"", u"1,0001", [&] {
    EXPECT_EQ(totalColour(), red);
    press(key::F9);
    EXPECT_FALSE(form().Visible());
  });
  split(1, u"1|\"Stk\"|\"L-1\"", u"1,0002", [&] {
    expectDifference(MsgBoxResult::Yes);
    press(key::F9);
  });
}

TEST_F(SplitCheck, FiveSerialNumbersNeedFiveRows) {
  split(3, u"", 5.0, [&] {
    for (int i = 0; i < 5; ++i) {
      EXPECT_NE(totalColour(), green);
      typeAnd(u"L", key::Enter);
      typeAnd(u"1.1.", key::Enter);
      typeAnd(u"S" + CStr(std::int32_t{i}), key::Enter);
    }
    EXPECT_EQ(totalColour(), green);
    press(key::F9);
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(param.elements()[1], Variant(5.0));
}

// ---- the result

TEST_F(SplitResult, ReadsTheTotalAtThreeDecimals) {
  split(1, u"", 1.2346, [&] {
    clickCell(1, 1);
    typeAnd(u"1,2346", key::Tab);
    typeAnd(u"L-1", key::Down);
    expectDifference(MsgBoxResult::Yes);
    press(key::F9);
  });
  EXPECT_EQ(param.elements()[1], Variant(1.235));
}

TEST_F(SplitResult, LeavesAnEmptyLineForAQuantityOfZero) {
  const String s1 = u"1|\"Stk\"|\"\"|\"\"|\"S1\"";
  EXPECT_EQ(split(2, u"0|\"Stk\"|||\"S0\"\r\n" + s1, 1.0, [&] { press(key::F9); }), Variant(s1));
  EXPECT_EQ(split(2, s1 + u"\r\n0|\"Stk\"|||\"S0\"\r\n" + s1, 2.0, [&] { press(key::F9); }),
            Variant(s1 + u"\r\n\r\n" + s1));
}

TEST_F(SplitResult, CommitsTheOpenCellOnlyWhenSomebodyTyped) {
  EXPECT_EQ(split(2, twoSerials, 2.0,
                  [&] {
                    clickCell(1, 5);
                    type(u"neu");
                    click(u"btnOK");
                  }),
            Variant(u"1|\"Stk\"|\"\"|\"\"|\"neu\"\r\n1|\"Stk\"|\"\"|\"\"|\"S2\""));
  EXPECT_EQ(split(2, twoSerials, 2.0,
                  [&] {
                    clickCell(1, 5);
                    press(key::Delete);
                    click(u"btnOK");
                  }),
            Variant(twoSerials))
      << "a deleted text was never typed";
}

TEST_F(SplitResult, OpensAgainWithTheSameRows) {
  const Variant result = split(3, u"1|\"Stk\"|\"L|1\"|\"20260630\"|\"007\"", 1.0, [&] { press(key::F9); });
  show(34, {result, 1.0, u"Stk", std::int32_t{3}, false},
       [&] { EXPECT_THAT(gridRows(), ElementsAre(u"1,000|Stk|L|1|30.06.2026|007", u"1,000|Stk|||")); });
}

TEST_F(SplitResult, OfAbbrechenIsWhatCameIn) {
  const Variant result = split(1, twoBatches, u"9", [&] {
    clickCell(1, 1);
    typeAnd(u"7", key::Enter);
    click(u"btnCancel");
    EXPECT_FALSE(form().Visible());
  });
  EXPECT_EQ(result, Variant(twoBatches));
  EXPECT_EQ(param.elements()[1], Variant(u"9"));
}

TEST_F(SplitResult, OfTheCloseBoxIsWhatCameIn) {
  EXPECT_EQ(split(1, twoBatches, 5.0, {}), Variant(twoBatches));
}

}  // namespace
}  // namespace zqn::testing
