// The bulk upload screen: loading with its reports, placing with the client type each row is
// sent as, and the grid written back in its kind's layout.
#include "basket/bulk_upload.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>

#include "tests/support/order_entry_fixture.h"
#include "tests/support/record_with.h"
#include "tests/support/scratch_dir.h"

namespace {

class BulkUploadTest : public OrderEntryFixture {
 protected:
  void SetUp() override {
    host.state.accounts = {"A1", "A2", "PC1"};
    host.state.pcodes = {{"A1", "PC1"}, {"PC1", "PC1"}};
    host.state.peer1 = "TM1";
    start();
    addIssue(nseIssue("IS"));
    bulk = std::make_unique<CBulkUpload>(block());
  }
  // A file of the test's own, in a folder removed with the fixture.
  std::string file(const std::string& text) {
    const std::string path = dir.file("bulk_" + std::to_string(files++) + ".csv");
    std::ofstream(path, std::ios::binary) << text;
    return path;
  }
  void load(BidFileKind kind, const std::string& text) {
    bulk->selectKind(kind);
    bulk->load(file(text));
  }

  ScratchDir dir;
  int files = 0;
  std::unique_ptr<CBulkUpload> bulk;
};

// The request and the client id of each send, as "om_put_order_ofs A1-TM1".
Lines requests(const Lines& sends) {
  Lines out;
  for (const std::string& s : sends) {
    const size_t name = s.find(' ', 5) + 1;
    const size_t client = s.find(" 54001=\"");
    const std::string id = client == std::string::npos
                               ? ""
                               : s.substr(client + 8, s.find('"', client + 8) - client - 8);
    out.push_back(s.substr(name, s.find(' ', name) - name) + " " + id);
  }
  return out;
}

TEST_F(BulkUploadTest, VtReportsCountOnlyLinesTheReaderTook) {
  load(BidFileKind::Vt,
       "no comma here\n"
       "XXX,CLI,A2,,I1,5000,150,100% Margin,N,Institutional,\n"
       "NSEIPO,CLI,A2,,I1,5000,150,100% Margin,N,Institutional,\n");
  EXPECT_EQ(prompt().messages(),
            (Lines{"OFS Basket Upload Error:Basket Read Error: Invalid Format: Not a CSV File  In "
                   "Line Number 0",
                   "OFS Basket Upload Error:InValid Exchange In Line Number 1"}));
  EXPECT_EQ(bulk->rows().size(), 1u);
  EXPECT_FALSE(bulk->exportInvalidShown());
  EXPECT_EQ(bulk->status(), "Baskets Loaded Successfully 1 Baskets are Retrieved");
}

TEST_F(BulkUploadTest, AFileOfRefusedLinesListsThemAndLoadsNothing) {
  load(BidFileKind::Neat, " 01,01,ABC,XS,100,150,CLI,A1,PC1,02\n,01\n");
  EXPECT_TRUE(bulk->rows().empty());
  EXPECT_EQ(bulk->refusedLines(), (Lines{"failed to load due to Series mentioned is incorrect",
                                         "failed to load due to Invalid Book Type"}));
  EXPECT_TRUE(bulk->exportInvalidShown());
  EXPECT_EQ(bulk->status(), "Baskets Loaded Successfully 0 Baskets are Retrieved");
  EXPECT_TRUE(prompt().messages().empty());
  bulk->load(file("") + "/missing");
  EXPECT_EQ(prompt().messages(), Lines{"File Open Error"});
}

TEST_F(BulkUploadTest, AStoppedLoadKeepsTheRowsReadBeforeIt) {
  std::string text;
  for (int i = 0; i < 20000; ++i) text += " 01,01,ABC,IS,100,150,CLI,A1,PC1,02\n";
  bulk->selectKind(BidFileKind::Neat);
  long seen = 0, total = 0;
  bulk->load(file(text), [&](long done, long size) {
    seen = done, total = size;
    return false;
  });
  EXPECT_EQ(bulk->rows().size(), 8192u);
  EXPECT_EQ(total, static_cast<long>(text.size()));
  EXPECT_GT(seen, 0);
  EXPECT_LE(seen, total);
}

TEST_F(BulkUploadTest, EachKindPlacesItsRowsAsTheClientTypeTheyDerive) {
  using enum BidFileKind;
  const auto vt = [](const std::string& who) {
    return "NSEIPO," + who + ",I1,5000,150,100% Margin,N,Institutional,\n";
  };
  const struct {
    const char* name;
    BidFileKind kind;
    std::string text;
    Lines clients;  // of each om_put_order_ofs in turn
  } cases[] = {
      {"NEAT client, TM code added", Neat, " 01,01,ABC,IS,100,150,CLI,A1,PC1,02\n", {"A1-TM1"}},
      {"NEAT proprietary", Neat, " 01,01,ABC,IS,100,150,PRO,PC1,PC1,01\n", {"PC1"}},
      {"VT F is PRO, C is CLI", Vt, vt("PRO,PC1,PC1") + vt("CLI,A2,"), {"PC1", "A2-TM1"}},
      {"NOW offline", Now, " OFFLINE,ABC,IS,100,150,CLI,A2,,NO,,\n", {"A2-TM1"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    host.state.events.clear();
    prompt().clear();
    load(c.kind, c.text);
    EXPECT_TRUE(bulk->refusedLines().empty()) << bulk->refusedLines().front();
    bulk->place();
    EXPECT_EQ(prompt().questions(), Lines{"Are you sure to place these Basket Orders?"});
    Lines sent;
    for (const std::string& client : c.clients) sent.push_back("om_put_order_ofs " + client);
    EXPECT_EQ(requests(sends()), sent);
    EXPECT_FALSE(bulk->placeEnabled());
    bulk->reset();
  }
}

TEST_F(BulkUploadTest, ModifyCancelRowsGoAsTheirIndicatorSays) {
  const sOFSOrderInfo order = with(openOrder("ABC-IS"), &sOFSOrderInfo::pCode, "PC1");
  block().recordMaps.orders["17"] = std::make_unique<sOFSOrderInfo>(order);
  load(BidFileKind::NowModCxl,
       " OFFLINE,17,ABC,IS,100,150.00,CLI,A1,PC1,NO,,C\n"
       " OFFLINE,17,ABC,IS,200,160,CLI,A1,PC1,NO,,M\n");
  ASSERT_EQ(bulk->rows().size(), 2u) << bulk->refusedLines().front();
  bulk->place();
  EXPECT_EQ(requests(sends()), (Lines{"om_cancel_order_ofs A1-TM1", "om_modify_order_ofs A1"}));
}

TEST_F(BulkUploadTest, EachRowIsSentOnceAndNoToTheQuestionSendsNothing) {
  bulk->place();
  EXPECT_EQ(prompt().messages(), Lines{"Please Select an Order"});
  const std::string line = " 01,01,ABC,IS,100,150,CLI,A1,PC1,02\n";
  load(BidFileKind::Neat, line + line);
  prompt().queueAnswer(false);
  bulk->place();
  EXPECT_TRUE(sends().empty());
  EXPECT_TRUE(bulk->placeEnabled());
  bulk->place();
  EXPECT_EQ(sends().size(), 2u);
  bulk->deleteRow(0);
  bulk->load(file(line));
  EXPECT_TRUE(bulk->placeEnabled());
  bulk->place();
  EXPECT_EQ(sends().size(), 3u);
  bulk->place();
  EXPECT_EQ(prompt().messages().back(), "Please Select an Order");
}

TEST_F(BulkUploadTest, ExportedGridsLoadBackTheSameRows) {
  const std::pair<BidFileKind, std::string> files[] = {
      {BidFileKind::Neat, "x01,01,ABC,IS,100,150,CLI,A1,PC1,02\r\n"},
      {BidFileKind::Now, " OFFLINE,ABC,IS,100,150,CLI,A2,,NO,,\n"},
      {BidFileKind::Vt, "NSEIPO,CLI,A2,,I1,100,MKT,100% Margin,Y,Retail,,extra\n"},
  };
  for (const auto& [kind, text] : files) {
    load(kind, text);
    ASSERT_EQ(bulk->rows().size(), 1u) << text;
    const BidLine first = bulk->rows()[0];
    const std::string saved = file("");
    prompt().queueFile(saved);
    bulk->exportList();
    bulk->reset();
    bulk->load(saved);
    ASSERT_EQ(bulk->rows().size(), 1u) << text;
    for (int c = 0; c < static_cast<int>(BidColumn::Count); ++c) {
      EXPECT_EQ(bulk->rows()[0][BidColumn(c)], first[BidColumn(c)]) << text;
    }
    bulk->reset();
  }
  bulk->exportList();
  EXPECT_EQ(prompt().messages().back(), "No items in the list");
}

TEST_F(BulkUploadTest, ManualAddChecksInOrderThenJoinsTheVtGrid) {
  bulk->open(block().issueOfId("I1"));
  const struct {
    std::function<void(BulkEntry&)> edit;
    std::string message;
  } steps[] = {
      {[](BulkEntry& e) { e.orderType = "Retail"; }, "Please select AccountId"},
      {[](BulkEntry& e) { e.clientId = "A2", e.proCli = "PRO", e.margin = "No Margin"; },
       "Margin Indicator should be set as 100% for PRO order"},
      {[](BulkEntry& e) { e.proCli = "CLI", e.margin = "100% Margin", e.clientId = "A-2"; },
       "Please enter an alphanumeric value for Client Code."},
      {[](BulkEntry& e) { e.clientId = "A2", e.pCode = "P-1"; },
       "Please enter an alphanumeric value for participant code."},
      {[](BulkEntry& e) { e.pCode.clear(); }, "Please enter some quantity"},
      {[](BulkEntry& e) { e.quantity = "1234567890"; }, "Qty. should not be more than 9 Digits"},
      {[](BulkEntry& e) { e.quantity = "100"; }, "Please enter price"},
      {[](BulkEntry& e) { e.price = "100"; }, "Price Should be more than Floor Price 100.0000"},
      {[](BulkEntry& e) { e.price = "150"; }, ""},
  };
  for (const auto& step : steps) {
    prompt().clear();
    step.edit(bulk->entry());
    bulk->add();
    EXPECT_EQ(prompt().messages(), step.message.empty() ? Lines{} : Lines{step.message})
        << step.message;
  }
  EXPECT_EQ(bulk->grid(BidFileKind::Vt).size(), 1u);
}

}  // namespace
