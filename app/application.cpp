#include "app/application.h"

#include <limits.h>
#include <unistd.h>
#include <exception>

#include "app/console.h"
#include "app/errors.h"
#include "app/export_pipeline.h"
#include "app/options.h"
#include "app/run_state.h"

namespace talmo {
namespace {

std::string executable_path() {
  char buffer[PATH_MAX];
  const ssize_t length = ::readlink("/proc/self/exe", buffer, sizeof buffer - 1);
  return length > 0 ? std::string(buffer, static_cast<std::size_t>(length)) : std::string();
}

// One y/n answer: one input line, its first character decides. An empty line or the end of
// input is a no.
bool ask(const std::string& prompt) {
  VALASZ = 'n';
  write_text(prompt);
  if (const std::optional<std::string> line = read_line(); line && !line->empty()) {
    VALASZ = line->front();
  }
  return EVAL_VALASZ(VALASZ);
}

void run_or_skip(bool chosen, const std::string& target, void (*export_operation)()) {
  if (chosen) {
    write_line("Beginning " + target + " export");
    export_operation();
  } else {
    write_line(target + " export skipped");
  }
}

}  // namespace

bool EVAL_VALASZ(char VALASZ) {
  return VALASZ == 'y' || VALASZ == 'Y';
}

std::string executable_directory() {
  const std::string path = executable_path();
  std::string directory = path.substr(0, path.rfind('/') + 1);
  if (directory.empty() || directory.back() != '/')
    directory += '/';
  return directory;
}

TTalmo_Software::TTalmo_Software(StringList arguments) : arguments_(std::move(arguments)) {}

int TTalmo_Software::Run() {
  try {
    if (!terminated_)
      DoRun();
  } catch (const std::exception& error) {
    ShowException(error.what());
  }
  return failed_ ? 1 : 0;
}

void TTalmo_Software::ShowException(const std::string& message) {
  write_line(message);
  failed_ = true;
  Terminate();
}

void TTalmo_Software::WriteHelp() {
  write_line("Usage: " + executable_path() + " -h");
}

void TTalmo_Software::DoRun() {
  // Each pass refuses every option outside its own set, so any option ends the run here: the
  // tool is meant to be started without options.
  for (const auto& [short_options, long_option] :
       {std::pair<std::string, std::string>{"h", "help"}, {"a", "all"}}) {
    const std::string error = check_options(arguments_, short_options, {long_option});
    if (!error.empty()) {
      ShowException(error);
      return;
    }
  }
  if (has_option(arguments_, 'h', "help")) {
    WriteHelp();
    Terminate();
    return;
  }
  if (has_option(arguments_, 'a', "all")) {
    write_line("siker");
    Terminate();
    return;
  }

  PATH = executable_directory();
  if (!GETLOGININFO()) {
    LOGIN = default_login();
    SETLOGININFO();
  }

  CONNECTION = std::make_unique<Connection>();
  QUERY = std::make_unique<Query>(*CONNECTION);
  try {
    // Released in this order whatever happens: the query, then the connection.
    struct ReleaseDatabase {
      ~ReleaseDatabase() {
        QUERY.reset();
        CONNECTION.reset();
      }
    } release_database;
    CONNECTION->open(LOGIN.IP, LOGIN.USERNAME, LOGIN.PASSWORD, LOGIN.DATABASE);
    ask_questions();
    run_chosen_exports();
  } catch (const TalmoError& error) {
    write_line(error.what());
    failed_ = true;
  }

  // Printed after a caught error too: the operators rely on the run always ending so.
  write_text("Software Finished succesfully. Press ENTER to quit");
  read_line();
  Terminate();
}

void TTalmo_Software::ask_questions() {
  DO_TALMO = ask("Start TALMO export? (y/n): ");
  DO_ARUKERESO = ask("Start ARUKERESO export? (y/n): ");
  DO_GRANDO = ask("Start GRANDO export? (y/n): ");
  DO_VATERA = ask("Start VATERA export? (y/n): ");
  DO_HEUREKASK = ask("Start HEUREKA.SK export? (y/n): ");
}

void TTalmo_Software::run_chosen_exports() {
  run_or_skip(DO_TALMO, "TALMO", DO_EXPORT_TALMO);
  run_or_skip(DO_ARUKERESO, "ARUKERESO", DO_EXPORT_ARUKERESO);
  run_or_skip(DO_GRANDO, "GRANDO", DO_EXPORT_GRANDO);
  run_or_skip(DO_VATERA, "VATERA", DO_EXPORT_VATERA);
  run_or_skip(DO_HEUREKASK, "HEUREKA.SK", DO_EXPORT_HEUREKASK);
}

int run_talmo_software(int argc, char** argv) {
  TTalmo_Software APPLICATION(StringList(argv + 1, argv + argc));
  APPLICATION.Title = "Talmo_Software";
  return APPLICATION.Run();
}

}  // namespace talmo
