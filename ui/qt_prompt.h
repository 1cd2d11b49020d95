// Message boxes, Yes/No questions and file choosers as modal Qt dialogs.
#pragma once

#include "domain/prompt_port.h"

class QWidget;

class QtPrompt : public PromptPort {
 public:
  void message(const std::string& text) override;
  void titledMessage(const std::string& title, const std::string& text) override;
  bool question(const std::string& text) override;
  std::string chooseFile(bool saving, const std::string& suggestedName,
                         const std::string& filter) override;
  void focus(const std::string& field) override;

 private:
  QWidget* parentWindow() const;
};
