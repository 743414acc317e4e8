// SPDX-License-Identifier: MIT
//
// A line from one process to another and back: a clerk waits at the end of each phase until all are there.
//
//     Channel channel(socket);
//     channel.meet();              // the clerk
//     channel.here(); channel.go();  // the crew
#pragma once

#include <string>
#include <utility>

namespace zqn::load {

class Channel {
 public:
  explicit Channel(int socket) : socket_(socket) {}
  Channel(Channel&& other) noexcept : socket_(std::exchange(other.socket_, -1)) {}
  Channel(const Channel&) = delete;
  Channel& operator=(const Channel&) = delete;
  ~Channel() { close(); }

  /// Two ends.
  static std::pair<Channel, Channel> pair();

  /// Says that the phase is over, and waits for the next one. An exception when the crew is gone.
  void meet();
  /// Waits for `meet` of the other side; False when it is gone.
  bool here();
  /// Lets the other side go on.
  void go();

  void send(const std::string& text);
  /// All that comes until the other side closes.
  std::string receiveAll();
  void close() noexcept;

 private:
  int socket_;
};

}  // namespace zqn::load
