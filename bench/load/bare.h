// SPDX-License-Identifier: MIT
//
// The same statements as a program would send them that knows nothing but ODBC: those with parameters
// prepared once, the others directly, columns bound to buffers of a fixed size, rows read in blocks and
// dropped. The driver is set up as for the dialogs.
#pragma once

#include <map>

#include "ado/odbc/link.h"
#include "recording.h"

namespace zqn::load {

class Bare {
 public:
  explicit Bare(const String& connectionString);

  /// Runs them in order and gives the number of rows that they have changed. RuntimeError at the first that
  /// fails.
  std::int64_t run(const Recording& recording);

 private:
  struct Prepared {
    ado::odbc::Handle handle;
    SQLSMALLINT columns = 0;
    bool described = false;
    std::vector<char> buffer;
    std::vector<SQLLEN> lengths;
  };

  std::int64_t run(const Run& one);
  Prepared& prepared(const String& statement);
  void bind(Prepared& statement, const std::vector<Argument>& arguments);
  void bindColumns(Prepared& statement);
  void check(const Prepared& statement, SQLRETURN result);

  ado::odbc::Link link_;
  std::map<String, Prepared> prepared_;
  Prepared direct_;
  std::vector<String> texts_;
  std::vector<SQLLEN> sizes_;
};

}  // namespace zqn::load
