// SPDX-License-Identifier: MIT
//
// Kind 36 as a clerk works with it: a reason, or backing out; nothing else closes the window.
#include "catalogues/vt_status_grund.h"

#include "testing/dialog_test.h"

namespace zqn::testing {
namespace {

class VTStatusGrund : public DialogTest {
 protected:
  Variant ask(const std::function<void()>& acts) { return show(36, {u"alter Grund"}, acts); }
  void expectTooShort() {
    expectBox(u"Geben Sie, bitte einen Grund des Wechsels ein.", u"TALVEX Software", msgbox::Critical);
  }
  void expectQuestion(MsgBoxResult answer) {
    expectBox(u"Möchten Sie die Änderungen speichern?", u"TALVEX Software", msgbox::YesNo | msgbox::Question,
              answer);
  }
};

TEST_F(VTStatusGrund, OpensEmptyWithTheFocusInTheReason) {
  ask([&] {
    EXPECT_EQ(form().Caption(), u"Vertriebsstatus ändern");
    EXPECT_EQ(text(u"txtGrund"), u"") << "what is handed in is not shown";
    EXPECT_EQ(focus(), u"txtGrund");
    EXPECT_EQ(get(u"txtGrund", u"MultiLine"), Variant(true));
    EXPECT_EQ(get(u"txtGrund", u"MaxLength"), Variant(std::int32_t{0}));
    EXPECT_EQ(get(u"lblInfo", u"Caption"),
              Variant(u"Es wurde der Vertriebsstatus und damit auch der Pipelinestatus geändert. Geben Sie, "
                      u"bitte den Grund zum Wechsel ein und bestätigen Sie mit OK. Wenn Sie den "
                      u"Vertriebsstatus nicht wechseln möchten klicken Sie, bitte auf Abbrechen"));
    click(u"CancelButton");
  });
  EXPECT_TRUE(operations.empty()) << "it touches no table";
}

TEST_F(VTStatusGrund, FourCharactersAreRefusedFiveBlanksAccepted) {
  expectTooShort();
  expectQuestion(MsgBoxResult::Yes);
  EXPECT_EQ(ask([&] {
              type(u"kurz");
              click(u"OKButton");
              EXPECT_EQ(text(u"txtGrund"), u"kurz");
              click(u"txtGrund");
              for (int i = 0; i < 4; ++i) press(key::Delete);
              for (int i = 0; i < 4; ++i) press(key::Backspace);
              type(u"     ");
              click(u"OKButton");
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u"     "));
  EXPECT_EQ(param.at(0), Variant(u"     "));
}

TEST_F(VTStatusGrund, LineBreaksCountAndComeBackUnchanged) {
  expectQuestion(MsgBoxResult::Yes);
  EXPECT_EQ(ask([&] {
              type(u"a");
              press(key::Enter);
              type(u"b");
              press(key::Enter);
              EXPECT_EQ(focus(), u"txtGrund") << "Enter is a new line, not the next field";
              press(key::F9);
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u"a\r\nb\r\n"));
}

TEST_F(VTStatusGrund, CancellingReturnsAnEmptyTextWhateverWasTyped) {
  EXPECT_EQ(ask([&] {
              type(u"Ein guter Grund");
              click(u"CancelButton");
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u""));
  EXPECT_EQ(param.at(0), Variant(u""));
  EXPECT_EQ(ask([&] {
              press(key::F10);
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u""));
}

TEST_F(VTStatusGrund, TheCloseBoxOnlyTriesToConfirm) {
  expectTooShort();
  expectQuestion(MsgBoxResult::No);
  expectQuestion(MsgBoxResult::Yes);
  EXPECT_EQ(ask([&] {
              form().closeBox();
              EXPECT_TRUE(form().Visible());
              type(u"Grund");
              form().closeBox();
              EXPECT_TRUE(form().Visible());
              EXPECT_EQ(text(u"txtGrund"), u"Grund");
              form().closeBox();
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u"Grund"));
}

TEST_F(VTStatusGrund, NoKeepsTheDialogAndTheText) {
  expectQuestion(MsgBoxResult::No);
  EXPECT_EQ(ask([&] {
              type(u"Preis zu hoch");
              click(u"OKButton");
              EXPECT_TRUE(form().Visible());
              EXPECT_EQ(text(u"txtGrund"), u"Preis zu hoch");
              click(u"CancelButton");
            }),
            Variant(u""));
}

TEST_F(VTStatusGrund, EscapeAndKeysWithShiftDoNothing) {
  EXPECT_EQ(ask([&] {
              type(u"Preis zu hoch");
              press(key::Escape);
              for (const int held : {shift::Shift, shift::Ctrl, shift::Alt}) {
                press(key::F9, held);
                press(key::F10, held);
              }
              EXPECT_TRUE(form().Visible());
              press(key::F10);
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u""));
}

TEST_F(VTStatusGrund, WorksWithoutConnectionSessionAndParam) {
  ORBDialog bare;
  VariantArray none;
  tolerateEverything();
  desktop.whenIdle([&] {
    if (desktop.openMessageBox() != nullptr) {
      desktop.answer(MsgBoxResult::Yes);
      return;
    }
    type(u"Grund genug");
    click(u"OKButton");
  });
  EXPECT_EQ(bare.Show(36, none), Variant(u"Grund genug"));
  EXPECT_EQ(none.size(), 0u);
}

TEST_F(VTStatusGrund, MultiselectChangesNothing) {
  dialog.Multiselect(true);
  expectQuestion(MsgBoxResult::Yes);
  EXPECT_EQ(ask([&] {
              type(u"Grund");
              press(key::F9);
              EXPECT_FALSE(form().Visible());
            }),
            Variant(u"Grund"));
}

TEST_F(VTStatusGrund, TabRunsThroughTheButtonsAndTheReason) {
  ask([&] {
    for (const StringView next : {u"OKButton", u"CancelButton", u"txtGrund"}) {
      press(key::Tab);
      EXPECT_EQ(focus(), String(next));
    }
    click(u"CancelButton");
  });
}

TEST_F(VTStatusGrund, EachCallBeginsAnew) {
  expectQuestion(MsgBoxResult::Yes);
  ask([&] {
    type(u"erster Grund");
    click(u"OKButton");
  });
  expectTooShort();
  EXPECT_EQ(ask([&] {
              EXPECT_EQ(text(u"txtGrund"), u"");
              form().closeBox();
              EXPECT_TRUE(form().Visible());
              click(u"CancelButton");
            }),
            Variant(u""));
}

}  // namespace
}  // namespace zqn::testing
