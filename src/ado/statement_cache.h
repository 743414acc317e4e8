// SPDX-License-Identifier: MIT
//
// Prepared statements, kept by their text.
#pragma once

#include <list>
#include <memory>
#include <unordered_map>

#include "ado/provider.h"

namespace zqn::ado {

/// Prepared statements, kept by their text. With the texts of sql::Shape, two statements that differ only in
/// the literals of their conditions share one, so that reading one row after the other by its key prepares
/// nothing.
///
///     Statement& statement = cache.get(provider, u"SELECT * FROM T WHERE K=?", Purpose::Keyed);
class StatementCache {
 public:
  /// Statements that it keeps at most.
  explicit StatementCache(std::size_t capacity = 64) : capacity_(capacity) {}

  /// Prepares what is not here; the least recently used statement makes room. Valid until the next call of
  /// get or clear.
  Statement& get(Provider& provider, StringView text, Purpose purpose);
  /// Finalizes all.
  void clear() noexcept;
  std::size_t size() const noexcept { return entries_.size(); }  ///< Statements that are kept.

 private:
  struct Entry {
    String key;  // the purpose, then the text
    std::unique_ptr<Statement> statement;
  };

  std::size_t capacity_;
  std::list<Entry> entries_;  // most recently used first
  std::unordered_map<StringView, std::list<Entry>::iterator> byKey_;
};

/// Runs a statement for as long as its rows are read, and closes it then.
class RunningStatement {
 public:
  /// Opens it; errors as Statement::open.
  RunningStatement(Statement& statement, std::span<const Value> parameters) : statement_(statement) {
    statement_.open(parameters);
  }
  ~RunningStatement() { statement_.close(); }
  RunningStatement(const RunningStatement&) = delete;
  RunningStatement& operator=(const RunningStatement&) = delete;
  Statement* operator->() const noexcept { return &statement_; }  ///< The statement, open.

 private:
  Statement& statement_;
};

}  // namespace zqn::ado
