// SPDX-License-Identifier: MIT
#include "parity/finding.h"

#include <algorithm>

namespace zqn::parity {

namespace {

constexpr std::size_t shownLength = 700;

std::string shortened(const std::string& line) {
  if (line.size() <= shownLength) return line;
  std::size_t end = shownLength;
  while (end > 0 && (static_cast<unsigned char>(line[end]) & 0xC0) == 0x80) --end;
  return line.substr(0, end) + " ...";
}

/// Of two long lines the part where they begin to differ.
std::string partFrom(const std::string& line, const std::string& other) {
  constexpr std::size_t before = 80;
  const auto place = static_cast<std::size_t>(std::ranges::mismatch(line, other).in1 - line.begin());
  if (place <= before || line.size() <= shownLength) return shortened(line);
  std::size_t begin = place - before;
  while (begin > 0 && (static_cast<unsigned char>(line[begin]) & 0xC0) == 0x80) --begin;
  return "... " + shortened(line.substr(begin));
}

bool isScriptError(const std::string& line) { return line.starts_with(R"({"scriptError")"); }

std::optional<Finding> failureOf(const DesktopEntry& desktop, const Outcome& outcome) {
  const std::string name(desktop.name);
  std::vector<std::string> said;
  for (const std::string& line : outcome.said) said.push_back(name + ": " + shortened(line));
  if (said.size() > 40) said.resize(40);
  if (outcome.end == Outcome::End::Crashed) return Finding{name + " crashes", said};
  if (outcome.end == Outcome::End::Hung) return Finding{name + " never ends", said};
  if (!said.empty()) return Finding{name + " complains", said};
  return std::nullopt;
}

std::optional<Finding> difference(const DesktopEntry& first, const Outcome& measure,
                                  const DesktopEntry& other, const Outcome& outcome) {
  const auto [left, right] = std::ranges::mismatch(measure.transcript, outcome.transcript);
  if (left == measure.transcript.end() && right == outcome.transcript.end()) return std::nullopt;
  const std::string ours = left != measure.transcript.end() ? *left : "nothing more";
  const std::string theirs = right != outcome.transcript.end() ? *right : "nothing more";
  const bool drawnOtherwise = isScriptError(theirs);
  Finding finding{drawnOtherwise ? std::string(other.name) + " draws something else"
                                 : std::string(first.name) + " and " + std::string(other.name) + " differ",
                  {}};
  if (left != measure.transcript.begin()) finding.details.push_back("after: " + shortened(*std::prev(left)));
  finding.details.push_back(std::string(first.name) + ": " + partFrom(ours, theirs));
  finding.details.push_back(std::string(other.name) + ": " + partFrom(theirs, ours));
  return finding;
}

}  // namespace

std::optional<Finding> compare(const Compared& compared, const std::vector<Outcome>& outcomes) {
  for (std::size_t i = 0; i < compared.size(); ++i)
    if (const auto failure = failureOf(*compared[i], outcomes[i])) return failure;
  for (std::size_t i = 1; i < compared.size(); ++i)
    if (auto found = difference(*compared[0], outcomes[0], *compared[i], outcomes[i])) return found;
  const std::vector<std::string>& transcript = outcomes.front().transcript;
  if (!transcript.empty() && isScriptError(transcript.back()))
    return Finding{"the script cannot go on", {shortened(transcript.back())}};
  return std::nullopt;
}

std::optional<Finding> examine(const Runner& runner, const Compared& compared, const Case& given) {
  std::vector<Outcome> outcomes;
  for (const DesktopEntry* desktop : compared) outcomes.push_back(runner.replay(*desktop, given));
  return compare(compared, outcomes);
}

}  // namespace zqn::parity
