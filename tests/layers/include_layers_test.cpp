// Reads every quoted include of the product's folders and refuses an arrow that points up the
// layers or sideways between screens, so a cycle fails the day it is written.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <regex>
#include <set>
#include <string>
#include <vector>

namespace fs = std::filesystem;

namespace {

// Lower ranks may be included by higher ones; the screens share a rank and never include
// one another.
const std::map<std::string, int> kLayerRank = {
    {"sdk", 0},    {"domain", 1}, {"messaging", 2}, {"orderentry", 3}, {"orderbook", 3},
    {"basket", 3}, {"issues", 3}, {"plugin", 4},    {"ui", 5},         {"exports", 6},
};

// Folders beside the layers: what each may include besides itself.
const std::map<std::string, std::set<std::string>> kSideFolders = {
    {"connectvorn", {"sdk"}},
    {"host", {"sdk", "connectvorn"}},  // it loads the plug-in by name, never by include
    {"tools", {"sdk", "domain", "messaging", "orderentry", "orderbook", "basket", "issues"}},
};

// Folders whose code is standard library only.
const std::set<std::string> kCoreFolders = {"domain", "messaging", "orderentry", "orderbook",
                                            "basket", "issues",    "plugin"};

std::string includeVerdict(const std::string& from, const std::string& to) {
  if (from == to) return {};
  if (auto side = kSideFolders.find(from); side != kSideFolders.end())
    return side->second.count(to) ? "" : from + " may not include " + to;
  if (kSideFolders.count(to)) return "no layer includes " + to;
  const auto a = kLayerRank.find(from);
  const auto b = kLayerRank.find(to);
  if (a == kLayerRank.end() || b == kLayerRank.end()) return "unknown folder " + to;
  if (b->second > a->second) return "upward: " + from + " may not include " + to;
  if (b->second == a->second) return "sideways: the screen " + from + " includes " + to;
  return {};
}

TEST(Layers, TheRuleRefusesUpwardSidewaysAndProgramIncludes) {
  EXPECT_EQ(includeVerdict("messaging", "domain"), "");
  EXPECT_EQ(includeVerdict("plugin", "issues"), "");
  EXPECT_EQ(includeVerdict("domain", "messaging"), "upward: domain may not include messaging");
  EXPECT_EQ(includeVerdict("orderentry", "issues"),
            "sideways: the screen orderentry includes issues");
  EXPECT_EQ(includeVerdict("plugin", "host"), "no layer includes host");
  EXPECT_EQ(includeVerdict("host", "plugin"), "host may not include plugin");
}

TEST(Layers, NoIncludeInTheTreePointsTheWrongWay) {
  const fs::path root = OFS_SOURCE_DIR;
  const std::regex quoted(R"(^\s*#\s*include\s*"([a-z_0-9]+)/)");
  const std::regex qt(R"(^\s*#\s*include\s*<Q)");
  std::vector<std::string> wrong;
  size_t files = 0;
  std::vector<std::string> folders;
  for (const auto& [folder, rank] : kLayerRank) folders.push_back(folder);
  for (const auto& [folder, allowed] : kSideFolders) folders.push_back(folder);
  for (const std::string& top : folders) {
    if (!fs::exists(root / top)) continue;
    for (const fs::directory_entry& e : fs::recursive_directory_iterator(root / top)) {
      const std::string ext = e.path().extension().string();
      if (!e.is_regular_file() || (ext != ".h" && ext != ".cpp")) continue;
      ++files;
      std::ifstream in(e.path());
      std::string line;
      for (int number = 1; std::getline(in, line); ++number) {
        std::smatch m;
        std::string verdict;
        if (std::regex_search(line, m, quoted)) verdict = includeVerdict(top, m[1]);
        if (kCoreFolders.count(top) && std::regex_search(line, qt)) verdict = "Qt in the core";
        if (!verdict.empty())
          wrong.push_back(fs::relative(e.path(), root).string() + ":" + std::to_string(number) +
                          ": " + verdict);
      }
    }
  }
  EXPECT_GT(files, 100u);
  EXPECT_EQ(wrong, std::vector<std::string>{});
}

}  // namespace
