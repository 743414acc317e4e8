// SPDX-License-Identifier: MIT
#include "host/command/command_line.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <charconv>

#include "host/command/suggestion.h"
#include "host/database/failure.h"
#include "host/script/json_values.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

using script::Json;

CommandFailure wrongUsage(const std::string& message) {
  return CommandFailure(ExitStatus::WrongUsage, message);
}

/// The texts of the arguments that need more reading than CLI11 does.
struct Texts {
  std::string user, ui = "qt", kind;
  std::optional<std::string> today, appPath, params, script, transcript;
  std::vector<std::string> positional, settings, userSettings;
  bool noSession = false;
};

class HelpFormat : public CLI::Formatter {
 public:
  std::string make_option_usage(const CLI::Option* option) const override {
    return option->get_name() == "PARAM" ? "[PARAM ...]" : CLI::Formatter::make_option_usage(option);
  }
};

std::int32_t readKind(const std::string& text) {
  std::int32_t kind = 0;
  const char* end = text.data() + text.size();
  const auto [stop, error] = std::from_chars(text.data(), end, kind);
  if (error != std::errc() || stop != end)
    throw wrongUsage("KIND '" + text +
                     "' is no whole number of 32 bits; 'zqn-dialog kinds' lists the kinds 1 to 37");
  return kind;
}

VariantArray readParams(const std::string& text) {
  constexpr const char* example = "; write an array such as '[\"10\", 5, true, null]'";
  Json array;
  try {
    array = script::readJson(text);
  } catch (const script::JsonError& wrong) {
    throw wrongUsage("--params " + std::string(wrong.what()) + example);
  }
  if (!array.is_array()) throw wrongUsage(std::string("--params is no JSON array") + example);
  std::vector<Variant> elements;
  for (const Json& element : array) {
    if (element.is_structured())
      throw wrongUsage("--params takes texts, numbers, true, false and null, not " + element.dump());
    elements.push_back(script::variantOf(element));
  }
  return VariantArray(std::move(elements));
}

/// A text as the dialogs take it. `what` names the argument.
String readText(const std::string& what, const std::string& text) {
  String read = fromUtf8(text);
  if (toUtf8(read) != text) throw wrongUsage(what + " '" + text + "' is no text in UTF-8; write it in UTF-8");
  return read;
}

VariantArray textParams(std::vector<std::string> texts) {
  if (texts.empty()) texts.emplace_back();
  std::vector<Variant> elements;
  elements.reserve(texts.size());
  for (const std::string& text : texts) elements.emplace_back(readText("PARAM", text));
  return VariantArray(std::move(elements));
}

Date readDay(const std::string& text) {
  const std::string_view shape = "dddd-dd-dd";
  const auto fits = [](char mark, char character) {
    return mark == 'd' ? character >= '0' && character <= '9' : character == mark;
  };
  if (std::equal(shape.begin(), shape.end(), text.begin(), text.end(), fits)) {
    const int year = std::stoi(text.substr(0, 4));
    const int month = std::stoi(text.substr(5, 2));
    const int day = std::stoi(text.substr(8, 2));
    const Date date = dateSerial(year, month, day);
    const CivilDate again = civil(date);
    if (again.year == year && again.month == month && again.day == day) return date;
  }
  throw wrongUsage("--today '" + text + "' is no day; write it as YYYY-MM-DD");
}

SettingForRun readSetting(const std::string& option, const std::string& text) {
  const auto slash = text.find('/');
  const auto equals = slash == std::string::npos ? slash : text.find('=', slash);
  if (equals == std::string::npos || slash == 0 || equals == slash + 1)
    throw wrongUsage(option + " '" + text + "' is no setting; write it as SECTION/KEY=VALUE");
  readText(option, text);
  return {.section = fromUtf8(text.substr(0, slash)),
          .key = fromUtf8(text.substr(slash + 1, equals - slash - 1)),
          .value = fromUtf8(text.substr(equals + 1)),
          .ofUser = option == "--set-user"};
}

std::filesystem::path readFolder(const std::string& text) {
  std::error_code ignored;
  if (!std::filesystem::is_directory(text, ignored))
    throw wrongUsage("--app-path '" + text + "' is no folder; name the folder that holds the layout files");
  return text;
}

void addHostOptions(CLI::App& app, HostOptions& host, Texts& texts) {
  app.add_option("--db", host.database, "Database: sqlite:FILE or odbc:CONNECTION-STRING")
      ->option_text("URL");
  app.add_option("--user", texts.user, "User of the session; the login name unless given")
      ->option_text("NAME");
  app.add_flag("--admin", host.admin, "The user is an administrator");
  app.add_flag("--no-session", texts.noSession, "Hand over the connection alone, no session");
  app.add_option("--set", texts.settings, "A global setting for this run")
      ->allow_extra_args(false)
      ->option_text("SECTION/KEY=VALUE");
  app.add_option("--set-user", texts.userSettings, "A setting of the user for this run")
      ->allow_extra_args(false)
      ->option_text("SECTION/KEY=VALUE");
  app.add_flag("--multiselect", host.multiselect,
               "A double click reports its key and leaves the dialog open");
  app.add_flag("--generic", host.generic, "Open the generic form for the kind");
  app.add_option("--app-path", texts.appPath, "Application folder, with the layout files")
      ->option_text("DIR");
  app.add_option("--today", texts.today, "The day that the dialogs take as the present")
      ->option_text("YYYY-MM-DD");
}

void readHostTexts(HostOptions& host, const Texts& texts) {
  host.user = readText("--user", texts.user);
  host.session = !texts.noSession;
  for (const std::string& text : texts.settings) host.settings.push_back(readSetting("--set", text));
  for (const std::string& text : texts.userSettings) host.settings.push_back(readSetting("--set-user", text));
  if (texts.appPath) host.appPath = readFolder(*texts.appPath);
  if (texts.today) host.today = readDay(*texts.today);
}

