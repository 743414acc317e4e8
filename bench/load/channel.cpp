// SPDX-License-Identifier: MIT
#include "channel.h"

#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstring>
#include <stdexcept>

namespace zqn::load {

namespace {

constexpr char Here = 'h', Go = 'g';

ssize_t readAgain(int socket, char* bytes, std::size_t size) {
  ssize_t count = 0;
  do {
    count = ::read(socket, bytes, size);
  } while (count < 0 && errno == EINTR);
  return count;
}

}  // namespace

std::pair<Channel, Channel> Channel::pair() {
  std::array<int, 2> ends = {};
  if (socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
    throw std::runtime_error(std::string("no socket: ") + std::strerror(errno));
  return {Channel(ends[0]), Channel(ends[1])};
}

void Channel::meet() {
  send(std::string(1, Here));
  char answer = 0;
  if (readAgain(socket_, &answer, 1) != 1 || answer != Go) throw std::runtime_error("the crew is gone");
}

bool Channel::here() {
  char said = 0;
  return readAgain(socket_, &said, 1) == 1 && said == Here;
}

void Channel::go() {
  // Somebody who is gone meanwhile is noticed at the next meeting.
  const char word = Go;
  static_cast<void>(::send(socket_, &word, 1, MSG_NOSIGNAL));
}

void Channel::send(const std::string& text) {
  for (std::size_t sent = 0; sent < text.size();) {
    const ssize_t count = ::send(socket_, text.data() + sent, text.size() - sent, MSG_NOSIGNAL);
    if (count < 0 && errno != EINTR) throw std::runtime_error("the crew is gone");
    if (count > 0) sent += static_cast<std::size_t>(count);
  }
}

std::string Channel::receiveAll() {
  std::string all;
  std::array<char, 64 * 1024> bytes;
  for (ssize_t count = 0; (count = readAgain(socket_, bytes.data(), bytes.size())) > 0;)
    all.append(bytes.data(), static_cast<std::size_t>(count));
  return all;
}

void Channel::close() noexcept {
  if (socket_ >= 0) ::close(std::exchange(socket_, -1));
}

}  // namespace zqn::load
