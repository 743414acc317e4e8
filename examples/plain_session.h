// SPDX-License-Identifier: MIT
//
// The least session that a host can have: an SQLite database that is there already, no settings, and one user
// who may change everything.
//
//     dialog.Session(zqn::Ref<PlainSession>::make("waren.sqlite"));
#pragma once

#include "ado/sqlite/sqlite.h"
#include "contract/session.h"

class PlainSession : public zqn::Session {
 public:
  explicit PlainSession(const char* file)
      : connection_(zqn::ado::openSqlite(file, {.mode = zqn::ado::SqliteOptions::Mode::Existing})) {}
  zqn::String GetSetting(zqn::StringView, zqn::StringView, zqn::StringView Default, std::int32_t) override {
    return zqn::String(Default);
  }
  void SaveSetting(zqn::StringView, zqn::StringView, zqn::StringView, const zqn::Variant&,
                   std::int32_t) override {}
  zqn::Ref<zqn::ado::Connection> SessionConnection() override { return connection_; }
  bool UserIsAdmin() override { return true; }

 private:
  zqn::Ref<zqn::ado::Connection> connection_;
};
