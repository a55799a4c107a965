// Replacing the shop's files: a feed written line by line and a checked feed copied into place
// both go through a temporary file, so an old file is replaced whole or not at all.
#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "core/errors.h"
#include "core/file_copy.h"
#include "core/file_output.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

namespace fs = std::filesystem;

// Writes "new\n\n" to `path` as a feed is written (lines) or as a checked feed is published (a
// copy of the file `source`, which holds that text).
void replace(bool copy, const std::string& path, const std::string& source) {
  if (!copy)
    return save_lines(path, {"new", ""});
  FileReader reader(source);
  replace_with_copy(reader, path);
}

TEST(ReplacingFile, SituationsOfTheOldFile) {
  const struct {
    const char* name;
    const char* given;  // the path the writer is given
    const char* holds;  // where the new content must be
    mode_t mode;
  } cases[] = {
      {"new file: 0666 less the umask", "new.csv", "new.csv", 0644},
      {"old file keeps its mode", "old.csv", "old.csv", 0604},
      {"link chain: the final target is replaced", "export/talmo.xml", "www/talmo.xml", 0640},
      {"dangling link: its target is created", "dangling.csv", "www/new.csv", 0644},
  };
  TempDir source;
  write_file(source.path() + "/feed", "new\n\n");
  const mode_t mask = ::umask(022);
  for (const bool copy : {false, true}) {
    TempDir dir;
    const std::string d = dir.path() + "/";
    write_file(d + "old.csv", "old, longer than the new one\n");
    ::chmod((d + "old.csv").c_str(), 0604);
    write_file(d + "www/talmo.xml", "old\n");
    ::chmod((d + "www/talmo.xml").c_str(), 0640);
    fs::create_directories(d + "export/hu");
    fs::create_symlink("hu/talmo.xml", d + "export/talmo.xml");
    fs::create_symlink("../../www/talmo.xml", d + "export/hu/talmo.xml");
    fs::create_symlink(d + "www/new.csv", d + "dangling.csv");
    for (const auto& c : cases) {
      SCOPED_TRACE(std::string(copy ? "copy: " : "lines: ") + c.name);
      replace(copy, d + c.given, source.path() + "/feed");
      EXPECT_EQ(read_file(d + c.holds), "new\n\n");
      EXPECT_EQ(mode_of(d + c.holds), c.mode);
    }
    for (const char* link : {"export/talmo.xml", "export/hu/talmo.xml", "dangling.csv"})
      EXPECT_TRUE(fs::is_symlink(d + link)) << link;
    EXPECT_EQ(entries_in(d), 5u);  // no temporary file left anywhere
    EXPECT_EQ(entries_in(d + "www"), 2u);
  }
  ::umask(mask);
}

TEST(ReplacingFile, AFailureNamesTheFileAndLeavesTheOldOne) {
  TempDir source;
  write_file(source.path() + "/feed", "new\n\n");
  for (const bool copy : {false, true}) {
    TempDir dir;
    const std::string missing = dir.path() + "/missing/feed.csv";
    try {
      replace(copy, missing, source.path() + "/feed");
      ADD_FAILURE() << "no error";
    } catch (const FileError& error) {
      EXPECT_EQ(std::string(error.what()), "Unable to create file \"" + missing + "\"");
    }
    // A non-empty folder in the feed's place cannot be replaced.
    write_file(dir.path() + "/talmo.xml/keep", "old");
    EXPECT_THROW(replace(copy, dir.path() + "/talmo.xml", source.path() + "/feed"), FileError);
    EXPECT_EQ(read_file(dir.path() + "/talmo.xml/keep"), "old");
    EXPECT_EQ(entries_in(dir.path()), 1u);
  }
  // An export failing half-way abandons its file: the old one stays.
  TempDir dir;
  write_file(dir.path() + "/vatera.csv", "old\n");
  {
    ReplacingFile file(dir.path() + "/vatera.csv");
    file.write_line("new");
  }
  EXPECT_EQ(read_file(dir.path() + "/vatera.csv"), "old\n");
  EXPECT_EQ(entries_in(dir.path()), 1u);
}

TEST(ReplacingFile, LeftoversOfKilledRunsAreRemovedAndNothingElse) {
  TempDir dir;
  const std::string feeds = dir.path() + "/feeds";
  for (const char* name : {"talmo.xml", ".talmo.xml.tmp-a1B2c3", ".talmo.xml.tmp-short",
                           ".grando.xml.tmp-a1B2c3", "talmo.xml.tmp-a1B2c3"})
    write_file(feeds + "/" + name, "x");
  fs::create_symlink(feeds + "/talmo.xml", dir.path() + "/talmo.xml");
  remove_leftover_temporary_files(dir.path() + "/talmo.xml");
  EXPECT_FALSE(file_exists(feeds + "/.talmo.xml.tmp-a1B2c3"));
  EXPECT_EQ(entries_in(feeds), 4u);
}

TEST(FileReader, AFolderInTheFeedsPlaceIsNamedAsSuch) {
  TempDir dir;
  FileReader folder(dir.path());
  EXPECT_FALSE(folder.is_open());
  EXPECT_FALSE(folder.is_missing());
  EXPECT_EQ(folder.problem(), "Is a directory");
  char byte;
  EXPECT_THROW(folder.read(&byte, 1), FileReadError);
}

}  // namespace
}  // namespace talmo::testing
