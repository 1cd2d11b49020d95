#include <gtest/gtest.h>

#include <functional>

#include "plugin/client_overview.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"

namespace {

class Lifecycle : public testing::Test {
 protected:
  ~Lifecycle() override { exitPlugin(host); }
  void init(uint32_t kind = 3) { initPlugin(host, host.app(), "U1", kind); }
  FakeHost host;
};

const Lines kControls = {"control 2", "control 0", "control 2", "control 3", "control 1"};
// Controls, then the twelve start-up requests; their texts and order are the start-up script's
// golden transcript.
const size_t kStartupEvents = 17;

TEST_F(Lifecycle, StartupObtainsControlsThenSendsRequests) {
  init();
  ASSERT_NE(controlBlock(), nullptr);
  ASSERT_EQ(host.state.events.size(), kStartupEvents);
  EXPECT_EQ(Lines(host.state.events.begin(), host.state.events.begin() + 5), kControls);
  EXPECT_TRUE(host.promptLog.messages().empty());
}

TEST_F(Lifecycle, PeerIdentitiesAndHostVersionAreTaken) {
  host.state.peer1 = "P1";
  host.state.peer2 = "P2";
  init(2);
  const auto& ids = controlBlock()->identities;
  EXPECT_EQ((Lines{ids[1], ids[2], ids[3]}), (Lines{"P1", "P2", "VornTrader 9.1"}));
}

TEST_F(Lifecycle, ClientOverviewOffOrWithoutClientsSubscribesNobody) {
  host.state.clientOverview = false;
  host.state.assignedClients = {"C1"};
  init();
  EXPECT_EQ(host.state.events.size(), kStartupEvents);
}

// The worker over 250 clients on one receive control; `pause` runs after each hundredth.
struct ClientOverviewWorker : testing::Test {
  void run(const std::function<void()>& pause) {
    MessageLayer layer(connectvornOps(), prompt);
    layer.setControl(Control::First, &control);
    subscribeAssignedClients(layer, StringList(250, "C"), gate, pause,
                             [&](const std::string& line) { logged = line; });
  }
  FakeRxControl control{2, 1};
  RecordingPrompt prompt;
  SubscriptionGate gate;
  std::string logged;
};

TEST_F(ClientOverviewWorker, PausesAfterEveryHundredthClient) {
  std::vector<size_t> pausesAt;
  run([&] { pausesAt.push_back(control.lines().size()); });
  EXPECT_EQ(control.lines().size(), 500u);
  EXPECT_EQ(pausesAt, (std::vector<size_t>{200, 400}));
  EXPECT_EQ(logged, "Subscribe on Client Overview done for: 250 client");
}

TEST_F(ClientOverviewWorker, StopsAtTheNextClientOnceShutdownClosesTheGate) {
  run([&] { gate.close(); });
  EXPECT_EQ(control.lines().size(), 200u);
  EXPECT_EQ(logged, "");
}

// A host without the rights service and a user without the right are the refused_* scripts.
TEST(CompatibilityRefusal, StopsWithItsMessageAndNoBlockAndSendsNothing) {
  for (const bool module : {false, true}) {
    FakeHost host;
    host.state.hasModule = module;
    host.state.missingServices.insert("pu_get_exe_app");  // told only when the module is there
    initPlugin(host, host.app(), "U1", 3);
    EXPECT_EQ(controlBlock(), nullptr);
    EXPECT_EQ(host.promptLog.messages(),
              Lines{module ? "Exe is not compatible with VAP" : "exe Module not found"});
    EXPECT_TRUE(host.state.events.empty());
    EXPECT_EQ(activateClient("C1"), 0);
  }
}

TEST_F(Lifecycle, HostWithoutOptionalServicesStillStartsAndEverySendFails) {
  for (const HostServiceName& s : kHostServiceNames)
    if (s.name) host.state.missingServices.insert(s.name);
  host.state.missingServices.erase("pu_is_actionright_enabled");
  init();
  ASSERT_NE(controlBlock(), nullptr);
  EXPECT_TRUE(host.state.events.empty());
  const Lines& shown = host.promptLog.messages();
  ASSERT_EQ(shown.size(), 10u);
  EXPECT_EQ((Lines{shown[0], shown[9]}),
            (Lines{"om_get_ofs_issues is failed , while sending request",
                   "om_get_user_peer_data is failed , while sending request"}));
}

TEST_F(Lifecycle, SecondInitKeepsTheBlockShowsTheFrameAndSendsAgain) {
  init();
  COFSControlBlock* first = controlBlock();
  Lines expected(host.state.events.begin() + 5, host.state.events.end());
  expected.insert(expected.begin(), "show frame");
  host.state.events.clear();
  init();
  EXPECT_EQ(controlBlock(), first);
  EXPECT_EQ(host.state.events, expected);
}

TEST_F(Lifecycle, ExitSavesLayoutGivesControlsBackAndClearsTheBlock) {
  exitPlugin(host);  // before init: nothing happens
  EXPECT_EQ(host.layoutSaves, 0);
  init();
  host.state.events.clear();
  exitPlugin(host);
  EXPECT_EQ(controlBlock(), nullptr);
  EXPECT_EQ(host.layoutSaves, 1);
  EXPECT_EQ(host.state.events, (Lines{"destroy control 2", "destroy control 0", "destroy control 2",
                                      "destroy control 3", "destroy control 1"}));
  EXPECT_EQ(activateClient("C1"), 0);
}

TEST_F(Lifecycle, RecoveryFilesSitUnderTheUserDirectoryOrNone) {
  init();
  EXPECT_EQ(host.recoveryFiles, (Lines{"\\UserSetting.ini", "\\DialogPos.ini"}));
  exitPlugin(host);
  host.state.userDirectory = "/home/dealer";
  init();
  EXPECT_EQ(host.recoveryFiles,
            (Lines{"/home/dealer\\UserSetting.ini", "/home/dealer\\DialogPos.ini"}));
}

TEST_F(Lifecycle, ActiveClientIsRememberedOnlyWhileRunning) {
  init();
  EXPECT_EQ(activateClient("C7"), 1);
  EXPECT_EQ(activeClient(), "C7");
  activateClient("");
  EXPECT_EQ(activeClient(), "");
}

TEST_F(Lifecycle, FontPreferenceRefreshesTheVariationAndReappliesFonts) {
  applyFontPreference(nullptr, nullptr);  // before init: nothing
  EXPECT_TRUE(host.fontsReapplied.empty());
  init();
  applyFontPreference(nullptr, nullptr);
  EXPECT_EQ(controlBlock()->fontVariation, (std::array<int64_t, 2>{7, 9}));
  EXPECT_EQ(host.fontsReapplied, (std::vector<std::array<int64_t, 2>>{{7, 9}}));
}

TEST(HostServiceBinding, BindsByExactNamesInTableOrderAndLeaves24Null) {
  struct Everything : SymbolLookup {
    void* find(const char* name) const override {
      asked.push_back(name);
      return const_cast<char*>(name);
    }
    mutable std::vector<std::string> asked;
  } lookup;
  HostServiceTable table = bindHostServices(lookup);
  ASSERT_EQ(lookup.asked.size(), 28u);
  EXPECT_EQ((Lines{lookup.asked[0], lookup.asked[2], lookup.asked[22], lookup.asked[23]}),
            (Lines{"pu_get_peer_data", "DestoryIrbeRxCOntrol", "pu_get_find_menu_item_in_roles",
                   "pu_get_UserDirectory"}));
  EXPECT_EQ(hostServiceAt(table, 24), nullptr);
  for (int position = 1; position <= 29; ++position) {
    if (position == 24) continue;
    EXPECT_EQ(static_cast<const char*>(hostServiceAt(table, position)),
              std::string(kHostServiceNames[position - 1].name))
        << position;
  }
}

}  // namespace
