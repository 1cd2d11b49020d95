// Showing a screen's text fields and lists in their widgets.
#pragma once

#include <QString>
#include <string>

#include "domain/screen_fields.h"

class QComboBox;
class QLineEdit;

inline QString q(const std::string& text) {
  return QString::fromStdString(text);
}

// Text, enabled and visible states; an unchanged text is left alone so the cursor stays.
void showField(QLineEdit* edit, const EntryText& field);
// Entries, selection and enabled state, without announcing the selection as the user's.
void showField(QComboBox* list, const EntryChoice& choice);
