#include <gtest/gtest.h>

#include <sstream>

#include "host/command_line.h"
#include "host/host_state.h"

namespace {

using Words = std::vector<std::string>;

struct Parsed {
  std::optional<int> status;
  Options options;
  std::ostringstream out, err;
  explicit Parsed(std::vector<const char*> args) {
    args.insert(args.begin(), "vorntrader");
    status = parseCommandLine(static_cast<int>(args.size()), args.data(), options, out, err);
  }
};

TEST(CommandLine, AWrongLineExitsTwoWithOneLineNamingWhatIsWrong) {
  const std::vector<std::pair<std::vector<const char*>, const char*>> refused{
      {{"--bogus"}, "--bogus"},
      {{"-bogus"}, "-bogus"},
      {{"--headless", "--script", "a", "b"}, " b"},
      {{"--headless", "--script"}, "--script"},
      {{"--right"}, "--right"},
      {{"-platform"}, "-platform"},
      {{"--backend", "bogus"}, "bogus"},
      {{"--headless"}, "--script"}};
  for (const auto& [args, says] : refused) {
    const Parsed r(args);
    const std::string err = r.err.str();
    EXPECT_EQ(r.status, 2) << err;
    EXPECT_EQ(err.rfind("vorntrader: ", 0), 0u) << err;
    EXPECT_EQ(err.find('\n'), err.size() - 1) << err;
    EXPECT_NE(err.find(says), std::string::npos) << err;
  }
}

TEST(CommandLine, HelpListsEveryOptionOnOneLine) {
  const Parsed r({"--help"});
  EXPECT_EQ(r.status, 0);
  for (const char* option : {"--headless", "--script", "--trace", "--backend", "--plugin",
                             "--config", "--home", "--user", "--kind", "--right", "--accounts"})
    EXPECT_NE(r.out.str().find("\n  " + std::string(option) + " "), std::string::npos) << option;
}

TEST(CommandLine, GoodLineKeepsHostSettingsInOrderAndHandsQtItsOwn) {
  const Parsed r({"--headless", "--script",  "s",         "--trace",  "t",          "--backend",
                  "sim",        "-platform", "offscreen", "--plugin", "p",          "--config",
                  "c",          "--home",    "h",         "--user",   "U2",         "--right",
                  "VT: A",      "--kind",    "5",         "-reverse", "--accounts", "A1:PC1,,A2"});
  ASSERT_EQ(r.status, std::nullopt) << r.err.str();
  const Options& o = r.options;
  EXPECT_TRUE(o.headless);
  EXPECT_EQ((Words{o.script, o.trace, o.backend, o.plugin, o.config, o.home}),
            (Words{"s", "t", "sim", "p", "c", "h"}));
  HostState host;
  for (const Words& setting : o.hostSettings) EXPECT_EQ(host.apply(setting), "");
  EXPECT_EQ(host.user + " " + std::to_string(host.loginKind), "U2 5");
  EXPECT_EQ(o.hostSettings.back(), (Words{"accounts", "A1:PC1", "A2"}));
  EXPECT_EQ(o.qtArguments, (Words{"-platform", "offscreen", "-reverse"}));
}

TEST(UserDirectory, HomeThenXdgThenHomeVariableThenTheUserInForce) {
  EXPECT_EQ(usersRoot("/h", "/x", "/u"), "/h");
  EXPECT_EQ(usersRoot("", "/x", "/u"), "/x/vorntrader");
  EXPECT_EQ(usersRoot("", "", "/u"), "/u/.local/share/vorntrader");
  EXPECT_EQ(usersRoot("", nullptr, nullptr), "");
  HostState state;
  state.usersRoot = "/r";
  state.apply({"user", "U7"});
  EXPECT_EQ(state.currentUserDirectory(), "/r/U7");
  state.apply({"directory", "/mine"});
  EXPECT_EQ(state.currentUserDirectory(), "/mine");
}

}  // namespace
