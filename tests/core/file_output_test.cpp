#include "core/file_output.h"

#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "core/errors.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

mode_t mode_of(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(::stat(path.c_str(), &info), 0) << path;
  return info.st_mode & 07777;
}

std::size_t entries_in(const std::string& dir) {
  std::size_t count = 0;
  for ([[maybe_unused]] const auto& entry : std::filesystem::directory_iterator(dir))
    ++count;
  return count;
}

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

TEST(SaveLines, PrivateModeIsForcedEvenOnAnExistingFile) {
  TempDir dir;
  write_file(dir.path() + "/config.dat", "old");
  ::chmod((dir.path() + "/config.dat").c_str(), 0644);
  save_lines_with_mode(dir.path() + "/config.dat", {"h", "p"}, 0600);
  EXPECT_EQ(mode_of(dir.path() + "/config.dat"), 0600u);
  EXPECT_EQ(read_file(dir.path() + "/config.dat"), "h\np\n");
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

TEST(ReplacingFile, MissingFolderIsReportedOnlyAtCommit) {
  TempDir dir;
  ReplacingFile file(dir.path() + "/sk/heureka.xml");
  file.write_line("x");  // no error yet: the console reports it at the save
  EXPECT_THROW(file.commit(), FileError);
}

}  // namespace
}  // namespace talmo::testing
