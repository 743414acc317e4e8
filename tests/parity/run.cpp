// SPDX-License-Identifier: MIT
#include "parity/run.h"

#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdio>
#include <iostream>
#include <streambuf>
#include <utility>

#include "host/command/command_line.h"
#include "host/command/show_command.h"
#include "parity/script_source.h"

namespace zqn::parity {

namespace fs = std::filesystem;

namespace {

/// What stands before a line of the script, and the last line, in what a process writes.
constexpr char scriptMark = '\1', endMark = '\2';

/// Hands lines to the scripted user as he reads them, and writes them down first: they are known whatever
/// becomes of the process.
class LineFeed : public std::streambuf {
 public:
  using Next = std::function<std::optional<std::string>()>;
  explicit LineFeed(Next next) : next_(std::move(next)) {}

 protected:
  int_type underflow() override {
    std::optional<std::string> line = next_();
    if (!line) return traits_type::eof();
    std::cout << scriptMark << *line << '\n' << std::flush;
    line_ = std::move(*line) + '\n';
    setg(line_.data(), line_.data(), line_.data() + line_.size());
    return traits_type::to_int_type(line_.front());
  }

 private:
  Next next_;
  std::string line_;
};

/// Calls the command's own `show` with lines as its standard input.
void show(Desktop& desktop, script::UserInput& hands, std::vector<std::string> arguments,
          LineFeed::Next next) {
  std::vector<const char*> words{"zqn-dialog"};
  for (const std::string& argument : arguments) words.push_back(argument.c_str());
  const host::Options options = host::parseCommandLine(static_cast<int>(words.size()), words.data());
  LineFeed feed(std::move(next));
  std::streambuf* const former = std::cin.rdbuf(&feed);
  host::showDialog(options, desktop, hands);
  std::cin.rdbuf(former);
}

std::vector<std::string> fullArguments(const std::vector<std::string>& arguments, const Stage& stage,
                                       const std::string& database) {
  std::vector<std::string> full = arguments;
  for (const std::string& word : {std::string("--db"), "sqlite:" + database, std::string("--app-path"),
                                  stage.application().string(), std::string("--script"), std::string("-")})
    full.push_back(word);
  return full;
}

void addLine(Outcome& outcome, std::string line) {
  if (line.empty()) return;
  if (line.front() == scriptMark) {
    outcome.script.push_back(line.substr(1));
  } else if (line.front() == endMark) {
    outcome.end = Outcome::End::Done;
  } else if (line.front() == '{') {
    outcome.transcript.push_back(std::move(line));
  } else {
    outcome.said.push_back(std::move(line));
  }
}

std::string readAll(int descriptor) {
  std::string text;
  std::array<char, 65536> part;
  ssize_t count;
  while ((count = read(descriptor, part.data(), part.size())) > 0)
    text.append(part.data(), static_cast<std::size_t>(count));
  return text;
}

}  // namespace

std::vector<std::string> Outcome::whole() const {
  std::vector<std::string> lines = transcript;
  for (const std::string& line : said) lines.push_back("said: " + line);
  if (end == End::Crashed) lines.emplace_back("crashed");
  if (end == End::Hung) lines.emplace_back("no end");
  return lines;
}

Outcome Runner::inProcess(const DesktopEntry& desktop, const ShowsDialog& shows) const {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  std::cout.flush();
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    close(ends[0]);
    dup2(ends[1], STDOUT_FILENO);
    dup2(ends[1], STDERR_FILENO);
    alarm(static_cast<unsigned>(seconds_));
    const std::string database = (stage_.folder() / ("run-" + std::to_string(getpid()))).string();
    try {
      fs::copy_file(stage_.database(), database);
      desktop.run([&](Desktop& made, script::UserInput& hands) { shows(made, hands, database); });
      std::cout << endMark << '\n' << std::flush;
    } catch (const std::exception& failure) {
      std::fprintf(stderr, "left the command: %s\n", failure.what());
    }
    std::fflush(nullptr);
    _exit(0);
  }
  close(ends[1]);
  const std::string text = readAll(ends[0]);
  close(ends[0]);
  int status = 0;
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
  std::error_code ignored;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"})
    fs::remove((stage_.folder() / ("run-" + std::to_string(child))).string() + suffix, ignored);

  Outcome outcome;
  std::string_view rest = text;
  while (!rest.empty()) {
    const auto end = rest.find('\n');
    addLine(outcome, std::string(rest.substr(0, end)));
    rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + 1);
  }
  const bool ended = WIFEXITED(status) && WEXITSTATUS(status) == 0;
  if (!ended) outcome.end = Outcome::End::Crashed;
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM) outcome.end = Outcome::End::Hung;
  return outcome;
}

Outcome Runner::think(const DesktopEntry& desktop, const std::vector<std::string>& arguments, Random chance,
                      int kind) const {
  return inProcess(desktop, [&](Desktop& made, script::UserInput& hands, const std::string& database) {
    ScriptSource source(chance, kind, stage_, made);
    show(made, hands, fullArguments(arguments, stage_, database), [&] { return source.next(); });
  });
}

Outcome Runner::replay(const DesktopEntry& desktop, const Case& given) const {
  return inProcess(desktop, [&](Desktop& made, script::UserInput& hands, const std::string& database) {
    auto line = given.lines.begin();
    show(made, hands, fullArguments(given.arguments, stage_, database), [&]() -> std::optional<std::string> {
      if (line == given.lines.end()) return std::nullopt;
      return *line++;
    });
  });
}

}  // namespace zqn::parity
