// SPDX-License-Identifier: MIT
#include "host/command/suggestion.h"

#include <algorithm>

namespace zqn::host {

namespace {

std::size_t changesBetween(std::string_view from, std::string_view to) {
  std::vector<std::vector<std::size_t>> changes(from.size() + 1, std::vector<std::size_t>(to.size() + 1));
  for (std::size_t i = 0; i <= from.size(); ++i) {
    for (std::size_t j = 0; j <= to.size(); ++j) {
      if (i == 0 || j == 0) {
        changes[i][j] = i + j;
        continue;
      }
      const bool same = from[i - 1] == to[j - 1];
      changes[i][j] =
          std::min({changes[i - 1][j] + 1, changes[i][j - 1] + 1, changes[i - 1][j - 1] + (same ? 0 : 1)});
      if (i > 1 && j > 1 && from[i - 1] == to[j - 2] && from[i - 2] == to[j - 1])
        changes[i][j] = std::min(changes[i][j], changes[i - 2][j - 2] + 1);
    }
  }
  return changes[from.size()][to.size()];
}

}  // namespace

std::string closest(std::string_view word, const std::vector<std::string>& known) {
  std::string found;
  std::size_t bound = (word.size() + 2) / 3 + 1;
  for (const std::string& each : known) {
    const std::size_t changes = changesBetween(word, each);
    if (changes >= bound) continue;
    found = each;
    bound = changes;
  }
  return found;
}

}  // namespace zqn::host
