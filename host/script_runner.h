// Runs a terminal script against the loaded plug-in and writes the transcript.
#pragma once

#include <QPointer>
#include <QString>
#include <string>
#include <vector>

#include "host/plugin_loader.h"
#include "host/script_line.h"

class MainWindow;
class DialogRobot;
class QObject;
class QTableView;
class QWidget;

struct HotkeyRegistration {
  QPointer<QObject> view;  // null once the registering window is gone
  std::string caption;
  int number;
  std::string name;
  std::string key;
  std::string owner;
};

class ScriptRunner {
 public:
  ScriptRunner(MainWindow& window, LoadedPlugin& plugin, DialogRobot& robot, QString scriptDir,
               std::vector<HotkeyRegistration>& hotkeys);

  // 0 when the script ran to its end; 2 after a malformed line (reported on stderr).
  int run(const std::string& scriptName, const std::vector<std::string>& lines);
  // Lets queued work (answers, posted subscriptions) run until nothing is left.
  static void settle();

 private:
  // Empty on success; otherwise what is wrong with the line.
  std::string execute(const std::vector<std::string>& w);
  std::string deliver(const std::vector<std::string>& w, bool liveUpdate);
  std::string select(const std::vector<std::string>& w);
  std::string selectInTable(const std::string& screenName, const std::vector<std::string>& args);
  static void selectRows(QTableView& table, const std::vector<std::string>& keys);
  std::string dump(const std::vector<std::string>& w);
  void dumpDetails(QWidget& screen);
  std::string drive(const std::string& verb, const std::vector<std::string>& w);
  std::string invokeOnWatchView(const char* method, int number);
  QWidget* watchView() const;

  MainWindow& window_;
  LoadedPlugin& plugin_;
  DialogRobot& robot_;
  QString scriptDir_;
  std::vector<HotkeyRegistration>& hotkeys_;
};
