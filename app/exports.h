#pragma once

#include <span>

#include "app/run_context.h"

namespace talmo {

// One of the five feeds the operator is asked about.
struct ExportChoice {
  const char* prompt;          // the question, written without a line end
  bool RunContext::*flag;      // where the answer is kept
  const char* beginning_line;  // written before the export runs
  const char* skip_line;       // written instead when the answer is no
  const char* feed_file;       // the file it writes, under the executable's directory
  void (*export_operation)(RunContext& run);
};

// The five exports in the order they are asked about and run: TALMO, ARUKERESO, GRANDO,
// VATERA, HEUREKA.SK.
std::span<const ExportChoice> export_choices();

// The export operations: list every product id into FULL_LIST (a failed list prints its line and
// the export goes on with what was read), then the feed's list operation for its site between
// the starting and finishing lines. File and connection errors pass on to the run's guard.
void DO_EXPORT_TALMO(RunContext& run);
void DO_EXPORT_ARUKERESO(RunContext& run);
void DO_EXPORT_GRANDO(RunContext& run);
void DO_EXPORT_VATERA(RunContext& run);
void DO_EXPORT_HEUREKASK(RunContext& run);

}  // namespace talmo
