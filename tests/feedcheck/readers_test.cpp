// How the readers split each kind of feed file into items, and where they give up.
#include "feedcheck/item_readers.h"

#include <gtest/gtest.h>

#include "tests/support/test_support.h"

namespace talmo::feedcheck {
namespace {

using talmo::testing::TempDir;
using talmo::testing::write_file;

// Every item read from `content` as "line N: field|field|..." (quoted CSV fields in [brackets],
// XML fields as name=value, PARAM pairs as name~value), and the file's problem, if any.
struct ReadResult {
  std::vector<std::string> items;
  std::string problem;
};

enum class Reader { Quoted, Vatera, Talmo, Heureka };

ReadResult read(Reader reader, const std::string& content) {
  TempDir dir;
  write_file(dir.path() + "/feed", content);
  FileReader file(dir.path() + "/feed");
  ReadResult result;
  const ItemHandler collect = [&](const FeedItem& item) {
    std::string text = "line " + std::to_string(item.line) + ":";
    for (const Field& field : item.fields) {
      text += " " + (field.name.empty() ? "" : field.name + "=") +
              (field.quoted ? "[" + field.value + "]" : field.value);
    }
    for (const Field& param : item.params)
      text += " " + param.name + "~" + param.value;
    result.items.push_back(text);
  };
  std::optional<FileProblem> problem;
  if (reader == Reader::Quoted)
    problem = read_quoted_records(file, collect);
  else if (reader == Reader::Vatera)
    problem = read_vatera_records(file, collect);
  else
    problem = read_xml_items(file, *find_feed_kind(reader == Reader::Talmo ? "talmo" : "heureka"),
                             collect);
  if (problem)
    result.problem = std::string(kind_id(problem->kind)) + ": " + problem->message;
  return result;
}

TEST(QuotedCsv, RecordsAndFields) {
  const struct {
    const char* content;
    std::vector<std::string> items;
    const char* problem;
  } cases[] = {
      {"\"a\",\"b\"\n\"c\",\"d\"\n", {"line 1: [a] [b]", "line 2: [c] [d]"}, ""},
      {"\"a\",\"b\"", {"line 1: [a] [b]"}, ""},
      {"\"say \"\"hi\"\"\",\"\"\n", {"line 1: [say \"hi\"] []"}, ""},
      {"\"one\ntwo, three\",\"x\"\n\"y\"\n", {"line 1: [one\ntwo, three] [x]", "line 3: [y]"}, ""},
      {"\"a\",\"b\"\r\n\r\n\n\"c\"\r\n", {"line 1: [a] [b]", "line 4: [c]"}, ""},
      {"\"a\",b,,\"c\"\n", {"line 1: [a] b  [c]"}, ""},
      {"\"a\",\n", {"line 1: [a] "}, ""},
      {"\xEF\xBB\xBF\"a\"\n", {"line 1: [a]"}, ""},
      {"", {}, ""},
      {"\"a\",\"15.6\" matt\"\n\"b\"\n",
       {},
       "not-splittable: line 1: text after the closing quote of field 2"},
      {"\"a\"\n\"b\",x\"y\"\n",
       {"line 1: [a]"},
       "not-splittable: line 2: a double quote inside field 2, which does not start with one"},
      {"\"a\"\n\"b\",\"never\nclosed\n",
       {"line 1: [a]"},
       "not-splittable: line 2: the quote opening field 2 is never closed"},
  };
  for (const auto& c : cases) {
    const ReadResult result = read(Reader::Quoted, c.content);
    EXPECT_EQ(result.items, c.items) << c.content;
    EXPECT_EQ(result.problem, c.problem) << c.content;
  }
}

TEST(VateraCsv, ARecordRunsOverTheLinesOfItsDescription) {
  const struct {
    const char* content;
    std::vector<std::string> items;
    const char* problem;
  } cases[] = {
      {"7937228;a;b\n7937228;c\n", {"line 1: 7937228;a;b", "line 2: 7937228;c"}, ""},
      {"7937228;a;<p>\n</p>\n\n7937228 x;\n7937228;c",
       {"line 1: 7937228;a;<p>\n</p>\n\n7937228 x;", "line 5: 7937228;c"},
       ""},
      {"", {}, ""},
      {"\xEF\xBB\xBF"
       "7937228;a\r\n",
       {"line 1: 7937228;a\r"},
       ""},
      {"\n7937228;a\n",
       {},
       "not-splittable: line 1: starts no record (\"7937228;\") and follows none"},
      {"7937229;a\n",
       {},
       "not-splittable: line 1: starts no record (\"7937228;\") and follows none"},
  };
  for (const auto& c : cases) {
    const ReadResult result = read(Reader::Vatera, c.content);
    EXPECT_EQ(result.items, c.items) << c.content;
    EXPECT_EQ(result.problem, c.problem) << c.content;
  }
}

TEST(XmlFeeds, ItemsWithTheirFieldsAndParameters) {
  const ReadResult talmo =
      read(Reader::Talmo,
           "<?xml version=\"1.0\" encoding=\"UTF-8\" ?>\n<termeklista>\n"
           "\t<termek>\n\t\t<ar>1 &amp; 2</ar>\n\t\t<leiras><![CDATA[a <b>]]>"
           "</leiras>\n\t\t<ido/>\n\t\t<nev>x<![CDATA[y]]>z</nev>\n\t</termek>\n"
           "\t<termek/>\n</termeklista>\n");
  EXPECT_EQ(talmo.items,
            (std::vector<std::string>{"line 3: ar=1 & 2 leiras=a <b> ido= nev=xyz", "line 9:"}));
  EXPECT_EQ(talmo.problem, "");
  const ReadResult heureka =
      read(Reader::Heureka,
           "<SHOP><SHOPITEM><ITEM_ID>1</ITEM_ID><PARAM><PARAM_NAME><![CDATA[Wifi]]></PARAM_NAME>"
           "<VAL><![CDATA[]]></VAL><PARAM_NAME>USB</PARAM_NAME><VAL>2 x</VAL></PARAM>"
           "<PARAM><PARAM_NAME>HDMI</PARAM_NAME><VAL/></PARAM></SHOPITEM></SHOP>");
  EXPECT_EQ(heureka.items,
            (std::vector<std::string>{"line 1: ITEM_ID=1 PARAM= PARAM= Wifi~ USB~2 x HDMI~"}));
}

TEST(XmlFeeds, WholeFileProblems) {
  const struct {
    const char* content;
    const char* problem;
  } cases[] = {
      {"", "not-well-formed: the file is empty"},
      {"<termeklista>\n<termek><ar>1</ar></termek>\n<termek><ar>A&T</ar></termek>\n</"
       "termeklista>\n",
       "not-well-formed: line 3, column 16, in item 2: EntityRef: expecting ';'"},
      {"<termeklista>\n<termek><termeklink>k1</termeklink></termek>\n<termek><ar>1",
       "not-well-formed: line 3, column 13, in item 2, after item 1 (\"k1\"): the file ends "
       "before </termeklista> closes it: it was cut short"},
      {"<termeklista>\n<termek><termeklink><![CDATA[k1]]></termeklink></termek>\n</"
       "termeklista>\n<x/>",
       "not-well-formed: line 4, column 1, after item 1 (\"k1\"): Extra content at the end of the "
       "document"},
      {"<!-- <termek> -->\n<termeklista><termek><leiras><![CDATA[<termek>]]>\n</leiras>\n<a></b>",
       "not-well-formed: line 4, column 8, in item 1: Opening and ending tag mismatch: a line 4 "
       "and b"},
      {"<products><product/></products>",
       "no-items: the root element is <products>, not <termeklista>"},
  };
  for (const auto& c : cases)
    EXPECT_EQ(read(Reader::Talmo, c.content).problem, c.problem) << c.content;
}

}  // namespace
}  // namespace talmo::feedcheck
