// What the operator sees when the export's product list cannot be read.
#include <gtest/gtest.h>

#include "app/exports.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(Exports, FailedIdListIsReportedAndTheExportGoesOnWithNothing) {
  DbSession db;
  db.server.reset_database();
  db.server.run_sql("RENAME TABLE laptop_adatbazis TO laptop_regi;");  // a missing main table
  TempDir dir;
  RunContext run;
  run.PATH = dir.path() + "/";
  run.QUERY = std::make_unique<Query>(db.connection);
  CapturedStdout out;
  DO_EXPORT_TALMO(run);
  DO_EXPORT_VATERA(run);
  EXPECT_EQ(out.text(),
            "SELECT id FROM laptop_adatbazis ORDER BY id DESC;\n"
            "|Table 'uj_db.laptop_adatbazis' doesn't exist\n"
            "Starting Generate_TALMO...\n"
            "Querying list for published items...\n"
            "Finished Generate_TALMO...\n"
            "SELECT id FROM laptop_adatbazis ORDER BY id DESC;\n"
            "|Table 'uj_db.laptop_adatbazis' doesn't exist\n"
            "Starting Generate_VATERA...\n"
            "Finished Generate_VATERA...\n");
  EXPECT_TRUE(run.FULL_LIST.empty());
}

}  // namespace
}  // namespace talmo::testing
