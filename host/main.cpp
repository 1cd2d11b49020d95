// vorntrader: the reference terminal. It exports the host's services, loads the OFS plug-in
// into its main window and answers its requests; --headless runs a script and writes a
// transcript instead of showing windows.
#include <QApplication>
#include <QFile>
#include <QFileInfo>
#include <QMessageBox>
#include <QTextStream>
#include <cstdlib>
#include <iostream>
#include <memory>

#include "connectvorn/connectvorn.h"
#include "host/backend.h"
#include "host/command_line.h"
#include "host/dialog_robot.h"
#include "host/host_state.h"
#include "host/main_window.h"
#include "host/plugin_loader.h"
#include "host/rx_controls.h"
#include "host/script_runner.h"
#include "host/sim_backend_factory.h"
#include "host/transcript.h"

namespace {

// A headless run is usually a test or CI job without a desktop session: the offscreen platform
// warns for every window with size hints and Qt for the missing XDG_RUNTIME_DIR (it picks a
// fallback itself). Neither says anything about the plug-in, so only those two are dropped.
QtMessageHandler qtDefaultHandler = nullptr;
void dropHeadlessNoise(QtMsgType type, const QMessageLogContext& context, const QString& text) {
  if (type == QtWarningMsg &&
      (text.contains("propagateSizeHints") || text.contains("XDG_RUNTIME_DIR not set")))
    return;
  qtDefaultHandler(type, context, text);
}

bool readLines(const std::string& path, std::vector<std::string>& lines) {
  QFile file(QString::fromStdString(path));
  if (!file.open(QIODevice::ReadOnly | QIODevice::Text)) return false;
  QTextStream in(&file);
  while (!in.atEnd()) lines.push_back(in.readLine().toStdString());
  return true;
}

// Reads `host` lines of a configuration file; other lines are refused.
bool applyConfig(const std::string& path) {
  std::vector<std::string> lines;
  if (!readLines(path, lines)) {
    std::cerr << "vorntrader: cannot read " << path << "\n";
    return false;
  }
  for (size_t i = 0; i < lines.size(); ++i) {
    auto words = splitScriptWords(lines[i]);
    if (words && words->empty()) continue;
    std::string error = !words ? "unterminated quote"
                        : (*words)[0] != "host"
                            ? "only host lines belong in a configuration"
                            : hostState().apply({words->begin() + 1, words->end()});
    if (!error.empty()) {
      std::cerr << path << ":" << i + 1 << ": " << error << "\n";
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  Options options;
  if (auto status = parseCommandLine(argc, argv, options, std::cout, std::cerr)) return *status;
  if (options.headless && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
    qputenv("QT_QPA_PLATFORM", "offscreen");
  if (options.headless) qtDefaultHandler = qInstallMessageHandler(dropHeadlessNoise);
  // Qt gets only its own options, so that it never reads ours as its own.
  std::vector<char*> qtArgv{argv[0]};
  for (std::string& argument : options.qtArguments) qtArgv.push_back(argument.data());
  qtArgv.push_back(nullptr);
  int qtArgc = static_cast<int>(qtArgv.size()) - 1;
  QApplication app(qtArgc, qtArgv.data());
  QApplication::setApplicationDisplayName("VornTrader");

  hostState().usersRoot =
      usersRoot(options.home, std::getenv("XDG_DATA_HOME"), std::getenv("HOME"));

  if (!options.config.empty() && !applyConfig(options.config)) return 2;
  for (const auto& setting : options.hostSettings) {
    const std::string error = hostState().apply(setting);
    if (!error.empty()) {
      std::cerr << "vorntrader: " << error << "\n";
      return 2;
    }
  }

  const std::string backendName =
      options.backend.empty() ? (options.headless ? "none" : "sim") : options.backend;
  std::unique_ptr<Backend> backend;
  if (backendName == "sim") backend = makeSimulatedExchange();
  if (!backend) backend = std::make_unique<SilentBackend>();
  rxControls().setBackend(backend.get());

  MainWindow window;
  window.setBackendName(QString::fromStdString(backendName));
  std::vector<HotkeyRegistration> hotkeys;
  hostState().onLog = [&](const std::string& line) {
    transcript().line("log " + otpx::quote(line));
    window.appendLog(QString::fromStdString(line));
  };
  hostState().onMessageBox = [&](const std::string& text) {
    if (options.headless) {
      transcript().line("msgbox " + otpx::quote(text));
    } else {
      QMessageBox::information(&window, QApplication::applicationDisplayName(),
                               QString::fromStdString(text));
    }
  };
  hostState().onHotkey = [&](void* view, const std::string& caption, int number,
                             const std::string& name, const std::string& key,
                             const std::string& owner) {
    transcript().line("hotkey " + otpx::quote(caption) + " " + std::to_string(number) + " " +
                      otpx::quote(name) + " " + otpx::quote(key) + " " + otpx::quote(owner));
    auto* object = static_cast<QObject*>(view);
    hotkeys.push_back({object, caption, number, name, key, owner});
    if (!options.headless && object) window.bindHotkey(object, number, QString::fromStdString(key));
  };

  std::string error;
  const std::string pluginPath =
      options.plugin.empty()
          ? defaultPluginPath(QCoreApplication::applicationFilePath().toStdString())
          : options.plugin;
  LoadedPlugin plugin = loadPlugin(pluginPath, error);
  if (!error.empty()) {
    std::cerr << "vorntrader: " << error << "\n";
    return 2;
  }

  if (options.headless) {
    if (!options.trace.empty() && !transcript().open(options.trace)) {
      std::cerr << "vorntrader: cannot write " << options.trace << "\n";
      return 2;
    }
    transcript().setEnabled(true);
    std::vector<std::string> lines;
    if (!readLines(options.script, lines)) {
      std::cerr << "vorntrader: cannot read " << options.script << "\n";
      return 2;
    }
    DialogRobot robot;
    app.installEventFilter(&robot);
    ScriptRunner runner(window, plugin, robot,
                        QFileInfo(QString::fromStdString(options.script)).absolutePath(), hotkeys);
    window.show();
    const int status = runner.run(options.script, lines);
    transcript().setEnabled(false);
    if (plugin.running) plugin.exit();
    ScriptRunner::settle();
    return status;
  }

  window.show();
  plugin.init(&window, hostState().user, hostState().loginKind, nullptr);
  plugin.running = true;
  const int status = app.exec();
  plugin.exit();
  return status;
}
