// A prompt port that records what the screen said; every question is answered yes.
#pragma once

#include <string>
#include <vector>

#include "domain/prompt_port.h"

using Lines = std::vector<std::string>;

class RecordingPrompt : public PromptPort {
 public:
  void message(const std::string& text) override { messages_.push_back(text); }
  bool question(const std::string&) override { return true; }
  std::string chooseFile(bool, const std::string&, const std::string&) override { return {}; }
  void focus(const std::string& field) override { focused_.push_back(field); }

  const Lines& messages() const { return messages_; }
  const Lines& focused() const { return focused_; }
  void clear() {
    messages_.clear();
    focused_.clear();
  }

 private:
  Lines messages_;
  Lines focused_;
};
