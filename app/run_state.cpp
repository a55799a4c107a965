#include "app/run_state.h"

namespace talmo {

std::string PATH;
LOGININFO LOGIN;
std::unique_ptr<Connection> CONNECTION;
std::unique_ptr<Query> QUERY;

StringList FULL_LIST;

ColumnTable TALMOP;
ColumnTable GRANDO;
ColumnTable HEUREKASK;
std::int32_t TALMO_DB = 0;
std::int32_t GRANDO_DB = 0;
std::int32_t HEUREKASK_DB = 0;
std::int32_t OSZLOP_DB = 0;

bool DO_TALMO = false;
bool DO_ARUKERESO = false;
bool DO_GRANDO = false;
bool DO_VATERA = false;
bool DO_HEUREKASK = false;
char VALASZ = 'n';

}  // namespace talmo
