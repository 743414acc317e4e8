// SPDX-License-Identifier: MIT
//
// A proxy in front of a database server that counts the messages of both sides and cuts the connection at one
// of them: the message is not passed on, and both sides find the connection closed.
//
//     CuttingProxy proxy(5432, CuttingProxy::Protocol::PostgreSql);
//     proxy.cutAt(17);
//     ... connect to 127.0.0.1:proxy.port() ...
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

namespace zqn {

class CuttingProxy {
 public:
  enum class Protocol { PostgreSql, MariaDb };

  /// Listens on a port of its own; passes on to `serverPort` of this machine.
  CuttingProxy(std::uint16_t serverPort, Protocol protocol);
  /// Ends all connections.
  ~CuttingProxy();
  CuttingProxy(const CuttingProxy&) = delete;
  CuttingProxy& operator=(const CuttingProxy&) = delete;

  std::uint16_t port() const noexcept { return port_; }
  /// Counts from 1 from now on and cuts at message `number`, once; 0 for never.
  void cutAt(int number);
  /// Messages since `cutAt`, of both sides and all connections.
  int messages() const noexcept { return messages_; }
  bool hasCut() const noexcept { return cut_; }

 private:
  void accept();
  void serve(int client);
  /// True when the message may pass.
  bool count() noexcept;

  std::uint16_t serverPort_;
  Protocol protocol_;
  int listener_ = -1;
  std::uint16_t port_ = 0;
  std::atomic<int> messages_ = 0;
  std::atomic<int> cutAt_ = 0;
  std::atomic<bool> cut_ = false;
  std::atomic<bool> ends_ = false;
  std::mutex threads_;
  std::vector<std::thread> serving_;
  std::thread accepting_;
};

}  // namespace zqn
