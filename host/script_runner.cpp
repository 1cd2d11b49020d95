#include "host/script_runner.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QEventLoop>
#include <QHeaderView>
#include <QLabel>
#include <QTableView>
#include <QTimer>
#include <QWidget>
#include <algorithm>
#include <iostream>

#include "connectvorn/connectvorn.h"
#include "host/dialog_robot.h"
#include "host/host_state.h"
#include "host/main_window.h"
#include "host/rx_controls.h"
#include "host/screen_driver.h"
#include "host/transcript.h"

namespace {

bool toInt(const std::string& text, int& out) {
  try {
    size_t used = 0;
    out = std::stoi(text, &used);
    return used == text.size();
  } catch (...) {
    return false;
  }
}

std::string rowLine(const std::string& list, const char* tab, const QTableView& view, int row) {
  std::string line = "row " + list + " " + tab;
  const QHeaderView* header = view.horizontalHeader();
  for (int visual = 0; visual < header->count(); ++visual) {
    const int column = header->logicalIndex(visual);
    line += ' ';
    line += otpx::quote(view.model()->index(row, column).data().toString().toStdString());
  }
  return line;
}

}  // namespace

ScriptRunner::ScriptRunner(MainWindow& window, LoadedPlugin& plugin, DialogRobot& robot,
                           QString scriptDir, std::vector<HotkeyRegistration>& hotkeys)
    : window_(window),
      plugin_(plugin),
      robot_(robot),
      scriptDir_(std::move(scriptDir)),
      hotkeys_(hotkeys) {}

void ScriptRunner::settle() {
  for (int pass = 0; pass < 20; ++pass) QCoreApplication::processEvents(QEventLoop::AllEvents);
}

int ScriptRunner::run(const std::string& scriptName, const std::vector<std::string>& lines) {
  for (size_t i = 0; i < lines.size(); ++i) {
    const auto words = splitScriptWords(lines[i]);
    std::string error;
    if (!words) {
      error = "unterminated quote";
    } else if (!words->empty()) {
      error = execute(*words);
    }
    if (!error.empty()) {
      std::cerr << scriptName << ":" << i + 1 << ": " << error << "\n";
      return 2;
    }
    settle();
  }
  return 0;
}

std::string ScriptRunner::execute(const std::vector<std::string>& w) {
  const std::string& verb = w[0];
  const std::vector<std::string> args(w.begin() + 1, w.end());
  if (verb == "host") return hostState().apply(args);
  if (verb == "init") {
    if (!args.empty()) return "init takes no arguments";
    plugin_.init(&window_, hostState().user, hostState().loginKind, nullptr);
    plugin_.running = true;
    return {};
  }
  if (verb == "exit") {
    if (!args.empty()) return "exit takes no arguments";
    plugin_.exit();
    plugin_.running = false;
    return {};
  }
  if (verb == "reply" || verb == "update") return deliver(args, verb == "update");
  if (verb == "select") return select(args);
  if (verb == "command" || verb == "hotkey") {
    int number = 0;
    if (args.size() != 1 || !toInt(args[0], number)) return verb + " needs one number";
    if (verb == "command") return invokeOnWatchView("runCommand", number);
    // The newest live registration wins: a window that was closed and opened again
    // registered anew.
    for (auto h = hotkeys_.rbegin(); h != hotkeys_.rend(); ++h) {
      if (h->number != number || !h->view) continue;
      QMetaObject::invokeMethod(h->view, "onHostHotkey", Q_ARG(int, number));
      return {};
    }
    return {};  // a key nobody registered does nothing, as on a real keyboard
  }
  if (verb == "answer") {
    if (args.size() != 1 || (args[0] != "yes" && args[0] != "no")) return "answer yes|no";
    robot_.queueAnswer(args[0] == "yes");
    return {};
  }
  if (verb == "file") {
    if (args.size() != 1) return "file needs one path";
    robot_.queueFile(QDir(scriptDir_).absoluteFilePath(QString::fromStdString(args[0])));
    return {};
  }
  if (verb == "activate") {
    if (args.size() != 1) return "activate needs one client id";
    if (plugin_.clientActivation) plugin_.clientActivation(args[0], nullptr, nullptr);
    return {};
  }
  if (verb == "wait") {
    int ms = 0;
    if (args.size() != 1 || !toInt(args[0], ms) || ms < 0) return "wait needs milliseconds";
    QEventLoop loop;
    QTimer::singleShot(ms, &loop, &QEventLoop::quit);
    loop.exec();
    return {};
  }
  if (verb == "dump") return dump(args);
  if (verb == "set" || verb == "tick" || verb == "pick" || verb == "press")
    return drive(verb, args);
  return "unknown verb \"" + verb + "\"";
}

std::string ScriptRunner::drive(const std::string& verb, const std::vector<std::string>& w) {
  const size_t wanted = verb == "press" ? 1 : 2;
  if (w.size() != wanted)
    return verb + (wanted == 1 ? " needs one text" : " needs a label and a value");
  QWidget* screen = robot_.activeScreen();
  if (!screen) return "no screen is open";
  if (verb == "set") return setField(*screen, w[0], w[1]);
  if (verb == "pick") return pickChoice(*screen, w[0], w[1]);
  if (verb == "press") return pressButton(*screen, w[0]);
  if (w[1] != "on" && w[1] != "off") return "tick LABEL on|off";
  return tickBox(*screen, w[0], w[1] == "on");
}

