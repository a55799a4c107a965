#include "description/spec_builders.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

using Builder = std::string (*)(const std::string&);

struct Case {
  std::string input;
  std::string expected;
};

void expect_lines(Builder build, const std::vector<Case>& cases) {
  for (const Case& c : cases)
    EXPECT_EQ(build(c.input), c.expected) << "stored value: '" << c.input << "'";
}

struct NamedBuilder {
  const char* name;
  Builder build;
};

const NamedBuilder kBuilders[] = {
    {"BUILD", BUILD},
    {"BUILD_NUMBERED", BUILD_NUMBERED},
    {"BUILD_AKKUMULATOR", BUILD_AKKUMULATOR},
    {"BUILD_GCARD", BUILD_GCARD},
    {"BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ},
    {"BUILD_MEMORY", BUILD_MEMORY},
    {"BUILD_KIJELZO", BUILD_KIJELZO},
    {"BUILD_PROCESSZOR", BUILD_PROCESSZOR},
};

TEST(SpecBuilders, BlankColumnGivesNothing) {
  for (const NamedBuilder& b : kBuilders) {
    for (const std::string blank : {"", " \t\r\n"})
      EXPECT_EQ(b.build(blank), "") << b.name << " of '" << blank << "'";
  }
}

TEST(SpecBuilders, YesNoColumn) {
  expect_lines(BUILD, {
                          {"1||3", "3 x Van"},
                          {"1||1", "Van"},
                          {"1|DVD-RW|2", "DVD-RW"},  // a stored text drops the count
                          {"0|DVD-RW|2", ""},
                          {"2|DVD-RW|2", ""},  // only a flag of exactly 1 counts
                          {"0|x", ""},         // the count is not read without the flag
                          {"  1|Magyar|1 \r\n", "Magyar"},
                          {"1| Magyar |1", " Magyar "},  // inner pieces keep their blanks
                      });
}

TEST(SpecBuilders, NumberedColumn) {
  expect_lines(BUILD_NUMBERED, {
                                   {"1|1|USB 2.0|2^1|1|USB 3.0|1", "2 x USB 2.0 + USB 3.0"},
                                   {"1|0|x|1^1|1|HDMI|1", " + HDMI"},
                                   {"1|1|Windows 10|1^0|1|Linux|1", "Windows 10 + "},
                                   {"0|1|x|1^0^1|1|z|1", " +  + z"},
                                   {"1|1|USB 3.0|3", "3 x USB 3.0"},  // unlike BUILD
                                   {"1|1||3", "3 x Van"},
                                   {"-1|1|x|1", ""},
                                   {"1|0", ""},  // a flag other than 1 reads no further
                                   {"1|1|USB 2.0|2 ^1|1|USB 3.0|1", "2 x USB 2.0 + USB 3.0"},
                               });
}

TEST(SpecBuilders, BatteryColumnJoinsEverySubValue) {
  expect_lines(BUILD_AKKUMULATOR, {
                                      {"6 cellás|4400 mAh", "6 cellás+4400 mAh"},
                                      {"a||b|", "a++b+"},
                                      {" a | b ", "a +b"},
                                  });
}

TEST(SpecBuilders, GraphicsCards) {
  expect_lines(
      BUILD_GCARD,
      {
          {"1|NVIDIA|GeForce 940MX|2 GB|GDDR5||1", "NVIDIA GeForce 940MX 2 GB GDDR5"},
          {"1|NVIDIA|GTX 1050|4 GB|GDDR5|7000 MHz|2", "2 x NVIDIA GTX 1050 4 GB GDDR5 7000 MHz"},
          {"1|Intel|UHD 620||||", "Intel UHD 620"},  // an empty count is 0
          {"|NVIDIA", ""},                           // absent: the other positions are not read
          {"1|Intel|HD 620||||1^1|AMD|Radeon 530|2 GB|GDDR5||1",
           "Intel HD 620 + AMD Radeon 530 2 GB GDDR5"},
          {"0|Intel|HD 620||||1^1|AMD|R5||||1", " + AMD R5"},
          {"1|Intel|HD 620||||1^", "Intel HD 620 + "},
          {"1||GeForce 940MX||||1", " GeForce 940MX"},
      });
}

TEST(SpecBuilders, HardDisks) {
  expect_lines(BUILD_MEREVLEMEZ,
               {
                   {"1|500 GB|SSD||1^1|1 TB|HDD|5400 rpm|2", "500 GB SSD + 2 x 1 TB HDD 5400 rpm"},
                   {"0|500 GB|SSD||1^1|1 TB|HDD||1", " + 1 TB HDD"},
                   {"1|1 TB|HDD|5400 rpm|2^", "2 x 1 TB HDD 5400 rpm + "},
                   {"|500 GB", ""},
                   {"0", ""},
                   {"1|256 GB|||1", "256 GB"},
                   {"1||SSD||1", " SSD"},
               });
}

TEST(SpecBuilders, Memory) {
  expect_lines(BUILD_MEMORY, {
                                 {"8 GB|DDR4|2400 MHz", "8 GB DDR4 2400 MHz"},
                                 {"8 GB;DDR4", "8 GB;DDR4"},
                                 {"8 GB|DDR4", "8 GB DDR4"},  // missing positions read empty
                                 {"8 GB||2400 MHz", "8 GB 2400 MHz"},
                                 {"|DDR4|2400 MHz", " DDR4 2400 MHz"},
                             });
}

TEST(SpecBuilders, Display) {
  expect_lines(BUILD_KIJELZO,
               {
                   {"15.6|Full HD|1920x1080|1|1|0|", "15.6 Full HD (1920x1080) LED matt"},
                   {"13.3|QHD+|3200x1800|1|0|1|IPS", "13.3 QHD+ (3200x1800) LED Touch IPS"},
                   {"15.6|||0|0|0|", "15.6"},
                   {"|HD||0|1|0|", " HD matt"},
                   {"15.6|HD|1366x768|igen|2|1 |", "15.6 HD (1366x768)"},  // flags are "1" only
                   {"15.6|HD||0|0|0||x", "15.6 HD"},
               });
}

TEST(SpecBuilders, Processor) {
  expect_lines(BUILD_PROCESSZOR,
               {
                   {"Intel|Core i5-8250U|1.6 GHz|3.4 GHz|4|6 MB",
                    "Intel Core i5-8250U (4 x 1.6 GHz / 3.4 GHz Turbo, 6 MB Cache)"},
                   {"AMD|A6", "AMD A6 "},
                   {"Intel", "Intel "},
                   {"Intel|Core i7|2.6 GHz", "Intel Core i7 (2.6 GHz)"},
                   {"Intel|Core i3|2.0 GHz||abc|", "Intel Core i3 (2.0 GHz)"},
                   {"Intel|Celeron|1.1 GHz||1|", "Intel Celeron (1.1 GHz)"},
                   {"Intel|Celeron|1.1 GHz||-4|", "Intel Celeron (1.1 GHz)"},
                   {"|Core i5|2.5 GHz||2|", "Core i5 (2 x 2.5 GHz)"},
                   {"Intel|Core i5|||4|", "Intel Core i5 ()"},  // cores alone print nothing
                   {"Intel|Core i5||3.4 GHz||", "Intel Core i5 ( / 3.4 GHz Turbo)"},
                   {"Intel|Core i5||||6 MB", "Intel Core i5 (, 6 MB Cache)"},
               });
}

struct BadValue {
  const char* builder;
  Builder build;
  std::string input;
};

TEST(SpecBuilders, MissingPositionRaisesListIndexError) {
  const std::vector<BadValue> cases = {
      {"BUILD", BUILD, "1|x"},
      {"BUILD", BUILD, "1"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1|1|x"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1|1|a|1^1|1"},
      {"BUILD_GCARD", BUILD_GCARD, "1|NVIDIA|GeForce 940MX|2 GB|GDDR5|"},
      {"BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ, "1|500 GB|SSD|"},
      {"BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ, "0^1"},
      {"BUILD_KIJELZO", BUILD_KIJELZO, "15.6|Full HD|1920x1080|1|1|0"},
  };
  for (const BadValue& c : cases)
    EXPECT_THROW(c.build(c.input), ListIndexError) << c.builder << " of '" << c.input << "'";
}

TEST(SpecBuilders, NonNumberRaisesConversionError) {
  const std::vector<BadValue> cases = {
      {"BUILD", BUILD, "igen|x|1"},
      {"BUILD", BUILD, "1 |x|1"},
      {"BUILD", BUILD, "1|DVD-RW|két"},  // read before the text replaces it
      {"BUILD", BUILD, "1||"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "a|1|x|1"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1|igen|x|1"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1|1|x|2 db"},
      {"BUILD_NUMBERED", BUILD_NUMBERED, "1|1|x|1^"},  // an empty entry has no number
      {"BUILD_GCARD", BUILD_GCARD, "x|Intel|HD||||1"},
      {"BUILD_GCARD", BUILD_GCARD, "1|Intel|HD||||2x"},
      {"BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ, "igen|500 GB|SSD||1"},
      {"BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ, "1|500 GB|SSD||"},  // no empty-means-0 here
  };
  for (const BadValue& c : cases)
    EXPECT_THROW(c.build(c.input), ConversionError) << c.builder << " of '" << c.input << "'";
}

}  // namespace
}  // namespace talmo
