#include "domain/issue_date.h"

#include <cctype>
#include <ctime>

#include "domain/prices.h"

namespace {

bool isLeapYear(int year) {
  return (year % 4 == 0 && year % 100 != 0) || year % 400 == 0;
}

bool dayFitsMonth(int day, int month, int year) {
  if (month < 1 || month > 12 || day < 1 || day > 31) return false;
  if (month == 2) return day <= (isLeapYear(year) ? 29 : 28);
  if (month == 4 || month == 6 || month == 9 || month == 11) return day <= 30;
  return true;
}

struct Cursor {
  const std::string& text;
  size_t pos = 0;

  bool atEnd() const { return pos >= text.size(); }
  bool digit() const { return !atEnd() && std::isdigit(static_cast<unsigned char>(text[pos])); }
  bool letter() const { return !atEnd() && std::isalpha(static_cast<unsigned char>(text[pos])); }
  void skipSeparator() {
    if (!atEnd() && (text[pos] == '/' || text[pos] == '-' || text[pos] == ' ' || text[pos] == '.'))
      ++pos;
  }
  bool number(int& out, size_t maxDigits) {
    size_t start = pos;
    out = 0;
    while (digit() && pos - start < maxDigits) out = out * 10 + (text[pos++] - '0');
    return pos > start;
  }
  std::string word() {
    size_t start = pos;
    while (letter()) ++pos;
    return text.substr(start, pos - start);
  }
};

}  // namespace

int64_t parseIssueDate(const std::string& text) {
  Cursor c{text};
  while (!c.atEnd() && text[c.pos] == ' ') ++c.pos;
  int day = 0;
  int month = 0;
  int year = 0;
  if (!c.number(day, 2)) return -1;
  c.skipSeparator();
  if (c.letter()) {
    month = monthNumber(c.word().c_str());
    if (month == 0) return -1;
  } else if (!c.number(month, 2)) {
    return -1;
  }
  c.skipSeparator();
  if (!c.number(year, 4)) return -1;
  if (!dayFitsMonth(day, month, year)) return -1;

  std::tm tm{};
  tm.tm_mday = day;
  tm.tm_mon = month - 1;
  tm.tm_year = year - 1900;
  tm.tm_isdst = -1;
  return static_cast<int64_t>(std::mktime(&tm));
}
