// SPDX-License-Identifier: MIT
//
// Profile files: sections in brackets with lines "key = value" below, read as the system's profile calls read
// them. Sections and keys compare without regard to case, the first line that matches counts, a pair of
// quotes around a value is taken off, and a value is cut to what a buffer of 2048 characters holds with its
// end mark. The bytes are UTF-16 (little-endian) or UTF-8 after the byte order mark of either, else code page
// 1252.
//
//     String text = getProfileString(folder / "Rechnung.omr", u"Common", u"Description", u"");
#pragma once

#include <filesystem>
#include <map>
#include <string_view>

#include "runtime/string.h"

namespace zqn {

class ProfileFile {
 public:
  /// Reads the bytes of a file. Any bytes will do: a line that is neither a section nor an entry is passed
  /// over, as are comments (";") and what stands before the first section.
  explicit ProfileFile(std::string_view bytes);

  /// The value of an entry, else the default without the blanks at its end; at most 2047 units long.
  String value(StringView section, StringView key, StringView byDefault) const;

 private:
  void take(StringView line, String& section);

  /// Section and key in capitals; a line break, which neither can hold, parts them.
  std::map<String, String> values_;
};

/// The file's value; the default when the file cannot be read.
String getProfileString(const std::filesystem::path& file, StringView section, StringView key,
                        StringView byDefault);

}  // namespace zqn
