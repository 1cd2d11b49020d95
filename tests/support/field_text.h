// Message fields written the way the transcripts print them, so a row reads like the wire:
// "32767=mrv_master 63001=nse_ipo 32760=Asset LTP 63080=". A word that does not start with
// "<digits>=" continues the value before it, so values may hold single blanks or be empty.
#pragma once

#include <cstdint>
#include <sstream>
#include <string>
#include <utility>
#include <vector>

inline std::vector<std::pair<uint32_t, std::string>> fieldsOf(const std::string& text) {
  std::vector<std::pair<uint32_t, std::string>> fields;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const size_t equals = word.find('=');
    if (equals > 0 && equals != std::string::npos &&
        word.find_first_not_of("0123456789") == equals) {
      fields.emplace_back(std::stoul(word.substr(0, equals)), word.substr(equals + 1));
    } else {
      fields.back().second += " " + word;
    }
  }
  return fields;
}

// The transcript line of a request, its fields written as for fieldsOf: wireLine("send 1
// om_filter_order_ofs", "64001=17") is `send 1 om_filter_order_ofs 64001="17"`.
inline std::string wireLine(const std::string& head, const std::string& fieldText) {
  std::ostringstream line;
  line << head;
  for (const auto& [id, value] : fieldsOf(fieldText)) line << " " << id << "=\"" << value << "\"";
  return line.str();
}
