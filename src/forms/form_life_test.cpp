// SPDX-License-Identifier: MIT
//
// The modal life of a form, from Load to Unload, and forms above each other.
#include "forms/command_button.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"btn", ControlKind::CommandButton, u"OK", 0, 300, 1000, 285},
};

class FormLife : public FormTest {
 protected:
  FormLife() {
    watchLife(form);
    watchFocus(form);
  }

  SampleForm form{roster};
};

using NestedForms = FormLife;

TEST_F(FormLife, RunsLoadActivateAndTheFirstFocusBeforeThePersonActs) {
  show(form, [&] {
    EXPECT_EQ(happened(), "frmSample_Load frmSample_Activate a_GotFocus");
    EXPECT_TRUE(form.isLoaded());
    EXPECT_TRUE(form.Visible());
  });
  EXPECT_FALSE(form.isLoaded());
  EXPECT_FALSE(form.Visible());
}

TEST_F(FormLife, TheCloseBoxAsksWithMode0AndUnloadMeWithMode1) {
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "frmSample_QueryUnload:0 frmSample_Unload");
  });
  show(form, [&] {
    happened();
    form.UnloadMe();
    EXPECT_EQ(happened(), "frmSample_QueryUnload:1 frmSample_Unload");
  });
}

TEST_F(FormLife, LoadsOnceHoweverOftenItIsTouchedBeforeShow) {
  form.ensureLoaded();
  form.ensureLoaded();
  EXPECT_EQ(happened(), "frmSample_Load");
  show(form, [&] { EXPECT_EQ(happened(), "frmSample_Activate a_GotFocus"); });
}

TEST_F(FormLife, ShownAgainAfterUnloadingLoadsAgain) {
  show(form);
  happened();
  show(form, [&] { EXPECT_EQ(happened(), "frmSample_Load frmSample_Activate a_GotFocus"); });
}

TEST_F(FormLife, QueryUnloadThatRefusesKeepsTheFormOpenAndUnloadUnasked) {
  form.QueryUnload = [&](int& cancel, int) { cancel = 1; };
  show(form, [&] {
    happened();
    form.closeBox();
    form.UnloadMe();
    EXPECT_EQ(happened(), "");
    EXPECT_TRUE(form.Visible());
    form.QueryUnload = nullptr;
  });
}

TEST_F(FormLife, UnloadThatRefusesKeepsTheFormOpen) {
  bool refuse = true;
  form.Unload = [&](int& cancel) {
    note("Unload");
    cancel = std::exchange(refuse, false) ? -1 : 0;
  };
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "frmSample_QueryUnload:0 Unload");
    EXPECT_TRUE(form.Visible());
    EXPECT_EQ(focusOf(form), "a");
  });
  EXPECT_EQ(happened(), "frmSample_QueryUnload:0 Unload");
}

TEST_F(FormLife, UnloadThatRefusesAndUnloadsByItselfAsksAgainAndCloses) {
  bool inner = false;
  form.Unload = [&](int& cancel) {
    if (std::exchange(inner, true)) return;
    cancel = 1;
    form.UnloadMe();
  };
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "frmSample_QueryUnload:0 frmSample_QueryUnload:1");
    EXPECT_FALSE(form.Visible());
  });
}

TEST_F(FormLife, UnloadMeInsideUnloadOrQueryUnloadDoesNothing) {
  form.QueryUnload = [&](int&, int mode) {
    note("QueryUnload:" + std::to_string(mode));
    form.UnloadMe();
  };
  form.Unload = [&](int&) {
    note("Unload");
    form.UnloadMe();
  };
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "QueryUnload:0 Unload");
    EXPECT_FALSE(form.Visible());
  });
}

TEST_F(FormLife, UnloadThatAlwaysRefusesAndUnloadsByItselfAsksOnceAgainAndNoMore) {
  bool refuse = true;
  form.Unload = [&](int& cancel) {
    note("Unload");
    cancel = refuse ? 1 : 0;
    form.UnloadMe();
  };
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "frmSample_QueryUnload:0 Unload frmSample_QueryUnload:1 Unload");
    EXPECT_TRUE(form.Visible());
    refuse = false;
  });
  EXPECT_FALSE(form.Visible());
}

TEST_F(FormLife, ClosingTellsTheControlsNothing) {
  watchValidate(form);
  show(form, [&] {
    form.control(u"btn").Click = [&] { form.UnloadMe(); };
    form.control(u"btn").SetFocus();
    happened();
    press(key::Enter);
    EXPECT_EQ(happened(), "frmSample_QueryUnload:1 frmSample_Unload");
  });
}

TEST_F(FormLife, UnloadingInLoadMakesShowFailWith364) {
  form.Load = [&] { form.UnloadMe(); };
  EXPECT_EQ(errorNumberOf([&] { show(form); }), error::ObjectUnloaded);
  EXPECT_EQ(happened(), "frmSample_QueryUnload:1 frmSample_Unload");
  EXPECT_EQ(desktop.activeForm(), nullptr);
}

