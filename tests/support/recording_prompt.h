// A prompt port that records what the screen said and asked; a question takes the next queued
// answer, yes when none is queued.
#pragma once

#include <deque>
#include <string>
#include <vector>

#include "domain/prompt_port.h"

using Lines = std::vector<std::string>;

class RecordingPrompt : public PromptPort {
 public:
  void message(const std::string& text) override { messages_.push_back(text); }
  bool question(const std::string& text) override {
    questions_.push_back(text);
    if (answers_.empty()) return true;
    const bool yes = answers_.front();
    answers_.pop_front();
    return yes;
  }
  void queueAnswer(bool yes) { answers_.push_back(yes); }
  // The file chooser answers with the queued paths, then cancels.
  std::string chooseFile(bool, const std::string&, const std::string&) override {
    if (files_.empty()) return {};
    std::string path = files_.front();
    files_.pop_front();
    return path;
  }
  void queueFile(const std::string& path) { files_.push_back(path); }
  void focus(const std::string& field) override { focused_.push_back(field); }

  const Lines& messages() const { return messages_; }
  const Lines& focused() const { return focused_; }
  const Lines& questions() const { return questions_; }
  void clear() {
    messages_.clear();
    focused_.clear();
    questions_.clear();
    answers_.clear();
    files_.clear();
  }

 private:
  std::deque<bool> answers_;
  std::deque<std::string> files_;
  Lines questions_;
  Lines messages_;
  Lines focused_;
};
