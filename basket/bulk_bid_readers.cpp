#include "basket/bulk_bid_readers.h"

#include <algorithm>

#include "domain/bid_field_splitter.h"
#include "domain/bid_line_reader.h"

namespace {

constexpr char kInvalidFormat[] = "Invalid Format";

std::string_view firstPiece(std::string_view text) {
  return text.substr(0, BidLineReader::kPieceLimit);
}

// Nothing but a line end counts as empty too: the line holds no character of its own.
bool isEmptyLine(std::string_view text) {
  return text.empty() || text == "\n" || text == "\r\n";
}

// Fills the line's fields from `start`; at most `limit` are kept.
void splitInto(std::string_view text, long start, size_t limit, BidLine& line) {
  BidFieldSplitter splitter(text, start);
  std::string_view field;
  for (size_t n = 0; n < limit && splitter.next(field); ++n) {
    line.setField(n, static_cast<size_t>(field.data() - text.data()), field.size());
  }
}

// The exchanges' layouts: an exact comma count, and the first character is no field's (start 0).
std::string readExchangeLine(BidFileKind kind, std::string_view text, const char* leadingComma,
                             long commas, BidLine& line) {
  text = firstPiece(text);
  if (isEmptyLine(text)) return kInvalidFormat;
  if (text.front() == ',') return leadingComma;
  if (std::count(text.begin(), text.end(), ',') != commas) return kInvalidFormat;
  line.reset(kind, text);
  splitInto(line.text(), 0, static_cast<size_t>(commas) + 1, line);
  return {};
}

}  // namespace

std::string readNeatLine(std::string_view text, BidLine& line) {
  return readExchangeLine(BidFileKind::Neat, text, "Invalid Book Type", 9, line);
}

std::string readNowLine(std::string_view text, BidLine& line) {
  return readExchangeLine(BidFileKind::Now, text, "Invalid Client Type", 10, line);
}

std::string readNowModCxlLine(std::string_view text, BidLine& line) {
  return readExchangeLine(BidFileKind::NowModCxl, text, "Invalid Client type", 11, line);
}

// The terminal's own layout: its first field starts at the first character (start -1) and the
// commas are not counted. The trailing blanks of both texts are intended.
std::string readVtLine(std::string_view text, BidLine& line) {
  text = firstPiece(text);
  if (isEmptyLine(text)) return "Basket Read Error: Line is Empty ";
  if (text.find(',') == std::string_view::npos) {
    return "Basket Read Error: Invalid Format: Not a CSV File ";
  }
  line.reset(BidFileKind::Vt, text);
  splitInto(line.text(), -1, 11, line);
  return {};
}

std::string readBidLine(BidFileKind kind, std::string_view text, BidLine& line) {
  switch (kind) {
    case BidFileKind::Neat:
      return readNeatLine(text, line);
    case BidFileKind::Now:
      return readNowLine(text, line);
    case BidFileKind::NowModCxl:
      return readNowModCxlLine(text, line);
    case BidFileKind::Vt:
      break;
  }
  return readVtLine(text, line);
}
