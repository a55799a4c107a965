#include "app/options.h"

#include <gtest/gtest.h>

namespace talmo {
namespace {

TEST(Options, TheFirstOptionOutsideTheSetIsNamed) {
  struct Case {
    StringList arguments;
    std::string help_pass, all_pass;
  };
  for (const Case& c : std::vector<Case>{
           {{}, "", ""},
           {{"plain", "-"}, "", ""},
           {{"-h"}, "", "Invalid option at position 1: \"h\""},
           {{"--help"}, "", "Invalid option at position 1: \"help\""},
           {{"--all"}, "Invalid option at position 1: \"all\"", ""},
           {{"x", "-a"}, "Invalid option at position 2: \"a\"", ""},
           {{"-hx"}, "Invalid option at position 1: \"x\"", "Invalid option at position 1: \"h\""},
           {{"--"}, "Invalid option at position 1: \"\"", "Invalid option at position 1: \"\""},
           {{"-q", "-z"},
            "Invalid option at position 1: \"q\"",
            "Invalid option at position 1: \"q\""},
       }) {
    EXPECT_EQ(check_options(c.arguments, "h", {"help"}), c.help_pass);
    EXPECT_EQ(check_options(c.arguments, "a", {"all"}), c.all_pass);
  }
  EXPECT_TRUE(has_option({"-xh"}, 'h', "help"));
  EXPECT_TRUE(has_option({"--help=1"}, 'h', "help"));
  EXPECT_FALSE(has_option({"h", "--helper"}, 'h', "help"));
}

}  // namespace
}  // namespace talmo
