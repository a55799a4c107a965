#include "core/file_copy.h"

#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "core/errors.h"
#include "tests/support/test_support.h"

namespace talmo::testing {
namespace {

TEST(FileReader, ReadsInChunksAndFromTheStartAgain) {
  TempDir dir;
  write_file(dir.path() + "/feed.xml", "0123456789");
  FileReader reader(dir.path() + "/feed.xml");
  ASSERT_TRUE(reader.is_open());
  char buffer[4];
  std::string read;
  for (std::size_t got; (got = reader.read(buffer, sizeof buffer)) > 0;)
    read.append(buffer, got);
  EXPECT_EQ(read, "0123456789");
  reader.rewind();
  EXPECT_EQ(reader.read(buffer, sizeof buffer), 4u);
  EXPECT_EQ(std::string(buffer, 4), "0123");
}

TEST(FileReader, SaysWhyAFileIsNotOpen) {
  TempDir dir;
  std::filesystem::create_directory(dir.path() + "/feed.csv");
  const struct {
    std::string path;
    bool missing;
    const char* problem;
  } cases[] = {
      {dir.path() + "/none.xml", true, "No such file or directory"},
      {dir.path() + "/feed.csv", false, "Is a directory"},
  };
  for (const auto& c : cases) {
    FileReader reader(c.path);
    EXPECT_FALSE(reader.is_open());
    EXPECT_EQ(reader.is_missing(), c.missing);
    EXPECT_EQ(reader.problem(), c.problem);
    char byte;
    EXPECT_THROW(reader.read(&byte, 1), FileReadError);
  }
}

TEST(ReplaceWithCopy, ANewFileGetsTheUmaskDefaultAndAnOldOneKeepsItsMode) {
  TempDir dir;
  write_file(dir.path() + "/feed.xml", "new feed\n");
  FileReader source(dir.path() + "/feed.xml");
  const mode_t mask = ::umask(022);
  replace_with_copy(source, dir.path() + "/fresh.xml");
  EXPECT_EQ(mode_of(dir.path() + "/fresh.xml"), 0644u);
  write_file(dir.path() + "/served.xml", "old feed, longer than the new one\n");
  ::chmod((dir.path() + "/served.xml").c_str(), 0640);
  replace_with_copy(source, dir.path() + "/served.xml");
  ::umask(mask);
  EXPECT_EQ(read_file(dir.path() + "/served.xml"), "new feed\n");
  EXPECT_EQ(mode_of(dir.path() + "/served.xml"), 0640u);
  EXPECT_EQ(entries_in(dir.path()), 3u);
}

TEST(ReplaceWithCopy, ALinkStaysALinkAndItsTargetIsReplaced) {
  TempDir dir;
  write_file(dir.path() + "/export/talmo.xml", "new");
  write_file(dir.path() + "/data/talmo.xml", "old");
  std::filesystem::create_directory(dir.path() + "/www");
  std::filesystem::create_symlink("../data/talmo.xml", dir.path() + "/www/talmo.xml");
  FileReader source(dir.path() + "/export/talmo.xml");
  replace_with_copy(source, dir.path() + "/www/talmo.xml");
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path() + "/www/talmo.xml"));
  EXPECT_EQ(read_file(dir.path() + "/data/talmo.xml"), "new");
  EXPECT_EQ(entries_in(dir.path() + "/www"), 1u);
  EXPECT_EQ(entries_in(dir.path() + "/data"), 1u);
}

TEST(ReplaceWithCopy, AFailureNamesTheDestinationAndLeavesTheOldCopy) {
  TempDir dir;
  write_file(dir.path() + "/feed.xml", "new");
  FileReader source(dir.path() + "/feed.xml");
  try {
    replace_with_copy(source, dir.path() + "/missing/feed.xml");
    ADD_FAILURE() << "no error";
  } catch (const FileError& error) {
    EXPECT_EQ(std::string(error.what()),
              "Unable to create file \"" + dir.path() + "/missing/feed.xml\"");
  }
  write_file(dir.path() + "/www/feed.xml", "old");
  std::filesystem::create_directory(dir.path() + "/www/feed.xml.d");
  EXPECT_THROW(replace_with_copy(source, dir.path() + "/www/feed.xml.d"), FileError);
  EXPECT_EQ(read_file(dir.path() + "/www/feed.xml"), "old");
  EXPECT_EQ(entries_in(dir.path() + "/www"), 2u);
}

}  // namespace
}  // namespace talmo::testing
