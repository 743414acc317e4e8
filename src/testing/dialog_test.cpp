// SPDX-License-Identifier: MIT
#include "testing/dialog_test.h"

#include <random>

#include "ado/sqlite/sqlite.h"
#include "forms/tdb_list.h"
#include "runtime/convert.h"

namespace zqn::testing {

// ---- session

String TestSession::GetSetting(StringView Section, StringView Key, StringView Default, std::int32_t Mode) {
  if (fails != 0) throw RuntimeError(fails);
  const std::pair<String, String> key{Section, Key};
  const bool userFirst = Mode == zqnGetUserSettingsOnly || Mode == zqnGetUserSettingsFirst;
  const bool both = Mode == zqnGetUserSettingsFirst || Mode == zqnGetGlobalSettingsFirst;
  const auto& first = userFirst ? user_ : global_;
  const auto& second = userFirst ? global_ : user_;
  if (const auto found = first.find(key); found != first.end()) return found->second;
  if (const auto found = second.find(key); both && found != second.end()) return found->second;
  return String(Default);
}

void TestSession::SaveSetting(StringView Section, StringView Key, StringView Value, const Variant&,
                              std::int32_t Mode) {
  if (fails != 0) throw RuntimeError(fails);
  auto& scope = Mode == zqnSaveAsUserSetting ? user_ : global_;
  scope[{String(Section), String(Key)}] = Value;
}

bool TestSession::UserIsAdmin() {
  if (fails != 0) throw RuntimeError(fails);
  return admin;
}

// ---- the world

namespace {

std::filesystem::path freshFolder() {
  std::random_device random;
  const auto folder = std::filesystem::temp_directory_path() /
                      ("zqn-test-" + std::to_string(random()) + std::to_string(random()));
  std::filesystem::create_directories(folder);
  return folder;
}

}  // namespace

DialogTest::DialogTest() : folder_(freshFolder()) {
  connection = ado::openSqlite(folder_ / "test.db");
  second_ = ado::openSqlite(folder_ / "test.db");
  connection->observer(this);
  session->connection = connection;
  dialog.Session(Ref<Session>(session));
  desktop.addListener(this);
  desktop.whenIdle([this] { idle(); });
}

DialogTest::~DialogTest() {
  EXPECT_TRUE(boxes_.empty()) << "a message box was expected and did not come: "
                              << toUtf8(boxes_.front().box.text);
  EXPECT_TRUE(errors_.empty()) << "an error was expected and did not come: " << toUtf8(errors_.front().first);
  for (const Fault& fault : faults_)
    EXPECT_TRUE(fault.met) << "no operation has met the failure for it: " << toUtf8(fault.match);
  desktop.removeListener(this);
  if (connection->State() != ado::adStateClosed) connection->Close();
  second_->Close();
  std::filesystem::remove_all(folder_);
}

void DialogTest::execute(StringView statements) {
  for (const String& statement : Split(statements, u";")) {
    if (!Trim(Replace(statement, u"\n", u" ")).empty()) connection->Execute(statement);
  }
  operations.clear();
}

void DialogTest::somebodyElse(StringView statement) { second_->Execute(statement); }

std::vector<String> DialogTest::rows(StringView query) {
  std::vector<String> found;
  ado::Recordset rs;
  rs.CursorLocation(ado::adUseClient);
  rs.Open(query, second_, ado::adOpenStatic, ado::adLockReadOnly);
  for (; !rs.IsEOF(); rs.MoveNext()) {
    String row;
    for (int i = 0; i < rs.Fields().Count(); ++i) {
      const Variant value = rs.Fields(i).Value();
      row += (i > 0 ? u"|" : u"") + (value.isNull() ? String(u"NULL") : CStr(value));
    }
    found.push_back(row);
  }
  return found;
}

void DialogTest::fail(ado::Operation operation, StringView match, std::int32_t number, int times) {
  faults_.push_back({operation, String(match), number, times});
}

void DialogTest::Before(ado::Operation operation, StringView statement, StringView criterion) {
  operations.emplace_back(operation, String(statement));
  if (operations.size() == failingPosition_) throw RuntimeError(error::ProviderFailure, u"injected", u"test");
  for (Fault& fault : faults_) {
    const bool matches =
        InStr(statement, fault.match) != String::npos || InStr(criterion, fault.match) != String::npos;
    if (fault.operation != operation || fault.times == 0 || !matches) continue;
    --fault.times;
    fault.met = true;
    throw RuntimeError(fault.number, u"injected", u"test");
  }
}

std::vector<String> DialogTest::statements() {
  std::vector<String> texts;
  for (const auto& [operation, statement] : operations) {
    if (operation == ado::Operation::Open || operation == ado::Operation::Execute) texts.push_back(statement);
  }
  operations.clear();
  return texts;
}

// ---- the dialog

Variant DialogTest::show(std::int32_t kind, VariantArray handedIn, const std::function<void()>& acts,
                         Through through) {
  param = std::move(handedIn);
  Variant returned;
  during(
      [&] {
        returned = through == Through::Show ? dialog.Show(kind, param) : dialog.ShowGeneric(kind, param);
      },
      acts);
  return returned;
}

Variant DialogTest::showsNoForm(std::int32_t kind, VariantArray handedIn) {
  param = std::move(handedIn);
  acts_ = [] { ADD_FAILURE() << "a form came up"; };
  Variant returned = dialog.Show(kind, param);
  acts_ = nullptr;
  return returned;
}

void DialogTest::during(const std::function<void()>& shows, const std::function<void()>& acts) {
  acts_ = acts;
  shows();
  // What a test expects while the form is open must have been looked at.
  if (std::exchange(acts_, nullptr) && !tolerant_) ADD_FAILURE() << "no form has waited for the clerk";
}

void DialogTest::idle() {
  if (desktop.openMessageBox() != nullptr) {
    const MsgBoxResult answer = boxes_.empty() ? MsgBoxResult::Yes : boxes_.front().answer;
    if (!boxes_.empty()) boxes_.pop_front();
    const MessageBox& box = *desktop.openMessageBox();
    if (!desktop.answer(answer)) desktop.answer(box.buttons().front());
    return;
  }
  if (acts_) {
    try {
      std::exchange(acts_, nullptr)();
    } catch (const RuntimeError& failure) {
      // The dialog would skip it as a failing statement of its own, and the rest of the test with it.
      ADD_FAILURE() << "the clerk ran into error " << failure.number() << ": " << failure.what();
    }
    return;
  }
  Form& open = form();
  open.closeBox();
  if (!open.Visible()) return;
  if (Control* button = headless::cancelButton(open)) desktop.click(*button);
  if (open.Visible()) throw std::logic_error("the form does not close");
}

void DialogTest::messageBoxOpened(const MessageBox& box) {
  if (tolerant_) return;
  if (boxes_.empty()) {
    ADD_FAILURE() << "unexpected message box: " << toUtf8(box.text);
    return;
  }
  EXPECT_EQ(box.text, boxes_.front().box.text);
  EXPECT_EQ(box.title, boxes_.front().box.title);
  EXPECT_EQ(box.style, boxes_.front().box.style);
}

void DialogTest::failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) {
  passedOver.push_back(toUtf8(procedure) + ":" + std::to_string(failure.number()));
}

