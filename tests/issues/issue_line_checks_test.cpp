#include <gtest/gtest.h>

#include "issues/issue_file.h"
#include "tests/support/csv_columns.h"

namespace {

// The columns, numbered from 1.
constexpr int Exchange = 1, Symbol = 2, Series = 3, Isin = 4, Face = 5, Tick = 6, Floor = 7,
              Rms = 8, Start = 9, Close = 10, Final = 11, MinQty = 12, MultQty = 13, Size = 14,
              RetailLimit = 15, NonRetailLimit = 16, Time = 17, DiscVp = 18, Discount = 19,
              Notes = 20, Url = 21, CutOff = 22, Company = 23, Token = 24, Ceiling = 25,
              Indicative = 26, Display = 27, Placement = 28;

// Accepted on 24/11/2026. The ceiling is exactly 2.5 times the floor.
const char kGood[] =
    "nse_ipo,ABC,Retail,INE123456789,10,0.05,100.00,110.00,25/11/2026,25/11/2026,25/11/2026,20,10,"
    "5000,200000,,15:30:00,P,5,Notes,http://x,Y,ABC Ltd,ABC,250.00,105.00,Y,Y";

using Changes = std::map<int, std::string>;

// The message for the line, empty when accepted.
std::string check(const Changes& changes) {
  sOFSCol issue;
  std::string message;
  const std::optional<IssueDay> today = issueFileDate("24/11/2026");
  return readIssueFileLine(withColumns(kGood, changes), today, issue, message) ? "" : message;
}

const std::string k26(26, 'S');
const std::string k25(25, 'S');
const Changes kBseEmployee = {{Exchange, "bse_ipo"}, {Series, "Employee"}};
const Changes kNonRetail = {
    {Series, "NonRetail"}, {CutOff, "N"}, {RetailLimit, ""}, {NonRetailLimit, "500000"}};

std::string offTick(const std::string& price, const char* tick = "0.05") {
  return price + " should be multiple of Tick Size which is " + tick + " rupees for this security";
}
const char kDatesDiffer[] =
    "OFS Start Date, OFS Close Date and Final Modification Date must be same";

Changes plus(Changes base, const Changes& more) {
  for (const auto& [column, text] : more) base[column] = text;
  return base;
}

// One row a step: each row fails at exactly the step it names, or is accepted ("").
// Rows with two faults catch two steps swapped: the earlier step must win.
TEST(IssueLineChecks, EachStepInItsOrder) {
  struct Row {
    const char* name;
    Changes changes;
    std::string message;
  };
  const Row rows[] = {
      Row("good line", {}, ""),
      Row("exchange blank", {{Exchange, ""}}, "Exchange cannot be Blank"),
      Row("exchange in capitals", {{Exchange, "NSE_IPO"}}, "InValid Exchange"),
      Row("bad exchange before blank symbol", {{Exchange, "x"}, {Symbol, ""}}, "InValid Exchange"),
      Row("symbol blank", {{Symbol, ""}, {Series, ""}}, "Symbol cannot be Blank"),
      Row("symbol of 26", {{Symbol, k26}}, "Symbol length should not be more than 25 characters"),
      Row("symbol of 25", {{Symbol, k25}}, ""),
      Row("series blank", {{Series, ""}, {Isin, ""}}, "Series cannot be Blank"),
      Row("employee on nse", {{Series, "Employee"}}, "Invalid Series"),
      Row("unknown word on bse", {{Exchange, "bse_ipo"}, {Series, "RS"}}, "Invalid Series"),
      Row("employee on bse", kBseEmployee, ""),
      Row("isin blank", {{Isin, ""}, {Face, ""}}, "ISIN cannot be Blank"),
      Row("isin of 13", {{Isin, "INE1234567890"}},
          "ISIN length should not be more than 12 characters"),
      Row("face blank", {{Face, ""}, {Tick, ""}}, "FaceValue cannot be Blank"),
      Row("face not a price", {{Face, "1O"}}, "Invalid FaceValue"),
      Row("face zero", {{Face, "0"}}, "Invalid FaceValue"),
      Row("tick blank", {{Tick, ""}, {Floor, ""}}, "TickSize cannot be Blank"),
      Row("tick zero", {{Tick, "0.00"}}, "Invalid TickSize"),
      Row("floor blank", {{Floor, ""}, {Rms, ""}}, "Floor Price cannot be Blank"),
      Row("floor not a price", {{Floor, "abc"}}, "Invalid Floor Price"),
      Row("floor off the tick", {{Floor, "100.03"}}, offTick("Floor Price")),
      Row("tick reformatted in the message", {{Tick, "1"}, {Floor, "100.50"}},
          offTick("Floor Price", "1.00")),
      Row("rms blank", {{Rms, ""}, {Start, ""}}, "RMS Price cannot be Blank"),
      Row("rms not a price", {{Rms, "1O0"}}, "Invalid RMS Price"),
      Row("rms off the tick", {{Rms, "110.02"}}, offTick("RMS Price")),
      Row("floor above rms", {{Floor, "111.00"}}, "Floor price cannot be greater than RMS price"),
      Row("floor above rms in paise only", {{Floor, "110.75"}, {Rms, "110.25"}, {Indicative, ""}},
          ""),
      Row("start blank", {{Start, ""}}, "OFS Start Date cannot be Blank"),
      Row("start no day", {{Start, "31/11/2026"}}, "Invalid OFS Start Date"),
      Row("start yesterday before dates differ", {{Start, "23/11/2026"}},
          "OFS Start Date cannot be Past Date"),
      Row("all today", {{Start, "24/11/2026"}, {Close, "24/11/2026"}, {Final, "24/11/2026"}}, ""),
      Row("close blank", {{Close, ""}}, "OFS Close Date cannot be Blank"),
      Row("close dotted", {{Close, "25.11.2026"}}, "Invalid OFS Close Date"),
      Row("close with a blank after it", {{Close, "25/11/2026 "}}, "Invalid OFS Close Date"),
      Row("final blank", {{Final, ""}}, "Final Modification Date cannot be Blank"),
      Row("final year first", {{Final, "2026-11-25"}}, "Invalid Final Modification Date"),
      Row("close a day later", {{Close, "26/11/2026"}}, kDatesDiffer),
      Row("final a day later", {{Final, "26/11/2026"}, {MinQty, ""}}, kDatesDiffer),
      Row("same day written three ways",
          {{Start, "25-Nov-2026"}, {Close, "25Nov2026"}, {Final, "25-11-2026"}}, ""),
      Row("min blank", {{MinQty, ""}, {MultQty, ""}}, "Min Quantity cannot be Blank"),
      Row("min with a point", {{MinQty, "20.0"}}, "Invalid Min Quantity"),
      Row("min zero", {{MinQty, "0"}}, "Invalid Min Quantity"),
      Row("multiple blank", {{MultQty, ""}}, "Multiple Quantity cannot be Blank"),
      Row("multiple zero", {{MultQty, "0"}}, "Invalid Multiple Quantity"),
      Row("min below multiple", {{MinQty, "5"}},
          "Min Quantity should be greater than or equal to Multiple Quantity"),
      Row("min not a multiple", {{MinQty, "25"}},
          "Min Quantity should be a multiple of Multiple Quantity"),
      Row("size blank", {{Size, ""}, {RetailLimit, ""}}, "OFS Size cannot be Blank"),
      Row("size in exponent", {{Size, "5e3"}}, "Invalid OFS Size"),
      Row("retail limit blank", {{RetailLimit, ""}, {Time, ""}}, "Retail Limit cannot be Blank"),
      Row("retail limit zero", {{RetailLimit, "0"}}, "Invalid Retail Limit"),
      Row("retail with a non-retail limit", {{NonRetailLimit, "500000"}},
          "Non Retail Individual Limit Should be Blank"),
      Row("non-retail", kNonRetail, ""),
      Row("non-retail limit blank before retail given",
          plus(kNonRetail, {{NonRetailLimit, ""}, {RetailLimit, "200000"}}),
          "Non Retail Individual Limit cannot be Blank"),
      Row("non-retail limit not an amount", plus(kNonRetail, {{NonRetailLimit, "5.000"}}),
          "Invalid Non Retail Individual Limit"),
      Row("non-retail with a retail limit", plus(kNonRetail, {{RetailLimit, "200000"}}),
          "Retail Limit Should be Blank"),
      Row("time blank", {{Time, ""}, {DiscVp, "X"}}, "Order Closing Time cannot be Blank"),
      Row("time of no time", {{Time, "00:00:00"}}, "Invalid Order Closing Time"),
      Row("time short", {{Time, "9:30"}}, ""),
      Row("disc vp unknown before a bad discount", {{DiscVp, "X"}, {Discount, "abc"}},
          "Invalid Disc VP. Input should be V or P"),
      Row("percentage of 100", {{Discount, "100"}}, ""),
      Row("percentage above 100", {{Discount, "100.01"}}, "Invalid OFS Discount"),
      Row("percentage zero", {{Discount, "0"}}, "Invalid OFS Discount"),
      Row("value discount above 100", {{DiscVp, "V"}, {Discount, "150"}}, ""),
      Row("bad discount without a kind", {{DiscVp, ""}, {Discount, "abc"}}, "Invalid OFS Discount"),
      Row("kind without a discount", {{Discount, ""}}, "OFS Discount Cannot be Blank"),
      Row("discount without a kind", {{DiscVp, ""}, {Notes, ""}},
          "Discount Type should be provided for Discount to be considered"),
      Row("no discount at all", {{DiscVp, ""}, {Discount, ""}}, ""),
      Row("notes blank", {{Notes, ""}, {Url, ""}}, "Issue Notes cannot be Blank"),
      Row("url blank", {{Url, ""}, {CutOff, ""}}, "Prospectus URL cannot be Blank"),
      Row("cut off blank", {{CutOff, ""}, {Company, ""}}, "Cut Off cannot be Blank"),
      Row("employee without cut off", plus(kBseEmployee, {{CutOff, "N"}}),
          "Invalid Cut Off. Input Should be Y for Employee series"),
      Row("non-retail with cut off", plus(kNonRetail, {{CutOff, "Y"}}),
          "Invalid Cut Off. Input Should be N for NonRetail series"),
      Row("retail cut off lower case", {{CutOff, "y"}},
          "Invalid Cut Off. Input Should be Y or N for Retail series"),
      Row("company blank", {{Company, ""}, {Token, k25}}, "Company Name cannot be Blank"),
      Row("token of 25", {{Token, k25}, {Ceiling, "300"}},
          "Underlying Token length should not be more than 24 characters"),
      Row("token of 24", {{Token, std::string(24, 'T')}}, ""),
      Row("ceiling above 2.5 times before its decimals", {{Ceiling, "250.051"}},
          "Ceiling Price cannot be more than 2.5 times of the floor price"),
      Row("ceiling not a price", {{Ceiling, "2x0"}}, "Invalid Ceiling Price"),
      Row("ceiling off the tick", {{Ceiling, "240.03"}}, offTick("Ceiling Price")),
      Row("ceiling zero is no ceiling", {{Ceiling, "0.00"}, {Indicative, "300.00"}}, ""),
      Row("indicative above the ceiling", {{Indicative, "250.05"}},
          "Indicative Price Cannot be Greater than Ceiling Price"),
      Row("indicative below the floor", {{Indicative, "99.95"}},
          "Indicative Price Cannot be Less than Floor Price"),
      Row("indicative not a price", {{Indicative, "105.5x"}}, "Invalid Indicative Price"),
      Row("indicative off the tick", {{Indicative, "105.01"}, {Display, ""}},
          offTick("Indicative Price")),
      Row("display blank", {{Display, ""}, {Placement, ""}}, "Symbol Display cannot be Blank"),
      Row("display lower case", {{Display, "y"}}, "Invalid Symbol Display. Input Should be Y or N"),
      Row("placement blank", {{Placement, ""}}, "Order Placement cannot be Blank"),
      Row("placement a word", {{Placement, "Yes"}},
          "Invalid Order Placement. Input Should be Y or N"),
      Row("placement without display", {{Display, "N"}},
          "Order Placement Cannot be Y When Display Allowed is N"),
      Row("hidden and closed", {{Display, "N"}, {Placement, "N"}}, ""),
  };
  for (const auto& row : rows) EXPECT_EQ(check(row.changes), row.message) << row.name;
}

}  // namespace
