// SPDX-License-Identifier: MIT
//
// A popup menu: what it offers, what taking an item does, and what waits meanwhile.
#include "forms/menu.h"

#include "forms/command_button.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"btn", ControlKind::CommandButton, u"OK", 0, 0, 1000, 285},
    {u"mnuPopup", ControlKind::Menu, u"Popup", 0, 0, 0, 0, {.Visible = false}},
    {u"mnuOpen", ControlKind::Menu, u"Öff&nen", 0, 0, 0, 0, {.Container = u"mnuPopup"}},
    {u"mnuDelete", ControlKind::Menu, u"&Löschen", 0, 0, 0, 0, {.Container = u"mnuPopup"}},
    {u"mnuHidden", ControlKind::Menu, u"Nie", 0, 0, 0, 0, {.Visible = false, .Container = u"mnuPopup"}},
};

class PopupMenus : public FormTest {
 protected:
  PopupMenus() {
    watchClicks(form);
    btn.Click = [this] {
      form.PopupMenu(popup);
      note("closed");
    };
  }
  /// Opens the menu by the button; `acts` runs while it stands open.
  void whileOpen(const std::function<void()>& acts) {
    bool acted = false;
    show(form, [&] {
      desktop.whenIdle([&] {
        if (desktop.openPopupMenu() != nullptr && !std::exchange(acted, true)) return acts();
        if (desktop.openPopupMenu() != nullptr) {
          desktop.take(nullptr);
        } else {
          form.closeBox();
        }
      });
      click(btn);
    });
    EXPECT_TRUE(acted);
  }

  SampleForm form{roster};
  CommandButton& btn = form.Get<CommandButton>(u"btn");
  Menu& popup = form.Get<Menu>(u"mnuPopup");
  Menu& open = form.Get<Menu>(u"mnuOpen");
  Menu& remove = form.Get<Menu>(u"mnuDelete");
};

TEST_F(PopupMenus, OfferTheirVisibleItemsInOrder) {
  EXPECT_THAT(popup.items(), ::testing::ElementsAre(&open, &remove));
  open.Visible(false);
  EXPECT_THAT(popup.items(), ::testing::ElementsAre(&remove));
}

TEST_F(PopupMenus, ClickOfTheItemRunsBeforeTheMenuReturns) {
  whileOpen([&] { EXPECT_TRUE(desktop.take(&remove)); });
  EXPECT_EQ(happened(), "mnuDelete_Click closed");
}

TEST_F(PopupMenus, CloseWithoutAnItemByEsc) {
  whileOpen([&] { press(key::Escape); });
  EXPECT_EQ(happened(), "closed");
}

TEST_F(PopupMenus, ADisabledItemCannotBeTaken) {
  remove.Enabled(false);
  whileOpen([&] {
    EXPECT_FALSE(desktop.take(&remove));
    EXPECT_FALSE(desktop.take(&form.Get<Menu>(u"mnuHidden")));
  });
  EXPECT_EQ(happened(), "closed");
}

TEST_F(PopupMenus, TheFormWaitsBehindThem) {
  whileOpen([&] {
    click(btn);
    press(key::Tab);
    EXPECT_EQ(happened(), "");
  });
  EXPECT_EQ(happened(), "closed");
  EXPECT_FALSE(desktop.take(nullptr)) << "no menu is open any more";
}

TEST_F(PopupMenus, WithNobodyThereClose) {
  desktop.whenIdle({});
  form.Activate = [this] { form.PopupMenu(popup); };
  form.Show();
  EXPECT_EQ(happened(), "");
}

TEST_F(PopupMenus, StandNowhereOnTheForm) {
  EXPECT_FALSE(popup.isShown());
  EXPECT_FALSE(remove.isShown());
  EXPECT_FALSE(remove.takesFocus());
  EXPECT_EQ(remove.Property(u"Caption"), Variant(u"&Löschen"));
}

}  // namespace
}  // namespace zqn::testing
