// The exchanges' allotment files, one allotted bid per line, read and checked the way the
// allotment upload takes them. The upload screen and the command-line checker both go through
// here, so they refuse the same lines with the same texts and the same line numbers.
#pragma once

#include <cstdio>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "domain/allotment_row.h"

// Each exchange writes its own layout and the user picks the upload by exchange.
enum class AllotmentLayout { Nse, Bse };

// "bse_ipo" reads the BSE layout; any other key the NSE one.
AllotmentLayout allotmentLayoutOf(const std::string& exchange);
// The key an accepted line is stamped with and sent under: "nse_ipo" or "bse_ipo".
const char* allotmentExchangeKey(AllotmentLayout layout);

// Whether the text is the layout's header line, which the upload skips and does not count.
bool isAllotmentHeader(std::string_view text, AllotmentLayout layout);

// The checks of each layout on a line's texts as read; the first failure's message, or empty.
std::string checkBseAllotment(const sOFSAllotmentRow& row);
std::string checkNseAllotment(const sOFSAllotmentRow& row);

// One piece of the file as BidLineReader hands it out (its line end included) into `row`:
// read, checked, its two prices turned into paise and the row stamped with the exchange key.
// Returns the refusal's message, or an empty text when the line is accepted.
std::string readAllotmentLine(std::string_view text, AllotmentLayout layout, sOFSAllotmentRow& row);

// One line of the file after the reader and the checks have seen it.
struct AllotmentLine {
  int line = 0;          // as an editor numbers it: the file's first line, a header too, is 1
  std::string message;   // empty when accepted
  sOFSAllotmentRow row;  // the accepted line, ready to send
};
using AllotmentVisitor = std::function<void(AllotmentLine& line)>;

// Hands every line but the header to `visit`, in file order, as soon as it is read. False when
// the file cannot be opened or read ("File Open Error"); lines visited before a read failure
// stay visited.
bool readAllotmentFile(const std::string& path, AllotmentLayout layout,
                       const AllotmentVisitor& visit);
// The same from a file already open for reading.
bool readAllotmentFile(std::FILE* file, AllotmentLayout layout, const AllotmentVisitor& visit);

struct AllotmentRefusal {
  int line = 0;
  std::string message;
};

struct AllotmentLoad {
  bool opened = false;  // false: "File Open Error"; nothing was read
  std::vector<sOFSAllotmentRow> rows;
  std::vector<AllotmentRefusal> refusals;
  int lines = 0;  // the records: every line read but the header
};

// The whole file at once, for the checker and the tests.
AllotmentLoad loadAllotmentFile(const std::string& path, AllotmentLayout layout);
