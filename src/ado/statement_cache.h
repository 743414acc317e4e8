// SPDX-License-Identifier: MIT
//
// Prepared statements by their shape. Two texts that differ only in the text literals of their conditions
// share one statement, so that reading one row after the other by key prepares nothing:
//
//     SELECT * FROM T WHERE K='10'   and   SELECT * FROM T WHERE K='11'   ->   SELECT * FROM T WHERE K=?
#pragma once

#include <list>
#include <memory>
#include <unordered_map>
#include <vector>

#include "ado/provider.h"
#include "ado/sql_tokens.h"

namespace zqn::ado {

/// A statement and the values of its parameters, both valid until the next call of get.
struct CachedStatement {
  Statement* statement = nullptr;
  std::span<const Value> parameters;
};

class StatementCache {
 public:
  explicit StatementCache(std::size_t capacity = 64) : capacity_(capacity) {}

  /// Prepares what is not there yet. The least recently used statement makes room.
  CachedStatement get(Provider& provider, StringView text, Purpose purpose);
  void clear() noexcept;
  std::size_t size() const noexcept { return entries_.size(); }

 private:
  struct Entry {
    String key;
    std::unique_ptr<Statement> statement;
  };

  std::size_t capacity_;
  std::list<Entry> entries_;  // most recently used first
  std::unordered_map<StringView, std::list<Entry>::iterator> byKey_;
  sql::Shape shape_;
  std::vector<Value> parameters_;
};

}  // namespace zqn::ado
