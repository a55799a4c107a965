#include "feeds/vatera.h"

namespace talmo {

std::string GENERATE_VATERA_HEADER() {
  return "";
}

}  // namespace talmo
