// SPDX-License-Identifier: MIT
#include "testing/qt/windows.h"

#include <gtest/gtest.h>

#include <QPushButton>
#include <QTableView>
#include <QTest>
#include <QWindow>

#include "ado/sqlite/sqlite.h"
#include "desktop/qt/text.h"
#include "runtime/convert.h"

namespace zqn::qt::testing {

namespace {

namespace plan {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",      TDBList,       u"",             120,  120, 6135, 2415},
    {u"txtSchluessel", Label,         u"Status",       120, 2640,  855,  225},
    {u"Schluessel",    TextBox,       u"",             120, 2880, 1455,  285, {.MaxLength = 3}},
    {u"txtKurztext",   Label,         u"Kurztext",    1680, 2640,  855,  225},
    {u"Kurztext",      TextBox,       u"",            1680, 2880, 3855,  285, {.ToolTipText = u"Wie er heißt"}},
    {u"Gesperrt",      TextBox,       u"fest",         120, 3255, 1455,  285, {.Enabled = false}},
    {u"AutoOverwrite", CheckBox,      u"Meilenstein", 1680, 3600, 1455,  255},
    {u"btnOK",         CommandButton, u"Speichern",   3705, 4725, 1215,  315},
    {u"btnCancel",     CommandButton, u"Schließen",   5025, 4725, 1215,  315, {.Cancel = true}},
};
// clang-format on

constexpr FormDesign form{u"frmStati", u"Stati", 6420, 5145, roster};

}  // namespace plan

QWindow& focusWindow() {
  QWindow* const window = QGuiApplication::focusWindow();
  if (window == nullptr) throw std::logic_error("no window has the focus");
  return *window;
}

QPoint inWindow(const QWidget& widget, QPoint place) { return widget.mapTo(widget.window(), place); }

}  // namespace

Person::Person() {
  desktop.whenIdle([this] { step(); });
}

void Person::at(Form& form, Steps steps) {
  steps_ = std::move(steps);
  next_ = 0;
  form.Show();
  EXPECT_EQ(next_, steps_.size()) << "the form closed before its last step";
}

void Person::step() {
  Form* const form = desktop.activeForm();
  EXPECT_EQ(desktop.differences(*form).toStdString(), "") << "before step " << next_;
  if (next_ < steps_.size()) {
    steps_[next_++]();
  } else if (desktop.openMessageBox() != nullptr) {
    ADD_FAILURE() << "a message box is left open: " << toUtf8(desktop.openMessageBox()->text);
    answer(desktop.openMessageBox()->buttons().front());
  } else {
    desktop.windowOf(*form)->close();
    EXPECT_FALSE(form->Visible()) << "the form refused its close box";
    if (form->Visible()) form->UnloadMe();
  }
}

void Person::click(Control& control, QPoint place) {
  const QWidget& area = *desktop.mouseAreaOf(control);
  const QPoint at = place.isNull() ? area.rect().center() : place;
  QTest::mouseClick(area.window()->windowHandle(), Qt::LeftButton, {}, inWindow(area, at));
}

void Person::click(QAbstractButton& button) {
  QTest::mouseClick(button.window()->windowHandle(), Qt::LeftButton, {},
                    inWindow(button, button.rect().center()));
}

void Person::press(Control& control) {
  const QWidget& area = *desktop.mouseAreaOf(control);
  QTest::mousePress(area.window()->windowHandle(), Qt::LeftButton, {}, inWindow(area, area.rect().center()));
}

void Person::release(Control& control) {
  const QWidget& area = *desktop.mouseAreaOf(control);
  QTest::mouseRelease(area.window()->windowHandle(), Qt::LeftButton, {},
                      inWindow(area, area.rect().center()));
}

QPoint Person::placeOf(const TDBList& list, int row) const {
  const auto& view = dynamic_cast<const QTableView&>(*desktop.widgetOf(list));
  const QPoint place(20, view.rowViewportPosition(row) + view.rowHeight(row) / 2);
  if (!view.viewport()->rect().contains(place)) throw std::logic_error("the row is out of sight");
  return inWindow(*view.viewport(), place);
}

void Person::clickRow(TDBList& list, int row) {
  QTest::mouseClick(desktop.windowOf(list.form())->windowHandle(), Qt::LeftButton, {}, placeOf(list, row));
}

void Person::doubleClickRow(TDBList& list, int row) {
  QTest::mouseDClick(desktop.windowOf(list.form())->windowHandle(), Qt::LeftButton, {}, placeOf(list, row));
}

void Person::type(StringView text) {
  for (const char16_t unit : text) {
    const int code = QChar(unit).toUpper().unicode();
    QTest::sendKeyEvent(QTest::Click, &focusWindow(), static_cast<Qt::Key>(code), QString(QChar(unit)), {});
  }
}

void Person::key(int qtKey, Qt::KeyboardModifiers held) {
  QTest::keyClick(&focusWindow(), static_cast<Qt::Key>(qtKey), held);
}

void Person::answer(MsgBoxResult button) {
  QPushButton* const widget = desktop.boxButton(button);
  ASSERT_NE(widget, nullptr) << "no message box with such a button";
  click(*widget);
}

void Person::wait(int milliseconds) { QTest::qWait(milliseconds); }

Ref<ado::Connection> statiDatabase(int rows) {
  Ref<ado::Connection> connection = ado::openSqlite(":memory:");
  connection->Execute(
      u"CREATE TABLE Stati (Status VARCHAR(10) COLLATE ZQN_TEXT PRIMARY KEY, Bezeichnung VARCHAR(50) COLLATE "
      u"ZQN_TEXT)");
  connection->Execute(u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < " +
                      CStr(static_cast<std::int32_t>(rows)) +
                      u") INSERT INTO Stati SELECT printf('%03d', i), 'Stufe ' || i FROM n");
  return connection;
}

Ref<ado::Recordset> openStati(const Ref<ado::Connection>& connection) {
  auto stati = Ref<ado::Recordset>::make();
  stati->Open(u"SELECT Status, Bezeichnung FROM Stati ORDER BY Status", connection, ado::adOpenKeyset,
              ado::adLockReadOnly);
  return stati;
}

StatiForm::StatiForm(int rows)
    : Form(plan::form), connection(statiDatabase(rows)), rsListe(openStati(connection)) {
  TDBList1.DataSource(rsListe);
  btnCancel.Click = [this] { UnloadMe(); };
}

}  // namespace zqn::qt::testing
