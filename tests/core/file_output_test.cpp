#include "core/file_output.h"

#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <vector>

#include <gtest/gtest.h>

#include "core/errors.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(SaveLines, EveryLineEndsWithALineEnd) {
  TempDir dir;
  const std::string path = dir.path() + "/feed.csv";
  save_lines(path, {"a", "", "b"});
  EXPECT_EQ(read_file(path), "a\n\nb\n");
  save_lines(path, {});
  EXPECT_EQ(read_file(path), "");
  EXPECT_EQ(entries_in(dir.path()), 1u);
}

TEST(SaveLines, NewFileGetsUmaskDefaultAndExistingFileKeepsItsMode) {
  TempDir dir;
  const mode_t mask = ::umask(022);
  save_lines(dir.path() + "/new.xml", {"x"});
  EXPECT_EQ(mode_of(dir.path() + "/new.xml"), 0644u);
  write_file(dir.path() + "/old.xml", "old");
  ::chmod((dir.path() + "/old.xml").c_str(), 0604);
  save_lines(dir.path() + "/old.xml", {"new"});
  EXPECT_EQ(mode_of(dir.path() + "/old.xml"), 0604u);
  EXPECT_EQ(read_file(dir.path() + "/old.xml"), "new\n");
  ::umask(mask);
}

TEST(OverwriteLines, NewFileIsPrivateAndAnExistingOneIsWrittenInPlace) {
  TempDir dir;
  const std::string path = dir.path() + "/config.dat";
  overwrite_lines(path, {"h", "p"}, 0600);
  EXPECT_EQ(mode_of(path), 0600u);
  EXPECT_EQ(read_file(path), "h\np\n");
  // The shop's own file keeps its identity and mode: it is not replaced by a new one.
  ::chmod(path.c_str(), 0640);
  struct stat before {};
  ::stat(path.c_str(), &before);
  overwrite_lines(path, {"x"}, 0600);
  struct stat after {};
  ::stat(path.c_str(), &after);
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(mode_of(path), 0640u);
  EXPECT_EQ(read_file(path), "x\n");
}

TEST(SaveLines, FailureNamesTheFinalFileAndLeavesNothingBehind) {
  TempDir dir;
  // A non-empty folder in the feed's place cannot be replaced.
  write_file(dir.path() + "/talmo.xml/keep", "previous");
  try {
    save_lines(dir.path() + "/talmo.xml", {"x"});
    FAIL() << "replacing a folder must fail";
  } catch (const FileError& error) {
    EXPECT_EQ(std::string(error.what()), "Unable to create file \"" + dir.path() + "/talmo.xml\"");
  }
  EXPECT_EQ(read_file(dir.path() + "/talmo.xml/keep"), "previous");
  EXPECT_EQ(entries_in(dir.path()), 1u);
  EXPECT_THROW(save_lines(dir.path() + "/missing/feed.csv", {"x"}), FileError);
}

TEST(ReplacingFile, OldFileStaysUntilTheNewOneIsCommitted) {
  TempDir dir;
  const std::string path = dir.path() + "/vatera.csv";
  write_file(path, "old\n");
  {
    ReplacingFile file(path);
    file.write_line("new");
    EXPECT_EQ(read_file(path), "old\n");
    EXPECT_EQ(entries_in(dir.path()), 2u);  // the feed and its temporary file
  }                                         // abandoned, as when an export fails half-way
  EXPECT_EQ(read_file(path), "old\n");
  EXPECT_EQ(entries_in(dir.path()), 1u);
  ReplacingFile file(path);
  file.write_line("new");
  file.commit();
  EXPECT_EQ(read_file(path), "new\n");
}

TEST(ReplacingFile, LinkedFeedIsUpdatedWhereTheLinkPoints) {
  TempDir dir;
  write_file(dir.path() + "/www/feeds/talmo.xml", "old\n");
  ::chmod((dir.path() + "/www/feeds/talmo.xml").c_str(), 0640);
  std::filesystem::create_directories(dir.path() + "/export/hu");
  std::filesystem::create_symlink("../../www/feeds/talmo.xml", dir.path() + "/export/hu/talmo.xml");
  std::filesystem::create_symlink(dir.path() + "/www/feeds/new.csv",
                                  dir.path() + "/export/hu/arukereso.csv");  // dangling
  save_lines(dir.path() + "/export/hu/talmo.xml", {"new"});
  save_lines(dir.path() + "/export/hu/arukereso.csv", {"csv"});
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path() + "/export/hu/talmo.xml"));
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path() + "/export/hu/arukereso.csv"));
  EXPECT_EQ(read_file(dir.path() + "/www/feeds/talmo.xml"), "new\n");
  EXPECT_EQ(mode_of(dir.path() + "/www/feeds/talmo.xml"), 0640u);
  EXPECT_EQ(read_file(dir.path() + "/www/feeds/new.csv"), "csv\n");
  EXPECT_EQ(entries_in(dir.path() + "/www/feeds"), 2u);  // no temporary file left
}

TEST(ReplacingFile, LeftoversOfKilledRunsAreRemovedAndNothingElse) {
  TempDir dir;
  const std::string feeds = dir.path() + "/feeds";
  for (const char* name :
       {"talmo.xml", ".talmo.xml.tmp-a1B2c3", ".talmo.xml.tmp-zzzzzz", ".talmo.xml.tmp-short",
        ".grando.xml.tmp-a1B2c3", "talmo.xml.tmp-a1B2c3", ".talmo.xml.tmp-a1B2c3.bak"})
    write_file(feeds + "/" + name, "x");
  std::filesystem::create_directories(dir.path() + "/export");
  std::filesystem::create_symlink(feeds + "/talmo.xml", dir.path() + "/export/talmo.xml");
  remove_leftover_temporary_files(dir.path() + "/export/talmo.xml");
  std::vector<std::string> left;
  for (const auto& entry : std::filesystem::directory_iterator(feeds))
    left.push_back(entry.path().filename());
  std::sort(left.begin(), left.end());
  EXPECT_EQ(left, (std::vector<std::string>{".grando.xml.tmp-a1B2c3", ".talmo.xml.tmp-a1B2c3.bak",
                                            ".talmo.xml.tmp-short", "talmo.xml",
                                            "talmo.xml.tmp-a1B2c3"}));
}

}  // namespace
}  // namespace talmo::testing
