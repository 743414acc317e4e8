// SPDX-License-Identifier: MIT
#include "sales/layouts/layout_folder.h"

#include <optional>
#include <system_error>

#include "runtime/convert.h"
#include "sales/layouts/profile_file.h"

namespace zqn {

namespace {

namespace fs = std::filesystem;

constexpr StringView extension = u".OMR";

/// A conversion between text and the system's names; nullopt for what is not valid text on the other side.
template <class Conversion>
auto converted(Conversion&& conversion) -> std::optional<decltype(conversion())> {
  try {
    return conversion();
  } catch (const std::system_error&) {
    return std::nullopt;
  }
}

}  // namespace

LayoutFolder::LayoutFolder(StringView folder) {
  const auto named = converted([&] { return fs::path(folder.empty() ? StringView(u"/") : folder); });
  if (!named) return;
  std::map<String, String> byCapitals;
  std::error_code failure;
  for (fs::directory_iterator entry(*named, failure), end; !failure && entry != end;
       entry.increment(failure)) {
    std::error_code unknown;
    if (!entry->is_regular_file(unknown)) continue;
    const auto file = converted([&] { return entry->path().filename().u16string(); });
    if (!file || !UCase(*file).ends_with(extension)) continue;
    const String name = file->substr(0, file->size() - extension.size());
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
