// SPDX-License-Identifier: MIT
//
// A clerk at a headless desktop, for tests: an empty SQLite database, a session, an ORBDialog. What the clerk
// does is written as straight code; it runs while the dialog stands open, and afterwards the window is closed
// by its close box, or by its cancel button if it refuses.
//
//     TEST_F(Vertriebsstati, PicksByDoubleClick) {
//       EXPECT_EQ(show(21, {u"10"}, [&] { doubleClick(1); }), Variant(u"20"));
//     }
//
// A message box that was not announced by expectBox, and a run-time error that was not announced by
// expectError, fail the test.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <filesystem>
#include <functional>
#include <map>
#include <utility>

#include "ado/connection.h"
#include "ado/recordset.h"
#include "contract/session.h"
#include "desktop/headless/headless_desktop.h"
#include "forms/form.h"
#include "frontend/orb_dialog.h"
#include "testing/runtime.h"

namespace zqn::testing {

/// A session that a test fills by hand. A setting is kept by section, key and user or global scope.
class TestSession : public Session {
 public:
  String GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) override;
  void SaveSetting(StringView Section, StringView Key, StringView Value, const Variant&,
                   std::int32_t Mode) override;
  Ref<ado::Connection> SessionConnection() override { return connection; }
  bool UserIsAdmin() override;

  Ref<ado::Connection> connection;
  bool admin = false;
  /// Every call but SessionConnection fails with this number, unless 0.
  std::int32_t fails = 0;

 private:
  std::map<std::pair<String, String>, String> user_, global_;
};

class DialogTest : public ::testing::Test, private DesktopListener, private ado::Observer {
 protected:
  DialogTest();
  ~DialogTest() override;

  // ---- the world

  /// Runs statements on the dialogs' connection, semicolons between them.
  void execute(StringView statements);
  /// Somebody else changes the data, on a connection of his own.
  void somebodyElse(StringView statement);
  /// The rows of a query, read on the second connection: one text a row, "|" between columns, Null as "NULL".
  std::vector<String> rows(StringView query);

  /// The next `times` operations of this kind whose statement holds `match` fail with this number. One at
  /// least must come, or the test fails.
  void fail(ado::Operation operation, StringView match, std::int32_t number, int times = 1);
  /// The operation number `position`, counted from 1, fails, whatever it is; 0 for none.
  void failAt(std::size_t position) { failingPosition_ = position; }
  /// Operations that have run so far.
  std::vector<std::pair<ado::Operation, String>> operations;
  /// The statements of those that opened a recordset or were executed. Forgets all operations.
  std::vector<String> statements();

  // ---- the dialog

  /// The form that serves the kind, or the generic form in any case.
  enum class Through { Show, GenericForm };
  /// Shows a dialog; `acts` runs when the form waits for the person, and one that never runs fails the test.
  /// Returns what Show returned.
  Variant show(std::int32_t kind, VariantArray param, const std::function<void()>& acts = {},
               Through through = Through::Show);
  /// The same for a dialog whose form must not come up.
  Variant showsNoForm(std::int32_t kind, VariantArray param);
  /// The same for whatever `shows` a form.
  void during(const std::function<void()>& shows, const std::function<void()>& acts);
  /// Param as Show left it.
  VariantArray param;

  // ---- the clerk

  Form& form() const;
  void click(StringView control);
  /// Presses a key by its code; queued keys follow.
  void press(int code, int shift = 0);
  void type(StringView text);
  /// A click on a row of the list, and a double click.
  void select(int row, StringView list = u"TDBList1");
  void doubleClick(int row, StringView list = u"TDBList1");
  /// The next message box must say this, and gets this answer.
  void expectBox(StringView text, StringView title, int style, MsgBoxResult answer = MsgBoxResult::OK);
  /// The next run-time error must leave this procedure with this number.
  void expectError(StringView procedure, std::int32_t number);
  /// From now on every question is answered with Yes, and run-time errors are only written down, by their
  /// procedure.
  void tolerateEverything() { tolerant_ = true; }
  std::vector<String> reportedErrors;
  /// "WriteRecord:3219" for each failure that a writing procedure has passed over.
  std::vector<std::string> passedOver;

  Variant get(StringView control, StringView property) const;
  String text(StringView control) const { return *get(control, u"Text").as<String>(); }
  bool enabled(StringView control) const { return *get(control, u"Enabled").as<bool>(); }
  /// Full name of the control with the focus, "" for none.
  String focus() const;
  /// The list's rows as texts, "|" between columns.
  std::vector<String> listRows(StringView list = u"TDBList1") const;

  headless::HeadlessDesktop desktop;
  Ref<ado::Connection> connection;
  std::shared_ptr<TestSession> session = std::make_shared<TestSession>();
  ORBDialog dialog;

 private:
  struct ExpectedBox {
    MessageBox box;
    MsgBoxResult answer;
  };
  struct Fault {
    ado::Operation operation;
    String match;
    std::int32_t number;
    int times;
    bool met = false;
  };

  void messageBoxOpened(const MessageBox& box) override;
  bool runtimeErrorRaised(Form&, StringView procedure, const RuntimeError& failure) override;
  void failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) override;
  void Before(ado::Operation operation, StringView statement, StringView criterion) override;
  void idle();
  Control& control(StringView name) const;

  std::filesystem::path folder_;
  Desktop::Scope scope_{desktop};
  Ref<ado::Connection> second_;
  std::function<void()> acts_;
  std::deque<ExpectedBox> boxes_;
  std::deque<std::pair<String, std::int32_t>> errors_;
  std::vector<Fault> faults_;
  std::size_t failingPosition_ = 0;
  bool tolerant_ = false;
};

}  // namespace zqn::testing
