#include "app/login_settings.h"

#include <gtest/gtest.h>

namespace talmo {
namespace {

// config.dat's five lines in field order, each value exactly as read.
TEST(ParseLoginSettings, FiveLinesInFieldOrder) {
  const std::pair<const char*, const char*> cases[] = {
      {"db\n3307\nuser\npw\nshop\n", "db|3307|user|pw|shop"},
      {"db\n3307\nuser\npw\nshop", "db|3307|user|pw|shop"},
      {"db\r\n3307\r\nuser\r\npw\r\nshop\r\n", "db|3307|user|pw|shop"},
      {"db\n", "db||||"},  // missing lines are empty
      {"", "||||"},
      {" db \n\t3307\nus er\np\"w;\nshop\n", " db |\t3307|us er|p\"w;|shop"},
      {"db\rx\n3307\r\r\n", "db\rx|3307\r|||"},  // only one carriage return ends a line
      {"a\nb\nc\nd\ne\nf\n", "a|b|c|d|e"},
  };
  for (const auto& [content, fields] : cases) {
    const LOGININFO login = parse_login_settings(content);
    EXPECT_EQ(login.IP + "|" + login.PORT + "|" + login.USERNAME + "|" + login.PASSWORD + "|" +
                  login.DATABASE,
              fields)
        << content;
  }
}

}  // namespace
}  // namespace talmo
