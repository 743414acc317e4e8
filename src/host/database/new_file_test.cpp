// SPDX-License-Identifier: MIT
#include "host/database/new_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <system_error>

#include "testing/temporary_file.h"

namespace zqn::host {
namespace {

using ::testing::ElementsAre;
using ::testing::UnorderedElementsAre;

class ANewFile : public ::testing::Test {
 protected:
  static void write(const std::filesystem::path& file, const char* text) { std::ofstream(file) << text; }
  std::string content() const {
    std::stringstream text;
    text << std::ifstream(place).rdbuf();
    return text.str();
  }
  std::vector<std::string> names() const {
    std::vector<std::string> all;
    for (const auto& file : std::filesystem::directory_iterator(temporary.folder()))
      all.push_back(file.path().filename().string());
    return all;
  }

  ado::sqlite::TemporaryFile temporary;
  std::filesystem::path place = temporary.folder() / "a.sqlite";
};

TEST_F(ANewFile, AppearsWhenItIsPublished) {
  {
    NewFile file(place);
    write(file.draft(), "ganz");
    EXPECT_FALSE(std::filesystem::exists(place));
    EXPECT_TRUE(file.publish());
  }
  EXPECT_EQ(content(), "ganz");
  EXPECT_THAT(names(), ElementsAre("a.sqlite"));
}

TEST_F(ANewFile, LeavesNothingBehindUnlessItIsPublished) {
  {
    NewFile file(place);
    write(file.draft(), "halb");
    write(file.draft().string() + "-wal", "halb");
  }
  EXPECT_THAT(names(), ElementsAre());
}

TEST_F(ANewFile, LeavesWhatAnotherOneHasPublishedMeanwhile) {
  {
    NewFile slow(place), quick(place);
    write(slow.draft(), "langsam");
    write(quick.draft(), "schnell");
    EXPECT_TRUE(quick.publish());
    EXPECT_FALSE(slow.publish());
  }
  EXPECT_EQ(content(), "schnell");
  EXPECT_THAT(names(), ElementsAre("a.sqlite"));
}

TEST_F(ANewFile, RemovesTheDraftsOfProcessesThatAreGone) {
  const NewFile held(place);
  for (const char* name : {"a.sqlite.zqn-draft-Ab12Cd", "a.sqlite.zqn-draft-Ab12Cd-wal",
                           "a.sqlite.zqn-draft-notices", "b.zqn-draft-Ab12Cd"})
    write(temporary.folder() / name, "");
  const NewFile file(place);
  EXPECT_THAT(names(),
              UnorderedElementsAre(held.draft().filename().string(), file.draft().filename().string(),
                                   "b.zqn-draft-Ab12Cd", "a.sqlite.zqn-draft-notices"));
}

TEST_F(ANewFile, IsForEverybodyWhomTheUmaskLetsIn) {
  write(temporary.folder() / "other", "");
  NewFile file(place);
  file.publish();
  EXPECT_EQ(std::filesystem::status(place).permissions(),
            std::filesystem::status(temporary.folder() / "other").permissions());
}

TEST_F(ANewFile, NeedsItsFolder) {
  EXPECT_THROW(NewFile(temporary.folder() / "no" / "a.sqlite"), std::system_error);
}

}  // namespace
}  // namespace zqn::host
