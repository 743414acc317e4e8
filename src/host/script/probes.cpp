// SPDX-License-Identifier: MIT
#include "forms/names.h"
#include "host/script/control_kinds.h"
#include "host/script/line_functions.h"
#include "host/script/script_error.h"

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

Json valueOf(const Scene& scene, const std::string& name) {
  const Path path = pathOf(name);
  const String property = fromUtf8(path.property);
  const Form& form = scene.form();
  const bool ofForm = sameName(fromUtf8(path.owner), u"Form");
  const Control* control = ofForm ? nullptr : &scene.control(path.owner);
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

void get(const Scene& scene, const Arguments& line) {
  const Json& names = line.any("get");
  if (!names.is_array()) throw ScriptError(R"("get" must be an array of "control.property")");
  Json values = Json::object();
  for (const Json& name : names) {
    if (!name.is_string()) throw ScriptError(R"("get" must be an array of "control.property")");
    const auto& text = name.get_ref<const std::string&>();
    values[text] = valueOf(scene, text);
  }
  scene.form();
  scene.write({{"values", std::move(values)}});
}

void list(const Scene& scene, const Arguments& line) {
  const std::string name = line.text("list");
  Control& control = scene.control(name);
  const RowAccess* rows = traitsOf(control).rows;
  if (rows == nullptr) throw ScriptError(name + " is a " + kindOf(control) + " and has no rows");
  Json entry{{"list", name}};
  entry.update(rows->contents(control));
  scene.write(entry);
}

void dump(const Scene& scene, const Arguments& line) {
  line.requireTrue("dump");
  Json controls = Json::array();
  for (const auto& control : scene.form().controls()) {
    if (control->isShown()) controls.push_back(dumpOf(*control));
  }
  scene.write({{"dump", std::move(controls)}});
}

void sql(const Scene& scene, const Arguments& line) {
  const std::string statement = line.text("sql");
  Json rows = Json::array();
  try {
    for (const std::vector<Variant>& values : scene.world.query(fromUtf8(statement))) {
      Json row = Json::array();
      for (const Variant& value : values) row.push_back(jsonValue(value));
      rows.push_back(std::move(row));
    }
  } catch (const RuntimeError& failure) {
    throw ScriptError(std::string("the statement failed: ") + failure.what());
  }
  scene.write({{"rows", std::move(rows)}});
}

void settings(const Scene& scene, const Arguments& line) {
  const std::string section = line.text("settings");
  Json values = Json::object();
  try {
    for (const auto& [key, value] : scene.world.settings(fromUtf8(section)))
      values[toUtf8(key)] = jsonText(value);
  } catch (const RuntimeError& failure) {
    throw ScriptError(std::string("the settings cannot be read: ") + failure.what());
  }
  scene.write({{"settings", std::move(values)}});
}

void statements(const Scene& scene, const Arguments& line) {
  line.requireTrue("statements");
  Json texts = Json::array();
  for (const String& statement : scene.faults.takeStatements()) texts.push_back(jsonText(statement));
  scene.write({{"statements", std::move(texts)}});
}

void screenshot(const Scene& scene, const Arguments& line) {
  const std::string file = line.text("screenshot");
  if (!scene.input.screenshot(scene.form(), std::filesystem::path(std::u8string(file.begin(), file.end()))))
    throw ScriptError("the picture \"" + file + "\" cannot be written");
}

}  // namespace zqn::script::probe
