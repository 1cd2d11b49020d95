#include <gtest/gtest.h>

#include <deque>
#include <fstream>
#include <iterator>

#include "issues/issue_file.h"
#include "issues/issue_file_screens.h"
#include "tests/support/local_time.h"
#include "tests/support/scratch_dir.h"
#include "tests/support/test_channel.h"

namespace {

// Says what it shows into the channel's transcript, so messages and requests keep their order.
class TranscriptPrompt : public PromptPort {
 public:
  explicit TranscriptPrompt(Lines& transcript) : transcript_(transcript) {}
  void message(const std::string& text) override { transcript_.push_back("msgbox " + text); }
  bool question(const std::string&) override { return true; }
  std::string chooseFile(bool saving, const std::string& name, const std::string& filter) override {
    transcript_.push_back(std::string(saving ? "save " : "open ") + name + " " + filter);
    if (files.empty()) return {};
    std::string path = files.front();
    files.pop_front();
    return path;
  }
  void focus(const std::string&) override {}

  std::deque<std::string> files;

 private:
  Lines& transcript_;
};

class FakeIssuesPort : public IssuesPort {
 public:
  MessageLayer& messageLayer() override { return channel.layer; }
  IIrbeRxControl* obtainRxControl(int) override { return nullptr; }
  void releaseRxControl(IIrbeRxControl*) override {}
  void attachWatchView(CWatchView*) override {}
  CWatchView* attachedWatchView() const override { return nullptr; }
  int64_t now() const override { return localTime(24, 11, 2026, 10 * 3600); }
  bool hasAddIssueRight() override { return right; }
  PromptPort& prompt() override { return prompts; }
  void hostMessageBox(const std::string&) const override {}
  void log(const std::string&) const override {}
  bool registerHotkey(void*, const HotkeyRow&) override { return true; }
  std::unique_ptr<MarketDepthState>& marketDepthState() override { return depth; }
  std::vector<const sOFSCol*> knownIssues() const override { return issues; }
  void ensurePriceFeed(const std::string&, const std::string&) override {}

  // The requests, each cut to its tags (32760) after the message name; other lines as they are.
  Lines shortTranscript() const {
    Lines out;
    for (const std::string& line : channel.transcript) {
      if (line.rfind("send ", 0) != 0) {
        out.push_back(line);
        continue;
      }
      std::string shortLine = line.substr(0, line.find(' ', 7));
      for (size_t at = line.find(" 32760="); at != std::string::npos;
           at = line.find(" 32760=", at + 1))
        shortLine += line.substr(at, line.find('"', at + 8) + 1 - at);
      out.push_back(shortLine);
    }
    return out;
  }

