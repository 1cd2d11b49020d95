// Everything a screen says to the user or asks of them. The Qt views implement it with modal
// dialogs; the headless terminal writes transcript lines; tests record.
#pragma once

#include <string>

class PromptPort {
 public:
  // A modal message box showing `text` alone: no caption of the plug-in's own, no icon.
  virtual void message(const std::string& text) = 0;
  // A message box with a caption of its own, for the refusals of typing filters.
  virtual void titledMessage(const std::string& title, const std::string& text) {
    (void)title;
    message(text);
  }
  // A Yes/No question; true for yes.
  virtual bool question(const std::string& text) = 0;
  // A file chooser; an empty result means the user cancelled. `saving` picks the save dialog.
  virtual std::string chooseFile(bool saving, const std::string& suggestedName,
                                 const std::string& filter) = 0;
  // Moves the keyboard focus to the field a refusal names (its label).
  virtual void focus(const std::string& field) = 0;

 protected:
  ~PromptPort() = default;
};
