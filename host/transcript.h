// The headless terminal's record of what happened, one event a line.
#pragma once

#include <cstdio>
#include <string>

class Transcript {
 public:
  // Writes to stdout until open() names a file.
  bool open(const std::string& path);
  ~Transcript();
  void line(const std::string& text);
  // Called from any thread: the line is written on the UI thread, after what is queued there.
  void lineFromAnyThread(const std::string& text);
  void setEnabled(bool on) { enabled_ = on; }

 private:
  FILE* out_ = stdout;
  bool enabled_ = false;
};

Transcript& transcript();
