// SPDX-License-Identifier: MIT
#include "parity/stage.h"

#include <unistd.h>

#include <cstdlib>

#include "host/database/database.h"
#include "host/database/layout_files.h"
#include "host/database/schema/sample.h"

namespace zqn::parity {

namespace fs = std::filesystem;

namespace {

fs::path makeFolder() {
  const fs::path memory = "/dev/shm";
  std::error_code ignored;
  const fs::path where = fs::is_directory(memory, ignored) ? memory : fs::temp_directory_path();
  std::string name = (where / "zqn-parity-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr)
    throw fs::filesystem_error("no folder for the databases", where,
                               std::error_code(errno, std::generic_category()));
  return name;
}

}  // namespace

Stage::Stage() : folder_(makeFolder()), owner_(getpid()) {
  host::createTables(host::DatabaseAddress::ofFile(database()), {.sample = true});
  fs::create_directory(application());
  host::writeSampleLayouts(application());
  host::sampleRows(
      [&](const host::Table& table, const host::Row& row) { rows_[toUtf8(table.name)].push_back(row); });
}

Stage::~Stage() {
  std::error_code ignored;
  if (getpid() == owner_) fs::remove_all(folder_, ignored);
}

const std::vector<host::Row>& Stage::rows(const std::string& table) const {
  static const std::vector<host::Row> none;
  const auto found = rows_.find(table);
  return found != rows_.end() ? found->second : none;
}

}  // namespace zqn::parity