  bool right = true;
  TestChannel channel;
  TranscriptPrompt prompts{channel.transcript};
  std::unique_ptr<MarketDepthState> depth;
  std::vector<const sOFSCol*> issues;
};

const char kHeader[] = "Exchange,Symbol Name,Series,...\n";
const char kOpenChooser[] =
    "open  All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text Documents(*.txt)|*.txt; *.txt||";
const char kSaveChooser[] =
    "save BasketOrderOFS.csv All Files (*.*)|*.*|CSV Files(*.csv)|*.csv; *.csv|Text "
    "Documents(*.txt)|*.txt; *.txt|EXCEL Files(*.xls)|*.xls; *.xls||";

// Accepted on 24/11/2026.
std::string issueLine(const std::string& symbol, const std::string& series = "Retail") {
  const bool retail = series != "NonRetail";
  return "nse_ipo," + symbol + "," + series +
         ",INE123456789,10,0.05,100.00,110.00,25/11/2026,25/11/2026,25/11/2026,20,10,5000," +
         (retail ? "200000,," : ",500000,") + "15:30:00,P,5,Notes,http://x," +
         (retail ? "Y" : "N") + ",ABC Ltd,ABC,250.00,105.00,Y,Y\n";
}

class IssueUploadTest : public testing::Test {
 protected:
  std::string write(const std::string& name, const std::string& text) {
    const std::string path = dir.file(name);
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  Lines upload(const std::string& path) {
    port.channel.transcript.clear();
    port.prompts.files.push_back(path);
    uploadIssueFile(port);
    return port.shortTranscript();
  }

  ScratchDir dir;
  FakeIssuesPort port;
};

TEST_F(IssueUploadTest, RefusalsFirstThenEveryAcceptedIssueWithTheEndOnTheLastThenTheTotals) {
  const std::string path =
      write("issues.csv", kHeader + issueLine("ABC") + issueLine("DEF", "Employee") + "\n" +
                              issueLine("GHI", "NonRetail") + "no comma\n" + issueLine(""));
  EXPECT_EQ(upload(path),
            (Lines{kOpenChooser, "msgbox Upload OFS Issue Error:Invalid Series In Line Number 2",
                   "msgbox Upload OFS Issue Error:Upload Issue Read Error: Invalid Format: Not a "
                   "CSV File  In Line Number 5",
                   "msgbox Upload OFS Issue Error:Symbol cannot be Blank In Line Number 6",
                   "send 2 om_add_ofs_issue 32760=\"ABC-RS\"",
                   "send 2 om_add_ofs_issue 32760=\"GHI-IS\" 32760=\"Upload End\"",
                   "msgbox Total Records : 6. Uploaded OFS Issues Successfully : 2."}));
}

TEST_F(IssueUploadTest, NothingIsSentWhenNothingIsAccepted) {
  const struct {
    const char* name;
    std::string text;
    Lines said;
  } cases[] = {
      {"header only", kHeader, {"msgbox Total Records : 0. Uploaded OFS Issues Successfully : 0."}},
      {"empty file", "", {"msgbox Total Records : 0. Uploaded OFS Issues Successfully : 0."}},
      {"only refused",
       kHeader + std::string("\n") + issueLine("ABC", "Employee"),
       {"msgbox Upload OFS Issue Error:Invalid Series In Line Number 2",
        "msgbox Total Records : 2. Uploaded OFS Issues Successfully : 0."}},
  };
  for (const auto& c : cases) {
    Lines expected{kOpenChooser};
    expected.insert(expected.end(), c.said.begin(), c.said.end());
    EXPECT_EQ(upload(write("issues.csv", c.text)), expected) << c.name;
  }
  EXPECT_EQ(upload(dir.file("missing.csv")), (Lines{kOpenChooser, "msgbox File Open Error"}));
  EXPECT_EQ(upload(""), (Lines{kOpenChooser}));  // the chooser was cancelled
}

TEST_F(IssueUploadTest, WithoutTheRightNeitherScreenAsksOrSendsOrWrites) {
  port.right = false;
  const std::string path = write("issues.csv", kHeader + issueLine("ABC"));
  EXPECT_EQ(upload(path), Lines{});
  sOFSCol issue;
  port.issues = {&issue};
  port.prompts.files = {dir.file("out.csv")};
  exportIssueFile(port);
  EXPECT_EQ(port.shortTranscript(), Lines{});
  EXPECT_FALSE(std::ifstream(dir.file("out.csv")).good());
}

TEST_F(IssueUploadTest, ExportSaysWhatHappened) {
  const IssueFileRead read = loadIssueFile(write("in.csv", kHeader + issueLine("ABC")), {});
  ASSERT_EQ(read.issues.size(), 1u);
  const struct {
    const char* name;
    bool withIssues;
    std::string path;
    Lines said;
  } cases[] = {
      {"no issues", false, dir.file("a.csv"), {"msgbox No items in the list"}},
      {"cancelled", true, "", {kSaveChooser}},
      {"no such folder", true, dir.file("none/a.csv"), {kSaveChooser, "msgbox File Open Error"}},
      {"written",
       true,
       dir.file("a.csv"),
       {kSaveChooser, "msgbox Issue File Created Successfully"}},
  };
  for (const auto& c : cases) {
    port.channel.transcript.clear();
    port.issues.clear();
    if (c.withIssues) port.issues.push_back(&read.issues[0]);
    port.prompts.files = {c.path};
    exportIssueFile(port);
    EXPECT_EQ(port.shortTranscript(), c.said) << c.name;
  }
}

// Exported, the issues upload again as the same requests, field for field.
TEST_F(IssueUploadTest, AnExportedFileUploadsAsTheSameRequests) {
  const std::string original =
      write("in.csv", kHeader + issueLine("ABC") + issueLine("GHI", "NonRetail"));
  port.channel.transcript.clear();
  port.prompts.files = {original};
  uploadIssueFile(port);
  const Lines first = port.channel.transcript;
  ASSERT_EQ(first.size(), 4u);  // chooser, two requests, totals

  const IssueFileRead read = loadIssueFile(original, {});
  port.issues = {&read.issues[0], &read.issues[1]};
  port.prompts.files = {dir.file("out.csv")};
  exportIssueFile(port);
  port.channel.transcript.clear();
  port.prompts.files = {dir.file("out.csv")};
  uploadIssueFile(port);
  EXPECT_EQ(port.channel.transcript, first);
}

}  // namespace
