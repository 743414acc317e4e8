// SPDX-License-Identifier: MIT
#include "host/database/database_address.h"

#include "ado/odbc/connection_string.h"
#include "host/database/failure.h"

namespace zqn::host {

namespace {

constexpr std::string_view sqlite = "sqlite:", odbc = "odbc:";

}  // namespace

DatabaseAddress DatabaseAddress::read(const std::string& url) {
  if (url.starts_with(sqlite) && url.size() > sqlite.size()) return ofFile(url.substr(sqlite.size()));
  DatabaseAddress address;
  if (url.starts_with(odbc)) address.connectionString_ = fromUtf8(url.substr(odbc.size()));
  const bool isText = toUtf8(fromUtf8(url)) == url;
  if (isText && !ado::odbc::connectionPairs(address.connectionString_).empty()) return address;
  // A text that only forgets how to begin may hold a password.
  throw CommandFailure(ExitStatus::WrongUsage,
                       "--db '" + toUtf8(ado::odbc::withoutPassword(fromUtf8(url))) +
                           "' is no database; write sqlite:FILE or odbc:CONNECTION-STRING");
}

DatabaseAddress DatabaseAddress::ofFile(const std::filesystem::path& file) {
  DatabaseAddress address;
  address.file_ = std::filesystem::absolute(file);
  return address;
}

std::string DatabaseAddress::shown() const {
  return isServer() ? toUtf8(ado::odbc::withoutPassword(connectionString_)) : file_.string();
}

std::string DatabaseAddress::shownUrl() const { return std::string(isServer() ? odbc : sqlite) + shown(); }

}  // namespace zqn::host
