// SPDX-License-Identifier: MIT
#include "tally.h"

#include <sstream>
#include <stdexcept>

namespace zqn::load {

namespace {

template <class Map>
const typename Map::mapped_type& valueOf(const Map& map, const std::string& name) {
  static const typename Map::mapped_type none{};
  const auto found = map.find(name);
  return found == map.end() ? none : found->second;
}

/// Names and texts stand on one line, parted by tabs.
std::string field(std::string text) {
  for (char& character : text)
    if (character == '\t' || character == '\n' || character == '\r') character = ' ';
  return text;
}

}  // namespace

const std::vector<double>& Tally::samples(const std::string& name) const { return valueOf(samples_, name); }

std::int64_t Tally::counted(const std::string& name) const { return valueOf(counts_, name); }

const std::vector<std::string>& Tally::texts(const std::string& name) const { return valueOf(texts_, name); }

std::map<std::string, std::int64_t> Tally::countsOf(const std::string& prefix) const {
  std::map<std::string, std::int64_t> found;
  for (const auto& [name, number] : counts_)
    if (name.starts_with(prefix)) found[name.substr(prefix.size())] = number;
  return found;
}

std::string Tally::lines() const {
  std::ostringstream out;
  for (const auto& [name, values] : samples_)
    for (const double value : values) out << "sample\t" << field(name) << '\t' << value << '\n';
  for (const auto& [name, number] : counts_) out << "count\t" << field(name) << '\t' << number << '\n';
  for (const auto& [name, texts] : texts_)
    for (const std::string& text : texts) out << "text\t" << field(name) << '\t' << field(text) << '\n';
  return out.str();
}

void Tally::read(const std::string& lines) {
  std::istringstream in(lines);
  for (std::string line; std::getline(in, line);) {
    const std::size_t first = line.find('\t'), second = line.find('\t', first + 1);
    if (second == std::string::npos) throw std::runtime_error("no line of a tally: " + line);
    const std::string kind = line.substr(0, first), name = line.substr(first + 1, second - first - 1),
                      value = line.substr(second + 1);
    if (kind == "sample") {
      sample(name, std::stod(value));
    } else if (kind == "count") {
      count(name, std::stoll(value));
    } else {
      text(name, value);
    }
  }
}

}  // namespace zqn::load
