#include "issues/allotment_upload.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/field_text.h"
#include "tests/support/scratch_dir.h"
#include "tests/support/test_channel.h"

namespace {

// Messages and the file chooser join the requests in the channel's transcript, in order.
class UploadPort : public IssuesPort, public RecordingPrompt {
 public:
  MessageLayer& messageLayer() override { return channel.layer; }
  IIrbeRxControl* obtainRxControl(int) override { return nullptr; }
  void releaseRxControl(IIrbeRxControl*) override {}
  void attachWatchView(CWatchView*) override {}
  CWatchView* attachedWatchView() const override { return nullptr; }
  int64_t now() const override { return 0; }
  bool hasAddIssueRight() override { return right; }
  PromptPort& prompt() override { return *this; }
  void hostMessageBox(const std::string&) const override {}
  void log(const std::string&) const override {}
  bool registerHotkey(void*, const HotkeyRow&) override { return false; }
  std::unique_ptr<MarketDepthState>& marketDepthState() override { return depth; }
  std::vector<const sOFSCol*> knownIssues() const override { return {}; }
  void ensurePriceFeed(const std::string&, const std::string&) override {}

  void message(const std::string& text) override { channel.transcript.push_back("msgbox " + text); }
  std::string chooseFile(bool saving, const std::string& name, const std::string& filter) override {
    channel.transcript.push_back((saving ? "save " : "open ") + name + "|" + filter);
    return RecordingPrompt::chooseFile(saving, name, filter);
  }

  TestChannel channel;
  bool right = true;
  std::unique_ptr<MarketDepthState> depth;
};

const std::string kChooser = "open |CSV Files(*.csv)|*.csv||";

std::string allotment(const std::string& fields) {
  return wireLine("send 2 om_ofs_allotment", fields + " 20001=fill 12003=B");
}

TEST(AllotmentUpload, ReportsOrSendsEachLineInFileOrderThenSumsUp) {
  ScratchDir dir;
  const std::string nse = dir.file("nse.csv"), bse = dir.file("bse.csv");
  std::ofstream(nse) << "Member type,Member code,Symbol\n"
                     << "n1,n2,ABC,2001,n5,n6,C1,n8,100,105.00,n11,40,100.00,n14,n15\n"
                     << "n1,n2,ABC,2002,n5,n6,C2,n8,100,105.00,n11,0,100.00,n14,n15\n"
                     << "n1,n2,ABC,2003,n5,n6,C3,n8,50,104.50,n11,50,100,n14,n15\n\n";
  // A CR LF line end, a missing last column and columns past the layout's change nothing.
  std::ofstream(bse)
      << "XYZ,b2,b3,UCC1,b5,100,405.25,5051,40,400\r\nXYZ,b2,b3,U2,b5,1,1,52,1,1,b11,9\n";
  const struct {
    const char* exchange;
    std::string file;
    Lines transcript;
  } cases[] = {
      {"nse_ipo",
       nse,
       {kChooser,
        allotment("63001=nse_ipo 3=ABC 49238=2001 54001=C1 12004=40 10306=10500 10308=40 "
                  "10307=10000"),
        "msgbox OFS Allotment Upload Error:Allotted Quantity cannot be zero In Line Number 3",
        allotment("63001=nse_ipo 3=ABC 49238=2003 54001=C3 12004=50 10306=10450 10308=50 "
                  "10307=10000"),
        "msgbox OFS Allotment Upload Error:Allotment Read Error: Invalid Format: Not a CSV File "
        " In Line Number 5",
        "msgbox Total Records : 4. Allotments Uploaded Successfully : 2."}},
      // The BSE layout's client is its UCC.
      {"bse_ipo",
       bse,
       {kChooser,
        allotment("63001=bse_ipo 3=XYZ 49238=5051 54001=UCC1 12004=40 10306=40525 10308=40 "
                  "10307=40000"),
        allotment("63001=bse_ipo 3=XYZ 49238=52 54001=U2 12004=1 10306=100 10308=1 10307=100"),
        "msgbox Total Records : 2. Allotments Uploaded Successfully : 2."}},
  };
  for (const auto& c : cases) {
    UploadPort port;
    port.queueFile(c.file);
    COFSAllotmentUpload(port).run(c.exchange);
    EXPECT_EQ(port.channel.transcript, c.transcript) << c.exchange;
  }
}

TEST(AllotmentUpload, SendsNothingWithoutTheRightAFileOrAReadableFile) {
  ScratchDir dir;
  const std::string header = dir.file("header.csv");
  std::ofstream(header) << "Member type,Member code,Symbol\n";
  const struct {
    const char* name;
    bool right;
    std::string file;  // empty: the chooser is cancelled
    Lines transcript;
  } cases[] = {
      {"no right: nothing is even asked", false, header, {}},
      {"chooser cancelled", true, "", {kChooser}},
      {"missing file", true, dir.file("none.csv"), {kChooser, "msgbox File Open Error"}},
      {"a folder", true, dir.path(), {kChooser, "msgbox File Open Error"}},
      {"header only",
       true,
       header,
       {kChooser, "msgbox Total Records : 0. Allotments Uploaded Successfully : 0."}},
  };
  for (const auto& c : cases) {
    UploadPort port;
    port.right = c.right;
    if (!c.file.empty()) port.queueFile(c.file);
    COFSAllotmentUpload(port).run("nse_ipo");
    EXPECT_EQ(port.channel.transcript, c.transcript) << c.name;
  }
}

}  // namespace
