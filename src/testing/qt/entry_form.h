// SPDX-License-Identifier: MIT
//
// A form of drop-downs, numbers, a date, toggle buttons, a field of several lines and a frame, for the tests
// of their widgets.
#pragma once

#include "forms/combo_box.h"
#include "forms/frame.h"
#include "forms/tdb_date.h"
#include "forms/tdb_number.h"
#include "forms/toggle_button.h"
#include "testing/qt/windows.h"

namespace zqn::qt::testing {

class EntryForm : public Form {
 public:
  EntryForm();

  TextBox& txtKey = Get<TextBox>(u"txtKey");
  ComboBox& cbo = Get<ComboBox>(u"cbo", 0);
  ComboBox& other = Get<ComboBox>(u"cbo", 1);
  TDBNumber& days = Get<TDBNumber>(u"tdbnSkTage", 0);
  TDBNumber& percent = Get<TDBNumber>(u"tdbnPercent", 0);
  TDBDate& date = Get<TDBDate>(u"tdbdValidOf");
  ToggleButton& tgl = Get<ToggleButton>(u"tglDruckAN");
  TextBox& lines = Get<TextBox>(u"txtLangtext");
  Frame& fra = Get<Frame>(u"fra");
  Label& lblFra = Get<Label>(u"lblFra");
  TextBox& inner = Get<TextBox>(u"txtInner");
  CommandButton& cmdCancel = Get<CommandButton>(u"cmdCancel");
};

}  // namespace zqn::qt::testing
