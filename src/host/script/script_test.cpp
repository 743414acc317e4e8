// SPDX-License-Identifier: MIT
#include "testing/script/script_test.h"

#include <random>
#include <sstream>

#include "ado/sqlite/sqlite.h"
#include "runtime/convert.h"

namespace zqn::script {

namespace {

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",  ControlKind::TDBList, u"",            120,  120, 4500, 1500},
    {u"lblKey",    ControlKind::Label,   u"S&chlüssel",  120, 1740,  855,  255},
    {u"txtKey",    ControlKind::TextBox, u"",            120, 2040,  855,  285, {.MaxLength = 3}},
    {u"Label1(0)", ControlKind::Label,   u"Name",       1080, 1740,  855,  255},
    {u"txtName",   ControlKind::TextBox, u"",           1080, 2040, 2500,  285},
    {u"Label1(1)", ControlKind::Label,   u"%",          3660, 2040,  345,  255},
    {u"chkFlag",   ControlKind::CheckBox, u"Meilenstein", 120, 2460, 2500,  255},
    {u"btnOK",     ControlKind::CommandButton, u"Speichern",           120, 2820, 1215,  315},
    {u"btnCancel", ControlKind::CommandButton, u"Schließen",          1440, 2820, 1215,  315, {.Cancel = true}},
    {u"btnHidden", ControlKind::CommandButton, u"Verborgen",          2760, 2820, 1215,  315, {.Visible = false}},
    {u"btnOff",    ControlKind::CommandButton, u"Gesperrt",           4080, 2820, 1215,  315, {.Enabled = false}},
};
// clang-format on

constexpr FormDesign design{u"frmSample", u"Bühne", 5400, 3300, roster};

std::filesystem::path freshFolder() {
  std::random_device random;
  auto folder = std::filesystem::temp_directory_path() / ("zqn-script-" + std::to_string(random()));
  std::filesystem::create_directories(folder);
  return folder;
}

OutsideAccess::Rows rowsOf(const Ref<ado::Connection>& connection, StringView statement) {
  ado::Recordset rs;
  rs.CursorLocation(ado::adUseClient);
  rs.Open(statement, connection, ado::adOpenStatic);
  OutsideAccess::Rows rows;
  for (; !rs.IsEOF(); rs.MoveNext()) {
    std::vector<Variant>& row = rows.emplace_back();
    for (int i = 0; i < rs.Fields().Count(); ++i) row.push_back(rs.Fields(i).Value());
  }
  return rows;
}

}  // namespace

frmSample::frmSample() : Form(design) {
  btnCancel.Click = [this] { UnloadMe(); };
}

ScriptTest::ScriptTest() : folder_(freshFolder()) {
  connection = ado::openSqlite(folder_ / "stati.db");
  second_ = ado::openSqlite(folder_ / "stati.db");
  connection->Execute(
      u"CREATE TABLE Stati (Status VARCHAR(3) COLLATE ZQN_TEXT PRIMARY KEY, Name VARCHAR(30) COLLATE "
      u"ZQN_TEXT, "
      u"Rang INTEGER)");
  connection->Execute(
      u"INSERT INTO Stati VALUES ('10', 'Erstkontakt', 1), ('20', 'Angebot', 2), ('30', NULL, 3)");
  connection->observer(&faults);
}

ScriptTest::~ScriptTest() {
  rs = nothing;
  form.TDBList1.DataSource(nothing);
  connection->Close();
  second_->Close();
  std::filesystem::remove_all(folder_);
}

void ScriptTest::bindList() {
  rs = Ref<ado::Recordset>::make();
  rs->Open(u"SELECT Status, Name, Rang FROM Stati ORDER BY Status", connection, ado::adOpenKeyset);
  form.TDBList1.DataSource(rs);
}

OutsideAccess ScriptTest::outside() {
  return {.query = [this](StringView statement) { return rowsOf(second_, statement); },
          .execute = [this](StringView statement) { second_->Execute(statement); },
          .saveSetting = [this](const Setting& setting) { settings.push_back(setting); },
          .settings =
              [this](StringView section) {
                OutsideAccess::Settings found;
                for (const Setting& each : settings) {
                  if (each.section == section) found.emplace_back(each.key, each.value);
                }
                return found;
              }};
}

ScriptTest::Lines ScriptTest::run(const std::string& script, const std::function<void()>& show) {
  std::istringstream in(script);
  std::ostringstream out;
  {
    ScriptedUser person(scriptDesktop->desktop(), scriptDesktop->input(), outside(), faults, in, out);
    user = &person;
    person.prepare();
    if (show) {
      show();
    } else if (!person.failed()) {
      form.Show();
    }
    person.finish();
    failed = person.failed();
    user = nullptr;
  }
  Lines lines;
  std::istringstream written(out.str());
  for (std::string line; std::getline(written, line);) lines.push_back(line);
  return lines;
}

ScriptTest::Lines ScriptTest::acts(const std::string& script) {
  Lines lines = run(script);
  const bool whole = lines.size() >= 2 && lines.front() == R"({"shown":"frmSample","caption":"Bühne"})" &&
                     lines.back() == R"({"closed":"frmSample"})";
  if (!whole) {
    ADD_FAILURE() << "the form did not open and close: " << ::testing::PrintToString(lines);
    return lines;
  }
  return {lines.begin() + 1, lines.end() - 1};
}

ScriptTest::Lines ScriptTest::stored(StringView query) {
  Lines lines;
  for (const std::vector<Variant>& row : rowsOf(second_, query)) {
    std::string line;
    for (const Variant& value : row)
      line += (line.empty() ? "" : "|") + (value.isNull() ? "NULL" : toUtf8(CStr(value)));
    lines.push_back(line);
  }
  return lines;
}

}  // namespace zqn::script
