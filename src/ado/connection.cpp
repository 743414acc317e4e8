// SPDX-License-Identifier: MIT
#include "ado/connection.h"

#include <algorithm>

#include "ado/raise.h"
#include "ado/recordset.h"
#include "ado/sql_tokens.h"

namespace zqn::ado {

Connection::Connection(std::unique_ptr<Provider> provider) : provider_(std::move(provider)) {}

Connection::~Connection() = default;

std::int64_t Connection::Execute(const sql::Text& statement, int) {
  if (!provider_) raise(error::ObjectClosed);
  before(Operation::Execute, statement.text());
  requireRunnable(statement);
  const sql::Shape shape(statement.text());
  const std::vector<Value> parameters = shape.parameters();
  if (shape.recurs) {
    const RunningStatement running(this->statement(shape.text, Purpose::Plain), parameters);
    return running->rowsAffected();
  }
  const auto once = provider_->prepare(shape.text, Purpose::Plain);
  const RunningStatement running(*once, parameters);
  return running->rowsAffected();
}

void Connection::Close() {
  if (!provider_) raise(error::ObjectClosed);
  while (!recordsets_.empty()) recordsets_.back()->shut();
  statements_.clear();
  provider_.reset();
}

Provider& Connection::provider() const {
  if (!provider_) raise(error::InvalidConnection);
  return *provider_;
}

Statement& Connection::statement(StringView text, Purpose purpose) {
  return statements_.get(provider(), text, purpose);
}

void Connection::dismiss(Recordset& recordset) noexcept { std::erase(recordsets_, &recordset); }

void Connection::requireRunnable(const sql::Text& statement) const {
  if (!statement.valid()) {
    throw RuntimeError(error::CommandText, u"Ungültiger Wert in der Anweisung: " + statement.text(),
                       provider().name());
  }
  if (statement.criterionOnly()) {
    throw RuntimeError(error::CommandText,
                       u"Wert ohne Anführungszeichen in der Anweisung: " + statement.text(),
                       provider().name());
  }
}

}  // namespace zqn::ado
