#include "app/application.h"

int main(int argc, char** argv) {
  return talmo::run_talmo_software(argc, argv);
}
