// SPDX-License-Identifier: MIT
#include "sales/layouts/layout_folder.h"

#include <system_error>

#include "runtime/convert.h"
#include "sales/layouts/profile_file.h"

namespace zqn {

namespace {

namespace fs = std::filesystem;

constexpr StringView extension = u".OMR";

}  // namespace

LayoutFolder::LayoutFolder(StringView folder) {
  const fs::path path = folder.empty() ? fs::path(u"/") : fs::path(folder);
  std::map<String, String> byCapitals;
  std::error_code failure;
  for (fs::directory_iterator entry(path, failure), end; !failure && entry != end; entry.increment(failure)) {
    std::error_code unknown;
    if (!entry->is_regular_file(unknown)) continue;
    const String file = entry->path().filename().u16string();
    if (!UCase(file).ends_with(extension)) continue;
    const String name = file.substr(0, file.size() - extension.size());
    if (Trim(name).empty()) continue;
    if (byCapitals.try_emplace(UCase(name), name).second) files_.emplace(UCase(name), entry->path());
  }
  for (const auto& [capitals, name] : byCapitals) names_.push_back(name);
}

String LayoutFolder::profile(StringView name, StringView key, StringView byDefault) const {
  const auto found = files_.find(UCase(name));
  if (found == files_.end()) return String(byDefault);
  return getProfileString(found->second, u"Common", key, byDefault);
}

}  // namespace zqn
