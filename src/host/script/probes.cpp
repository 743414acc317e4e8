// SPDX-License-Identifier: MIT
#include "forms/names.h"
#include "host/script/control_traits.h"
#include "host/script/line_functions.h"
#include "host/script/script_error.h"
#include "host/script/transcript_lines.h"

namespace zqn::script::probe {

namespace {

/// What a member of `get` names: "Schluessel.Text", "Form.Caption".
struct Path {
  std::string owner, property;
};

Path pathOf(const std::string& text) {
  const auto dot = text.find('.');
  if (dot == std::string::npos || dot + 1 == text.size())
    throw ScriptError("\"" + text + "\" names no property; write \"control.property\"");
  return {text.substr(0, dot), text.substr(dot + 1)};
}

Json valueOf(const LineContext& context, const std::string& name) {
  const Path path = pathOf(name);
  const String property = fromUtf8(path.property);
  const Form& form = context.form();
  const bool ofForm = sameName(fromUtf8(path.owner), u"Form");
  const Control* control = ofForm ? nullptr : &context.control(path.owner);
  try {
    return jsonValue(ofForm ? form.Property(property) : control->Property(property));
  } catch (const RuntimeError& failure) {
    const std::string kind = ofForm ? "form" : kindOf(*control);
    if (failure.number() == error::NoSuchMember)
      throw ScriptError("a " + kind + " has no property \"" + path.property + "\"");
    throw ScriptError(name + " cannot be read: " + failure.what());
  }
}

Json dumpOf(const Control& control) {
  Json entry{{"name", nameOf(control)}, {"kind", kindOf(control)},  {"left", control.Left()},
             {"top", control.Top()},    {"width", control.Width()}, {"height", control.Height()}};
  if (const char* content = traitsOf(control).content) entry[content] = jsonText(control.content());
  entry["enabled"] = control.Enabled();
  return entry;
}

}  // namespace

void get(const LineContext& context, const Arguments& line) {
  const Json& names = line.any("get");
  if (!names.is_array()) throw ScriptError(R"("get" must be an array of "control.property")");
  Json values = Json::object();
  for (const Json& name : names) {
    if (!name.is_string()) throw ScriptError(R"("get" must be an array of "control.property")");
    const auto& text = name.get_ref<const std::string&>();
    values[text] = valueOf(context, text);
  }
  context.form();
  context.write({{"values", std::move(values)}});
}

void list(const LineContext& context, const Arguments& line) {
  const std::string name = line.text("list");
  Control& control = context.control(name);
  const RowAccess* rows = traitsOf(control).rows;
  if (rows == nullptr) throw ScriptError(name + " is a " + kindOf(control) + " and has no rows");
  Json entry{{"list", name}};
  entry.update(rows->contents(control));
  context.write(entry);
}

void dump(const LineContext& context, const Arguments& line) {
  line.requireTrue("dump");
  Json controls = Json::array();
  for (const auto& control : context.form().controls()) {
    if (control->isShown()) controls.push_back(dumpOf(*control));
  }
  context.write({{"dump", std::move(controls)}});
}

void sql(const LineContext& context, const Arguments& line) {
  const std::string statement = line.text("sql");
  Json rows = Json::array();
  try {
    for (const std::vector<Variant>& values : context.outside.query(fromUtf8(statement))) {
      Json row = Json::array();
      for (const Variant& value : values) row.push_back(jsonValue(value));
      rows.push_back(std::move(row));
    }
  } catch (const RuntimeError& failure) {
    throw ScriptError(std::string("the statement failed: ") + failure.what());
  }
  context.write({{"rows", std::move(rows)}});
}

void settings(const LineContext& context, const Arguments& line) {
  const std::string section = line.text("settings");
  Json values = Json::object();
  try {
    for (const auto& [key, value] : context.outside.settings(fromUtf8(section)))
      values[toUtf8(key)] = jsonText(value);
  } catch (const RuntimeError& failure) {
    throw ScriptError(std::string("the settings cannot be read: ") + failure.what());
  }
  context.write({{"settings", std::move(values)}});
}

void statements(const LineContext& context, const Arguments& line) {
  line.requireTrue("statements");
  Json texts = Json::array();
  for (const String& statement : context.faults.takeStatements()) texts.push_back(jsonText(statement));
  context.write({{"statements", std::move(texts)}});
}

void passedOver(const LineContext& context, const Arguments& line) {
  line.requireTrue("passedOver");
  context.write(passedOverLine(std::exchange(context.passedOver, Json::array())));
}

void screenshot(const LineContext& context, const Arguments& line) {
  const std::string file = line.text("screenshot");
  if (!context.input.screenshot(context.form(),
                                std::filesystem::path(std::u8string(file.begin(), file.end()))))
    throw ScriptError("the picture \"" + file + "\" cannot be written");
}

}  // namespace zqn::script::probe
