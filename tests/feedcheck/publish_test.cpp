// The publish gate: what goes into the directory the web server serves, what is held back, and
// that a published copy keeps its mode and links.
#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/feedcheck/feedcheck_support.h"

namespace talmo::testing {
namespace {

const char* const kFiles[] = {"hu/talmo.xml", "hu/arukereso.csv", "hu/grando.xml", "hu/vatera.csv",
                              "sk/heureka.xml"};

// The summary line the report gives a feed, "" when there is none.
std::string summary_line(const std::string& report, const std::string& feed_and_file) {
  const std::size_t summary = report.find("\nSummary\n");
  const std::size_t at = report.find("\n  " + feed_and_file + ": ", summary);
  if (summary == std::string::npos || at == std::string::npos)
    return "";
  return report.substr(at + 1, report.find('\n', at + 1) - at - 1);
}

// A TALMO feed of `items` items, each with its own link and a good price.
std::string talmo_with(int items) {
  std::string feed = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<termeklista>\n";
  for (int i = 1; i <= items; ++i) {
    feed += "\t<termek>\n\t\t<ar>99990</ar>\n\t\t<termeklink><![CDATA[https://www.kelvor.hu/p/" +
            std::to_string(i) + "/]]></termeklink>\n\t</termek>\n";
  }
  return feed + "</termeklista>\n";
}

TEST(PublishGate, FirstPublishCopiesEveryFeedAndMakesTheSiteFolders) {
  TempDir dir;
  std::filesystem::create_directory(dir.path() + "/www");
  const RunResult result = run_feedcheck({feeds_path("good"), "--publish", dir.path() + "/www"});
  EXPECT_EQ(result.exit_code, 0);
  for (const char* file : kFiles) {
    SCOPED_TRACE(file);
    ASSERT_TRUE(file_exists(dir.path() + "/www/" + file));
    EXPECT_EQ(read_file(dir.path() + "/www/" + file), read_file(feeds_path("good") + "/" + file));
  }
  EXPECT_EQ(summary_line(result.out, "talmo (hu/talmo.xml)"),
            "  talmo (hu/talmo.xml): 2 items, published");
  EXPECT_NE(result.out.find("  talmo: not compared: no published copy\n"), std::string::npos);
}

TEST(PublishGate, AFeedWithFewerThanHalfTheItemsOfThePublishedCopyIsHeldBack) {
  const struct {
    int published;
    int current;
    bool accept_shrink;
    const char* summary;
    int exit_status;
  } cases[] = {
      {4, 2, false, "  talmo (hu/talmo.xml): 2 items, published", 0},
      {5, 2, false,
       "  talmo (hu/talmo.xml): 2 items, held back: 2 items, fewer than half of the 5 in the "
       "published copy (--accept-shrink publishes it); the published copy stays",
       3},
      {5, 2, true, "  talmo (hu/talmo.xml): 2 items, published", 0},
      {1, 0, false,
       "  talmo (hu/talmo.xml): 0 items, held back: the feed has a whole-file problem; the "
       "published copy stays",
       3},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.summary);
    TempDir dir;
    write_file(dir.path() + "/export/hu/talmo.xml", talmo_with(c.current));
    write_file(dir.path() + "/www/hu/talmo.xml", talmo_with(c.published));
    std::vector<std::string> args = {dir.path() + "/export", "--feeds", "talmo", "--publish",
                                     dir.path() + "/www"};
    if (c.accept_shrink)
      args.push_back("--accept-shrink");
    const RunResult result = run_feedcheck(args);
    EXPECT_EQ(result.exit_code, c.exit_status);
    EXPECT_EQ(summary_line(result.out, "talmo (hu/talmo.xml)"), c.summary);
    const bool published = c.exit_status == 0;
    EXPECT_EQ(read_file(dir.path() + "/www/hu/talmo.xml"),
              talmo_with(published ? c.current : c.published));
  }
}

TEST(PublishGate, BrokenFeedsAreHeldBackAndThePublishedCopiesStay) {
  TempDir dir;
  copy_feeds("good", dir.path() + "/www");
  const RunResult result =
      run_feedcheck({feeds_path("file_problems"), "--publish", dir.path() + "/www"});
  EXPECT_EQ(result.exit_code, 3);
  for (const char* file : kFiles) {
    SCOPED_TRACE(file);
    EXPECT_EQ(read_file(dir.path() + "/www/" + file), read_file(feeds_path("good") + "/" + file));
  }
  EXPECT_EQ(summary_line(result.out, "heureka (sk/heureka.xml)"),
            "  heureka (sk/heureka.xml): read up to its problem, held back: the feed has a "
            "whole-file problem; the published copy stays");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(dir.path() + "/www/hu"),
                          std::filesystem::directory_iterator()),
            4);
}

