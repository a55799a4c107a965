#pragma once

#include <string>

#include "app/run_context.h"
#include "core/strings.h"

namespace talmo {

// The console application: option check, login settings, connection, the five questions and
// the chosen exports, the closing message.
class TTalmo_Software {
 public:
  explicit TTalmo_Software(StringList arguments);

  // The frame's run loop: runs DoRun once and reports an error that escapes it.
  // Returns the process exit status: 0 for a normal run, 1 after a reported or caught error.
  int Run();

  void DoRun();
  void WriteHelp();
  void Terminate() { terminated_ = true; }

  std::string Title;

 private:
  // The frame's exception reporter: the message on one line.
  void ShowException(const std::string& message);
  void ask_questions(RunContext& run);
  void run_chosen_exports(RunContext& run);

  StringList arguments_;
  bool terminated_ = false;
  bool failed_ = false;
};

// True exactly for "y" and "Y".
bool EVAL_VALASZ(char VALASZ);

// The program: creates the application, runs it and returns its exit status.
int run_talmo_software(int argc, char** argv);

}  // namespace talmo
