#pragma once

#include <string>

namespace talmo {

// The database login, kept in config.dat beside the executable, one field per line in this order.
struct LOGININFO {
  std::string IP;
  std::string PORT;  // kept and written back, but the connection uses the client's default port
  std::string USERNAME;
  std::string PASSWORD;
  std::string DATABASE;
};

// The login a first run writes: the build's database host, port 3306, the shop's export user.
LOGININFO default_login();

// The login held in the text of a config.dat: its first five lines in field order, each line
// ending in "\n" or "\r\n" (a last line may lack it). Missing lines give empty fields; lines
// after the fifth are ignored.
LOGININFO parse_login_settings(const std::string& CONTENT);

// Reads PATH + "config.dat" into LOGIN. Missing lines read as empty text. Returns false, without a
// message, when the file cannot be opened or read.
bool GETLOGININFO(const std::string& PATH, LOGININFO& LOGIN);

// Writes LOGIN to PATH + "config.dat", readable and writable by its owner only.
// Raises FileError when the file cannot be written.
void SETLOGININFO(const std::string& PATH, const LOGININFO& LOGIN);

}  // namespace talmo
