#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "app/column_table.h"
#include "app/database.h"
#include "app/login_settings.h"
#include "app/strings.h"

namespace talmo {

// The run's global state: one instance each, owned by the program for the whole run.

extern std::string PATH;  // the executable's directory, ending in "/"; prefix of every file
extern LOGININFO LOGIN;
extern std::unique_ptr<Connection> CONNECTION;
extern std::unique_ptr<Query> QUERY;  // the one shared cursor handed to every lookup

extern StringList FULL_LIST;  // product ids of the export under way

extern ColumnTable TALMOP;
extern ColumnTable GRANDO;
extern ColumnTable HEUREKASK;
extern std::int32_t TALMO_DB;
extern std::int32_t GRANDO_DB;
extern std::int32_t HEUREKASK_DB;
extern std::int32_t OSZLOP_DB;  // column count of the table being filled

extern bool DO_TALMO;
extern bool DO_ARUKERESO;
extern bool DO_GRANDO;
extern bool DO_VATERA;
extern bool DO_HEUREKASK;
extern char VALASZ;  // the last answer typed

}  // namespace talmo
