// SPDX-License-Identifier: MIT
#include "runtime/error.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "runtime/ref.h"
#include "runtime/resume_next.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

TEST(RuntimeErrorText, IsGermanForTheLanguageAndEnglishForAdo) {
  struct Row {
    std::int32_t number;
    const char16_t* text;
  };
  const Row rows[] = {
      {5, u"Ungültiger Prozeduraufruf oder ungültiges Argument"},
      {6, u"Überlauf"},
      {9, u"Index außerhalb des gültigen Bereichs"},
      {11, u"Division durch Null"},
      {13, u"Typen unverträglich"},
      {91, u"Objektvariable oder With-Blockvariable nicht festgelegt"},
      {94, u"Unzulässige Verwendung von Null"},
      {364, u"Objekt wurde entladen"},
      {380, u"Ungültiger Eigenschaftswert"},
      {3001,
       u"Arguments are of the wrong type, are out of acceptable range, or are in conflict with one another."},
      {3021,
       u"Either BOF or EOF is True, or the current record has been deleted. Requested operation requires a "
       u"current record."},
      {3219, u"Operation is not allowed in this context."},
      {3251, u"Object or provider is not able to perform requested operation."},
      {3265, u"Item cannot be found in the collection corresponding to the requested name or ordinal."},
      {3420, u"Object is no longer valid."},
      {3421, u"Application uses a value of the wrong type for the current operation."},
      {3704, u"Operation is not allowed when the object is closed."},
      {3705, u"Operation is not allowed when the object is open."},
      {3709,
       u"The connection cannot be used to perform this operation. It is either closed or invalid in this "
       u"context."},
      {-2147217864,
       u"Row cannot be located for updating. Some values may have been changed since it was last read."},
      {-2147217887, u"Multiple-step operation generated errors. Check each status value."},
      {-2147352571, u"Type mismatch."},
      {4711, u""},
  };
  for (const Row& row : rows) EXPECT_EQ(error::description(row.number), row.text) << row.number;
}

TEST(RuntimeErrorText, EveryNumberOfTheHeaderHasWords) {
  using namespace error;
  for (const std::int32_t number : {InvalidProcedureCall, Overflow,
                                    SubscriptOutOfRange,  DivisionByZero,
                                    TypeMismatch,         ObjectNotSet,
                                    InvalidUseOfNull,     NoSuchControl,
                                    ObjectUnloaded,       UnableToUnload,
                                    InvalidPropertyValue, InvalidPropertyArrayIndex,
                                    PropertyIsReadOnly,   FormAlreadyDisplayed,
                                    ObjectRequired,       CannotCreateObject,
                                    NoSuchMember,         InvalidArgument,
                                    NoCurrentRecord,      IllegalOperation,
                                    FeatureNotAvailable,  ItemNotFound,
                                    ObjectNotValid,       DataConversion,
                                    ObjectClosed,         ObjectOpen,
                                    InvalidConnection,    CommandText,
                                    TableNotFound,        IntegrityViolation,
                                    RowConflict,          MultipleStep,
                                    ProviderDataOverflow, PermissionDenied,
                                    ProviderTypeMismatch, ProviderFailure}) {
    EXPECT_NE(description(number), u"") << number;
  }
}

TEST(RuntimeError, CarriesNumberWordsAndSource) {
  const RuntimeError plain(error::Overflow);
  EXPECT_EQ(plain.number(), 6);
  EXPECT_EQ(plain.description(), u"Überlauf");
  EXPECT_EQ(plain.source(), u"");
  EXPECT_STREQ(plain.what(),
               "6: \xC3\x9C"
               "berlauf");

  const RuntimeError told(error::CommandText, u"near \"Form\": syntax error", u"SQLite");
  EXPECT_EQ(told.number(), -2147217900);
  EXPECT_EQ(told.description(), u"near \"Form\": syntax error");
  EXPECT_EQ(told.source(), u"SQLite");
}

