// A good comma-separated line with some of its columns (numbered from 1) replaced; a column past
// the end lengthens the line.
#pragma once

#include <algorithm>
#include <map>
#include <sstream>
#include <string>
#include <vector>

inline std::string withColumns(const std::string& good, const std::map<int, std::string>& changes,
                               const char* end = "\n") {
  std::vector<std::string> columns;
  std::istringstream in(good);
  for (std::string column; std::getline(in, column, ',');) columns.push_back(column);
  for (const auto& [column, text] : changes) {
    columns.resize(std::max(columns.size(), static_cast<size_t>(column)));
    columns[static_cast<size_t>(column - 1)] = text;
  }
  std::string line;
  for (const std::string& text : columns) (line += text) += ',';
  line.pop_back();
  return line + end;
}
