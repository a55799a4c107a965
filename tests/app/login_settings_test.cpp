#include "app/login_settings.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace talmo {
namespace {

std::vector<std::string> fields(const LOGININFO& login) {
  return {login.IP, login.PORT, login.USERNAME, login.PASSWORD, login.DATABASE};
}

TEST(ParseLoginSettings, FiveLinesInFieldOrder) {
  struct Case {
    std::string content;
    std::vector<std::string> login;
    std::string why;
  };
  for (const Case& c : std::vector<Case>{
           {"db\n3307\nuser\npw\nshop\n", {"db", "3307", "user", "pw", "shop"}, "as written"},
           {"db\n3307\nuser\npw\nshop", {"db", "3307", "user", "pw", "shop"}, "no last line end"},
           {"db\r\n3307\r\nuser\r\npw\r\nshop\r\n",
            {"db", "3307", "user", "pw", "shop"},
            "Windows line ends"},
           {"db\n", {"db", "", "", "", ""}, "missing lines are empty"},
           {"", {"", "", "", "", ""}, "an empty file"},
           {"\n\n\n\n\n", {"", "", "", "", ""}, "five empty lines"},
           {" db \n\t3307\nus er\np\"w;\nshop\n",
            {" db ", "\t3307", "us er", "p\"w;", "shop"},
            "values are used exactly as read"},
           {"db\rx\n3307\r\r\n", {"db\rx", "3307\r", "", "", ""}, "only one carriage return ends"},
           {"a\nb\nc\nd\ne\nf\ng\n", {"a", "b", "c", "d", "e"}, "lines after the fifth"},
       }) {
    EXPECT_EQ(fields(parse_login_settings(c.content)), c.login) << c.why;
  }
}

}  // namespace
}  // namespace talmo
