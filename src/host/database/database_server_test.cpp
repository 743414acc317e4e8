// SPDX-License-Identifier: MIT
//
// Servers that cannot be reached, with the drivers that are installed; tests/cli/server_test.py has real
// ones.
#include "host/database/database_server.h"

#include <arpa/inet.h>
#include <gmock/gmock.h>
#include <sys/socket.h>
#include <unistd.h>

#include "host/database/failure.h"

namespace zqn::host {

namespace {

using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;

/// A port of this machine at which nobody listens, and which nobody else is given meanwhile.
class ClosedPort {
 public:
  ClosedPort() : socket_(::socket(AF_INET, SOCK_STREAM, 0)) {
    address_.sin_family = AF_INET;
    address_.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof address_;
    auto* plain = reinterpret_cast<sockaddr*>(&address_);
    if (bind(socket_, plain, size) != 0 || getsockname(socket_, plain, &size) != 0)
      throw std::runtime_error("no port is free");
  }
  ~ClosedPort() { close(socket_); }
  ClosedPort(const ClosedPort&) = delete;
  ClosedPort& operator=(const ClosedPort&) = delete;
  std::string number() const { return std::to_string(ntohs(address_.sin_port)); }

 private:
  int socket_;
  sockaddr_in address_{};
};

/// What the person is told when the database is to be opened, or made.
std::string refusal(const std::string& connectionString) {
  const auto address = DatabaseAddress::read("odbc:" + connectionString);
  std::vector<std::string> told;
  const auto attempt = [&](const auto& action) {
    try {
      action();
      ADD_FAILURE() << "there is such a server";
    } catch (const CommandFailure& failure) {
      EXPECT_EQ(failure.status(), ExitStatus::CannotOpen);
      told.emplace_back(failure.what());
    }
  };
  attempt([&] { openDatabaseOnServer(address); });
  attempt([&] { createTablesOnServer(address, {.sample = true}); });
  EXPECT_EQ(told.at(0), told.at(1));
  return told.at(0);
}

}  // namespace

TEST(AServerThatIsDown, IsToldInTheWordsOfTheDriverOfPostgreSql) {
  const ClosedPort port;
  EXPECT_THAT(refusal("Driver={PostgreSQL Unicode};Server=127.0.0.1;Port=" + port.number() +
                      ";Database=waren;UID=anna;PWD=geheim"),
              AllOf(HasSubstr("database 'Driver={PostgreSQL Unicode};Server=127.0.0.1;Port=" + port.number() +
                              ";Database=waren;UID=anna;PWD=***': "),
                    HasSubstr("refused"), Not(HasSubstr("geheim")), Not(HasSubstr("installed are"))));
}

TEST(AServerThatIsDown, IsToldInTheWordsOfTheDriverOfMariaDb) {
  const ClosedPort port;
  EXPECT_THAT(refusal("Driver={MariaDB Unicode};Server=127.0.0.1;Port=" + port.number() +
                      ";Database=waren;UID=anna;PWD=geheim"),
              AllOf(HasSubstr("127.0.0.1"), HasSubstr("PWD=***"), Not(HasSubstr("geheim"))));
}

TEST(AServerThatIsDown, IsToldInTheWordsOfTheDriverOfSqlServer) {
  const ClosedPort port;
  EXPECT_THAT(refusal("Driver={FreeTDS};TDS_Version=7.4;Server=127.0.0.1;Port=" + port.number() +
                      ";Database=waren;UID=anna;PWD={ge;heim}"),
              AllOf(HasSubstr("FreeTDS"), HasSubstr("Unable to connect"), HasSubstr("PWD=***"),
                    Not(HasSubstr("heim")), Not(HasSubstr("installed are"))));
}

TEST(AMessageOfADriver, IsOneLine) {
  const ClosedPort port;
  EXPECT_THAT(refusal("Driver={PostgreSQL Unicode};Server=127.0.0.1;Port=" + port.number()),
              Not(HasSubstr("\n")));
}

TEST(AWrongDriver, IsToldWithThoseThatAreInstalled) {
  EXPECT_THAT(
      refusal("Driver={Nirgends};Server=db;PWD=geheim"),
      AllOf(HasSubstr("there is no driver 'Nirgends'; installed are: "), HasSubstr("PostgreSQL Unicode"),
            HasSubstr("MariaDB Unicode"), HasSubstr("FreeTDS"), Not(HasSubstr("geheim"))));
}

TEST(AMissingDriver, IsToldWithThoseThatAreInstalled) {
  EXPECT_THAT(refusal("Server=db"), AllOf(HasSubstr("write Driver={...}"), HasSubstr("PostgreSQL Unicode")));
}

TEST(AWrongDataSource, IsNoMatterOfTheDrivers) {
  EXPECT_THAT(refusal("DSN=nirgends"), AllOf(HasSubstr("'DSN=nirgends'"), Not(HasSubstr("installed are"))));
}

}  // namespace zqn::host
