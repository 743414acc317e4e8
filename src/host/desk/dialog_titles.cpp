// SPDX-License-Identifier: MIT
#include "host/desk/dialog_titles.h"

#include <algorithm>
#include <tuple>

#include "frontend/kinds.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

std::vector<DialogTitle> bySubject() {
  struct Listed {
    const KindInfo* kind;
    bool generic;
  };
  std::vector<Listed> listed;
  for (const KindInfo& kind : dialogKinds()) {
    listed.push_back({&kind, false});
    if (kind.server == KindServer::Dedicated && hasDefinition(kind.number)) listed.push_back({&kind, true});
  }
  std::ranges::sort(listed, {}, [](const Listed& each) {
    return std::tuple(each.kind->subject, each.generic, each.kind->place);
  });
  std::vector<DialogTitle> titles;
  for (const auto& [kind, generic] : listed)
    titles.push_back({kind->number, subjectTitle(kind->subject), kind->title, generic});
  return titles;
}

}  // namespace

std::span<const DialogTitle> dialogTitles() {
  static const std::vector<DialogTitle> titles = bySubject();
  return titles;
}

std::vector<String> paramNames(std::int32_t kind) {
  const KindInfo* info = findKind(kind);
  return info ? Split(info->param, u",") : std::vector<String>();
}

StringView resultName(std::int32_t kind) {
  const KindInfo* info = findKind(kind);
  return info ? info->result : StringView();
}

}  // namespace zqn::host
