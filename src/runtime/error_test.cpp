// SPDX-License-Identifier: MIT
#include "runtime/error.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <regex>
#include <stdexcept>
#include <string>

#include "runtime/ref.h"
#include "runtime/resume_next.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

TEST(RuntimeErrorText, IsGerman) {
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
      {3021,
       u"BOF oder EOF ist True, oder der aktuelle Datensatz ist gelöscht. Der Vorgang braucht einen "
       u"aktuellen Datensatz."},
      {3704, u"Der Vorgang ist nicht zulässig, wenn das Objekt geschlossen ist."},
      {-2147217864,
       u"Der Datensatz wurde nicht gefunden. Er ist gelöscht oder seit dem Lesen geändert worden."},
      {4711, u""},
  };
  for (const Row& row : rows) EXPECT_EQ(error::description(row.number), row.text) << row.number;
}

// ---- every number and every text in the sources of the library

std::string read(const std::filesystem::path& file) {
  std::ifstream stream(file, std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

const std::filesystem::path sources = std::filesystem::path(__FILE__).parent_path().parent_path();

TEST(RuntimeErrorText, EveryNumberOfTheHeaderHasWords) {
  const std::string header = read(sources / "runtime/error.h");
  const std::regex constant(R"(constexpr std::int32_t (\w+)\s*=\s*(-?\d+);)");
  int numbers = 0;
  for (std::sregex_iterator each(header.begin(), header.end(), constant), end; each != end; ++each) {
    EXPECT_NE(error::description(std::stoi((*each)[2])), u"") << (*each)[1];
    ++numbers;
  }
  EXPECT_GE(numbers, 38);
}

/// What stands in most English sentences and in no German one.
const std::regex english(R"(\b(the|is|are|of|not|cannot|has|or|and|there|no|by|for|to)\b)");

TEST(RuntimeErrorText, IsGermanWhereverALibraryMakesOne) {
  const std::regex raised(R"re((?:RuntimeError|raise|refuse|raiseGridError)\([^;]*?;)re");
  const std::regex literal(R"re(u"((?:[^"\\]|\\.)*)")re");
  int texts = 0;
  for (const char* folder : {"runtime", "ado", "forms", "contract", "frontend", "dialog", "definitions",
                             "catalogues", "sales", "split", "desktop"}) {
    for (const auto& entry : std::filesystem::recursive_directory_iterator(sources / folder)) {
      const std::string name = entry.path().filename().string();
      if (entry.path().extension() != ".cpp" || name.ends_with("_test.cpp")) continue;
      const std::string source = read(entry.path());
      for (std::sregex_iterator call(source.begin(), source.end(), raised), end; call != end; ++call) {
        const std::string statement = call->str();
        for (std::sregex_iterator text(statement.begin(), statement.end(), literal); text != end; ++text) {
          ++texts;
          EXPECT_FALSE(std::regex_search((*text)[1].str(), english)) << name << ": " << (*text)[1];
        }
      }
    }
  }
  EXPECT_GE(texts, 20);
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
  EXPECT_EQ(step.Description(), u"Der Vorgang ist nicht zulässig, wenn das Objekt geschlossen ist.");
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
  auto object = std::make_shared<DerivedCompanion>();
  const std::weak_ptr<DerivedCompanion> watch = object;
  Ref<DerivedCompanion> derived = std::move(object);
  Ref<Companion> base = derived;
  EXPECT_TRUE(base == Ref<Companion>(derived));
  base->value = 8;
  EXPECT_EQ(derived->value, 8);
  derived = nothing;
  EXPECT_FALSE(watch.expired());
  base = nothing;
  EXPECT_TRUE(watch.expired());
}

TEST(Ref, OfANullPointerIsNothing) {
  EXPECT_TRUE(Ref<Companion>(std::shared_ptr<DerivedCompanion>()).isNothing());
  EXPECT_TRUE(Ref<Companion>(Ref<DerivedCompanion>()).isNothing());
}

TEST(Ref, MovingLeavesNothingAndAssigningItselfKeepsTheObject) {
  Ref<Companion> from = Ref<Companion>::make();
  from->value = 7;
  Ref<Companion> to = std::move(from);
  EXPECT_EQ(to->value, 7);
  Ref<Companion>& same = to;
  to = same;
  EXPECT_EQ(to->value, 7);
  EXPECT_FALSE(to == Ref<Companion>::make());
}

// ---- who hears of what is passed over

struct Heard final : PassedOverListener {
  void passedOver(const RuntimeError& failure) override { numbers.push_back(failure.number()); }
  std::vector<std::int32_t> numbers;
};

TEST(PassedOver, IsHeardOfByTheInnermostListenerAlone) {
  ResumeNext step;
  const auto fail = [&](std::int32_t number) { step([&] { throw RuntimeError(number); }); };
  fail(error::Overflow);
  EXPECT_EQ(PassedOverListener::current(), nullptr);
  Heard outer;
  fail(error::ObjectNotSet);
  {
    Heard inner;
    EXPECT_TRUE(step.test([]() -> bool { throw RuntimeError(error::TypeMismatch); }));
    EXPECT_EQ(inner.numbers, std::vector<std::int32_t>{error::TypeMismatch});
  }
  fail(error::InvalidUseOfNull);
  EXPECT_EQ(outer.numbers, (std::vector<std::int32_t>{error::ObjectNotSet, error::InvalidUseOfNull}));
}

TEST(PassedOver, IsNothingInARoutineThatRaises) {
  const Heard heard;
  ResumeNext step(ResumeNext::Mode::Raise);
  EXPECT_EQ(errorNumberOf([&] { step([] { throw RuntimeError(error::Overflow); }); }), error::Overflow);
  EXPECT_EQ(errorNumberOf([&] { step.test([]() -> bool { throw RuntimeError(error::Overflow); }); }),
            error::Overflow);
  EXPECT_EQ(step.Number(), 0);
  EXPECT_TRUE(heard.numbers.empty());
}

}  // namespace
}  // namespace zqn
