// SPDX-License-Identifier: MIT
#include "host/script/outside_of_host.h"

#include "host/database/database.h"
#include "host/database/rows.h"

namespace zqn::script {

namespace {

OutsideAccess::Rows query(ado::Connection& connection, StringView statement) {
  const ado::RowStore found = host::runStatement(connection, statement).rows;
  OutsideAccess::Rows rows;
  for (int row = 0; row < found.rows(); ++row) rows.push_back(host::rowValues(found, row));
  return rows;
}

}  // namespace

OutsideAccess outsideOf(const host::Host& host) {
  const Ref<ado::Connection> other = host::openDatabase(host.address());
  return {.query = [other](StringView statement) { return query(*other, statement); },
          .execute = [other](StringView statement) { other->Execute(statement); },
          .saveSetting =
              [&host](const Setting& setting) {
                host.session().SaveSetting(setting.section, setting.key, setting.value, Missing,
                                           setting.scope);
              },
          .settings =
              [&host](StringView section) {
                return host.session().settings().section(section, host.session().user());
              }};
}

}  // namespace zqn::script
