#include "issues/allotment_upload.h"

#include <gtest/gtest.h>

#include <fstream>

#include "tests/support/fake_issues_port.h"
#include "tests/support/field_text.h"
#include "tests/support/scratch_dir.h"

namespace {

const std::string kOpen = "open  CSV Files(*.csv)|*.csv||";
const std::string kError = "msgbox OFS Allotment Upload Error:";

std::string allotment(const std::string& fields) {
  return wireLine("send 2 om_ofs_allotment", fields + " 20001=fill 12003=B");
}
std::string totals(int records, int uploaded) {
  return "msgbox Total Records : " + std::to_string(records) +
         ". Allotments Uploaded Successfully : " + std::to_string(uploaded) + ".";
}

// Each line is reported or sent in file order, then the totals; nothing without the right.
TEST(AllotmentUpload, ReportsOrSendsEachLineInFileOrderThenSumsUp) {
  ScratchDir dir;
  const std::string nse = dir.file("nse.csv"), bse = dir.file("bse.csv");
  const std::string header = dir.file("header.csv");
  std::ofstream(nse) << "Member type,Member code,Symbol\n"
                     << "n1,n2,ABC,2001,n5,n6,C1,n8,100,105.00,n11,40,100.00,n14,n15\n"
                     << "n1,n2,ABC,2002,n5,n6,C2,n8,100,105.00,n11,0,100.00,n14,n15\n"
                     << "n1,n2,ABC,2003,n5,n6,C3,n8,50,104.50,n11,50,100,n14,n15\n\n";
  // A CR LF line end, a missing last column and columns past the layout's change nothing.
  std::ofstream(bse)
      << "XYZ,b2,b3,UCC1,b5,100,405.25,5051,40,400\r\nXYZ,b2,b3,U2,b5,1,1,52,1,1,b11,9\n";
  std::ofstream(header) << "Member type,Member code,Symbol\n";
  struct Case {
    const char* name;
    bool right;
    const char* exchange;
    std::string file;  // empty: the chooser is cancelled
    Lines transcript;
  };
  const Case cases[] = {
      Case("nse", true, "nse_ipo", nse,
           {kOpen,
            allotment("63001=nse_ipo 3=ABC 49238=2001 54001=C1 12004=40 10306=10500 10308=40 "
                      "10307=10000"),
            kError + "Allotted Quantity cannot be zero In Line Number 3",
            allotment("63001=nse_ipo 3=ABC 49238=2003 54001=C3 12004=50 10306=10450 10308=50 "
                      "10307=10000"),
            kError + "Allotment Read Error: Invalid Format: Not a CSV File  In Line Number 5",
            totals(4, 2)}),
      // The BSE layout's client is its UCC.
      Case("bse", true, "bse_ipo", bse,
           {kOpen,
            allotment("63001=bse_ipo 3=XYZ 49238=5051 54001=UCC1 12004=40 10306=40525 10308=40 "
                      "10307=40000"),
            allotment("63001=bse_ipo 3=XYZ 49238=52 54001=U2 12004=1 10306=100 10308=1 10307=100"),
            totals(2, 2)}),
      Case("no right: nothing is even asked", false, "nse_ipo", nse, {}),
      Case("chooser cancelled", true, "nse_ipo", "", {kOpen}),
      Case("missing file", true, "nse_ipo", dir.file("none.csv"),
           {kOpen, "msgbox File Open Error"}),
      Case("a folder", true, "nse_ipo", dir.path(), {kOpen, "msgbox File Open Error"}),
      Case("header only", true, "nse_ipo", header, {kOpen, totals(0, 0)}),
  };
  for (const auto& c : cases) {
    FakeIssuesPort port;
    port.right = c.right;
    if (!c.file.empty()) port.queueFile(c.file);
    COFSAllotmentUpload(port).run(c.exchange);
    EXPECT_EQ(port.channel.transcript, c.transcript) << c.name;
  }
}

}  // namespace
