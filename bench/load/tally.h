// SPDX-License-Identifier: MIT
//
// What was seen, under names: times, counts, and last texts. A clerk's tally goes to the crew as lines.
//
//     tally.sample("dialogs.browse", 1.7);
//     tally.count("raises");
//     whole.read(tally.lines());
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <vector>

namespace zqn::load {

class Tally {
 public:
  void sample(const std::string& name, double milliseconds) { samples_[name].push_back(milliseconds); }
  void count(const std::string& name, std::int64_t by = 1) { counts_[name] += by; }
  void text(const std::string& name, const std::string& text) { texts_[name].push_back(text); }

  /// In the order in which they came; empty for an unknown name.
  const std::vector<double>& samples(const std::string& name) const;
  std::int64_t counted(const std::string& name) const;
  const std::vector<std::string>& texts(const std::string& name) const;
  /// The counts whose names begin so, without the beginning.
  std::map<std::string, std::int64_t> countsOf(const std::string& prefix) const;

  /// A line for each entry; `read` adds such lines.
  std::string lines() const;
  void read(const std::string& lines);

 private:
  std::map<std::string, std::vector<double>> samples_;
  std::map<std::string, std::int64_t> counts_;
  std::map<std::string, std::vector<std::string>> texts_;
};

}  // namespace zqn::load
