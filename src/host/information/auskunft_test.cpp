// SPDX-License-Identifier: MIT
//
// A person looks for a customer or an offer and takes it over.
#include "host/information/auskunft.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>

#include "contract/auskunft.h"
#include "contract/object_factory.h"
#include "desktop/headless/headless_desktop.h"
#include "forms/form.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "host/database/database.h"
#include "testing/runtime.h"

namespace zqn::host {
namespace {

using ::testing::ElementsAre;

class AuskunftTest : public ::testing::Test {
 protected:
  AuskunftTest() {
    std::filesystem::create_directories(folder_);
    const auto address = DatabaseAddress::ofFile(folder_ / "sample.sqlite");
    createTables(address, {.sample = true});
    connection_ = openDatabase(address);
    offerAuskunft(connection_);
  }
  ~AuskunftTest() override {
    ObjectFactory::current().withdraw(u"Kalmera.AuskunftObject");
    if (connection_->State() != ado::adStateClosed) connection_->Close();
    std::filesystem::remove_all(folder_);
  }

  /// Opens the dialog; `acts` runs while it stands open, then it is closed by its close box.
  Ref<AuskunftObject> ask(StringView name, StringView title, std::function<void()> acts) {
    auto auskunft = ObjectFactory::current().create<AuskunftObject>(u"Kalmera.AuskunftObject");
    auskunft->PopupItems.Add(u"Take", u"Über&nehmen", 0, false, true, true, true);
    desktop.whenIdle([&] {
      if (acts) {
        std::exchange(acts, nullptr)();
      } else {
        form().closeBox();
      }
    });
    auskunft->Show(nothing, name, title);
    return auskunft;
  }
  Ref<AuskunftObject> askCustomers(const std::function<void()>& acts) {
    return ask(u"AUSK_Kundenauskunft", u"Kundenauskunft", acts);
  }

  Form& form() const { return *desktop.activeForm(); }
  TDBList& list() const { return form().Get<TDBList>(u"TDBList1"); }
  void type(StringView text) {
    for (const char16_t each : text) desktop.press(KeyStroke::ofCharacter(each));
  }
  std::vector<String> numbers() const {
    while (!list().rowsComplete()) list().fetchRows(1000);
    std::vector<String> found;
    for (int row = 0; row < list().knownRows(); ++row) found.push_back(list().cellText(row, 0));
    return found;
  }

  headless::HeadlessDesktop desktop;
  Desktop::Scope scope{desktop};
  Ref<ado::Connection> connection_;

 private:
  std::filesystem::path folder_ =
      std::filesystem::temp_directory_path() / ("zqn-auskunft-" + std::to_string(std::random_device()()));
};

TEST_F(AuskunftTest, FindsCustomersByTheFrontOfTheNumberAndByAnyPartOfTheName) {
  askCustomers([&] {
    EXPECT_EQ(form().Caption(), u"Kundenauskunft");
    EXPECT_EQ(form().control(u"btnTake").content(), u"Über&nehmen");
    EXPECT_GE(numbers().size(), 12u);
    type(u"1001");
    EXPECT_THAT(numbers(), ElementsAre(u"10010", u"10011", u"10012", u"10013", u"10014", u"10015", u"10016"));
    form().Get<TextBox>(u"txtSuche").Text(u"ALPEN");
    EXPECT_THAT(numbers(), ElementsAre(u"10014"));
    form().Get<TextBox>(u"txtSuche").Text(u"gibt es nicht");
    EXPECT_TRUE(numbers().empty());
    EXPECT_FALSE(form().control(u"btnTake").Enabled());
    EXPECT_EQ(form().control(u"lblTreffer").content(), u"nichts gefunden");
  });
}

TEST_F(AuskunftTest, EnterTakesTheMarkedRow) {
  const auto auskunft = askCustomers([&] {
    type(u"1001");
    desktop.press(KeyStroke::ofCode(key::Down));
    EXPECT_EQ(form().ActiveControl()->Name(), u"txtSuche") << "one goes on typing";
    desktop.press(KeyStroke::ofCode(key::Enter));
    EXPECT_EQ(desktop.activeForm() != nullptr && form().Visible(), false);
  });
  EXPECT_EQ(auskunft->Result(), 1);
  EXPECT_EQ(auskunft->ResultDataItems(u"kundennummer"), Variant(u"10011"));
  EXPECT_EQ(errorNumberOf([&] { return auskunft->ResultDataItems(u"Belegnummer"); }), error::ItemNotFound);
}

TEST_F(AuskunftTest, ADoubleClickTakesTheRow) {
  const auto auskunft = askCustomers([&] { list().userDoubleClick(0); });
  EXPECT_EQ(auskunft->Result(), 1);
  EXPECT_EQ(auskunft->ResultDataItems(u"Kundennummer"), Variant(u"10001"));
}

TEST_F(AuskunftTest, ANumberCountsFromItsFront) {
  askCustomers([&] {
    type(u"0001");
    EXPECT_THAT(numbers(), ElementsAre());
    EXPECT_EQ(form().control(u"lblTreffer").content(), u"nichts gefunden");
    form().Get<TextBox>(u"txtSuche").Text(u"10001");
    EXPECT_EQ(form().control(u"lblTreffer").content(), u"1 gefunden");
  });
}

TEST_F(AuskunftTest, ASearchThatFailsFindsNothing) {
  askCustomers([&] {
    connection_->Close();
    type(u"1");
    EXPECT_THAT(numbers(), ElementsAre());
    EXPECT_FALSE(form().control(u"btnTake").Enabled());
  });
}

TEST_F(AuskunftTest, OffersAreFoundByTheirCustomerAndGiveTheirNumber) {
  const auto auskunft = ask(u"AUSK_Angebotsauskunft", u"Angebotsauskunft", [&] {
    type(u"chemie");
    EXPECT_THAT(numbers(), ElementsAre(u"2500002"));
    desktop.click(form().control(u"btnTake"));
  });
  EXPECT_EQ(auskunft->Result(), 1);
  EXPECT_EQ(auskunft->ResultDataItems(u"Belegnummer"), Variant(u"2500002"));
}

TEST_F(AuskunftTest, ClosingTakesNothing) {
  const auto auskunft = askCustomers([&] { desktop.press(KeyStroke::ofCode(key::Escape)); });
  EXPECT_EQ(auskunft->Result(), 0);
  EXPECT_EQ(errorNumberOf([&] { return auskunft->ResultDataItems(u"Kundennummer"); }), error::ItemNotFound);
}

TEST_F(AuskunftTest, SignsOfPatternsAndApostrophesStandForAnyCharacter) {
  askCustomers([&] {
    type(u"Alpen'lick");
    EXPECT_THAT(numbers(), ElementsAre(u"10014"));
    for (const StringView sign : {u"%", u"_", u"*", u"[", u"?", u"'"}) {
      form().Get<TextBox>(u"txtSuche").Text(String(sign) + u"0001");
      EXPECT_THAT(numbers(), ElementsAre(u"10001")) << toUtf8(sign);
      form().Get<TextBox>(u"txtSuche").Text(String(sign) + u"7");
      EXPECT_THAT(numbers(), ElementsAre()) << toUtf8(sign) << " stands for one character, and for no more";
    }
  });
}

TEST_F(AuskunftTest, AnotherNameIsAnError) {
  EXPECT_EQ(errorNumberOf([&] { return ask(u"AUSK_Artikel", u"Artikel", {}); }), error::InvalidProcedureCall);
}

}  // namespace
}  // namespace zqn::host
