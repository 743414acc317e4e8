// SPDX-License-Identifier: MIT
#include "ado/statement_cache.h"

namespace zqn::ado {

Statement& StatementCache::get(Provider& provider, StringView text, Purpose purpose) {
  String key;
  key.reserve(text.size() + 1);
  constexpr StringView letters = u"PKI";
  key.append(1, letters[static_cast<std::size_t>(purpose)]).append(text);
  if (const auto known = byKey_.find(key); known != byKey_.end()) {
    entries_.splice(entries_.begin(), entries_, known->second);
    return *entries_.front().statement;
  }
  auto statement = provider.prepare(text, purpose);
  if (entries_.size() >= capacity_) {
    byKey_.erase(entries_.back().key);
    entries_.pop_back();
  }
  entries_.push_front({std::move(key), std::move(statement)});
  byKey_.emplace(entries_.front().key, entries_.begin());
  return *entries_.front().statement;
}

void StatementCache::clear() noexcept {
  byKey_.clear();
  entries_.clear();
}

}  // namespace zqn::ado
