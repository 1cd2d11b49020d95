#include "issues/issue_file_text.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <ctime>

#include "domain/issue_price_rules.h"
#include "domain/number_text.h"
#include "domain/prices.h"
#include "messaging/text_format.h"

namespace {

constexpr size_t kAmountDigits = 15;
constexpr size_t kPaiseDigits = 2;
constexpr size_t kQuantityDigits = 18;
constexpr double kPaiseBound = 1e15;

bool isDigit(char c) {
  return c >= '0' && c <= '9';
}

IssueDay dayNumber(int year, int month, int day) {
  using namespace std::chrono;
  return sys_days{std::chrono::year{year} / static_cast<unsigned>(month) /
                  static_cast<unsigned>(day)}
      .time_since_epoch()
      .count();
}

// Reads the issue file's date and time texts left to right.
struct Cursor {
  std::string_view text;
  size_t pos = 0;

  bool atEnd() const { return pos >= text.size(); }
  bool at(char c) const { return !atEnd() && text[pos] == c; }
  bool letter() const {
    return !atEnd() &&
           ((text[pos] >= 'A' && text[pos] <= 'Z') || (text[pos] >= 'a' && text[pos] <= 'z'));
  }
  // Between `least` and `most` digits.
  bool number(size_t least, size_t most, int& out) {
    const size_t start = pos;
    out = 0;
    while (!atEnd() && isDigit(text[pos]) && pos - start < most)
      out = out * 10 + (text[pos++] - '0');
    return pos - start >= least && (atEnd() || !isDigit(text[pos]));
  }
  // A three-letter month name, capital first, as the issue list writes it.
  bool monthName(int& out) {
    if (text.size() - pos < 3) return false;
    out = monthNumber(std::string(text.substr(pos, 3)).c_str());
    pos += 3;
    return out != 0;
  }
};

}  // namespace

bool isAmountText(const std::string& text) {
  const size_t point = text.find('.');
  const size_t whole = point == std::string::npos ? text.size() : point;
  const size_t paise = point == std::string::npos ? 0 : text.size() - point - 1;
  const bool digitsOnly =
      std::all_of(text.begin(), text.end(), [](char c) { return isDigit(c) || c == '.'; });
  const bool onePoint = std::count(text.begin(), text.end(), '.') <= 1;
  return digitsOnly && onePoint && whole + paise > 0 && whole <= kAmountDigits &&
         paise <= kPaiseDigits;
}

bool isPositiveAmountText(const std::string& text) {
  return isAmountText(text) && amountTextPaise(text) > 0;
}

int64_t amountTextPaise(const std::string& text) {
  return decimalTextPaise(text);
}

bool isQuantityText(const std::string& text) {
  return !text.empty() && text.size() <= kQuantityDigits &&
         std::all_of(text.begin(), text.end(), isDigit) && leadingInt64(text) > 0;
}

int64_t boundedPaise(const std::string& text) {
  if (isRupeeText(text)) return rupeeTextPaise(text);
  const double paise = leadingDouble(text) * 100.0;
  if (!(paise > 0.0)) return 0;
  return std::llround(std::min(paise, kPaiseBound));
}

std::string rupeesText(const std::string& text) {
  const int64_t paise = boundedPaise(text);
  return formatText("%lld.%02lld", static_cast<long long>(paise / 100),
                    static_cast<long long>(paise % 100));
}

std::string issueDayText(IssueDay day) {
  using namespace std::chrono;
  const year_month_day ymd{sys_days{days{day}}};
  return formatText("%02u/%02u/%04d", static_cast<unsigned>(ymd.day()),
                    static_cast<unsigned>(ymd.month()), static_cast<int>(ymd.year()));
}

std::string issueTimeText(int seconds) {
  return formatText("%02d:%02d:%02d", seconds / 3600, seconds / 60 % 60, seconds % 60);
}

std::optional<IssueDay> issueFileDate(std::string_view text) {
  Cursor c{text};
  int day = 0;
  int month = 0;
  int year = 0;
  if (!c.number(1, 2, day)) return std::nullopt;
  const char separator = c.at('/') || c.at('-') ? text[c.pos++] : '\0';
  if (c.letter()) {
    if (!c.monthName(month)) return std::nullopt;
  } else if (separator == '\0' || !c.number(1, 2, month)) {
    return std::nullopt;
  }
  if (separator != '\0' && !c.at(separator)) return std::nullopt;
  if (separator != '\0') ++c.pos;
  if (!c.number(4, 4, year) || !c.atEnd()) return std::nullopt;
  using namespace std::chrono;
  const year_month_day ymd{std::chrono::year{year},
                           std::chrono::month{static_cast<unsigned>(month)},
                           std::chrono::day{static_cast<unsigned>(day)}};
  if (!ymd.ok()) return std::nullopt;
  return dayNumber(year, month, day);
}

std::optional<int> issueFileTime(std::string_view text) {
  Cursor c{text};
  int hour = 0;
  int minute = 0;
  int second = 0;
  if (!c.number(1, 2, hour) || !c.at(':')) return std::nullopt;
  ++c.pos;
  if (!c.number(2, 2, minute)) return std::nullopt;
  if (c.at(':')) {
    ++c.pos;
    if (!c.number(2, 2, second)) return std::nullopt;
  }
  if (!c.atEnd() || hour > 23 || minute > 59 || second > 59) return std::nullopt;
  return hour * 3600 + minute * 60 + second;
}

IssueDay localIssueDay(int64_t seconds) {
  const std::time_t t = static_cast<std::time_t>(seconds);
  std::tm local{};
  localtime_r(&t, &local);
  return dayNumber(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}