bool DialogTest::runtimeErrorRaised(Form&, StringView procedure, const RuntimeError& failure) {
  if (tolerant_) {
    reportedErrors.emplace_back(procedure);
    return true;
  }
  if (errors_.empty()) {
    ADD_FAILURE() << "unexpected error in " << toUtf8(procedure) << ": " << failure.what();
    return true;
  }
  EXPECT_EQ(String(procedure), errors_.front().first);
  EXPECT_EQ(failure.number(), errors_.front().second) << failure.what();
  errors_.pop_front();
  return true;
}

void DialogTest::expectBox(StringView text, StringView title, int style, MsgBoxResult answer) {
  boxes_.push_back({{String(text), String(title), style}, answer});
}

void DialogTest::expectError(StringView procedure, std::int32_t number) {
  errors_.emplace_back(procedure, number);
}

// ---- the clerk

Form& DialogTest::form() const {
  if (desktop.activeForm() == nullptr) throw std::logic_error("no form is open");
  return *desktop.activeForm();
}

Control& DialogTest::control(StringView name) const {
  Control* found = form().findControl(name);
  if (found == nullptr) throw std::logic_error("no control " + toUtf8(name));
  return *found;
}

void DialogTest::click(StringView name) { desktop.click(control(name)); }

void DialogTest::press(int code, int shift) {
  desktop.press(KeyStroke::ofCode(code, shift));
  desktop.pressQueuedKeys();
}

void DialogTest::type(StringView text) {
  for (const char16_t character : text) desktop.press(KeyStroke::ofCharacter(character));
}

void DialogTest::select(int row, StringView name) { dynamic_cast<TDBList&>(control(name)).userPressed(row); }

void DialogTest::doubleClick(int row, StringView name) {
  select(row, name);
  dynamic_cast<TDBList&>(control(name)).userPressedAgain(row);
}

Variant DialogTest::get(StringView name, StringView property) const {
  return control(name).Property(property);
}

String DialogTest::focus() const {
  return form().ActiveControl() == nullptr ? String() : form().ActiveControl()->fullName();
}

std::vector<String> DialogTest::listRows(StringView name) const {
  auto& list = dynamic_cast<TDBList&>(control(name));
  while (!list.rowsComplete()) list.fetchRows(1000);
  std::vector<String> texts;
  for (int row = 0; row < list.knownRows(); ++row) {
    String line;
    for (int column = 0; column < list.columnCount(); ++column) {
      line += (column > 0 ? u"|" : u"") + list.cellText(row, column);
    }
    texts.push_back(line);
  }
  return texts;
}

}  // namespace zqn::testing
