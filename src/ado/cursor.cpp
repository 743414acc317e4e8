// SPDX-License-Identifier: MIT
#include "ado/cursor.h"

#include <algorithm>
#include <limits>

#include "ado/keyset_cursor.h"
#include "ado/snapshot_cursor.h"
#include "ado/sql_tokens.h"

namespace zqn::ado {

namespace {

/// A result of so few rows is read at once; the usual one has one row, found by its key.
constexpr std::size_t SmallResult = 16;
constexpr std::size_t AllRows = std::numeric_limits<std::size_t>::max();

bool has(const Columns& columns, bool Column::*mark) {
  return std::ranges::any_of(columns, [&](const Column& column) { return column.*mark; });
}

}  // namespace

void Cursor::fetchAll() {
  while (!complete()) fetch(std::numeric_limits<int>::max());
}

int Cursor::scan(const Criterion& criterion, int from, int direction, RowStore& buffer) {
  for (int at = from; at >= 0; at += direction) {
    if (at >= knownRows()) fetch(at - knownRows() + 1);
    if (at >= knownRows()) break;
    const RowView view = row(at, buffer);
    if (view && criterion.holds(view)) return at;
  }
  return -1;
}

std::unique_ptr<Cursor> openCursor(Connection& connection, StringView statement, CursorKind kind,
                                   bool keyed) {
  const sql::Shape shape(statement);
  Provider& provider = connection.provider();
  const bool server = kind == CursorKind::Server;
  // What is sorted is a list, and its rows are not read before they are shown.
  if (server && shape.ordered) {
    if (auto keyset = provider.keyset(statement))
      return std::make_unique<KeysetCursor>(provider, statement, std::move(keyset));
  }
  const Purpose purpose = server || keyed ? Purpose::Keyed : Purpose::Plain;
  const auto once = shape.recurs ? nullptr : provider.prepare(shape.text, purpose);
  Statement& prepared = once ? *once : connection.statement(shape.text, purpose);
  auto running = std::make_optional<RunningStatement>(prepared, shape.parameters());
  const std::shared_ptr<const Columns> columns = prepared.columns();
  if (columns->empty()) return nullptr;

  RowStore rows(static_cast<int>(columns->size()));
  bool all = false;
  if (server && has(*columns, &Column::key)) {
    all = !prepared.fetch(rows, SmallResult);
    running.reset();
    const bool handles = has(*columns, &Column::rowHandle);
    auto keyset = all && handles ? nullptr : provider.keyset(statement, columns);
    if (all && (handles || keyset))
      return std::make_unique<KeysetCursor>(provider, statement, columns, std::move(rows), std::move(keyset));
    if (keyset) return std::make_unique<KeysetCursor>(provider, statement, std::move(keyset));
    if (!all) {
      rows.clear(rows.columns());
      running.emplace(prepared, shape.parameters());
    }
  }
  while (!all && prepared.fetch(rows, AllRows)) {
  }
  return std::make_unique<SnapshotCursor>(connection, statement, columns, std::move(rows));
}

}  // namespace zqn::ado
