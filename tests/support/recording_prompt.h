// A prompt port that records what the screen said and answers from a queue.
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
    bool answer = answers_.front();
    answers_.pop_front();
    return answer;
  }
  std::string chooseFile(bool, const std::string&, const std::string&) override {
    if (files_.empty()) return {};
    std::string file = files_.front();
    files_.pop_front();
    return file;
  }
  void focus(const std::string& field) override { focused_.push_back(field); }

  void answerNext(bool yes) { answers_.push_back(yes); }
  void chooseNext(const std::string& file) { files_.push_back(file); }

  const Lines& messages() const { return messages_; }
  const Lines& questions() const { return questions_; }
  const Lines& focused() const { return focused_; }
  void clear() {
    messages_.clear();
    questions_.clear();
    focused_.clear();
  }

 private:
  Lines messages_;
  Lines questions_;
  Lines focused_;
  std::deque<bool> answers_;
  std::deque<std::string> files_;
};
