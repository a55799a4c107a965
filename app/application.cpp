#include "app/application.h"

#include <exception>
#include <optional>

#include "app/exports.h"
#include "app/options.h"
#include "app/run_mode.h"
#include "core/console.h"
#include "core/directory_lock.h"
#include "core/errors.h"
#include "core/file_output.h"
#include "core/system.h"

namespace talmo {
namespace {

// One y/n answer: one input line, its first character decides. An empty line or the end of
// input is a no.
bool ask(RunContext& run, const std::string& prompt) {
  run.VALASZ = 'n';
  write_text(prompt);
  if (const std::optional<std::string> line = read_line(); line && !line->empty()) {
    run.VALASZ = line->front();
  }
  return EVAL_VALASZ(run.VALASZ);
}

// PATH as the operator would type it: without its closing "/", unless it is the root.
std::string directory_name(const std::string& PATH) {
  return PATH.size() > 1 ? PATH.substr(0, PATH.size() - 1) : PATH;
}

// A killed run can leave a feed's temporary file behind; nothing else may be writing them now.
void remove_leftovers_of_killed_runs(const RunContext& run) {
  for (const ExportChoice& choice : export_choices())
    remove_leftover_temporary_files(run.PATH + choice.feed_file);
}

}  // namespace

bool EVAL_VALASZ(char VALASZ) {
  return VALASZ == 'y' || VALASZ == 'Y';
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
  // Unreachable: the option check above refuses "-h" and "--help". Kept as the shop's tool has it.
  if (has_option(arguments_, 'h', "help")) {
    WriteHelp();
    Terminate();
    return;
  }
  // Unreachable: the option check above refuses "-a" and "--all". Kept as the shop's tool has it.
  if (has_option(arguments_, 'a', "all")) {
    write_line("siker");
    Terminate();
    return;
  }

  RunContext run;
  run.PATH = executable_directory();
  // One run at a time in this directory: a second one leaves every file alone.
  std::optional<DirectoryLock> lock(std::in_place, run.PATH);
  if (!lock->held()) {
    write_line("Another run is working in " + directory_name(run.PATH));
    failed_ = true;
    Terminate();
    return;
  }
  remove_leftovers_of_killed_runs(run);
  if (!GETLOGININFO(run.PATH, run.LOGIN)) {
    run.LOGIN = default_login();
    SETLOGININFO(run.PATH, run.LOGIN);
  }

  run.CONNECTION = std::make_unique<Connection>();
  run.QUERY = std::make_unique<Query>(*run.CONNECTION);
  run.TRANSACTION = std::make_unique<Transaction>(*run.CONNECTION);
  try {
    // Released in this order whatever happens: the query, the transaction (ending it if an error
    // left it open), then the connection.
    struct ReleaseDatabase {
      RunContext& run;
      ~ReleaseDatabase() {
        run.QUERY.reset();
        run.TRANSACTION.reset();
        run.CONNECTION.reset();
      }
    } release_database{run};
    run.CONNECTION->open(run.LOGIN.IP, run.LOGIN.USERNAME, run.LOGIN.PASSWORD, run.LOGIN.DATABASE);
    ask_questions(run);
    // All exports read one consistent catalogue. With TALMO_SNAPSHOT=off every lookup goes to
    // the server as it comes, outside any transaction.
    const bool from_snapshot = answers_from_snapshot();
    if (from_snapshot)
      run.TRANSACTION->start();
    run_chosen_exports(run);
    if (from_snapshot)
      run.TRANSACTION->commit();
  } catch (const TalmoError& error) {
    write_line(error.what());
    failed_ = true;
  }

  // The next run may start while this one waits for its ENTER.
  lock.reset();
  // Printed after a caught error too: the operators rely on the run always ending so.
  write_text("Software Finished succesfully. Press ENTER to quit");
  read_line();
  Terminate();
}

void TTalmo_Software::ask_questions(RunContext& run) {
  // All five are asked before any export starts.
  for (const ExportChoice& choice : export_choices())
    run.*choice.flag = ask(run, choice.prompt);
}

void TTalmo_Software::run_chosen_exports(RunContext& run) {
  for (const ExportChoice& choice : export_choices()) {
    if (run.*choice.flag) {
      write_line(choice.beginning_line);
      choice.export_operation(run);
    } else {
      write_line(choice.skip_line);
    }
  }
}

int run_talmo_software(int argc, char** argv) {
  reopen_closed_standard_streams();
  ignore_broken_pipes();
  TTalmo_Software APPLICATION(StringList(argv + 1, argv + argc));
  APPLICATION.Title = "Talmo_Software";
  return APPLICATION.Run();
}

}  // namespace talmo
