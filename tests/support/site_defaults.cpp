#include <string>

#include "site_config.h"
#include "tests/support/test_support.h"

namespace talmo::testing {

bool built_with_default_site() {
  return std::string(site_config::kHostHu) == kDefaultHostHu &&
         std::string(site_config::kHostSk) == kDefaultHostSk &&
         std::string(site_config::kHostCz) == kDefaultHostCz &&
         std::string(site_config::kHuArticleBase) == kDefaultArticleBase;
}

}  // namespace talmo::testing