std::string ScriptRunner::deliver(const std::vector<std::string>& w, bool liveUpdate) {
  std::vector<std::pair<uint32_t, std::string>> fields;
  for (const std::string& word : w) {
    auto field = parseFieldWord(word);
    if (!field) return "expected id=value, got \"" + word + "\"";
    fields.push_back(std::move(*field));
  }
  std::vector<otpx::Field> views;
  for (const auto& [id, value] : fields) views.push_back({id, value});
  auto msg = otp_message::build(views);
  IIrbeNotifier* notifier = rxControls().notifier();
  if (!notifier || !msg) return {};
  if (liveUpdate) {
    notifier->OnLiveUpdate(msg.get());
  } else {
    notifier->OnResponse(msg.get());
  }
  return {};
}

QWidget* ScriptRunner::watchView() const {
  for (QWidget* w : QApplication::allWidgets())
    if (w->objectName() == "OFSWatchView") return w;
  return nullptr;
}

std::string ScriptRunner::invokeOnWatchView(const char* method, int number) {
  // Without the view (the plug-in refused to start, or has ended) there is nothing to click.
  if (QWidget* view = watchView()) QMetaObject::invokeMethod(view, method, Q_ARG(int, number));
  return {};
}

std::string ScriptRunner::select(const std::vector<std::string>& w) {
  if (w.empty()) return "select needs a list";
  const std::string& list = w[0];
  const std::vector<std::string> keys(w.begin() + 1, w.end());
  if (list == "current" || list == "forthcoming" || list == "past") {
    QWidget* view = watchView();
    if (!view) return {};
    QStringList keyList;
    for (const std::string& key : keys) keyList << QString::fromStdString(key);
    bool ok = false;
    QMetaObject::invokeMethod(view, "selectRows", Q_RETURN_ARG(bool, ok),
                              Q_ARG(QString, QString::fromStdString(list)),
                              Q_ARG(QStringList, keyList));
    return ok ? std::string() : "cannot select on " + list;
  }
  return selectInTable(list, keys);
}

// Any other list is named by its screen's "dumpName" ("order-book", "basket", ...), then, for a
// screen of several lists, by the list ("open", "completed"); the rows selected are those whose
// first column is one of the keys, in the order of the keys.
std::string ScriptRunner::selectInTable(const std::string& screenName,
                                        const std::vector<std::string>& args) {
  for (QWidget* screen : QApplication::allWidgets()) {
    if (screen->property("dumpName").toString().toStdString() != screenName) continue;
    const QStringList lists = screen->property("dumpLists").toStringList();
    size_t first = 0;
    QString list = lists.value(0);
    if (lists.size() > 1) {
      if (args.empty() || !lists.contains(QString::fromStdString(args[0])))
        return "select " + screenName + " needs a list: " + lists.join('|').toStdString();
      list = QString::fromStdString(args[0]);
      first = 1;
    }
    auto* table = screen->findChild<QTableView*>(list);
    if (!table) continue;
    selectRows(*table, std::vector<std::string>(args.begin() + static_cast<std::ptrdiff_t>(first),
                                                args.end()));
    robot_.makeActive(screen);
    return {};
  }
  return "no open list \"" + screenName + "\"";
}

void ScriptRunner::selectRows(QTableView& table, const std::vector<std::string>& keys) {
  QAbstractItemModel* model = table.model();
  table.clearSelection();
  for (size_t k = 0; k < keys.size(); ++k) {
    for (int row = 0; row < model->rowCount(); ++row) {
      if (model->index(row, 0).data().toString().toStdString() != keys[k]) continue;
      const QModelIndex index = model->index(row, 0);
      table.selectionModel()->select(index,
                                     QItemSelectionModel::Select | QItemSelectionModel::Rows);
      if (k == 0) table.selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
      break;
    }
  }
  table.setFocus();
}

std::string ScriptRunner::dump(const std::vector<std::string>& w) {
  if (w.size() != 1) return "dump needs one list";
  static const std::vector<std::string> kLists = {"watch",  "order-book", "history",
                                                  "basket", "bulk",       "modify-price"};
  if (std::find(kLists.begin(), kLists.end(), w[0]) == kLists.end())
    return "no list \"" + w[0] + "\" to dump";
  // A screen names its lists for scripts with the property "dumpName" and its tables, in the
  // order they are printed, with "dumpLists" (their object names: "current", "open", ...).
  // A list that is not open prints nothing.
  for (QWidget* screen : QApplication::allWidgets()) {
    if (screen->property("dumpName").toString().toStdString() != w[0]) continue;
    for (const QString& name : screen->property("dumpLists").toStringList()) {
      auto* table = screen->findChild<QTableView*>(name);
      if (!table) continue;
      for (int row = 0; row < table->model()->rowCount(); ++row)
        transcript().line(rowLine(w[0], name.toStdString().c_str(), *table, row));
    }
    if (w[0] == "history") dumpDetails(*screen);
    return {};
  }
  return {};
}

void ScriptRunner::dumpDetails(QWidget& screen) {
  // A details block is a form of label/value pairs; the value is the label's buddy.
  for (QLabel* label : screen.findChildren<QLabel*>()) {
    auto* value = qobject_cast<QLabel*>(label->buddy());
    if (!value) continue;
    transcript().line("detail " + otpx::quote(label->text().toStdString()) + " " +
                      otpx::quote(value->text().toStdString()));
  }
}
