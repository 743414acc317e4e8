// SPDX-License-Identifier: MIT
#include "host/session/settings_store.h"

#include <algorithm>

#include "host/database/rows.h"
#include "runtime/locale.h"

namespace zqn::host {

namespace {

bool same(StringView left, StringView right) { return compareCollated(left, right) == 0; }

bool same(const SettingName& left, const SettingName& right) {
  return same(left.section, right.section) && same(left.key, right.key) && same(left.user, right.user);
}

/// Runs a query on the settings; a database without the table answers with no row.
ado::RowStore query(ado::Connection& connection, StringView statement, const std::vector<Variant>& values) {
  try {
    return runStatement(connection, statement, values).rows;
  } catch (const RuntimeError& failure) {
    if (failure.number() != error::TableNotFound) throw;
    return ado::RowStore();
  }
}

}  // namespace

std::optional<String> SettingsStore::read(const SettingName& name) const {
  for (const Setting& entry : forRun_)
    if (same(entry.name, name)) return entry.value;
  const ado::RowStore rows =
      query(*connection_, u"SELECT Wert FROM Einstellungen WHERE Sektion=? AND Schluessel=? AND Benutzer=?",
            {name.section, name.key, name.user});
  if (rows.rows() == 0) return std::nullopt;
  return String(rows.at(0, 0).text);
}

String SettingsStore::description(const SettingName& name) const {
  const ado::RowStore rows = query(
      *connection_, u"SELECT Beschreibung FROM Einstellungen WHERE Sektion=? AND Schluessel=? AND Benutzer=?",
      {name.section, name.key, name.user});
  return rows.rows() == 0 ? String() : String(rows.at(0, 0).text);
}

void SettingsStore::write(const SettingName& name, StringView value) {
  const std::vector<Variant> values{value, name.section, name.key, name.user};
  const auto changed =
      runStatement(*connection_,
                   u"UPDATE Einstellungen SET Wert=? WHERE Sektion=? AND Schluessel=? AND Benutzer=?", values)
          .changed;
  if (changed == 0)
    runStatement(*connection_,
                 u"INSERT INTO Einstellungen (Wert, Sektion, Schluessel, Benutzer) VALUES (?, ?, ?, ?)",
                 values);
  forget(name);
}

void SettingsStore::describe(const SettingName& name, StringView description) {
  runStatement(*connection_,
               u"UPDATE Einstellungen SET Beschreibung=? WHERE Sektion=? AND Schluessel=? AND Benutzer=?",
               {description, name.section, name.key, name.user});
}

void SettingsStore::setForRun(const SettingName& name, StringView value) {
  forget(name);
  forRun_.push_back({name, String(value)});
}

void SettingsStore::forget(const SettingName& name) {
  std::erase_if(forRun_, [&](const Setting& entry) { return same(entry.name, name); });
}

void SettingsStore::erase(const SettingName& name) {
  forget(name);
  runStatement(*connection_, u"DELETE FROM Einstellungen WHERE Sektion=? AND Schluessel=? AND Benutzer=?",
               {name.section, name.key, name.user});
}

std::vector<SettingsStore::Setting> SettingsStore::all(StringView user) const {
  std::vector<Setting> found;
  const ado::RowStore rows =
      query(*connection_,
            u"SELECT Sektion, Schluessel, Benutzer, Wert FROM Einstellungen WHERE Benutzer='' OR Benutzer=?",
            {user});
  for (int row = 0; row < rows.rows(); ++row) {
    const SettingName name{String(rows.at(row, 0).text), String(rows.at(row, 1).text),
                           String(rows.at(row, 2).text)};
    const bool hidden =
        std::ranges::any_of(forRun_, [&](const Setting& entry) { return same(entry.name, name); });
    if (!hidden) found.push_back({name, String(rows.at(row, 3).text)});
  }
  for (const Setting& entry : forRun_)
    if (entry.name.user.empty() || same(entry.name.user, user)) found.push_back(entry);
  std::ranges::sort(found, [](const Setting& left, const Setting& right) {
    if (!same(left.name.section, right.name.section))
      return compareCollated(left.name.section, right.name.section) < 0;
    if (!same(left.name.key, right.name.key)) return compareCollated(left.name.key, right.name.key) < 0;
    // The user's before the global one, whose user is empty.
    return compareCollated(left.name.user, right.name.user) > 0;
  });
  return found;
}

std::vector<std::pair<String, String>> SettingsStore::section(StringView section, StringView user) const {
  std::vector<std::pair<String, String>> pairs;
  for (Setting& setting : all(user)) {
    if (!same(setting.name.section, section)) continue;
    if (!pairs.empty() && same(pairs.back().first, setting.name.key)) continue;
    pairs.emplace_back(std::move(setting.name.key), std::move(setting.value));
  }
  return pairs;
}

}  // namespace zqn::host
