// SPDX-License-Identifier: MIT
#include "testing/cutting_proxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <string>
#include <string_view>

namespace zqn {

namespace {

constexpr int Patience = 50;  // milliseconds until the end of the proxy is noticed

sockaddr_in address(std::uint16_t port) {
  sockaddr_in place = {};
  place.sin_family = AF_INET;
  place.sin_port = htons(port);
  place.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  return place;
}

std::size_t bigEndian(std::string_view bytes) {
  std::size_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<unsigned char>(byte);
  return value;
}

/// One direction: bytes that have come, taken apart into messages.
class Stream {
 public:
  Stream(CuttingProxy::Protocol protocol, bool ofClient) : protocol_(protocol), first_(ofClient) {}

  void add(std::string_view bytes) { bytes_ += bytes; }
  /// The next message as a whole; empty when it has not come yet.
  std::string take() {
    const std::size_t size = sizeOfNext();
    if (size == 0 || bytes_.size() < size) return {};
    std::string message = bytes_.substr(0, size);
    bytes_.erase(0, size);
    first_ = false;
    return message;
  }

 private:
  std::size_t sizeOfNext() const {
    if (protocol_ == CuttingProxy::Protocol::MariaDb) {
      if (bytes_.size() < 4) return 0;
      const auto byte = [&](std::size_t i) { return std::size_t{static_cast<unsigned char>(bytes_[i])}; };
      return 4 + (byte(0) | byte(1) << 8 | byte(2) << 16);
    }
    // The first message of a client has no letter in front.
    const std::size_t letter = first_ ? 0 : 1;
    if (bytes_.size() < letter + 4) return 0;
    return letter + bigEndian(std::string_view(bytes_).substr(letter, 4));
  }

  CuttingProxy::Protocol protocol_;
  bool first_;
  std::string bytes_;
};

bool sendAll(int socket, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t sent = ::send(socket, bytes.data(), bytes.size(), MSG_NOSIGNAL);
    if (sent <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(sent));
  }
  return true;
}

}  // namespace

CuttingProxy::CuttingProxy(std::uint16_t serverPort, Protocol protocol)
    : serverPort_(serverPort), protocol_(protocol), listener_(::socket(AF_INET, SOCK_STREAM, 0)) {
  sockaddr_in place = address(0);
  socklen_t size = sizeof place;
  if (listener_ < 0 || ::bind(listener_, reinterpret_cast<sockaddr*>(&place), size) != 0 ||
      ::listen(listener_, 8) != 0 ||
      ::getsockname(listener_, reinterpret_cast<sockaddr*>(&place), &size) != 0)
    throw std::runtime_error("the proxy gets no port");
  port_ = ntohs(place.sin_port);
  accepting_ = std::thread([this] { accept(); });
}

CuttingProxy::~CuttingProxy() {
  ends_ = true;
  accepting_.join();
  for (std::thread& one : serving_) one.join();
  ::close(listener_);
}

void CuttingProxy::cutAt(int number) {
  messages_ = 0;
  cut_ = false;
  cutAt_ = number;
}

bool CuttingProxy::count() noexcept {
  if (++messages_ != cutAt_) return true;
  cut_ = true;
  return false;
}

void CuttingProxy::accept() {
  while (!ends_) {
    pollfd waiting = {listener_, POLLIN, 0};
    if (::poll(&waiting, 1, Patience) <= 0) continue;
    const int client = ::accept(listener_, nullptr, nullptr);
    if (client < 0) continue;
    const std::lock_guard guard(threads_);
    serving_.emplace_back([this, client] { serve(client); });
  }
}

void CuttingProxy::serve(int client) {
  const int server = ::socket(AF_INET, SOCK_STREAM, 0);
  const sockaddr_in place = address(serverPort_);
  const int now = 1;
  for (const int socket : {client, server}) ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &now, sizeof now);
  bool open = ::connect(server, reinterpret_cast<const sockaddr*>(&place), sizeof place) == 0;
  struct Side {
    int from, to;
    Stream stream;
  };
  std::array<Side, 2> sides = {Side{client, server, Stream(protocol_, true)},
                               Side{server, client, Stream(protocol_, false)}};
  std::array<char, 16384> buffer;
  while (open && !ends_) {
    std::array<pollfd, 2> waiting = {pollfd{client, POLLIN, 0}, pollfd{server, POLLIN, 0}};
    if (::poll(waiting.data(), waiting.size(), Patience) <= 0) continue;
    for (std::size_t i = 0; i < sides.size() && open; ++i) {
      if (waiting[i].revents == 0) continue;
      const ssize_t got = ::recv(sides[i].from, buffer.data(), buffer.size(), 0);
      open = got > 0;
      if (!open) break;
      sides[i].stream.add({buffer.data(), static_cast<std::size_t>(got)});
      for (std::string message = sides[i].stream.take(); open && !message.empty();
           message = sides[i].stream.take())
        open = count() && sendAll(sides[i].to, message);
    }
  }
  ::close(client);
  ::close(server);
}

}  // namespace zqn
