// SPDX-License-Identifier: MIT
#include "host/database/layout_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <random>

#include "sales/layouts/layout_folder.h"

namespace zqn::host {
namespace {

class SampleLayouts : public ::testing::Test {
 protected:
  SampleLayouts() { std::filesystem::create_directories(folder); }
  ~SampleLayouts() override { std::filesystem::remove_all(folder); }

  std::filesystem::path folder =
      std::filesystem::temp_directory_path() / ("zqn-layouts-" + std::to_string(std::random_device()()));
};

TEST_F(SampleLayouts, AreSixThatTheDialogsCanRead) {
  writeSampleLayouts(folder);
  const LayoutFolder layouts(folder.u16string());
  std::vector<String> descriptions;
  for (const String& name : layouts.names())
    descriptions.push_back(layouts.profile(name, u"Description", u"-"));
  EXPECT_THAT(
      descriptions,
      ::testing::ElementsAre(u"Standard (ohne Kuvertiermaschine)", u"Fensterkuvert C6/5 – gefalzt",
                             u"Kuvertiermaschine, Groß- und Kleinformat", u"Lieferschein mit Paritätsmarke",
                             u"Sortiermaschine", u"Rechnung – Überweisungsträger"));
}

TEST_F(SampleLayouts, LeaveAFileThatIsThereAlone) {
  std::ofstream(folder / "Default.omr") << "[Common]\nDescription=eigene\n";
  writeSampleLayouts(folder);
  EXPECT_EQ(LayoutFolder(folder.u16string()).profile(u"default", u"Description", u"-"), u"eigene");
}

TEST_F(SampleLayouts, LeaveNothingElseInTheFolder) {
  writeSampleLayouts(folder);
  for (const auto& file : std::filesystem::directory_iterator(folder))
    EXPECT_EQ(file.path().string().find(".zqn-draft-"), std::string::npos) << file.path();
}

TEST_F(SampleLayouts, ThatCannotBeWrittenAreLeftOut) {
  writeSampleLayouts(folder / "nirgends");
  EXPECT_FALSE(std::filesystem::exists(folder / "nirgends"));
}

}  // namespace
}  // namespace zqn::host
