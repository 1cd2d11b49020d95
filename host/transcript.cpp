#include "host/transcript.h"

#include <QCoreApplication>
#include <QMetaObject>
#include <QThread>

bool Transcript::open(const std::string& path) {
  FILE* f = std::fopen(path.c_str(), "w");
  if (!f) return false;
  out_ = f;
  return true;
}

Transcript::~Transcript() {
  if (out_ && out_ != stdout) std::fclose(out_);
}

void Transcript::line(const std::string& text) {
  if (!enabled_) return;
  std::fputs(text.c_str(), out_);
  std::fputc('\n', out_);
  std::fflush(out_);
}

void Transcript::lineFromAnyThread(const std::string& text) {
  QCoreApplication* app = QCoreApplication::instance();
  if (!app || QThread::currentThread() == app->thread()) {
    line(text);
    return;
  }
  QMetaObject::invokeMethod(
      app, [this, text] { line(text); }, Qt::QueuedConnection);
}

Transcript& transcript() {
  static Transcript t;
  return t;
}
