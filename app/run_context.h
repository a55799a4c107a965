#pragma once

#include <memory>
#include <string>

#include "app/login_settings.h"
#include "core/database.h"
#include "core/strings.h"

namespace talmo {

// Everything one run of the tool holds, owned by the application's run and handed by reference
// to what needs it. The names are the shop's own for the run's state.
struct RunContext {
  std::string PATH;  // the executable's directory, ending in "/"; prefix of every file
  LOGININFO LOGIN;
  std::unique_ptr<Connection> CONNECTION;
  std::unique_ptr<Transaction> TRANSACTION;  // the read-only snapshot behind the exports
  std::unique_ptr<Query> QUERY;              // the one shared cursor handed to every lookup
  StringList FULL_LIST;                      // product ids of the export under way

  // The operator's answers, in the order the questions are asked.
  bool DO_TALMO = false;
  bool DO_ARUKERESO = false;
  bool DO_GRANDO = false;
  bool DO_VATERA = false;
  bool DO_HEUREKASK = false;
  char VALASZ = 'n';  // the last answer typed
};

}  // namespace talmo
