#include "domain/csv_file.h"

#include "domain/file_replace.h"

std::string csvLine(const CsvRow& row) {
  std::string line;
  for (size_t i = 0; i < row.size(); ++i) {
    if (i > 0) line += ',';
    const std::string& field = row[i];
    if (field.find_first_of(",\"\r\n") == std::string::npos) {
      line += field;
      continue;
    }
    line += '"';
    for (char c : field) {
      if (c == '"') line += '"';
      line += c;
    }
    line += '"';
  }
  return line;
}

bool writeCsvFile(const std::string& path, const std::vector<CsvRow>& rows) {
  std::string text;
  for (const CsvRow& row : rows) text += csvLine(row) + "\r\n";
  return writeTextFile(path, text) == TextFileWrite::Written;
}
