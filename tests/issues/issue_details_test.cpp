#include <gtest/gtest.h>

#include <functional>

#include "issues/issue_details.h"
#include "plugin/control_block.h"
#include "plugin/lifecycle.h"
#include "tests/support/fake_host.h"

namespace {

using T = IssueText;
using L = IssueList;

IssueDetailsFields validIssue() {
  IssueDetailsFields f;
  f[L::Exchange].selected = "NSE";
  f[L::Series].selected = "Retail";
  const std::pair<T, const char*> texts[] = {{T::SymbolName, "ABC"},
                                             {T::Isin, "INE000A01011"},
                                             {T::FaceValue, "10"},
                                             {T::TickSize, "0.05"},
                                             {T::FloorPrice, "100.00"},
                                             {T::RmsPrice, "110.00"},
                                             {T::CeilingPrice, "120.00"},
                                             {T::IndicativePrice, "105"},
                                             {T::StartDate, "21/11/2026"},
                                             {T::CloseDate, "21/11/2026"},
                                             {T::FinalModificationDate, "21/11/2026"},
                                             {T::ClosingTime, "15:30:00"},
                                             {T::MinQuantity, "10"},
                                             {T::MultipleQuantity, "5"},
                                             {T::OfsSize, "1000000"},
                                             {T::RetailLimit, "200000"},
                                             {T::IssueNotes, "Notes"},
                                             {T::ProspectusUrl, "https://example.in/abc.pdf"},
                                             {T::CompanyName, "ABC Ltd"},
                                             {T::UnderlyingToken, "ABC"}};
  for (const auto& [field, text] : texts) f[field].text = text;
  f[T::NonRetailLimit].enabled = false;
  return f;
}

struct CheckCase {
  const char* name;
  std::function<void(IssueDetailsFields&)> change;
  const char* message;
};

// Each row breaks the valid issue at one step (or at two, the earlier of which must win).
const CheckCase kChecks[] = {
    {"no exchange", [](auto& f) { f[L::Exchange].selected = ""; }, "Please select the exchange"},
    {"no symbol, no series",
     [](auto& f) {
       f[T::SymbolName].text = "";
       f[L::Series].selected = "";
     },
     "Please enter the Symbol Name"},
    {"no series", [](auto& f) { f[L::Series].selected = ""; }, "Please Select a Series"},
    {"no face value, no ISIN",
     [](auto& f) {
       f[T::FaceValue].text = "";
       f[T::Isin].text = "";
     },
     "Please enter the Face Value"},
    {"no ISIN", [](auto& f) { f[T::Isin].text = ""; }, "Please enter the ISIN"},
    {"no tick", [](auto& f) { f[T::TickSize].text = ""; }, "Please enter valid Tick Size"},
    {"zero tick", [](auto& f) { f[T::TickSize].text = "0.00"; }, "Please enter valid Tick Size"},
    {"no floor", [](auto& f) { f[T::FloorPrice].text = ""; }, "Please enter the Floor Price"},
    {"floor off the tick, RMS empty",
     [](auto& f) {
       f[T::FloorPrice].text = "100.03";
       f[T::RmsPrice].text = "";
     },
     "Floor Price should be multiple of Tick Size which is 0.05 rupees for this security"},
    {"tick shown with its own decimals",
     [](auto& f) {
       f[T::TickSize].text = "5";
       f[T::FloorPrice].text = "102";
     },
     "Floor Price should be multiple of Tick Size which is 5 rupees for this security"},
    {"no RMS", [](auto& f) { f[T::RmsPrice].text = ""; }, "Please enter the RMS Price"},
    {"RMS off the tick", [](auto& f) { f[T::RmsPrice].text = "110.01"; },
     "RMS Price should be multiple of Tick Size which is 0.05 rupees for this security"},
    {"floor above RMS in whole rupees", [](auto& f) { f[T::FloorPrice].text = "111.00"; },
     "Floor price cannot be greater than RMS price"},
    {"close a day later than start", [](auto& f) { f[T::CloseDate].text = "22/11/2026"; },
     "OFS Start Date, OFS Close Date and Final Modification Date must be same"},
    {"final modification another day",
     [](auto& f) { f[T::FinalModificationDate].text = "20/11/2026"; },
     "OFS Start Date, OFS Close Date and Final Modification Date must be same"},
    {"no min quantity, no multiple",
     [](auto& f) {
       f[T::MinQuantity].text = "";
       f[T::MultipleQuantity].text = "0";
     },
     "Please enter valid Min Quantity"},
    {"zero multiple", [](auto& f) { f[T::MultipleQuantity].text = "0"; },
     "Please enter valid Multiple Qty"},
    {"min below multiple", [](auto& f) { f[T::MinQuantity].text = "2"; },
     "Min Quantity should be greater than or equal to Multiple Quantity"},
    {"min not a multiple",
     [](auto& f) {
       f[T::MinQuantity].text = "10";
       f[T::MultipleQuantity].text = "4";
     },
     "Min Quantity should be a multiple of Multiple Quantity"},
    {"no OFS size", [](auto& f) { f[T::OfsSize].text = ""; }, "Please enter valid OFS Size"},
    {"zero retail limit", [](auto& f) { f[T::RetailLimit].text = "0"; },
     "Please enter valid Retail Limit"},
    {"non-retail limit enabled and empty",
     [](auto& f) {
       f[T::RetailLimit].enabled = false;
       f[T::RetailLimit].text = "";
       f[T::NonRetailLimit].enabled = true;
     },
     "Please enter valid Non Inst Limit"},
    {"discount offered without its kind", [](auto& f) { f.discountOffered = true; },
     "Please select the Disc VP"},
    {"kind without discount, no notes",
     [](auto& f) {
       f[L::DiscVp].selected = "V";
       f[T::IssueNotes].text = "";
     },
     "Please enter OFS Discount"},
    {"percentage above 100",
     [](auto& f) {
       f[L::DiscVp].selected = "P";
       f[T::Discount].text = "100.01";
     },
     "Please enter valid OFS Discount"},
    {"percentage zero",
     [](auto& f) {
       f[L::DiscVp].selected = "P";
       f[T::Discount].text = "0";
     },
     "Please enter valid OFS Discount"},
    {"no notes, bad URL",
     [](auto& f) {
       f[T::IssueNotes].text = "";
       f[T::ProspectusUrl].text = "x";
     },
     "Please enter Issue Notes"},
    {"URL without scheme", [](auto& f) { f[T::ProspectusUrl].text = "example.in/a.pdf"; },
     "Please enter valid Prospectus URL"},
    {"URL without a dotted host", [](auto& f) { f[T::ProspectusUrl].text = "http://local/a"; },
     "Please enter valid Prospectus URL"},
    {"no company, ceiling off the tick",
     [](auto& f) {
       f[T::CompanyName].text = "";
       f[T::CeilingPrice].text = "120.02";
     },
     "Please enter the Company Name"},
    {"ceiling off the tick", [](auto& f) { f[T::CeilingPrice].text = "120.02"; },
     "Ceiling Price should be multiple of Tick Size which is 0.05 rupees for this security"},
    {"indicative off the tick", [](auto& f) { f[T::IndicativePrice].text = "105.01"; },
     "Indicative Price should be multiple of Tick Size which is 0.05 rupees for this security"},
    {"indicative above ceiling", [](auto& f) { f[T::IndicativePrice].text = "120.05"; },
     "Indicative Price Cannot be Greater than Ceiling Price"},
    {"indicative below floor", [](auto& f) { f[T::IndicativePrice].text = "99.95"; },
     "Indicative Price Cannot be Less than Floor Price"},
};

TEST(IssueDetailsChecks, FirstFailingStepDecides) {
  EXPECT_FALSE(checkIssueDetails(validIssue())) << checkIssueDetails(validIssue()).message;
  for (const CheckCase& c : kChecks) {
    IssueDetailsFields f = validIssue();
    c.change(f);
    EXPECT_EQ(checkIssueDetails(f).message, c.message) << c.name;
  }
}

TEST(IssueDetailsChecks, Accepts) {
  const std::pair<const char*, std::function<void(IssueDetailsFields&)>> accepted[] = {
      {"floor 100.75 against RMS 100.25",
       [](auto& f) {
         f[T::FloorPrice].text = "100.75";
         f[T::RmsPrice].text = "100.25";
         f[T::IndicativePrice].text = "";
       }},
      {"percentage of exactly 100",
       [](auto& f) {
         f.discountOffered = true;
         f[L::DiscVp].selected = "P";
         f[T::Discount].text = "100";
       }},
      {"no ceiling and no indicative",
       [](auto& f) {
         f[T::CeilingPrice].text = "";
         f[T::IndicativePrice].text = "";
       }},
      {"an indicative price without a ceiling", [](auto& f) { f[T::CeilingPrice].text = ""; }},
      {"a disabled limit left empty", [](auto& f) { f[T::NonRetailLimit].text = ""; }}};
  for (const auto& [name, change] : accepted) {
    IssueDetailsFields f = validIssue();
    change(f);
    EXPECT_EQ(checkIssueDetails(f).message, "") << name;
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
