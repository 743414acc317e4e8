// SPDX-License-Identifier: MIT
#include "testing/qt/form_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/text.h"
#include "frontend/kinds.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

namespace {

using enum ControlKind;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// The findings in a form of these controls, 3000 by 3000 twips.
template <std::size_t n>
std::vector<std::string> findingsFor(const ControlDesign (&roster)[n]) {
  const FormDesign design{u"frmProbe", u"Probe", 3000, 3000, roster};
  Form form(design);
  return findingsIn(form);
}

TEST(FormChecks, FindNothingInAFormThatIsWellMade) {
  StatiForm form;
  EXPECT_THAT(findingsIn(form), IsEmpty());
}

TEST(FormChecks, FindTextsThatDoNotFit) {
  constexpr ControlDesign roster[] = {
      {u"lbl", Label, u"Zahlungsbedingungen", 0, 0, 900, 255},
      {u"lblText", Label, u"Andruck der Zahlungsbedingungen bei dieser Zahlungsart unterdrücken", 0, 300,
       1500, 420},
      {u"btn", CommandButton, u"Zahlungsbedingungen", 0, 800, 1300, 315},
      {u"Daneben", TextBox, u"", 920, 0, 300, 255},
      {u"tdbd", TDBDate, u"Gültig von:", 0, 2000, 1500, 285},
      {u"chk", CheckBox, u"Zahlungsbedingungen", 0, 1200, 1500, 255},
      {u"txt", TextBox, u"", 0, 1500, 1500, 120},
      {u"lblFlach", Label, u"Status", 0, 1800, 900, 120},
  };
  EXPECT_THAT(findingsFor(roster),
              ElementsAre(HasSubstr("lbl: \"Zahlungsbedingungen\" is "), HasSubstr("lblText: \"Andruck"),
                          HasSubstr("btn: \"Zahlungsbedingungen\" is "), HasSubstr("tdbd: \"Gültig von: 30"),
                          HasSubstr("chk: \"Zahlungsbedingungen\""), HasSubstr("txt: a line is "),
                          HasSubstr("lblFlach: a line is ")));
}

TEST(FormChecks, LeaveAccessKeysWrappedLabelsAndEmptyCaptionsAlone) {
  constexpr ControlDesign roster[] = {
      {u"btn", CommandButton, u"&Neu", 0, 0, 600, 315},
      {u"lbl", Label, u"Dieser Status kann auch dann gesetzt werden", 0, 400, 1800, 640},
      {u"chk", CheckBox, u"", 0, 1200, 255, 255},
  };
  EXPECT_THAT(findingsFor(roster), IsEmpty());
}

TEST(FormChecks, FindControlsInEachOthersWay) {
  constexpr ControlDesign roster[] = {
      {u"Eins", TextBox, u"", 0, 0, 1000, 285},
      {u"Zwei", TextBox, u"", 900, 200, 1000, 285},
      {u"Nah", TextBox, u"", 0, 270, 885, 285},
      {u"Weit", TextBox, u"", 2500, 2000, 1000, 285},
      {u"Davor", TextBox, u"", -30, 1000, 1000, 285},
      {u"Darueber", TextBox, u"", 2500, 1950, 1000, 285, {.Overlaps = true}},
      {u"Fort", TextBox, u"", 0, 0, 1000, 285, {.Visible = false}},
  };
  EXPECT_THAT(findingsFor(roster),
              ElementsAre("Eins: overlaps Zwei", HasSubstr("Weit: leaves the 3000 by 3000"),
                          HasSubstr("Davor: leaves")));
}

TEST(FormChecks, TellTheTabOrder) {
  StatiForm form;
  EXPECT_THAT(tabOrder(form),
              ElementsAre("TDBList1", "Schluessel", "Kurztext", "AutoOverwrite", "btnOK", "btnCancel"));
  form.btnOK.Enabled(false);
  form.Schluessel.TabStop(false);
  EXPECT_THAT(tabOrder(form), ElementsAre("TDBList1", "Kurztext", "AutoOverwrite", "btnCancel"));
}

std::vector<std::int32_t> offeredKinds() {
  std::vector<std::int32_t> numbers;
  for (const KindInfo& kind : dialogKinds()) {
    if (isOffered(kind.number)) numbers.push_back(kind.number);
  }
  return numbers;
}

/// The forms of all kinds that the library offers, as they stand before they are filled.
class FormsOfKind : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(FormsOfKind, LookWell) {
  const std::unique_ptr<Form> form = makeForm(GetParam());
  EXPECT_THAT(findingsIn(*form), IsEmpty());
  EXPECT_THAT(tabOrder(*form), ::testing::Not(IsEmpty()));
}

TEST_P(FormsOfKind, NameListsAndDropDownsByWhatAPersonReads) {
  const std::unique_ptr<Form> form = makeForm(GetParam());
  for (const auto& control : form->controls()) {
    const ControlKind kind = control->kind();
    if (!control->isShown()) continue;
    if (kind != TDBList && kind != ListBox && kind != ComboBox && kind != zqCombo) continue;
    EXPECT_NE(accessibleNameOf(*control), toQt(control->fullName())) << toUtf8(form->Name());
  }
}

/// The generic form with the catalogues of all kinds that it knows.
class GenericFormsOfKind : public ::testing::TestWithParam<std::int32_t> {};

TEST_P(GenericFormsOfKind, LookWell) {
  const std::unique_ptr<Form> form = makeGenericForm(GetParam());
  EXPECT_THAT(findingsIn(*form), IsEmpty());
  EXPECT_THAT(tabOrder(*form), ::testing::Not(IsEmpty()));
}

std::vector<std::int32_t> kindsWithDefinition() {
  std::vector<std::int32_t> numbers;
  for (const KindInfo& kind : dialogKinds()) {
    if (*kind.definition) numbers.push_back(kind.number);
  }
  return numbers;
}

INSTANTIATE_TEST_SUITE_P(All, GenericFormsOfKind, ::testing::ValuesIn(kindsWithDefinition()),
                         ::testing::PrintToStringParamName());

INSTANTIATE_TEST_SUITE_P(All, FormsOfKind, ::testing::ValuesIn(offeredKinds()),
                         ::testing::PrintToStringParamName());

}  // namespace

}  // namespace zqn::qt::testing
