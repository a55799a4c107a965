// The publish gate: what goes into the directory the web server serves, what is held back, and
// that a published copy keeps its mode and links.
#include <sys/stat.h>

#include <filesystem>

#include <gtest/gtest.h>

#include "tests/feedcheck/feedcheck_support.h"

namespace talmo::testing {
namespace {

// A TALMO feed of `items` items, each with its own link and a good price.
std::string talmo_with(int items) {
  std::string feed = "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<termeklista>\n";
  for (int i = 1; i <= items; ++i) {
    feed += "\t<termek>\n\t\t<ar>99990</ar>\n\t\t<termeklink><![CDATA[https://www.kelvor.hu/p/" +
            std::to_string(i) + "/]]></termeklink>\n\t</termek>\n";
  }
  return feed + "</termeklista>\n";
}

TEST(PublishGate, WhatIsPublishedAndWhatIsHeldBack) {
  const struct {
    int published;  // items of the published copy, -1 for none
    int current;    // items of the export's feed, -1 when it is missing
    std::vector<std::string> options;
    const char* summary;
    int exit_status;
  } cases[] = {
      {-1, 2, {}, "2 items, published", 0},
      {4, 2, {}, "2 items, published", 0},
      {5,
       2,
       {},
       "2 items, held back: 2 items, fewer than half of the 5 in the published copy "
       "(--accept-shrink publishes it); the published copy stays",
       3},
      {5, 2, {"--previous", "."}, "2 items, held back: 2 items, fewer than half of the 5", 3},
      {5, 2, {"--accept-shrink"}, "2 items, published", 0},
      {1,
       0,
       {},
       "0 items, held back: the feed has a whole-file problem; the published copy stays",
       3},
      {1, -1, {}, "missing; the published copy stays", 2},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.summary);
    TempDir dir;
    const std::string www = dir.path() + "/www";
    std::filesystem::create_directories(www);
    std::filesystem::create_directories(dir.path() + "/export");
    if (c.current >= 0)
      write_file(dir.path() + "/export/hu/talmo.xml", talmo_with(c.current));
    if (c.published >= 0)
      write_file(www + "/hu/talmo.xml", talmo_with(c.published));
    std::vector<std::string> args = {dir.path() + "/export", "--feeds", "talmo", "--publish", www};
    for (const std::string& option : c.options)
      args.push_back(option == "." ? dir.path() + "/export" : option);
    const RunResult result = run_feedcheck(args);
    EXPECT_EQ(result.exit_code, c.exit_status);
    EXPECT_NE(result.out.find("\n  talmo (hu/talmo.xml): " + std::string(c.summary)),
              std::string::npos)
        << result.out;
    const bool published = c.exit_status == 0;
    EXPECT_EQ(read_file(www + "/hu/talmo.xml"), talmo_with(published ? c.current : c.published));
  }
}

TEST(PublishGate, EveryFeedIsComparedWithItsPublishedCopyAndReplacesIt) {
  TempDir dir;
  const std::string www = dir.path() + "/www";
  copy_feeds("previous", www);
  ::chmod((www + "/hu/talmo.xml").c_str(), 0640);
  write_file(dir.path() + "/served/heureka.xml", "old");
  ::chmod((dir.path() + "/served/heureka.xml").c_str(), 0604);
  std::filesystem::remove(www + "/sk/heureka.xml");
  std::filesystem::create_symlink("../../served/heureka.xml", www + "/sk/heureka.xml");
  const RunResult result = run_feedcheck({feeds_path("good"), "--publish", www});
  EXPECT_EQ(result.exit_code, 0);
  EXPECT_NE(result.out.find("Compared with " + www + "/\n"), std::string::npos);
  EXPECT_NE(result.out.find("    price moved  Akc-4100: 58290 -> 116590 (+100.0%)\n"),
            std::string::npos)
      << result.out;
  for (const char* file :
       {"hu/talmo.xml", "hu/arukereso.csv", "hu/grando.xml", "hu/vatera.csv", "sk/heureka.xml"}) {
    SCOPED_TRACE(file);
    EXPECT_EQ(read_file(www + "/" + file), read_file(feeds_path("good") + "/" + file));
  }
  EXPECT_EQ(mode_of(www + "/hu/talmo.xml"), 0640u);
  EXPECT_TRUE(std::filesystem::is_symlink(www + "/sk/heureka.xml"));
  EXPECT_EQ(mode_of(dir.path() + "/served/heureka.xml"), 0604u);
}

}  // namespace
}  // namespace talmo::testing
