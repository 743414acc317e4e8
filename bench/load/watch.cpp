// SPDX-License-Identifier: MIT
#include "watch.h"

namespace zqn::load {

namespace {

template <class Act>
auto noticing(Watch& watch, Act&& act) {
  try {
    return act();
  } catch (const RuntimeError& failure) {
    if (failure.number() == error::RowConflict) {
      ++watch.conflicts;
    } else {
      watch.failures.push_back(failure);
    }
    throw;
  }
}

class WatchedStatement : public ado::Statement {
 public:
  WatchedStatement(std::unique_ptr<ado::Statement> statement, StringView text, Watch& watch)
      : statement_(std::move(statement)), isUpdate_(text.starts_with(u"UPDATE ")), watch_(watch) {}

  void open(std::span<const ado::Value> parameters) override {
    noticing(watch_, [&] { statement_->open(parameters); });
    const std::int64_t rows = statement_->rowsAffected();
    watch_.rowsChanged += rows;
    if (isUpdate_ && rows == 0) ++watch_.conflicts;
  }
  bool fetch(ado::RowStore& rows, std::size_t atMost) override {
    return noticing(watch_, [&] { return statement_->fetch(rows, atMost); });
  }
  void close() noexcept override { statement_->close(); }
  std::shared_ptr<const ado::Columns> columns() const override { return statement_->columns(); }
  std::int64_t rowsAffected() const override { return statement_->rowsAffected(); }

 private:
  std::unique_ptr<ado::Statement> statement_;
  bool isUpdate_;
  Watch& watch_;
};

class WatchedKeyset : public ado::Keyset {
 public:
  WatchedKeyset(std::unique_ptr<ado::Keyset> keyset, Watch& watch)
      : keyset_(std::move(keyset)), watch_(watch) {}

  std::shared_ptr<const ado::Columns> columns() const override { return keyset_->columns(); }
  bool fetchKeys(std::vector<ado::RowHandle>& keys, std::size_t atMost) override {
    return noticing(watch_, [&] { return keyset_->fetchKeys(keys, atMost); });
  }
  ado::RowHandle handleOf(const ado::RowView& row) override { return keyset_->handleOf(row); }
  std::optional<ado::RowHandle> inserted(const std::vector<Variant>& values,
                                         const ado::RowView& returned) override {
    return keyset_->inserted(values, returned);
  }
  void written(ado::RowHandle row, const std::vector<Variant>& values) override {
    keyset_->written(row, values);
  }
  bool readRow(ado::RowHandle row, ado::RowStore& rows) override {
    return noticing(watch_, [&] { return keyset_->readRow(row, rows); });
  }
  std::optional<std::vector<ado::RowHandle>> rowsWhere(
      std::span<const ado::ColumnEquals> comparisons) override {
    return noticing(watch_, [&] { return keyset_->rowsWhere(comparisons); });
  }

 private:
  std::unique_ptr<ado::Keyset> keyset_;
  Watch& watch_;
};

class WatchedProvider : public ado::Provider {
 public:
  WatchedProvider(std::unique_ptr<ado::Provider> provider, Watch& watch)
      : provider_(std::move(provider)), watch_(watch) {}

  std::unique_ptr<ado::Statement> prepare(StringView text, ado::Purpose purpose) override {
    return noticing(watch_, [&] {
      return std::make_unique<WatchedStatement>(provider_->prepare(text, purpose), text, watch_);
    });
  }
  std::unique_ptr<ado::Keyset> keyset(StringView text, std::shared_ptr<const ado::Columns> known) override {
    auto keyset = noticing(watch_, [&] { return provider_->keyset(text, std::move(known)); });
    if (!keyset) return nullptr;
    return std::make_unique<WatchedKeyset>(std::move(keyset), watch_);
  }
  String quoted(StringView identifier) const override { return provider_->quoted(identifier); }
  ado::Condition sameValue(const ado::Column& column, const ado::Value& read) const override {
    return provider_->sameValue(column, read);
  }
  String name() const override { return provider_->name(); }

 private:
  std::unique_ptr<ado::Provider> provider_;
  Watch& watch_;
};

}  // namespace

std::unique_ptr<ado::Provider> watched(std::unique_ptr<ado::Provider> provider, Watch& watch) {
  return std::make_unique<WatchedProvider>(std::move(provider), watch);
}

}  // namespace zqn::load