TEST_F(FormLife, UnloadingInActivateReturnsFromShow) {
  form.Activate = [&] { form.UnloadMe(); };
  show(form, [&] { ADD_FAILURE() << "nobody may act"; });
  EXPECT_EQ(happened(), "frmSample_Load frmSample_QueryUnload:1 frmSample_Unload");
}

TEST_F(FormLife, ShowingAFormThatIsShownFailsWith400) {
  show(form, [&] {
    EXPECT_EQ(errorNumberOf([&] { form.Show(); }), error::FormAlreadyDisplayed);
    EXPECT_TRUE(form.Visible());
  });
}

TEST_F(FormLife, UnloadingAFormThatIsNotLoadedDoesNothing) {
  form.UnloadMe();
  form.closeBox();
  EXPECT_EQ(happened(), "");
}

TEST_F(FormLife, AFormThatWasLoadedAndNeverShownUnloadsLikeAnother) {
  form.ensureLoaded();
  form.UnloadMe();
  EXPECT_EQ(happened(), "frmSample_Load frmSample_QueryUnload:1 frmSample_Unload");
  EXPECT_FALSE(form.isLoaded());
}

TEST_F(FormLife, StatementsBehindUnloadMeStillRunAndReadTheForm) {
  form.control(u"btn").Click = [&] {
    form.Get<TextBox>(u"a").Text(u"10");
    form.UnloadMe();
    note("read:" + toUtf8(form.Get<TextBox>(u"a").Text()));
  };
  show(form, [&] {
    happened();
    click(form.control(u"btn"));
  });
  EXPECT_EQ(happened(), "a_LostFocus btn_GotFocus frmSample_QueryUnload:1 frmSample_Unload read:10");
}

TEST_F(FormLife, AFormThatFailsToLoadOpensAllTheSame) {
  form.Load = [] { throw RuntimeError(error::CannotCreateObject); };
  show(form, [&] { EXPECT_EQ(happened(), "!Form_Load:429 frmSample_Activate a_GotFocus"); });
}

TEST_F(FormLife, SizesAreOuterSizesAroundTheClientArea) {
  EXPECT_EQ(form.ScaleWidth(), 6000);
  EXPECT_EQ(form.Width(), 6090);
  EXPECT_EQ(form.ScaleHeight(), 4500);
  EXPECT_EQ(form.Height(), 4920);
  form.Width(5090);
  form.Height(3420);
  EXPECT_EQ(form.ScaleWidth(), 5000);
  EXPECT_EQ(form.ScaleHeight(), 3000);
}

TEST_F(FormLife, AppearsOnTheDesktopOfTheInnermostScope) {
  headless::HeadlessDesktop inner;
  {
    const Desktop::Scope scope(inner);
    EXPECT_EQ(&Desktop::current(), &inner);
    // Nobody is there: the form is closed by its close box.
    form.Show();
    EXPECT_EQ(happened(),
              "frmSample_Load frmSample_Activate a_GotFocus frmSample_QueryUnload:0 frmSample_Unload");
  }
  EXPECT_EQ(&Desktop::current(), &desktop);
}

TEST(FormWithoutADesktop, CannotBeShown) {
  SampleForm form(roster);
  EXPECT_EQ(errorNumberOf([&] { form.Show(); }), error::CannotCreateObject);
  EXPECT_FALSE(form.Visible());
}

// ---- forms above each other

TEST_F(NestedForms, TheOneAboveIsTheActiveOneUntilItCloses) {
  SampleForm inner(roster, u"frmInner");
  watchLife(inner);
  show(form, [&] {
    happened();
    form.control(u"btn").Click = [&] {
      show(inner, [&] {
        EXPECT_EQ(desktop.activeForm(), &inner);
        EXPECT_TRUE(form.Visible());
      });
      note("back");
    };
    click(form.control(u"btn"));
    EXPECT_EQ(
        happened(),
        "a_LostFocus btn_GotFocus frmInner_Load frmInner_Activate frmInner_QueryUnload:0 frmInner_Unload "
        "frmSample_Activate back");
    EXPECT_EQ(desktop.activeForm(), &form);
    EXPECT_EQ(focusOf(form), "btn");
  });
}

TEST_F(NestedForms, AMessageBoxDoesNotActivateTheFormAnew) {
  show(form, [&] {
    happened();
    MsgBox(u"Fertig", msgbox::OKOnly, u"");
    EXPECT_EQ(happened(), "[Fertig]");
  });
}

TEST_F(NestedForms, TheOneBelowIsNotActivatedWhenItWasUnloadedMeanwhile) {
  SampleForm inner(roster, u"frmInner");
  show(form, [&] {
    happened();
    show(inner, [&] { form.UnloadMe(); });
    EXPECT_EQ(happened(), "frmSample_QueryUnload:1 frmSample_Unload");
  });
}

TEST_F(NestedForms, AClickOnTheOneBelowDoesNothing) {
  SampleForm inner(roster, u"frmInner");
  watchClicks(form);
  show(form, [&] {
    show(inner, [&] {
      happened();
      click(form.control(u"btn"));
      EXPECT_EQ(happened(), "");
      EXPECT_EQ(focusOf(form), "a");
    });
  });
}

}  // namespace
}  // namespace zqn::testing