void readShowTexts(ShowOptions& show, const Texts& texts) {
  show.kind = readKind(texts.kind);
  if (texts.params && !texts.positional.empty())
    throw wrongUsage("Param is given twice; write it as arguments behind KIND or as --params, not both");
  show.param = texts.params ? readParams(*texts.params) : textParams(texts.positional);
  if (texts.ui == "headless") {
    show.ui = Ui::Headless;
  } else if (texts.ui != "qt") {
    throw wrongUsage("--ui '" + texts.ui + "' is unknown; write qt or headless");
  }
  if (texts.script) show.script = *texts.script;
  if (texts.transcript) show.transcript = *texts.transcript;
}

/// ", did you mean 'show'?" for the first argument that nobody knows, where one is close to it.
std::string suggestionFor(const CLI::App& app, const CLI::App& command, int argc, const char* const* argv) {
  const bool isCommand = &command != &app;
  std::vector<std::string> commands, options;
  for (const CLI::App* each : app.get_subcommands({})) commands.push_back(each->get_name());
  for (const CLI::Option* each : command.get_options())
    for (const std::string& name : each->get_lnames()) options.push_back("--" + name);
  for (int i = 1; i < argc; ++i) {
    const std::string argument = argv[i], word = argument.substr(0, argument.find('='));
    if (word == "--") break;
    const bool isOption = word.starts_with("--");
    const std::vector<std::string>& known = isOption ? options : commands;
    if ((!isOption && isCommand) || std::ranges::find(known, word) != known.end()) continue;
    const std::string meant = closest(word, known);
    if (!meant.empty()) return ", did you mean '" + meant + "'?";
  }
  return "";
}

/// An option in front of the command would be read as the desk's and have no effect.
void refuseOptionsInFront(const CLI::App& app, const CLI::App& command) {
  for (const CLI::Option* option : app.get_options())
    if (option->count() > 0)
      throw wrongUsage(option->get_name() + " stands in front of '" + command.get_name() +
                       "'; write it behind the command");
}

}  // namespace

Options parseCommandLine(int argc, const char* const* argv) {
  Options options;
  Texts texts;

  CLI::App app{"Dialogs of the merchandise-management system. Without a command: the desk with all dialogs."};
  app.name("zqn-dialog");
  app.set_version_flag("--version", "zqn-dialog " ZQN_VERSION, "Print the version and end");
  app.require_subcommand(0, 1);
  app.formatter(std::make_shared<HelpFormat>());
  addHostOptions(app, options.host, texts);

  CLI::App* kinds = app.add_subcommand("kinds", "List the kinds of dialogs with form and tables");
  kinds->add_flag("--json", options.json, "As a JSON array");

  CLI::App* init = app.add_subcommand("init", "Create the tables of the system in a database");
  init->add_option("--db", options.host.database, "Database: sqlite:FILE or odbc:CONNECTION-STRING")
      ->option_text("URL")
      ->required();
  CLI::Option* sample = init->add_flag("--sample", options.init.sample, "With sample rows in German");
  init->add_option("--rows", options.init.rows, "With N generated rows in each catalogue")
      ->option_text("N")
      ->check(CLI::Range(1, 10'000'000))
      ->excludes(sample);

  CLI::App* sql =
      app.add_subcommand("sql", "Run statements from standard input, each ended by ; at a line's end");
  sql->add_option("--db", options.host.database, "Database: sqlite:FILE or odbc:CONNECTION-STRING")
      ->option_text("URL")
      ->required();

  CLI::App* show = app.add_subcommand("show", "Open one dialog and print the key that it returns");
  show->add_option("KIND", texts.kind, "Number of the kind; 'zqn-dialog kinds' lists them")->required();
  // As many as come. A plain vector would take a text in brackets for a list and split it.
  show->add_option("PARAM", texts.positional, "Elements of Param, each a text")
      ->expected(argc)
      ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll)
      ->allow_extra_args(false)
      ->option_text("...");
  show->add_option("--params", texts.params, "Param as a JSON array")->option_text("JSON");
  addHostOptions(*show, options.host, texts);
  show->add_option("--ui", texts.ui, "Desktop: qt or headless")->option_text("UI");
  show->add_option("--script", texts.script, "The scripted user acts; - reads standard input")
      ->option_text("FILE");
  show->add_option("--transcript", texts.transcript, "Where the transcript goes")->option_text("FILE");

  try {
    app.parse(argc, argv);
  } catch (const CLI::CallForHelp&) {
    options.help = app.help();
    options.command = Command::Help;
    return options;
  } catch (const CLI::CallForVersion& version) {
    options.help = std::string(version.what()) + "\n";
    options.command = Command::Help;
    return options;
  } catch (const CLI::ParseError& failure) {
    const auto parsed = app.get_subcommands();
    const CLI::App& command = parsed.empty() ? app : *parsed.front();
    const std::string name = parsed.empty() ? "" : command.get_name() + " ";
    throw wrongUsage(failure.what() + suggestionFor(app, command, argc, argv) + "; see 'zqn-dialog " + name +
                     "--help'");
  }

  if (kinds->parsed()) options.command = Command::Kinds;
  if (init->parsed()) options.command = Command::Init;
  if (sql->parsed()) options.command = Command::Sql;
  if (show->parsed()) options.command = Command::Show;
  if (options.command != Command::Desk) refuseOptionsInFront(app, *app.get_subcommands().front());
  readHostTexts(options.host, texts);
  if (options.command == Command::Show) readShowTexts(options.show, texts);
  return options;
}

}  // namespace zqn::host
