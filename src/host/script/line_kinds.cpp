// SPDX-License-Identifier: MIT
#include "host/script/line_kinds.h"

#include <algorithm>
#include <vector>

#include "host/script/line_functions.h"
#include "host/script/script_error.h"

namespace zqn::script {

namespace {

constexpr const char* keyMembers[] = {"shift"};
constexpr const char* selectMembers[] = {"row", "rows", "index", "text"};
constexpr const char* rowMember[] = {"row"};
constexpr const char* mouseMembers[] = {"row", "col", "button", "event", "shift"};
constexpr const char* dragMembers[] = {"from", "to"};

constexpr LineKind kinds[] = {
    {"click", LineGroup::User, {}, user::click},
    {"focus", LineGroup::User, {}, user::focus},
    {"type", LineGroup::User, {}, user::type},
    {"key", LineGroup::User, keyMembers, user::key},
    {"select", LineGroup::User, selectMembers, user::select},
    {"dblclick", LineGroup::User, rowMember, user::dblclick},
    {"mouse", LineGroup::User, mouseMembers, user::mouse},
    {"drag", LineGroup::User, dragMembers, user::drag},
    {"menu", LineGroup::User, {}, user::menu},
    {"close", LineGroup::User, {}, user::close},
    {"answer", LineGroup::User, {}, user::answer},
    {"wait", LineGroup::User, {}, user::wait},
    {"get", LineGroup::Probe, {}, probe::get},
    {"list", LineGroup::Probe, {}, probe::list},
    {"dump", LineGroup::Probe, {}, probe::dump},
    {"sql", LineGroup::Probe, {}, probe::sql},
    {"settings", LineGroup::Probe, {}, probe::settings},
    {"statements", LineGroup::Probe, {}, probe::statements},
    {"passedOver", LineGroup::Probe, {}, probe::passedOver},
    {"screenshot", LineGroup::Probe, {}, probe::screenshot},
    {"exec", LineGroup::Outside, {}, outside::exec},
    {"setting", LineGroup::Outside, {}, outside::setting},
    {"auskunft", LineGroup::Outside, {}, outside::auskunft},
    {"fail", LineGroup::Outside, {}, outside::fail},
    {"clipboard", LineGroup::Outside, {}, outside::clipboard},
};

std::string namesOfLines() {
  std::string names;
  for (const LineKind& kind : kinds) names += (names.empty() ? "" : ", ") + std::string(kind.name);
  return names;
}

}  // namespace

const LineKind& kindOfLine(const Json& line) {
  // The kind is the first member that names one; `text` of a drop-down is none, a second action is too much.
  const LineKind* found = nullptr;
  for (const auto& [name, value] : line.items()) {
    const auto kind = std::ranges::find_if(kinds, [&](const LineKind& each) { return name == each.name; });
    if (kind == std::end(kinds)) continue;
    found = &*kind;
    break;
  }
  if (found == nullptr) {
    const std::string given = line.empty() ? "" : " \"" + line.begin().key() + "\"";
    throw ScriptError("unknown action" + given + "; there is " + namesOfLines());
  }
  std::vector<const char*> allowed{found->name};
  allowed.insert(allowed.end(), found->members.begin(), found->members.end());
  Arguments(line).requireOnly(allowed);
  return *found;
}

}  // namespace zqn::script
