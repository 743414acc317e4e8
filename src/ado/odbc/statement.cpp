// SPDX-License-Identifier: MIT
#include "ado/odbc/statement.h"

#include "ado/odbc/keyed_select.h"

namespace zqn::ado::odbc {

OdbcStatement::OdbcStatement(std::shared_ptr<Server> server, StringView text, Purpose purpose)
    : server_(std::move(server)),
      text_(text),
      purpose_(purpose),
      translation_(server_->translated(text)),
      query_(made()) {}

std::unique_ptr<Query> OdbcStatement::made() const {
  const Dialect& dialect = server_->dialect();
  const auto query = [&](const String& text, Query::Rows rows = Query::Rows::OfStatement) {
    return std::make_unique<Query>(*server_, server_->link(), text, rows);
  };
  if (purpose_ != Purpose::Insert) return query(translation_.text);
  if (!dialect.numberInBatch.empty())
    return query(translation_.text + String(dialect.numberInBatch), Query::Rows::BehindStatement);
  const TableInfo* table = dialect.returns ? server_->tables().table(sql::insertedTable(text_)) : nullptr;
  if (!table || table->key.empty()) return query(translation_.text);
  String key;
  for (const String& column : table->key) key += (key.empty() ? u"" : u", ") + sql::quoted(column);
  return query(translation_.text + u"\nRETURNING " + key);
}

void OdbcStatement::open(std::span<const Value> parameters) {
  rowsAffected_ = 0;
  if (!server_->mayRun(translation_)) return;
  if (outdated_) renew();
  if (purpose_ == Purpose::Insert) server_->forgetNumber();
  run(parameters);
  if (query_->descriptions() != description_) learnColumns(parameters);
  // A driver counts the rows of a SELECT, too.
  if (columns_->empty()) rowsAffected_ = query_->rowsAffected();
}

void OdbcStatement::run(std::span<const Value> parameters) {
  try {
    query_->open(parameters);
  } catch (const RuntimeError& failure) {
    server_->ran(translation_, &failure);
    outdated_ = failure.number() == error::TableNotFound;
    if (outdated_) server_->forgetTables();
    throw;
  }
  server_->ran(translation_);
}

void OdbcStatement::renew() {
  translation_ = server_->translated(text_);
  query_ = made();
  description_ = 0;
  hidden_ = 0;
  outdated_ = false;
}

void OdbcStatement::learnColumns(std::span<const Value> parameters) {
  Columns columns = query_->columns();
  if (purpose_ == Purpose::Keyed && !columns.empty()) {
    const auto keyed = KeyedSelect::of(text_, server_->tables());
    const auto hidden = keyed ? keyed->missing(columns) : std::vector<String>();
    if (!hidden.empty()) {
      const Translation completed = server_->translated(keyed->withHidden(hidden));
      auto query = std::make_unique<Query>(*server_, server_->link(), completed.text);
      query_->close();
      query->open(parameters);
      columns = query->columns();
      hidden_ = hidden.size();
      query_ = std::move(query);
    }
    if (keyed && !keyed->mark(columns, hidden_)) {
      for (Column& column : columns) column.key = false;
    }
  }
  description_ = query_->descriptions();
  columns_ = std::make_shared<const Columns>(std::move(columns));
}

}  // namespace zqn::ado::odbc
