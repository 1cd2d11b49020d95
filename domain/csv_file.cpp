#include "domain/csv_file.h"

#include <cstdio>
#include <fstream>

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
  const std::string temporary = path + ".tmp";
  {
    std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
    if (!out) return false;
    for (const CsvRow& row : rows) out << csvLine(row) << "\r\n";
    if (!out.flush()) {
      out.close();
      std::remove(temporary.c_str());
      return false;
    }
  }
  if (std::rename(temporary.c_str(), path.c_str()) == 0) return true;
  std::remove(temporary.c_str());
  return false;
}
