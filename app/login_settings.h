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
// message, when there is no such file or it cannot be read. Only a regular file of at most 64 kB
// is read: anything else standing there (a directory, a FIFO, a huge file) is never read nor
// written, and raises FileError, which ends the run.
bool GETLOGININFO(const std::string& PATH, LOGININFO& LOGIN);

// Writes LOGIN into PATH + "config.dat" in place (created readable and writable by its owner
// only, since the password is in clear). A file the user may not write is not replaced: that
// raises FileError.
void SETLOGININFO(const std::string& PATH, const LOGININFO& LOGIN);

}  // namespace talmo
