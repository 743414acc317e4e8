// SPDX-License-Identifier: MIT
//
// What the tests of the windows share: a form over a real database, and a person who acts on it by the events
// that a window system would send.
//
//     Person person;
//     person.at(form, {[&] { person.click(form.Schluessel); }, [&] { person.type(u"10"); }});
#pragma once

#include <functional>
#include <vector>

#include "ado/recordset.h"
#include "desktop/qt/qt_desktop.h"
#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"

namespace zqn::qt::testing {

/// Acts on the forms of its own desktop. After every step what the widgets show is held against the model.
class Person {
 public:
  Person();

  using Steps = std::vector<std::function<void()>>;
  /// Shows the form; takes the steps one by one, each when nothing is left to do; then closes the form.
  void at(Form& form, Steps steps);

  void click(Control& control, QPoint place = {});
  void click(QAbstractButton& button);
  void press(Control& control);
  void release(Control& control);
  /// Click and double click on a row that is in sight.
  void clickRow(TDBList& list, int row);
  void doubleClickRow(TDBList& list, int row);
  void type(StringView text);
  void key(int qtKey, Qt::KeyboardModifiers held = Qt::NoModifier);
  void answer(MsgBoxResult button);
  void wait(int milliseconds);

  QtDesktop desktop;

 private:
  void step();
  QPoint placeOf(const TDBList& list, int row) const;

  Desktop::Scope scope_{desktop};
  Steps steps_;
  std::size_t next_ = 0;
};

/// A connection to a database of its own with `rows` Stati: "001" "Stufe 1", "002" "Stufe 2", ...
Ref<ado::Connection> statiDatabase(int rows);
Ref<ado::Recordset> openStati(const Ref<ado::Connection>& connection);

/// A form with one control of each kind, over the Stati.
class StatiForm : public Form {
 public:
  explicit StatiForm(int rows = 40);

  TDBList& TDBList1 = Get<TDBList>(u"TDBList1");
  Label& txtSchluessel = Get<Label>(u"txtSchluessel");
  TextBox& Schluessel = Get<TextBox>(u"Schluessel");
  TextBox& Kurztext = Get<TextBox>(u"Kurztext");
  TextBox& Gesperrt = Get<TextBox>(u"Gesperrt");
  CheckBox& AutoOverwrite = Get<CheckBox>(u"AutoOverwrite");
  CommandButton& btnOK = Get<CommandButton>(u"btnOK");
  CommandButton& btnCancel = Get<CommandButton>(u"btnCancel");

  Ref<ado::Connection> connection;
  Ref<ado::Recordset> rsListe;
};

}  // namespace zqn::qt::testing
