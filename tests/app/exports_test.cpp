// The export operations against the private database: what the operator sees when the product
// list cannot be read.
#include <gtest/gtest.h>

#include "app/exports.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(Exports, FailedIdListIsReportedAndTheExportGoesOnWithNothing) {
  DbSession db;
  PrivateMariaDb::instance().reset_database();
  PrivateMariaDb::instance().run_sql("RENAME TABLE laptop_adatbazis TO laptop_regi;");
  TempDir dir;
  RunContext run;
  run.PATH = dir.path() + "/";
  run.QUERY = std::make_unique<Query>(db.connection);
  CapturedStdout out;
  DO_EXPORT_TALMO(run);
  DO_EXPORT_VATERA(run);
  PrivateMariaDb::instance().run_sql("RENAME TABLE laptop_regi TO laptop_adatbazis;");
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
