#include "feedcheck/run.h"

int main(int argc, char** argv) {
  return talmo::feedcheck::run_feedcheck(argc, argv);
}
