#include "issues/issue_file.h"

#include <memory>
#include <utility>

#include "domain/bid_field_splitter.h"
#include "domain/bid_line_reader.h"
#include "domain/number_text.h"
#include "domain/series.h"
#include "issues/issue_file_text.h"
#include "messaging/text_format.h"

namespace {

using L = IssueFileLine;

// Columns the issue keeps as written, each beside the member it fills.
struct PlainColumn {
  std::string L::*column;
  std::string sOFSCol::*member;
};
constexpr PlainColumn kPlainColumns[] = {
    {&L::exchange, &sOFSCol::exchange},
    {&L::symbolName, &sOFSCol::field3},
    {&L::isin, &sOFSCol::field13041},
    {&L::faceValue, &sOFSCol::field13004},
    {&L::retailLimit, &sOFSCol::field54009},
    {&L::nonRetailLimit, &sOFSCol::hniLimit},
    {&L::discVp, &sOFSCol::field12020},
    {&L::discount, &sOFSCol::field12019},
    {&L::issueNotes, &sOFSCol::field61002},
    {&L::prospectusUrl, &sOFSCol::field10046},
    {&L::cutOff, &sOFSCol::field63059},
    {&L::companyName, &sOFSCol::field49033},
    {&L::underlyingToken, &sOFSCol::assetSymbol},
    {&L::ceilingPrice, &sOFSCol::field63023},
    {&L::indicativePrice, &sOFSCol::field54803},
    {&L::symbolDisplay, &sOFSCol::field63017},
    {&L::orderPlacement, &sOFSCol::biddingFlag},
};

using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;

// A line that is only its line end: counted, never checked nor reported.
bool isEmptyLine(std::string_view text) {
  return text == "\n" || text == "\r\n";
}

// A stored price as the file writes it; an empty one stays empty.
std::string priceColumn(const std::string& text) {
  return text.empty() ? text : fixedText(leadingDouble(text), 2);
}

}  // namespace

const std::array<std::string IssueFileLine::*, kIssueFileColumnCount> kIssueFileColumns = {
    &L::exchange,
    &L::symbolName,
    &L::series,
    &L::isin,
    &L::faceValue,
    &L::tickSize,
    &L::floorPrice,
    &L::rmsPrice,
    &L::startDate,
    &L::closeDate,
    &L::finalModificationDate,
    &L::minQuantity,
    &L::multipleQuantity,
    &L::ofsSize,
    &L::retailLimit,
    &L::nonRetailLimit,
    &L::closingTime,
    &L::discVp,
    &L::discount,
    &L::issueNotes,
    &L::prospectusUrl,
    &L::cutOff,
    &L::companyName,
    &L::underlyingToken,
    &L::ceilingPrice,
    &L::indicativePrice,
    &L::symbolDisplay,
    &L::orderPlacement,
};

sOFSCol issueOfLine(const IssueFileLine& line) {
  sOFSCol issue;
  for (const PlainColumn& c : kPlainColumns) issue.*c.member = line.*c.column;
  issue.category = seriesOfExchange(line.exchange, line.series);
  issue.symbol = line.symbolName + "-" + issue.category;
  issue.tickSizeText = rupeesText(line.tickSize);
  issue.tickSize = leadingDouble(issue.tickSizeText);
  issue.floorPrice = rupeesText(line.floorPrice);
  issue.field54079 = rupeesText(line.rmsPrice);
  issue.field49165 = issueDayText(issueFileDate(line.startDate).value_or(0));
  issue.field79 = issueDayText(issueFileDate(line.closeDate).value_or(0));
  issue.field107 = issueDayText(issueFileDate(line.finalModificationDate).value_or(0));
  issue.minQuantity = leadingInt64(line.minQuantity);
  issue.minQuantityText = std::to_string(issue.minQuantity);
  issue.lotSize = leadingInt64(line.multipleQuantity);
  issue.lotSizeText = std::to_string(issue.lotSize);
  issue.issueSizeText = std::to_string(leadingInt64(line.ofsSize));
  issue.issueSize = leadingDouble(issue.issueSizeText);
  issue.field67 = issueTimeText(issueFileTime(line.closingTime).value_or(0));
  return issue;
}

bool readIssueFileLine(std::string_view text, std::optional<IssueDay> today, sOFSCol& issue,
                       std::string& message) {
  // The line end counts, so an empty text is one cut short by a NUL byte.
  if (text.empty()) {
    message = "Upload Issue Read Error: Line is Empty ";
    return false;
  }
  if (text.find(',') == std::string_view::npos) {
    message = "Upload Issue Read Error: Invalid Format: Not a CSV File ";
    return false;
  }
  // Columns a short line lacks stay empty and are refused as blank by the checks.
  IssueFileLine line;
  BidFieldSplitter splitter(text, -1);
  for (auto column : kIssueFileColumns)
    if (!splitter.next(line.*column)) break;
  message = checkIssueFileLine(line, today);
  if (!message.empty()) return false;
  issue = issueOfLine(line);
  return true;
}

IssueFileRead loadIssueFile(const std::string& path, std::optional<IssueDay> today) {
  File in(std::fopen(path.c_str(), "rb"), &std::fclose);
  if (!in) return {};
  return readIssueFile(in.get(), today);
}

IssueFileRead readIssueFile(std::FILE* file, std::optional<IssueDay> today) {
  IssueFileRead read;
  BidLineReader reader(file);
  std::string_view text;
  sOFSCol issue;
  std::string message;
  int pieces = 0;
  while (reader.next(text)) {
    const int number = pieces++;
    if (number == 0 || isEmptyLine(text)) continue;  // the header is never checked
    if (readIssueFileLine(text, today, issue, message))
      read.issues.push_back(std::move(issue));
    else
      read.refusals.push_back({number, reader.lineNumber(), message});
  }
  // A folder opens but cannot be read; like a file that cannot be opened, it reads nothing.
  if (reader.failed()) return {};
  read.records = pieces > 0 ? pieces - 1 : 0;
  read.opened = true;
  return read;
}

std::string issueFileLineOf(const sOFSCol& issue) {
  // Each limit only for the series it belongs to, as the upload wants it.
  const bool retail = !isNonRetailSeries(issue.category);
  const bool nonRetail = !isRetailLikeSeries(issue.category);
  const std::string columns[kIssueFileColumnCount] = {
      issue.exchange,
      issue.field3,
      seriesWord(issue.category),
      issue.field13041,
      issue.field13004,
      fixedText(issue.tickSize, 2),
      priceColumn(issue.floorPrice),
      priceColumn(issue.field54079),
      issue.field49165,
      issue.field79,
      issue.field107,
      formatText("%lld", static_cast<long long>(issue.minQuantity)),
      formatText("%lld", static_cast<long long>(issue.lotSize)),
      fixedText(issue.issueSize, 0),
      retail ? issue.field54009 : std::string(),
      nonRetail ? issue.hniLimit : std::string(),
      issue.field67,
      issue.field12020,
      issue.field12019,
      issue.field61002,
      issue.field10046,
      issue.field63059,
      issue.field49033,
      issue.assetSymbol,
      priceColumn(issue.field63023),
      priceColumn(issue.field54803),
      issue.field63017,
      issue.biddingFlag,
  };
  std::string line;
  for (const std::string& column : columns) (line += column) += ',';
  line.pop_back();
  return line;
}

std::string issueFileText(const std::vector<const sOFSCol*>& issues) {
  std::string text = kIssueFileHeader;
  text += '\n';
  for (const sOFSCol* issue : issues) (text += issueFileLineOf(*issue)) += '\n';
  return text;
}
