// No administrator's request may leave for a user without the right "VT: Add OFS Issue",
// whatever the path: a watch-view command, a shortcut, or a screen reached some other way. The
// launcher here opens the real screens and completes them with valid input, so the only thing
// standing between the user and the exchange is the right.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <functional>

#include "issues/allotment_upload.h"
#include "issues/issue_details.h"
#include "issues/issue_file.h"
#include "issues/issue_file_screens.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"
#include "tests/support/scratch_dir.h"

namespace {

constexpr char kRight[] = "VT: Add OFS Issue";

const char kIssueLine[] =
    "nse_ipo,ABC,Retail,INE000A01011,10,0.05,100.00,110.00,21/11/2026,21/11/2026,21/11/2026,1,1,"
    "1000,200000,,15:30:00,,,Notes,https://example.in/abc.pdf,Y,ABC Ltd,ABC,,,Y,Y\n";

sOFSCol listedIssue() {
  sOFSCol c;
  std::string message;
  EXPECT_TRUE(readIssueFileLine(kIssueLine, std::nullopt, c, message)) << message;
  c.issueId = "I1";
  return c;
}

class AdminRights : public testing::Test, public ScreenLauncher {
 public:
  AdminRights() {
    host.clock = localTime(21, 11, 2026, 10 * 3600);
    host.state.rights.insert(kRight);  // the view registers the administrator's shortcuts
    initPlugin(host, host.app(), "U1", 3);
    host.state.rights.erase(kRight);
    // Listed as the dispatcher lists an issue: in the records and on its tab.
    OFSRecords& records = controlBlock()->recordMaps;
    auto listed = std::make_unique<sOFSCol>(listedIssue());
    issue = listed.get();
    records.issueSymbols.push_back(issue->symbol);
    records.issues[issue->symbol] = std::move(listed);
    host.view->addIssue(issue);
    host.view->setSelection(WatchTab::Current, {0});
    host.view->setLauncher(this);
    writeFiles();
  }
  ~AdminRights() override { exitPlugin(host); }

  void writeFiles() {
    std::ofstream(dir.file("issues.csv")) << "header\n" << kIssueLine;
    std::ofstream(dir.file("nse.csv")) << "Member type\nTM,T1,ABC,9001,P,C,A1,P,10,100,N,10,100\n";
    std::ofstream(dir.file("bse.csv")) << "SYMBOL\nABC,x,x,U1,x,10,100,9001,10,100,x\n";
  }
  Lines adminRequests() const {
    Lines out;
    for (const std::string& e : host.state.events)
      for (const char* name :
           {"om_add_ofs_issue", "om_ofs_allotment", "om_delete_unalloted_ofs_issue"})
        if (e.find(name) != std::string::npos) out.push_back(name);
    return out;
  }

  // ScreenLauncher: the administrator's screens, completed with valid input.
  bool openIssueDetails(sOFSCol* toModify) override {
    COFSIssueDetails dialog(*controlBlock());
    if (toModify) {
      dialog.openToModify(*toModify);
    } else {
      COFSIssueDetails typed(*controlBlock());
      typed.openToModify(listedIssue());
      dialog.openToAdd();
      dialog.select(IssueList::Exchange, typed.fields()[IssueList::Exchange].selected);
      dialog.select(IssueList::Series, typed.fields()[IssueList::Series].selected);
      for (size_t i = 0; i < kIssueTextCount; ++i)
        dialog.setText(static_cast<IssueText>(i), typed.fields().texts[i].text);
    }
    dialog.submit();
    return true;
  }
  bool openIssueUpload() override {
    host.promptLog.queueFile(dir.file("issues.csv"));
    uploadIssueFile(*controlBlock());
    return true;
  }
  bool openIssueExport() override {
    host.promptLog.queueFile(dir.file("export.csv"));
    exportIssueFile(*controlBlock());
    return true;
  }
  bool openAllotmentUpload(const std::string& exchange) override {
    host.promptLog.queueFile(dir.file(exchange == "bse_ipo" ? "bse.csv" : "nse.csv"));
    COFSAllotmentUpload(*controlBlock()).run(exchange);
    return true;
  }
  bool openOrderEntry(sOFSCol&) override { return true; }
  bool openOrderBook() override { return true; }
  bool openBasket() override { return true; }
  bool openBulkUpload() override { return true; }
  bool openScripProperties(sOFSCol&) override { return true; }
  bool openMarketDepth(sOFSCol&) override { return true; }
  bool deleteInOrderBook() override { return true; }

  FakeHost host;
  ScratchDir dir;
  sOFSCol* issue = nullptr;
};

struct AdminPath {
  const char* name;
  std::function<void(AdminRights&)> run;
  const char* request;  // what leaves with the right; null: a file is written instead
};

const AdminPath kPaths[] = {
    {"command 11", [](auto& t) { t.host.view->runCommand(11); }, "om_add_ofs_issue"},
    {"command 10", [](auto& t) { t.host.view->runCommand(10); }, "om_add_ofs_issue"},
    {"hotkey 1500", [](auto& t) { t.host.view->runHotkey(1500); }, "om_add_ofs_issue"},
    {"hotkey 1600", [](auto& t) { t.host.view->runHotkey(1600); }, "om_add_ofs_issue"},
    {"command 30", [](auto& t) { t.host.view->runCommand(30); }, "om_add_ofs_issue"},
    {"command 20", [](auto& t) { t.host.view->runCommand(20); }, "om_ofs_allotment"},
    {"command 21", [](auto& t) { t.host.view->runCommand(21); }, "om_ofs_allotment"},
    {"command 22", [](auto& t) { t.host.view->runCommand(22); }, "om_delete_unalloted_ofs_issue"},
    {"command 24", [](auto& t) { t.host.view->runCommand(24); }, nullptr},
    // The screens themselves, reached without the watch view.
    {"dialog, add", [](auto& t) { t.openIssueDetails(nullptr); }, "om_add_ofs_issue"},
    {"dialog, modify", [](auto& t) { t.openIssueDetails(t.issue); }, "om_add_ofs_issue"},
    {"issue file", [](auto& t) { t.openIssueUpload(); }, "om_add_ofs_issue"},
    {"allotment file", [](auto& t) { t.openAllotmentUpload("bse_ipo"); }, "om_ofs_allotment"},
    {"export", [](auto& t) { t.openIssueExport(); }, nullptr},
};

TEST_F(AdminRights, NothingLeavesWithoutTheRightAndEachPathWorksWithIt) {
  for (const AdminPath& path : kPaths) {
    for (const bool right : {false, true}) {
      host.state.rights.erase(kRight);
      if (right) host.state.rights.insert(kRight);
      host.state.events.clear();
      host.promptLog.clear();
      path.run(*this);
      const std::string name = path.name + std::string(right ? "" : ", no right");
      const Lines sent = adminRequests();
      EXPECT_EQ(sent.empty() ? "" : sent.front(), right && path.request ? path.request : "")
          << name << (host.promptLog.messages().empty() ? "" : host.promptLog.messages().back());
      const bool exported = std::remove(dir.file("export.csv").c_str()) == 0;
      EXPECT_EQ(exported, right && !path.request) << name;
    }
  }
}

}  // namespace
