// The basket list saved as a plain CSV file, one bid per line, and loaded back.
#pragma once

#include <array>
#include <cstdio>
#include <string>
#include <string_view>
#include <vector>

#include "domain/place_order.h"

inline constexpr int kBasketColumnCount = 10;

// The list's column titles, which are also the file's fields, in order.
const std::array<const char*, kBasketColumnCount>& basketColumns();
// The text of a row's column as the list shows it and the file holds it; empty out of range.
std::string basketColumnText(const sOFSPlaceOrder& row, int column);
// The ten fields of a row, each followed by a comma, without the line feed.
std::string basketLine(const sOFSPlaceOrder& row);

// Writes the rows (top row first) and returns the message for the user. A file that fails to
// be written keeps its old content.
std::string saveBasketFile(const std::string& path, const std::vector<const sOFSPlaceOrder*>& rows);

// One line the load skipped, numbered as an editor shows it.
struct BasketRefusal {
  int line = 0;
  std::string message;
};

struct BasketLoad {
  bool opened = false;               // false: report "File Open Error"; nothing was loaded
  std::vector<sOFSPlaceOrder> rows;  // in list order: the file's good lines, last one first
  int lines = 0;                     // the lines read, each piece of an over-long line counted
  std::vector<BasketRefusal> refusals;
};

BasketLoad loadBasketFile(const std::string& path, const std::string& userId);
// The same from a file already open for reading.
BasketLoad readBasketFile(std::FILE* file, const std::string& userId);

// Turns one line as read (its line end included) into a row; false with the message when the
// line is refused.
bool readBasketLine(std::string_view line, const std::string& userId, sOFSPlaceOrder& row,
                    std::string& message);
