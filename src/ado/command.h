// SPDX-License-Identifier: MIT
//
// A statement with the connection it runs on.
#pragma once

#include "ado/connection.h"

namespace zqn::ado {

/// A statement with the connection it runs on. After a failed Execute it can get another text and run again.
///
///     ado::Command command;
///     command.ActiveConnection(connection);
///     command.CommandText(u"Delete From Versandarten WHERE Versandart = " + ado::sql::value(key));
///     command.Execute();
class Command {
 public:
  /// Nothing at first.
  const Ref<Connection>& ActiveConnection() const noexcept { return connection_; }
  void ActiveConnection(Ref<Connection> connection) { connection_ = std::move(connection); }
  /// Any text; Execute tells whether it can be run.
  const sql::Text& CommandText() const noexcept { return text_; }
  void CommandText(sql::Text text) { text_ = std::move(text); }
  /// A CommandTypeEnum; it is a text whatever this says.
  int CommandType() const noexcept { return type_; }
  void CommandType(int type) noexcept { type_ = type; }

  /// As Connection::Execute; gives the number of rows changed. Error 3709 without a connection or with a
  /// closed one.
  std::int64_t Execute(int options = adCmdUnspecified);

 private:
  Ref<Connection> connection_;
  sql::Text text_;
  int type_ = adCmdUnspecified;
};

}  // namespace zqn::ado
