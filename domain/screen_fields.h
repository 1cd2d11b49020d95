// A screen's text field and list as its logic holds them and a view shows them.
#pragma once

#include <string>
#include <vector>

struct EntryText {
  std::string text;
  bool enabled = true;
  bool visible = true;
};

struct EntryChoice {
  std::vector<std::string> items;
  std::string selected;  // empty: nothing selected
  bool enabled = true;
};
