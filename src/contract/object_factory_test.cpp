// SPDX-License-Identifier: MIT
#include "contract/object_factory.h"

#include <gtest/gtest.h>

#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr StringView name = u"TESTAuskunft.Auskunft";

class Auskunft : public Object {
 public:
  int number = 0;
};

class Companions : public FormTest {
 protected:
  ~Companions() override { factory.withdraw(name); }

  std::int32_t createFails(StringView wanted) {
    return errorNumberOf([&] { factory.CreateObject(wanted); });
  }

  ObjectFactory& factory = ObjectFactory::current();
};

TEST_F(Companions, OneThatNobodyOffersIsError429) {
  EXPECT_EQ(createFails(name), error::CannotCreateObject);
  EXPECT_EQ(createFails(u""), error::CannotCreateObject);
}

TEST_F(Companions, AreMadeAnewForEachCreation) {
  int made = 0;
  factory.offer(name, [&] {
    auto object = std::make_shared<Auskunft>();
    object->number = ++made;
    return object;
  });
  EXPECT_EQ(factory.create<Auskunft>(name)->number, 1);
  EXPECT_EQ(factory.create<Auskunft>(name)->number, 2);
}

TEST_F(Companions, AreFoundWithoutRegardToCase) {
  factory.offer(name, [] { return std::make_shared<Auskunft>(); });
  EXPECT_EQ(createFails(u"testAUSKUNFT.auskunft"), 0);
  factory.withdraw(u"TestAuskunft.AUSKUNFT");
  EXPECT_EQ(createFails(name), error::CannotCreateObject);
}

TEST_F(Companions, ALaterOfferReplacesTheEarlierOne) {
  factory.offer(name, [] { return std::make_shared<Object>(); });
  factory.offer(name, [] { return std::make_shared<Auskunft>(); });
  EXPECT_FALSE(factory.create<Auskunft>(name).isNothing());
}

TEST_F(Companions, OneOfAnotherKindOrOneThatCannotBeMadeIsError429) {
  factory.offer(name, [] { return std::make_shared<Object>(); });
  EXPECT_EQ(errorNumberOf([&] { factory.create<Auskunft>(name); }), error::CannotCreateObject);
  factory.offer(name, [] { return nullptr; });
  EXPECT_EQ(createFails(name), error::CannotCreateObject);
}

// ---- keys sent on behalf of a form

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"b", ControlKind::TextBox, u"", 0, 300, 1000, 285},
};

using SendKeysCompanion = Companions;

TEST_F(SendKeysCompanion, QueuesItsKeysForTheForm) {
  SampleForm form(roster);
  const auto keys = factory.create<ZQSendKeys>(u"ZQBSendKeys.ZQSendKeys");
  show(form, [&] {
    String tab = u"{Tab}";
    Variant wait = u"as it was";
    keys->SendKeys(tab, wait);
    EXPECT_EQ(focusOf(form), "a");
    desktop.pressQueuedKeys();
    EXPECT_EQ(focusOf(form), "b");
    EXPECT_EQ(tab, u"{Tab}");
    EXPECT_EQ(wait, Variant(u"as it was"));
    keys->SendKeys2(u"{Tab}");
    desktop.pressQueuedKeys();
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(SendKeysCompanion, RefusesAKeyThatIsNone) {
  const auto keys = factory.create<ZQSendKeys>(u"zqbsendkeys.zqsendkeys");
  EXPECT_EQ(errorNumberOf([&] { keys->SendKeys2(u"{Quatsch}"); }), error::InvalidProcedureCall);
}

TEST_F(SendKeysCompanion, SendsToTheDesktopThatIsCurrentWhenItIsCalled) {
  const auto keys = factory.create<ZQSendKeys>(u"ZQBSendKeys.ZQSendKeys");
  SampleForm form(roster);
  headless::HeadlessDesktop other;
  const Desktop::Scope scope(other);
  form.Activate = [&] { keys->SendKeys2(u"x"); };
  form.Show();
  EXPECT_EQ(form.Get<TextBox>(u"a").Text(), u"x");
}

}  // namespace
}  // namespace zqn::testing
