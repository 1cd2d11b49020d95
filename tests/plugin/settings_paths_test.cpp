#include <gtest/gtest.h>

#include "plugin/settings_paths.h"

namespace {

TEST(WatchPlacement, ListsTopBeforeLeftAndBottomBeforeRight) {
  WindowPlacement p;
  p.left = 10;
  p.top = 20;
  p.right = 810;
  p.bottom = 620;
  p.showState = 3;
  EXPECT_EQ(formatPlacement(p), "20,10,620,810,-1,-1,-1,-1,3");
}

TEST(WatchPlacement, SitsBesideTheExecutablesPathWithADoubledSeparator) {
  EXPECT_EQ(watchPlacementPath("/opt/vt/VornTrader"), "/opt/vt/VornTrader\\\\OFSSettings.ini");
}

}  // namespace
