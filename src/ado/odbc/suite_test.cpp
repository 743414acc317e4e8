// SPDX-License-Identifier: MIT
//
// The rules of recordsets on a database server.
#include "testing/server_context.h"

namespace zqn::ado::suite {

namespace {
std::unique_ptr<Context> serverContext() { return std::make_unique<odbc::ServerContext>(); }
}  // namespace

INSTANTIATE_TEST_SUITE_P(Server, RecordsetTest, testing::ValuesIn(anywhere(serverContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Server, KeysetTest, testing::ValuesIn(onServer(serverContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Server, SnapshotTest, testing::ValuesIn(onClient(serverContext)), nameOf);
INSTANTIATE_TEST_SUITE_P(Server, ConnectionTest, testing::ValuesIn(onServer(serverContext)), nameOf);

}  // namespace zqn::ado::suite
