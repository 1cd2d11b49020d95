// A record is filled from a table of (answer field, member) pairs kept beside it, by one loop.
#pragma once

#include <cstdint>
#include <span>
#include <string>

#include "messaging/field_readers.h"

template <class Record>
struct TextField {
  uint32_t id;
  std::string Record::*member;
};

// Each member gets its field's text, in table order; an absent field empties the member.
template <class Record>
void fillText(const MessageView& row, Record& record, std::span<const TextField<Record>> table) {
  for (const TextField<Record>& f : table) row.text(f.id, 0, record.*f.member);
}
