// SPDX-License-Identifier: MIT
#include <algorithm>

#include "host/script/json_values.h"
#include "parity/finding.h"

namespace zqn::parity {

namespace {

using script::Json;

class Shrinker {
 public:
  Shrinker(const Runner& runner, const Compared& compared, Shrunk start, int attempts)
      : runner_(runner), compared_(compared), best_(std::move(start)), left_(attempts) {}

  Shrunk run() {
    cutTail();
    std::size_t before;
    do {
      before = size();
      leaveOutLines();
      leaveOutArguments();
      shortenTexts();
    } while (size() < before && left_ > 0);
    return best_;
  }

 private:
  /// What shall become smaller.
  std::size_t size() const {
    std::size_t sum = best_.smallest.arguments.size();
    for (const std::string& line : best_.smallest.lines) sum += 1 + line.size();
    return sum;
  }

  /// The case shows the same sort of finding; then it is the best one.
  bool accepts(Case candidate) {
    if (left_ <= 0) return false;
    --left_;
    std::optional<Finding> finding = examine(runner_, compared_, candidate);
    if (!finding || finding->what != best_.finding.what) return false;
    best_ = {std::move(candidate), std::move(*finding)};
    return true;
  }

  Case with(std::vector<std::string> lines) const { return {best_.smallest.arguments, std::move(lines)}; }

  /// The shortest beginning that shows it; what stands behind matters seldom.
  void cutTail() {
    std::size_t least = 0, most = best_.smallest.lines.size();
    const std::vector<std::string> all = best_.smallest.lines;
    while (least < most) {
      const std::size_t half = least + (most - least) / 2;
      if (accepts(with({all.begin(), all.begin() + static_cast<std::ptrdiff_t>(half)}))) {
        most = half;
      } else {
        least = half + 1;
      }
    }
  }

  void leaveOutLines() {
    for (std::size_t chunk = std::max<std::size_t>(best_.smallest.lines.size() / 2, 1);; chunk /= 2) {
      // From the end: a later line depends on an earlier one, seldom the other way round.
      std::size_t end = best_.smallest.lines.size();
      while (end > 0) {
        const std::size_t begin = end > chunk ? end - chunk : 0;
        std::vector<std::string> lines = best_.smallest.lines;
        lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(begin),
                    lines.begin() + static_cast<std::ptrdiff_t>(end));
        accepts(with(std::move(lines)));
        end = begin;
      }
      if (chunk == 1) return;
    }
  }

  void leaveOutArguments() {
    const auto without = [&](std::size_t first, std::size_t count) {
      Case candidate = best_.smallest;
      const auto from = candidate.arguments.begin() + static_cast<std::ptrdiff_t>(first);
      candidate.arguments.erase(from, from + static_cast<std::ptrdiff_t>(count));
      return accepts(std::move(candidate));
    };
    for (std::size_t i = best_.smallest.arguments.size(); i-- > 2;) {
      const std::string word = best_.smallest.arguments[i];
      if (word == "--user" || word == "--today" || word == "--params") continue;
      if (word == "--set" || word == "--set-user") {
        without(i, 2);
      } else if (word.starts_with("--")) {
        without(i, 1);
      }
    }
  }

  /// Halves first, then single characters of texts, and single members of arrays.
  void shortenTexts() {
    for (std::size_t i = 0; i < best_.smallest.lines.size(); ++i) {
      const Json line = Json::parse(best_.smallest.lines[i]);
      for (const auto& [name, value] : line.items()) {
        if (name == "type" || name == "clipboard") shortenText(i, name);
        if (name == "get" || name == "rows") shortenArray(i, name);
        if (name == "shift" || name == "button") leaveOutMember(i, name);
      }
    }
  }

  bool acceptsLine(std::size_t number, const Json& line) {
    std::vector<std::string> lines = best_.smallest.lines;
    lines[number] = line.dump();
    return accepts(with(std::move(lines)));
  }

  void leaveOutMember(std::size_t number, const std::string& name) {
    Json line = Json::parse(best_.smallest.lines[number]);
    line.erase(name);
    acceptsLine(number, line);
  }

  template <class Sequence, class Make>
  void shortenSequence(std::size_t number, const std::string& name, Sequence all, Make&& make) {
    for (std::size_t chunk = std::max<std::size_t>(all.size() / 2, 1);; chunk /= 2) {
      for (std::size_t begin = 0; begin < all.size() && all.size() > 1;) {
        Sequence shorter = all;
        const auto from = shorter.begin() + static_cast<std::ptrdiff_t>(begin);
        shorter.erase(from, from + static_cast<std::ptrdiff_t>(std::min(chunk, all.size() - begin)));
        Json line = Json::parse(best_.smallest.lines[number]);
        line[name] = make(shorter);
        if (!shorter.empty() && acceptsLine(number, line)) {
          all = std::move(shorter);
        } else {
          begin += chunk;
        }
      }
      if (chunk == 1) return;
    }
  }

  void shortenText(std::size_t number, const std::string& name) {
    const Json line = Json::parse(best_.smallest.lines[number]);
    const String text = fromUtf8(line[name].get<std::string>());
    // By characters, not by units: a half of one is no text.
    std::vector<String> characters;
    for (const char16_t unit : text) {
      const bool second = unit >= 0xDC00 && unit < 0xE000 && !characters.empty();
      if (second) {
        characters.back() += unit;
      } else {
        characters.emplace_back(1, unit);
      }
    }
    shortenSequence(number, name, std::move(characters), [](const std::vector<String>& parts) {
      String joined;
      for (const String& part : parts) joined += part;
      return Json(toUtf8(joined));
    });
  }

  void shortenArray(std::size_t number, const std::string& name) {
    const Json line = Json::parse(best_.smallest.lines[number]);
    if (!line[name].is_array()) return;
    std::vector<Json> members(line[name].begin(), line[name].end());
    shortenSequence(number, name, std::move(members),
                    [](const std::vector<Json>& parts) { return Json(parts); });
  }

  const Runner& runner_;
  const Compared& compared_;
  Shrunk best_;
  int left_;
};

}  // namespace

Shrunk shrink(const Runner& runner, const Compared& compared, const Case& given, const Finding& finding,
              int attempts) {
  return Shrinker(runner, compared, {given, finding}, attempts).run();
}

}  // namespace zqn::parity
