#include "app/run_mode.h"

#include "core/system.h"

namespace talmo {

bool answers_from_snapshot() {
  return environment_value("TALMO_SNAPSHOT") != "off";
}

}  // namespace talmo
