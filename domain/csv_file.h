// Lists written out as CSV files for a spreadsheet.
#pragma once

#include <string>
#include <vector>

using CsvRow = std::vector<std::string>;

// One line of CSV: a field holding a comma, a double quote or a line break is quoted, its
// quotes doubled.
std::string csvLine(const CsvRow& row);

// Writes the rows to a temporary file beside `path`, then renames it over `path`, so a failed
// write leaves whatever was there before. False when nothing was written.
bool writeCsvFile(const std::string& path, const std::vector<CsvRow>& rows);