TEST(ResumeNext, SkipsAFailingStatementAndGoesOn) {
  ResumeNext step;
  int value = 1;
  step([&] {
    throw RuntimeError(error::ObjectClosed);
    value = 2;
  });
  step([&] { value += 10; });
  EXPECT_EQ(value, 11);
  EXPECT_EQ(step.Number(), error::ObjectClosed);
  EXPECT_EQ(step.Description(), u"Operation is not allowed when the object is closed.");
}

TEST(ResumeNext, FailingAssignmentLeavesItsTarget) {
  ResumeNext step;
  int value = 7;
  step([&] { value = []() -> int { throw RuntimeError(error::TypeMismatch); }(); });
  EXPECT_EQ(value, 7);
}

TEST(ResumeNext, FailingConditionEntersTheBranch) {
  ResumeNext step;
  EXPECT_TRUE(step.test([]() -> bool { throw RuntimeError(error::InvalidUseOfNull); }));
  EXPECT_EQ(step.Number(), error::InvalidUseOfNull);
  EXPECT_FALSE(step.test([] { return false; }));
  EXPECT_TRUE(step.test([] { return 5; }));
}

TEST(ResumeNext, NumberStandsUntilClear) {
  ResumeNext step;
  EXPECT_EQ(step.Number(), 0);
  EXPECT_EQ(step.Description(), u"");
  step([] { throw RuntimeError(error::TypeMismatch); });
  step([] {});
  EXPECT_TRUE(step.test([] { return true; }));
  EXPECT_EQ(step.Number(), error::TypeMismatch);
  step([] { throw RuntimeError(error::Overflow); });
  EXPECT_EQ(step.Number(), error::Overflow);
  step.Clear();
  EXPECT_EQ(step.Number(), 0);
  EXPECT_EQ(step.Description(), u"");
}

TEST(ResumeNext, DefectOfTheProgramIsNotSwallowed) {
  ResumeNext step;
  EXPECT_THROW(step([] { throw std::logic_error("broken"); }), std::logic_error);
  EXPECT_THROW(step.test([]() -> bool { throw std::bad_alloc(); }), std::bad_alloc);
  EXPECT_EQ(step.Number(), 0);
}

TEST(ResumeNext, CalledRoutineWithoutTheModeIsAbandonedAtItsFailure) {
  int done = 0;
  const auto callee = [&] {
    ++done;
    throw RuntimeError(error::NoCurrentRecord);
    ++done;
  };
  ResumeNext step;
  step(callee);
  step([&] { done += 10; });
  EXPECT_EQ(done, 11);
}

struct Companion {
  int value = 3;
  int read() const { return value; }
};

struct DerivedCompanion : Companion {};

TEST(Ref, NothingRaisesErrorOnUse) {
  Ref<Companion> companion;
  EXPECT_TRUE(companion.isNothing());
  EXPECT_EQ(errorNumberOf([&] { return companion->read(); }), error::ObjectNotSet);
  EXPECT_EQ(errorNumberOf([&] { return (*companion).read(); }), error::ObjectNotSet);

  companion = Ref<Companion>::make();
  EXPECT_FALSE(companion.isNothing());
  EXPECT_EQ(companion->read(), 3);

  companion = nothing;
  EXPECT_EQ(errorNumberOf([&] { return companion->read(); }), error::ObjectNotSet);
}

TEST(Ref, CopiesReferToOneObjectAndTheLastOneReleasesIt) {
  Ref<DerivedCompanion> derived = Ref<DerivedCompanion>::make();
  const std::weak_ptr<DerivedCompanion> watch = derived.shared();
  Ref<Companion> base = derived;
  EXPECT_TRUE(base == Ref<Companion>(derived));
  base->value = 8;
  EXPECT_EQ(derived->value, 8);
  derived = nothing;
  EXPECT_FALSE(watch.expired());
  base = nothing;
  EXPECT_TRUE(watch.expired());
}

}  // namespace
}  // namespace zqn
