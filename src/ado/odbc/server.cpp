// SPDX-License-Identifier: MIT
#include "ado/odbc/server.h"

#include <algorithm>

#include "ado/odbc/query.h"

namespace zqn::ado::odbc {

namespace {
constexpr std::size_t KeptStatements = 32;
constexpr std::size_t KeptTranslations = 256;
constexpr std::size_t LongestKept = 2000;
}  // namespace

Server::Server(StringView connectionString, const OdbcOptions& options)
    : connectionString_(connectionString),
      loginTimeout_(options.loginTimeout),
      ran_(options.ran),
      runs_(options.runs),
      link_(connectionString_, loginTimeout_),
      tables_(link_) {}

Server::~Server() = default;

Link& Server::reader() {
  if (!reader_) reader_ = std::make_unique<Link>(connectionString_, loginTimeout_);
  return *reader_;
}

Translation Server::translated(StringView statement) {
  const String text(statement);
  if (const auto known = translated_.find(text); known != translated_.end()) return known->second;
  Translation made = translate(statement, dialect(), [this](StringView name) { return tables_.table(name); });
  if (text.size() > LongestKept) return made;
  if (translated_.size() >= KeptTranslations) translated_.clear();
  return translated_[text] = std::move(made);
}

void Server::forgetTables() noexcept {
  tables_.forget();
  translated_.clear();
}

bool Server::mayRun(const Translation& statement) {
  if (!inTransaction_ || (!link_.dropped() && link_.generation() == begunOn_)) return true;
  const bool ends = statement.effect == Effect::Commit || statement.effect == Effect::Rollback;
  if (ends) inTransaction_ = false;
  if (statement.effect == Effect::Rollback) return false;
  throw RuntimeError(error::ProviderFailure,
                     u"Die Verbindung ist in einer Transaktion abgebrochen; von ihr ist nichts gespeichert.",
                     link_.product());
}

void Server::ran(const Translation& statement, bool failed) {
  if (statement.effect == Effect::Commit || statement.effect == Effect::Rollback) {
    inTransaction_ = false;
  } else if (statement.effect == Effect::Begin) {
    if (failed || inTransaction_) return;
    inTransaction_ = true;
    begunOn_ = link_.generation();
  } else if (statement.effect == Effect::Schema) {
    forgetTables();
  }
}

Query& Server::kept(const String& text) {
  const auto known = std::ranges::find_if(kept_, [&](const auto& entry) { return entry.first == text; });
  if (known != kept_.end()) {
    kept_.splice(kept_.begin(), kept_, known);
    return *kept_.front().second;
  }
  if (kept_.size() >= KeptStatements) kept_.pop_back();
  kept_.emplace_front(text, std::make_unique<Query>(*this, link_, text));
  return *kept_.front().second;
}

}  // namespace zqn::ado::odbc
