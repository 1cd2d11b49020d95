#include "host/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <ostream>
#include <set>

#include "host/host_state.h"

namespace {

const std::set<std::string> kQtOptionsWithValue = {
    "-platform",        "-platformpluginpath", "-platformtheme", "-plugin",
    "-qwindowgeometry", "-qwindowicon",        "-qwindowtitle",  "-session",
    "-style",           "-stylesheet",         "-display",       "-geometry"};
const std::set<std::string> kQtFlags = {"-reverse", "-widgetcount", "-nograb", "-dograb", "-sync"};

// What CLI11 did not take must be Qt's own options; anything else is an error.
std::string takeQtArguments(const std::vector<std::string>& rest, std::vector<std::string>& qt) {
  for (size_t i = 0; i < rest.size(); ++i) {
    if (kQtFlags.count(rest[i])) {
      qt.push_back(rest[i]);
    } else if (kQtOptionsWithValue.count(rest[i])) {
      if (i + 1 == rest.size()) return rest[i] + " needs a value";
      qt.push_back(rest[i]);
      qt.push_back(rest[++i]);
    } else {
      return "unexpected argument " + rest[i] + " (see --help)";
    }
  }
  return {};
}

std::string oneLine(std::string text) {
  std::replace(text.begin(), text.end(), '\n', ' ');
  while (!text.empty() && text.back() == ' ') text.pop_back();
  return text;
}

}  // namespace

std::optional<int> parseCommandLine(int argc, const char* const* argv, Options& o,
                                    std::ostream& out, std::ostream& err) {
  CLI::App app{"The reference terminal: loads the OFS plug-in and answers its requests.",
               "vorntrader"};
  app.allow_extras();
  app.footer("Qt's own single-dash options (-platform NAME, -style NAME, -reverse, ...) go to Qt.");
  auto setting = [&](const std::string& name, const std::string& type, const std::string& help,
                     auto words) {
    app.add_option_function<std::string>(
           name, [&o, words](const std::string& v) { o.hostSettings.push_back(words(v)); }, help)
        ->type_name(type)
        ->trigger_on_parse();
  };

  app.add_flag("--headless", o.headless, "Run --script offscreen and write a transcript");
  app.add_option("--script", o.script, "The script --headless runs")->type_name("FILE");
  app.add_option("--trace", o.trace, "Write the transcript here instead of stdout")
      ->type_name("FILE");
  app.add_option("--backend", o.backend, "Who answers: the simulated exchange or the script")
      ->type_name("NAME")
      ->check(CLI::IsMember({"sim", "none"}));
  app.add_option("--plugin", o.plugin, "The plug-in library to load")->type_name("PATH");
  app.add_option("--config", o.config, "Apply its `host` lines before anything else")
      ->type_name("FILE");
  app.add_option("--home", o.home, "Users' directories under DIR, not the XDG data folder")
      ->type_name("DIR");
  setting("--user", "ID", "Logged-in user id", [](const std::string& v) {
    return std::vector<std::string>{"user", v};
  });
  setting("--kind", "N", "Login kind", [](const std::string& v) {
    return std::vector<std::string>{"kind", v};
  });
  setting("--right", "NAME", "Grant this right (repeatable)", [](const std::string& v) {
    return std::vector<std::string>{"right", v, "on"};
  });
  setting("--accounts", "A1:PC1,A2", "Mapped accounts, optional participant codes",
          [](const std::string& v) {
            std::vector<std::string> words{"accounts"};
            for (const std::string& part : CLI::detail::split(v, ','))
              if (!part.empty()) words.push_back(part);
            return words;
          });
  for (auto* option : app.get_options())
    option->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);

  std::string error;
  try {
    app.parse(argc, argv);
    error = takeQtArguments(app.remaining(), o.qtArguments);
    if (error.empty() && o.headless && o.script.empty()) error = "--headless requires --script";
  } catch (const CLI::CallForHelp&) {
    out << app.help();
    return 0;
  } catch (const CLI::ParseError& e) {
    error = e.what();
  }
  if (error.empty()) return std::nullopt;
  err << "vorntrader: " << oneLine(error) << "\n";
  return 2;
}

std::string usersRoot(const std::string& home, const char* xdgDataHome, const char* homeVariable) {
  if (!home.empty()) return home;
  if (xdgDataHome && *xdgDataHome) return std::string(xdgDataHome) + "/vorntrader";
  if (homeVariable && *homeVariable) return std::string(homeVariable) + "/.local/share/vorntrader";
  return {};
}
