// SPDX-License-Identifier: MIT
//
// What the error mode of a writing procedure passes over: who hears of it, and what the form says.
#include "forms/writing_procedure.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"btn", ControlKind::CommandButton, u"", 0, 600, 1000, 285},
};

class FailurePassedOver : public FormTest {
 protected:
  FailurePassedOver() {
    form.control(u"btn").Click = [this] { write(u"WriteRecord"); };
  }

  void write(const char16_t* procedure) {
    ResumeNext step;
    {
      const WritingProcedure writing(form, procedure);
      for (const std::int32_t number : fails) step([&] { throw RuntimeError(number); });
    }
    step([&] { throw RuntimeError(error::ObjectNotSet); });
  }

  SampleForm form{roster};
  std::vector<std::int32_t> fails{error::RowConflict, error::IllegalOperation};
};

TEST_F(FailurePassedOver, IsHeardOfByTheDesktopsListenersEachInItsTurn) {
  show(form, [&] { click(form.control(u"btn")); });
  EXPECT_EQ(happened(), "~WriteRecord:-2147217864 ~WriteRecord:3219")
      << "no box, and nothing behind the procedure counts";
}

TEST_F(FailurePassedOver, IsTheFormsNoticeUntilTheNextKey) {
  show(form, [&] {
    EXPECT_EQ(form.Notice(), u"");
    click(form.control(u"btn"));
    EXPECT_EQ(form.Notice(), u"Fehler -2147217864: " + error::description(error::RowConflict))
        << "the first is the cause";
    click(form.control(u"a"));
    EXPECT_NE(form.Notice(), u"");
    type(u"x");
    EXPECT_EQ(form.Notice(), u"");
  });
}

TEST_F(FailurePassedOver, GoesFromTheFormWhenTheNextProcedureWrites) {
  show(form, [&] {
    click(form.control(u"btn"));
    fails.clear();
    click(form.control(u"btn"));
    EXPECT_EQ(form.Notice(), u"");
  });
}

TEST_F(FailurePassedOver, OfAFormThatIsClosedIsHeardOfAllTheSame) {
  write(u"SaveAll");
  EXPECT_EQ(happened(), "~SaveAll:-2147217864 ~SaveAll:3219");
  EXPECT_EQ(form.Notice(), u"");
}

TEST(FailurePassedOverWithoutADesktop, LetsTheProcedureGoOn) {
  SampleForm form{roster};
  const WritingProcedure writing(form, u"WriteRecord");
  ResumeNext step;
  EXPECT_NO_THROW(step([] { throw RuntimeError(error::Overflow); }));
  EXPECT_EQ(step.Number(), error::Overflow);
}

}  // namespace
}  // namespace zqn::testing
