#pragma once

namespace talmo::feedcheck {

// The feed checker's command: reads the options, checks the chosen feeds, compares them with the
// previous run, publishes what may go out and prints the report. Returns the exit status.
int run_feedcheck(int argc, char** argv);

}  // namespace talmo::feedcheck
