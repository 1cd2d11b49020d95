#include <gtest/gtest.h>

#include <functional>
#include <sstream>

#include "issues/issue_details.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"

namespace {

using T = IssueText;
using L = IssueList;

// In the order of IssueText; the non-retail limit and the discount stay empty.
const char kValid[] =
    "ABC,INE000A01011,10,0.05,100.00,110.00,120.00,105,21/11/2026,21/11/2026,21/11/2026,15:30:00,"
    "10,5,1000000,200000,,,Notes,https://example.in/abc.pdf,ABC Ltd,ABC";

IssueDetailsFields validIssue() {
  IssueDetailsFields f;
  f[L::Exchange].selected = "NSE";
  f[L::Series].selected = "Retail";
  std::istringstream texts(kValid);
  for (EntryText& t : f.texts) std::getline(texts, t.text, ',');
  f[T::NonRetailLimit].enabled = false;
  return f;
}

// One change to the valid issue's fields: a text, a list's choice, or anything else.
struct Edit {
  Edit(IssueText t, const char* text) : apply([=](auto& f) { f[t].text = text; }) {}
  Edit(IssueList l, const char* word) : apply([=](auto& f) { f[l].selected = word; }) {}
  Edit(void (*other)(IssueDetailsFields&)) : apply(other) {}
  std::function<void(IssueDetailsFields&)> apply;
};
void discountOffered(IssueDetailsFields& f) {
  f.discountOffered = true;
}
void nonRetailLimitOnly(IssueDetailsFields& f) {
  f[T::RetailLimit] = {"", false};
  f[T::NonRetailLimit].enabled = true;
}

std::string offTick(const std::string& price, const char* tick = "0.05") {
  return price + " should be multiple of Tick Size which is " + tick + " rupees for this security";
}
const char kDatesDiffer[] =
    "OFS Start Date, OFS Close Date and Final Modification Date must be same";

// Each row breaks the valid issue at one step (or at two, the earlier of which must win), or
// is accepted ("").
TEST(IssueDetailsChecks, FirstFailingStepDecides) {
  using enum IssueText;
  using enum IssueList;
  struct Row {
    const char* name;
    std::vector<Edit> edits;
    std::string message;
  };
  const Row rows[] = {
      Row("valid", {}, ""),
      Row("no exchange", {{Exchange, ""}}, "Please select the exchange"),
      Row("no symbol, no series", {{SymbolName, ""}, {Series, ""}}, "Please enter the Symbol Name"),
      Row("no series", {{Series, ""}}, "Please Select a Series"),
      Row("no face, no ISIN", {{FaceValue, ""}, {Isin, ""}}, "Please enter the Face Value"),
      Row("no ISIN", {{Isin, ""}}, "Please enter the ISIN"),
      Row("no tick", {{TickSize, ""}}, "Please enter valid Tick Size"),
      Row("zero tick", {{TickSize, "0.00"}}, "Please enter valid Tick Size"),
      Row("no floor", {{FloorPrice, ""}}, "Please enter the Floor Price"),
      Row("floor off, no RMS", {{FloorPrice, "100.03"}, {RmsPrice, ""}}, offTick("Floor Price")),
      Row("tick as typed", {{TickSize, "5"}, {FloorPrice, "102"}}, offTick("Floor Price", "5")),
      Row("no RMS", {{RmsPrice, ""}}, "Please enter the RMS Price"),
      Row("RMS off the tick", {{RmsPrice, "110.01"}}, offTick("RMS Price")),
      Row("floor above RMS", {{FloorPrice, "111.00"}},
          "Floor price cannot be greater than RMS price"),
      Row("floor > RMS in paise",
          {{FloorPrice, "100.75"}, {RmsPrice, "100.25"}, {IndicativePrice, ""}}, ""),
      Row("close a day later", {{CloseDate, "22/11/2026"}}, kDatesDiffer),
      Row("final another day", {{FinalModificationDate, "20/11/2026"}}, kDatesDiffer),
      Row("no min or multiple", {{MinQuantity, ""}, {MultipleQuantity, "0"}},
          "Please enter valid Min Quantity"),
      Row("zero multiple", {{MultipleQuantity, "0"}}, "Please enter valid Multiple Qty"),
      Row("min below multiple", {{MinQuantity, "2"}},
          "Min Quantity should be greater than or equal to Multiple Quantity"),
      Row("min not a multiple", {{MinQuantity, "10"}, {MultipleQuantity, "4"}},
          "Min Quantity should be a multiple of Multiple Quantity"),
      Row("no OFS size", {{OfsSize, ""}}, "Please enter valid OFS Size"),
      Row("zero retail limit", {{RetailLimit, "0"}}, "Please enter valid Retail Limit"),
      Row("non-retail limit empty", {nonRetailLimitOnly}, "Please enter valid Non Inst Limit"),
      Row("disabled limit empty", {{NonRetailLimit, ""}}, ""),
      Row("discount without its kind", {discountOffered}, "Please select the Disc VP"),
      Row("kind without discount, no notes", {{DiscVp, "V"}, {IssueNotes, ""}},
          "Please enter OFS Discount"),
      Row("percentage above 100", {{DiscVp, "P"}, {Discount, "100.01"}},
          "Please enter valid OFS Discount"),
      Row("percentage zero", {{DiscVp, "P"}, {Discount, "0"}}, "Please enter valid OFS Discount"),
      Row("percentage 100", {discountOffered, {DiscVp, "P"}, {Discount, "100"}}, ""),
      Row("no notes, bad URL", {{IssueNotes, ""}, {ProspectusUrl, "x"}},
          "Please enter Issue Notes"),
      Row("URL without scheme", {{ProspectusUrl, "example.in/a.pdf"}},
          "Please enter valid Prospectus URL"),
      Row("URL without a dotted host", {{ProspectusUrl, "http://local/a"}},
          "Please enter valid Prospectus URL"),
      Row("no company, ceiling off", {{CompanyName, ""}, {CeilingPrice, "120.02"}},
          "Please enter the Company Name"),
      Row("ceiling off the tick", {{CeilingPrice, "120.02"}}, offTick("Ceiling Price")),
      Row("indicative off the tick", {{IndicativePrice, "105.01"}}, offTick("Indicative Price")),
      Row("indicative above ceiling", {{IndicativePrice, "120.05"}},
          "Indicative Price Cannot be Greater than Ceiling Price"),
      Row("indicative without ceiling", {{CeilingPrice, ""}}, ""),
      Row("indicative below floor", {{IndicativePrice, "99.95"}},
          "Indicative Price Cannot be Less than Floor Price"),
  };
  for (const auto& row : rows) {
    IssueDetailsFields f = validIssue();
    for (const Edit& edit : row.edits) edit.apply(f);
    EXPECT_EQ(checkIssueDetails(f).message, row.message) << row.name;
  }
}

class IssueDetailsScreen : public testing::Test {
 protected:
  IssueDetailsScreen() {
    host.clock = localTime(21, 11, 2026, 10 * 3600);
    host.state.rights.insert("VT: Add OFS Issue");
    initPlugin(host, host.app(), "U1", 3);
    host.state.events.clear();
    screen = std::make_unique<COFSIssueDetails>(*controlBlock());
  }
  ~IssueDetailsScreen() override { exitPlugin(host); }