TEST(PublishGate, AMissingFeedLeavesItsPublishedCopy) {
  TempDir dir;
  copy_feeds("good", dir.path() + "/export");
  copy_feeds("previous", dir.path() + "/www");
  std::filesystem::remove(dir.path() + "/export/sk/heureka.xml");
  const RunResult result =
      run_feedcheck({dir.path() + "/export", "--publish", dir.path() + "/www"});
  EXPECT_EQ(result.exit_code, 2);
  EXPECT_EQ(read_file(dir.path() + "/www/sk/heureka.xml"),
            read_file(feeds_path("previous") + "/sk/heureka.xml"));
  EXPECT_EQ(summary_line(result.out, "heureka (sk/heureka.xml)"),
            "  heureka (sk/heureka.xml): missing; the published copy stays");
  EXPECT_EQ(read_file(dir.path() + "/www/hu/talmo.xml"),
            read_file(feeds_path("good") + "/hu/talmo.xml"));
}

TEST(PublishGate, ThePublishedSetIsThePreviousRunUnlessPreviousNamesAnother) {
  TempDir dir;
  copy_feeds("previous", dir.path() + "/www");
  const std::string changes =
      "  grando: 0 appeared, 0 disappeared, 1 price moved by more than 30%\n"
      "    price moved  Akc-4100: 58290 -> 116590 (+100.0%)\n";
  const RunResult first = run_feedcheck({feeds_path("good"), "--publish", dir.path() + "/www"});
  EXPECT_NE(first.out.find("Compared with " + dir.path() + "/www/\n"), std::string::npos);
  EXPECT_NE(first.out.find(changes), std::string::npos) << first.out;
  // Now the published copies are those of the good feeds: nothing changed since.
  const RunResult second = run_feedcheck({feeds_path("good"), "--publish", dir.path() + "/www"});
  EXPECT_NE(second.out.find("  grando: no changes\n"), std::string::npos) << second.out;
  const RunResult other = run_feedcheck(
      {feeds_path("good"), "--publish", dir.path() + "/www", "--previous", feeds_path("previous")});
  EXPECT_NE(other.out.find(changes), std::string::npos) << other.out;
}

mode_t mode_of(const std::string& path) {
  struct stat info {};
  EXPECT_EQ(::stat(path.c_str(), &info), 0) << path;
  return info.st_mode & 07777;
}

TEST(PublishGate, PublishedCopiesKeepTheirModeAndLinks) {
  TempDir dir;
  copy_feeds("previous", dir.path() + "/www");
  ::chmod((dir.path() + "/www/hu/talmo.xml").c_str(), 0640);
  write_file(dir.path() + "/served/heureka.xml", "old");
  ::chmod((dir.path() + "/served/heureka.xml").c_str(), 0604);
  std::filesystem::remove(dir.path() + "/www/sk/heureka.xml");
  std::filesystem::create_symlink("../../served/heureka.xml", dir.path() + "/www/sk/heureka.xml");
  const RunResult result = run_feedcheck({feeds_path("good"), "--publish", dir.path() + "/www"});
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_EQ(mode_of(dir.path() + "/www/hu/talmo.xml"), 0640u);
  EXPECT_EQ(read_file(dir.path() + "/www/hu/talmo.xml"),
            read_file(feeds_path("good") + "/hu/talmo.xml"));
  EXPECT_TRUE(std::filesystem::is_symlink(dir.path() + "/www/sk/heureka.xml"));
  EXPECT_EQ(read_file(dir.path() + "/served/heureka.xml"),
            read_file(feeds_path("good") + "/sk/heureka.xml"));
  EXPECT_EQ(mode_of(dir.path() + "/served/heureka.xml"), 0604u);
}

}  // namespace
}  // namespace talmo::testing
