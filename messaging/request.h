// A request is data: its name, its failure prefix, the receive control it goes through and
// its fields in sending order. Values are views: whatever they point at must outlive send().
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

enum class Control : int { First = 0, Second = 1, Third = 2, Fourth = 3, Fifth = 4 };
constexpr int kControlCount = 5;

class Request {
 public:
  struct Field {
    uint32_t id;
    std::string_view value;
  };
  static constexpr size_t kMaxFields = 64;

  Request(std::string_view name, std::string_view failurePrefix, Control control)
      : name_(name), prefix_(failurePrefix), control_(control) {}

  Request& add(uint32_t id, std::string_view value) {
    if (count_ < kMaxFields) fields_[count_++] = {id, value};
    return *this;
  }
  Request& addIf(bool condition, uint32_t id, std::string_view value) {
    return condition ? add(id, value) : *this;
  }

  std::string_view name() const { return name_; }
  std::string_view prefix() const { return prefix_; }
  Control control() const { return control_; }
  size_t size() const { return count_; }
  const Field& operator[](size_t i) const { return fields_[i]; }

 private:
  std::string_view name_;
  std::string_view prefix_;
  Control control_;
  std::array<Field, kMaxFields> fields_{};
  size_t count_ = 0;
};
