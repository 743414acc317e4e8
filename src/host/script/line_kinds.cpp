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
constexpr const char* mouseMembers[] = {"row", "col", "button", "event"};
constexpr const char* dragMembers[] = {"from", "to"};

constexpr LineKind kinds[] = {
    {"click", Actor::User, {}, user::click},
    {"focus", Actor::User, {}, user::focus},
    {"type", Actor::User, {}, user::type},
    {"key", Actor::User, keyMembers, user::key},
    {"select", Actor::User, selectMembers, user::select},
    {"dblclick", Actor::User, rowMember, user::dblclick},
    {"mouse", Actor::User, mouseMembers, user::mouse},
    {"drag", Actor::User, dragMembers, user::drag},
    {"menu", Actor::User, {}, user::menu},
    {"close", Actor::User, {}, user::close},
    {"answer", Actor::User, {}, user::answer},
    {"wait", Actor::User, {}, user::wait},
    {"get", Actor::Probe, {}, probe::get},
    {"list", Actor::Probe, {}, probe::list},
    {"dump", Actor::Probe, {}, probe::dump},
    {"sql", Actor::Probe, {}, probe::sql},
    {"settings", Actor::Probe, {}, probe::settings},
    {"statements", Actor::Probe, {}, probe::statements},
    {"screenshot", Actor::Probe, {}, probe::screenshot},
    {"exec", Actor::World, {}, world::exec},
    {"setting", Actor::World, {}, world::setting},
    {"auskunft", Actor::World, {}, world::auskunft},
    {"fail", Actor::World, {}, world::fail},
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
