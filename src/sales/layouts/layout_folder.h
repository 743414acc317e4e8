// SPDX-License-Identifier: MIT
//
// The layouts of printed documents: the files *.omr in the application's folder. A layout goes by the name of
// its file without the extension, in any case.
//
//     const LayoutFolder layouts(u"C:\\Talvex");
//     layouts.profile(u"Rechnung", u"Description", u"");
#pragma once

#include <filesystem>
#include <map>
#include <vector>

#include "runtime/string.h"

namespace zqn {

class LayoutFolder {
 public:
  LayoutFolder() = default;
  /// Looks into the folder; the empty text means the root. A folder that cannot be read has no layouts; a
  /// file whose name is not valid text in the folder's encoding is passed over.
  explicit LayoutFolder(StringView folder);

  /// The names, blank ones left out, in their order without regard to case.
  const std::vector<String>& names() const noexcept { return names_; }
  /// The value of a key in the section "Common" of a layout's file; the default when there is no such file.
  String profile(StringView name, StringView key, StringView byDefault) const;

 private:
  std::vector<String> names_;
  /// By the name in capitals.
  std::map<String, std::filesystem::path> files_;
};

}  // namespace zqn
