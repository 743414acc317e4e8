// SPDX-License-Identifier: MIT
//
// A clerk at the quantity split, for tests. Not part of the library.
#pragma once

#include "desktop/headless/grid_mouse.h"
#include "forms/flex_grid.h"
#include "forms/text_box.h"
#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/dialog_test.h"

namespace zqn::testing {

class SplitTest : public DialogTest {
 protected:
  static Locale in2026() {
    Locale locale = Locale::german();
    locale.now = [] { return dateSerial(2026, 11, 21); };
    return locale;
  }

  /// Opens the dialog; unit "Stk", an expiry date not required unless said.
  Variant split(int kind, StringView text, const Variant& quantity, const std::function<void()>& acts,
                bool dateRequired = false) {
    return show(34, {Variant(text), quantity, u"Stk", std::int32_t{kind}, dateRequired}, acts);
  }

  FlexGrid& grid() const { return form().Get<FlexGrid>(u"MSHFlexGrid1"); }
  TextBox& editor() const { return form().Get<TextBox>(u"txtEdit"); }
  String total() const { return *get(u"lblGmenge", u"Caption").as<String>(); }
  double totalColour() const { return *get(u"lblGmenge", u"ForeColor").as<double>(); }

  /// The rows below the heading, the bottom row last: texts of columns 1 to 5, "|" between them.
  std::vector<String> gridRows() const {
    std::vector<String> rows;
    for (int row = 1; row < grid().Rows(); ++row) {
      String line;
      for (int col = 1; col < grid().Cols(); ++col)
        line += (col > 1 ? u"|" : u"") + grid().TextMatrix(row, col);
      rows.push_back(line);
    }
    return rows;
  }
  /// "row,column" of the cursor.
  std::string at() const { return std::to_string(grid().Row()) + "," + std::to_string(grid().Col()); }
  /// Names of the marks, a blank between rows, "-" for none.
  std::string marks() const {
    std::string all;
    for (int row = 1; row < grid().Rows(); ++row) {
      const Picture* mark = grid().cell(row, 0).picture;
      all += (all.empty() ? "" : " ") + (mark != nullptr ? toUtf8(mark->name) : "-");
    }
    return all;
  }
  bool isRowMode() const { return grid().SelectionMode() == FlexGrid::ByRow; }

  void clickCell(int row, int col) { headless::clickOn(grid(), {row, col}); }
  void takeRows(int from, int to) { headless::drag(grid(), {from, 0}, {to, 0}); }
  /// The editor's text is replaced by what is typed: it is selected when the editor comes to a cell.
  void typeAnd(StringView text, int code) {
    type(text);
    press(code);
  }
  void paste(StringView text) {
    desktop.copyToClipboard(text);
    desktop.press(KeyStroke::ofCharacter(u'V', shift::Ctrl));
  }
  void expectDeleteQuestion(StringView count, MsgBoxResult answer) {
    expectBox(u"Sie beabsichtigen, " + String(count) +
                  u" zu löschen.\r\n\r\nKlicken Sie auf 'Ja', damit diese Datensätze für immer gelöscht "
                  u"werden. Sie können diese Änderung nicht rückgängig machen.\r\nSind Sie sicher, dass Sie "
                  u"diese Datensätze löschen möchten?",
              u"Löschen?", msgbox::YesNo | msgbox::Exclamation | msgbox::DefaultButton2, answer);
  }
  void expectDifference(MsgBoxResult answer) {
    expectBox(u"Menge stimmt nicht mit der aufzuteilenden Menge überein. Aufteilung trotzdem übernehmen?",
              u"Aufteilung trotz Differenzen übernehmen?",
              msgbox::YesNo | msgbox::Question | msgbox::DefaultButton2, answer);
  }

  static constexpr double green = 40960, red = 176;

 private:
  Locale::Scope scope_{in2026()};
};

inline constexpr StringView twoBatches =
    u"2|\"Stk\"|\"L-1\"|\"20260630000000\"|\"\"\r\n3|\"Stk\"|\"L-2\"|\"\"|\"\"";
inline constexpr StringView twoSerials = u"1|\"Stk\"|\"\"|\"\"|\"S1\"\r\n1|\"Stk\"|\"\"|\"\"|\"S2\"";

}  // namespace zqn::testing
