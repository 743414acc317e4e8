// SPDX-License-Identifier: MIT
#include "sales/layouts/profile_file.h"

#include <algorithm>
#include <array>
#include <fstream>
#include <sstream>

#include "forms/text_entry.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

/// The buffer of the system call without its end mark.
constexpr int longestValue = 2047;
constexpr std::string_view markOfUtf8 = "\xEF\xBB\xBF";
constexpr std::string_view markOfUtf16 = "\xFF\xFE";

/// What code page 1252 has in the places 80 to 9F; five of them stand for themselves.
constexpr std::array<char16_t, 32> places80To9F{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

/// Little-endian; half a unit at the end is left out.
String fromUtf16(std::string_view bytes) {
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
  String text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2)
    text += static_cast<char16_t>(byte(i) | byte(i + 1) << 8);
  return text;
}

String textOf(std::string_view bytes) {
  if (bytes.starts_with(markOfUtf8)) return fromUtf8(bytes.substr(markOfUtf8.size()));
  if (bytes.starts_with(markOfUtf16)) return fromUtf16(bytes.substr(markOfUtf16.size()));
  String text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto place = static_cast<unsigned char>(byte);
    text += place >= 0x80 && place <= 0x9F ? places80To9F[place - 0x80] : static_cast<char16_t>(place);
  }
  return text;
}

constexpr StringView blanks = u" \t\v\f";

StringView withoutBlanks(StringView text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == StringView::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

StringView withoutQuotes(StringView text) {
  const bool quoted =
      text.size() >= 2 && text.front() == text.back() && (text.front() == u'"' || text.front() == u'\'');
  return quoted ? text.substr(1, text.size() - 2) : text;
}

String entryName(StringView section, StringView key) { return UCase(section) + u'\n' + UCase(key); }

}  // namespace

ProfileFile::ProfileFile(std::string_view bytes) {
  const String all = textOf(bytes);
  StringView rest = all;
  String section;
  while (!rest.empty()) {
    const auto end = std::min(rest.find_first_of(StringView(u"\r\n\0", 3)), rest.size());
    take(withoutBlanks(rest.substr(0, end)), section);
    rest.remove_prefix(std::min(end + 1, rest.size()));
  }
}

void ProfileFile::take(StringView line, String& section) {
  if (line.empty() || line.front() == u';') return;
  if (line.front() == u'[') {
    const auto close = line.find(u']');
    if (close != StringView::npos) section = withoutBlanks(line.substr(1, close - 1));
    return;
  }
  const auto equals = line.find(u'=');
  if (equals == StringView::npos || section.empty()) return;
  const StringView value = withoutQuotes(withoutBlanks(line.substr(equals + 1)));
  values_.try_emplace(entryName(section, withoutBlanks(line.substr(0, equals))), value);
}

String ProfileFile::value(StringView section, StringView key, StringView byDefault) const {
  const auto found = values_.find(entryName(section, key));
  const StringView text = found != values_.end() ? StringView(found->second)
                                                 : byDefault.substr(0, byDefault.find_last_not_of(u' ') + 1);
  return String(cutToLength(text, longestValue));
}

String getProfileString(const std::filesystem::path& file, StringView section, StringView key,
                        StringView byDefault) {
  std::ifstream stream(file, std::ios::binary);
  std::ostringstream bytes;
  bytes << stream.rdbuf();
  return ProfileFile(bytes.str()).value(section, key, byDefault);
}

}  // namespace zqn
