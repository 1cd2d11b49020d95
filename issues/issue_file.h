// The issue file: issues in bulk, one a line under a header, as the administrator uploads them
// and as the issue list is exported. The same layout goes both ways, so an exported file
// uploads again.
#pragma once

#include <array>
#include <cstdint>
#include <cstdio>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "domain/records.h"

inline constexpr int kIssueFileColumnCount = 28;

// The first line of every issue file, without its line feed.
inline constexpr char kIssueFileHeader[] =
    "Exchange,Symbol Name,Series,ISIN,Face Value,Tick Size,Floor Price,RMS Price,OFS Start "
    "Date,OFS Close Date,Final Modification Date,Min Quantity,Multiple Quantity,OFS Size,Retail "
    "Limit,Non Retail Individual Limit,Order Closing Time,Disc VP,OFS Discount,Issue Notes,"
    "Prospectus URL,Cut Off,Company Name,Underlying Token,Ceiling Price,Indicative Price,Symbol "
    "Display,Order Placement";

// One issue line as written, column by column, before any check.
struct IssueFileLine {
  std::string exchange;
  std::string symbolName;
  std::string series;  // the word: "Retail", "Employee" or "NonRetail"
  std::string isin;
  std::string faceValue;
  std::string tickSize;
  std::string floorPrice;
  std::string rmsPrice;
  std::string startDate;
  std::string closeDate;
  std::string finalModificationDate;
  std::string minQuantity;
  std::string multipleQuantity;
  std::string ofsSize;
  std::string retailLimit;
  std::string nonRetailLimit;
  std::string closingTime;
  std::string discVp;
  std::string discount;
  std::string issueNotes;
  std::string prospectusUrl;
  std::string cutOff;
  std::string companyName;
  std::string underlyingToken;
  std::string ceilingPrice;
  std::string indicativePrice;
  std::string symbolDisplay;
  std::string orderPlacement;
};

// The members of a line in column order.
extern const std::array<std::string IssueFileLine::*, kIssueFileColumnCount> kIssueFileColumns;

// A calendar day as a count of days since 1 January 1970.
using IssueDay = int64_t;

// The dates an issue file may hold: "21/11/2026" and "21-11-2026" (one-digit day and month
// allowed), "21-Nov-2026", "21/Nov/2026" and "21Nov2026" (month names as the issue list writes
// them, capital first). nullopt for anything else or a day the month does not have.
std::optional<IssueDay> issueFileDate(std::string_view text);
// Seconds into the day of "15:30:00" or "15:30" (one-digit hour allowed); nullopt otherwise.
std::optional<int> issueFileTime(std::string_view text);
// The local calendar day of `seconds` since 1970: "today" for the past-date check.
IssueDay localIssueDay(int64_t seconds);

// The checks of one line, in order; empty when the line is accepted. Without `today` a start
// date in the past is not refused (the bid checker reads issues that are already open).
std::string checkIssueFileLine(const IssueFileLine& line, std::optional<IssueDay> today);
// The issue an accepted line adds, in the form the add request and the issue list use: series
// in the exchange's own code, prices "%.2lf", dates "%d/%m/%Y", the time "%H:%M:%S".
sOFSCol issueOfLine(const IssueFileLine& line);

// One line of the file, its line end included, to an issue; false with the message when the
// line is refused.
bool readIssueFileLine(std::string_view text, std::optional<IssueDay> today, sOFSCol& issue,
                       std::string& message);

struct IssueFileRefusal {
  int number = 0;  // the upload's count: the header is 0, each piece of a long line counts
  int line = 0;    // as an editor numbers it: the header is 1
  std::string message;
};

struct IssueFileRead {
  bool opened = false;          // false: "File Open Error", nothing was read
  int records = 0;              // the lines after the header, empty ones included
  std::vector<sOFSCol> issues;  // the accepted lines, in file order
  std::vector<IssueFileRefusal> refusals;
};

IssueFileRead loadIssueFile(const std::string& path, std::optional<IssueDay> today);
IssueFileRead readIssueFile(std::FILE* file, std::optional<IssueDay> today);

// The line of an issue in the file's column order, without the line feed.
std::string issueFileLineOf(const sOFSCol& issue);
// The whole file: the header, then one line per issue.
std::string issueFileText(const std::vector<const sOFSCol*>& issues);
