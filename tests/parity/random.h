// SPDX-License-Identifier: MIT
//
// Chance by a seed: the same seed gives the same numbers on every machine, which the distributions of the
// standard library do not promise.
//
//     Random chance(seed);
//     if (chance.percent(20)) press(chance.oneOf(keys));
#pragma once

#include <cstddef>
#include <cstdint>

namespace zqn::parity {

class Random {
 public:
  explicit Random(std::uint64_t seed) noexcept : state_(seed * 0x9E3779B97F4A7C15U + 1) {}

  /// The steps of splitmix64.
  std::uint64_t next() noexcept {
    std::uint64_t z = state_ += 0x9E3779B97F4A7C15U;
    z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9U;
    z = (z ^ z >> 27) * 0x94D049BB133111EBU;
    return z ^ z >> 31;
  }
  /// From 0 to `count` - 1; `count` is not 0.
  std::size_t below(std::size_t count) noexcept { return next() % count; }
  int between(int least, int most) noexcept {
    return least + static_cast<int>(below(static_cast<std::size_t>(most - least + 1)));
  }
  bool percent(int chances) noexcept { return between(0, 99) < chances; }
  /// An element of something that is not empty.
  template <class Choices>
  auto& oneOf(Choices& choices) noexcept {
    return choices[below(std::size(choices))];
  }

 private:
  std::uint64_t state_;
};

}  // namespace zqn::parity