  // Types the valid issue into a dialog opened to add.
  void typeValidIssue() {
    screen->openToAdd();
    const IssueDetailsFields f = validIssue();
    screen->select(L::Exchange, "NSE");
    screen->select(L::Series, "Retail");
    for (size_t i = 0; i < kIssueTextCount; ++i)
      if (f.texts[i].enabled) screen->setText(static_cast<T>(i), f.texts[i].text);
  }
  Lines sends() const {
    Lines out;
    for (const std::string& e : host.state.events)
      if (e.rfind("send ", 0) == 0) out.push_back(e);
    return out;
  }

  FakeHost host;
  std::unique_ptr<COFSIssueDetails> screen;
};

TEST_F(IssueDetailsScreen, TypingFiltersAnswerWithTheirCaptions) {
  screen->openToAdd();
  EXPECT_FALSE(screen->setText(T::FloorPrice, "10a"));
  EXPECT_TRUE(screen->setText(T::FloorPrice, "10.5"));
  EXPECT_FALSE(screen->setText(T::MinQuantity, "1.5"));
  EXPECT_FALSE(screen->setText(T::UnderlyingToken, "AB-C"));
  EXPECT_TRUE(screen->setText(T::UnderlyingToken, std::string(24, 'A')));
  EXPECT_FALSE(screen->setText(T::UnderlyingToken, std::string(25, 'A')));
  EXPECT_FALSE(screen->setText(T::RetailLimit, "5"));  // disabled until a series is chosen
  EXPECT_EQ(screen->fields()[T::UnderlyingToken].text, std::string(24, 'A'));
  EXPECT_EQ(host.promptLog.messages(),
            (Lines{"You can only type a number here.", "You can only type a number here.",
                   "Only Alphanumeric characters are allowed.",
                   "Underlying Token should be a maximum of 24 characters."}));
}

TEST_F(IssueDetailsScreen, SeriesSwitchesTheLimitFields) {
  screen->openToAdd();
  const std::tuple<const char*, bool, const char*, bool, const char*> series[] = {
      {"Retail", true, "200000", false, ""},
      {"NonRetail", false, "", true, "200001"},
      {"Employee", true, "500000", false, ""}};
  for (const auto& [word, retailOn, retail, nonRetailOn, nonRetail] : series) {
    ASSERT_TRUE(screen->select(L::Series, word));
    EXPECT_EQ(screen->fields()[T::RetailLimit].enabled, retailOn) << word;
    EXPECT_EQ(screen->fields()[T::RetailLimit].text, retail) << word;
    EXPECT_EQ(screen->fields()[T::NonRetailLimit].enabled, nonRetailOn) << word;
    EXPECT_EQ(screen->fields()[T::NonRetailLimit].text, nonRetail) << word;
  }
  EXPECT_FALSE(screen->select(L::Series, "RS"));
}

TEST_F(IssueDetailsScreen, AddSendsTheIssueWithTheNormalEnd) {
  typeValidIssue();
  screen->submit();
  ASSERT_EQ(sends().size(), 1u) << host.promptLog.messages().front();
  EXPECT_EQ(sends()[0],
            "send 2 om_add_ofs_issue 63001=\"nse_ipo\" 3=\"ABC\" 10610=\"RS\" "
            "13041=\"INE000A01011\" 63022=\"100.00\" 54079=\"110.00\" 49165=\"21/11/2026\" "
            "79=\"21/11/2026\" 107=\"21/11/2026\" 55=\"10\" 10062=\"1000000\" 10027=\"5\" "
            "54009=\"200000\" 67=\"15:30:00\" 12019=\"\" 12020=\"\" 63005=\"0.05\" "
            "13004=\"10\" 10046=\"https://example.in/abc.pdf\" 63059=\"N\" 10100=\"ABC-RS\" "
            "49033=\"ABC Ltd\" 61002=\"Notes\" 54730=\"ABC\" 63023=\"120.00\" "
            "54803=\"105.00\" 54571=\"Y\" 63017=\"Y\" 32760=\"ABC-RS\" 32760=\"Normal End\"");
}

TEST_F(IssueDetailsScreen, RefusalFocusesItsFieldAndSendsNothing) {
  typeValidIssue();
  screen->setText(T::MultipleQuantity, "3");
  screen->submit();
  EXPECT_TRUE(sends().empty());
  EXPECT_EQ(host.promptLog.messages(),
            (Lines{"Min Quantity should be a multiple of Multiple Quantity"}));
  EXPECT_EQ(host.promptLog.focused(), (Lines{"Min Quantity"}));
  EXPECT_EQ(screen->fields()[T::MultipleQuantity].text, "3");
}

TEST_F(IssueDetailsScreen, ModifySendsTheIssueBackAsShown) {
  typeValidIssue();
  sOFSCol issue = screen->record();
  issue.issueId = "101";
  issue.modifyCancelFlag = "N";
  screen->openToModify(issue);
  EXPECT_STREQ(screen->title(), "Modify OFS issue");
  EXPECT_EQ(screen->fields()[L::Series].selected, "Retail");
  EXPECT_EQ(screen->fields()[T::RetailLimit].text, "200000");
  screen->setText(T::OfsSize, "2000000");
  const sOFSCol changed = screen->record();
  EXPECT_EQ(changed.issueSize, 2000000.0);
  EXPECT_EQ(changed.modifyCancelFlag, "N");  // what the dialog does not show travels on
  EXPECT_EQ(changed.symbol, "ABC-RS");
  EXPECT_FALSE(screen->end());
  EXPECT_STREQ(screen->title(), "VT: Add OFS Issue");
}

}  // namespace
