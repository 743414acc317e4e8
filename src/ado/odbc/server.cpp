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
  if (!inTransaction_) return true;
  const bool gone = link_.dropped() || link_.generation() != begunOn_;
  if (!gone && !link_.gaveUp()) return true;
  const bool commits = statement.effect == Effect::Commit;
  const bool rollsBack = statement.effect == Effect::Rollback;
  if (commits || rollsBack) inTransaction_ = false;
  if (rollsBack) return !gone;
  if (commits && !gone) link_.run(u"ROLLBACK");
  throw RuntimeError(error::ProviderFailure,
                     gone ? u"Die Verbindung ist in einer Transaktion abgebrochen; was sie noch nicht "
                            u"festgeschrieben hatte, ist nicht gespeichert."
                          : u"Der Server hat die Transaktion von sich aus beendet; was sie noch nicht "
                            u"festgeschrieben hatte, ist nicht gespeichert.",
                     link_.product());
}

void Server::ran(const Translation& statement, const RuntimeError* failure) {
  const bool misread = failure && failure->number() == error::CommandText;
  switch (statement.effect) {
    case Effect::None:
      break;
    case Effect::Begin:
      if (failure || inTransaction_) break;
      inTransaction_ = true;
      begunOn_ = link_.generation();
      link_.beganTransaction();
      break;
    case Effect::Commit:
    case Effect::Rollback:
      // One that fails has ended it all the same, unless the server did not understand it.
      inTransaction_ = inTransaction_ && misread;
      break;
    case Effect::Schema:
      forgetTables();
  }
}

void Server::forgetNumber() {
  if (dialect().forgetNumber.empty()) return;
  Query& forget = kept(String(dialect().forgetNumber));
  forget.open();
  forget.close();
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
