#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <ostream>

#include "plugin/host_path.h"
#include "plugin/settings_paths.h"
#include "tests/support/scratch_dir.h"

namespace {

TEST(WatchPlacement, ListsTopBeforeLeftAndBottomBeforeRight) {
  const WindowPlacement p{.top = 20, .left = 10, .bottom = 620, .right = 810, .showState = 3};
  EXPECT_EQ(formatPlacement(p), "20,10,620,810,-1,-1,-1,-1,3");
}

TEST(WatchPlacement, SitsBesideTheExecutablesPathWithADoubledSeparator) {
  EXPECT_EQ(watchPlacementPath("/opt/vt/VornTrader"), "/opt/vt/VornTrader\\\\OFSSettings.ini");
}

TEST(HostPath, OpensTheHostsSeparatorAsThisSystems) {
  EXPECT_EQ(nativePath("/home/d/U1\\UserSetting.ini"), "/home/d/U1/UserSetting.ini");
  EXPECT_TRUE(hasDirectoryPart("/home/d/U1\\UserSetting.ini"));
  EXPECT_FALSE(hasDirectoryPart("\\UserSetting.ini"));
  EXPECT_FALSE(hasDirectoryPart("UserSetting.ini"));
}

TEST(WatchPlacement, AHostPathIsWrittenWithoutABackslashInAnyName) {
  const ScratchDir dir;
  ASSERT_TRUE(writeProfileString(dir.path() + "\\OFSSettings.ini", "S", "K", "1"));
  EXPECT_TRUE(std::filesystem::exists(dir.file("OFSSettings.ini")));
  // Beside an executable, as the host names it, the write fails and leaves nothing.
  EXPECT_FALSE(writeProfileString(watchPlacementPath(dir.file("VornTrader")), "S", "K", "1"));
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path()), {}), 1);
}

struct ProfileCase {
  const char* name;
  std::string before;
  std::string after;
  friend void PrintTo(const ProfileCase& c, std::ostream* os) { *os << c.name; }
};

class ProfileWrite : public testing::TestWithParam<ProfileCase> {};

TEST_P(ProfileWrite, SetsTheKeyAndKeepsEverythingElse) {
  const ScratchDir dir;
  const std::string path = dir.file("OFSSettings.ini");
  {
    std::ofstream out(path, std::ios::trunc);
    out << GetParam().before;
  }
  ASSERT_TRUE(writeProfileString(path, "DIALOG_POSITION", "OFSWatchView", "1,2,3"));
  std::ifstream in(path);
  const std::string written((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  EXPECT_EQ(written, GetParam().after);
}

INSTANTIATE_TEST_SUITE_P(
    Files, ProfileWrite,
    testing::Values(ProfileCase{"new_file", "", "[DIALOG_POSITION]\nOFSWatchView=1,2,3\n"},
                    ProfileCase{"replaces_the_key_whatever_its_case",
                                "[Other]\na=1\n[dialog_position]\nofswatchview=old\nb=2\n",
                                "[Other]\na=1\n[dialog_position]\nOFSWatchView=1,2,3\nb=2\n"},
                    ProfileCase{"adds_to_its_section_before_the_next",
                                "[DIALOG_POSITION]\nb=2\n\n[Other]\na=1\n",
                                "[DIALOG_POSITION]\nb=2\nOFSWatchView=1,2,3\n\n[Other]\na=1\n"},
                    ProfileCase{
                        "same_key_in_another_section_untouched", "[Other]\nOFSWatchView=x\n",
                        "[Other]\nOFSWatchView=x\n[DIALOG_POSITION]\nOFSWatchView=1,2,3\n"}));

}  // namespace
