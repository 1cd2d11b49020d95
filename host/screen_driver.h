// How a script reaches a screen's fields and buttons: by the label shown beside a field (or
// the field's accessible name, for fields without a label), and by a button's or a menu
// command's text. The screen's own signals fire as if a user had done it.
#pragma once

#include <string>

class QWidget;

// Each returns empty on success, otherwise what is wrong.
std::string setField(QWidget& screen, const std::string& label, const std::string& text);
// A tick box by its label, or a row of the screen's first list by its number (1 is the top).
std::string tickBox(QWidget& screen, const std::string& label, bool on);
std::string pickChoice(QWidget& screen, const std::string& label, const std::string& choice);
std::string pressButton(QWidget& screen, const std::string& text);
