// The specification field builders over stored column values, one table per builder. The common
// forms are in the golden catalogue's descriptions; these rows are the edges.
#include "description/spec_builders.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "core/errors.h"

namespace talmo {
namespace {

using Builder = std::string (*)(const std::string&);

struct Case {
  std::string stored, built;
};

void expect_built(const char* name, Builder build, const std::vector<Case>& cases) {
  for (const Case& c : cases)
    EXPECT_EQ(build(c.stored), c.built) << name << " of '" << c.stored << "'";
}

TEST(SpecBuilders, EachBuilderOverItsColumn) {
  for (Builder build : {BUILD, BUILD_NUMBERED, BUILD_AKKUMULATOR, BUILD_GCARD, BUILD_MEREVLEMEZ,
                        BUILD_MEMORY, BUILD_KIJELZO, BUILD_PROCESSZOR})
    EXPECT_EQ(build(" \t\r\n"), "");  // a blank column gives nothing
  expect_built("BUILD", BUILD,
               {{"1||3", "3 x Van"},
                {"1|DVD-RW|2", "DVD-RW"},  // a stored text drops the count
                {"2|DVD-RW|2", ""},        // only a flag of exactly 1 counts
                {"0|x", ""},               // the count is not read without the flag
                {"  1| Magyar |1 \r\n", " Magyar "}});
  expect_built("BUILD_NUMBERED", BUILD_NUMBERED,
               {{"1|0|x|1^1|1|HDMI|1", " + HDMI"}, {"0|1|x|1^0^1|1|z|1", " +  + z"}});
  expect_built("BUILD_AKKUMULATOR", BUILD_AKKUMULATOR, {{" a ||b| ", "a ++b+"}});
  expect_built(
      "BUILD_GCARD", BUILD_GCARD,
      {{"1|NVIDIA|GTX 1050|4 GB|GDDR5|7000 MHz|2", "2 x NVIDIA GTX 1050 4 GB GDDR5 7000 MHz"},
       {"|NVIDIA", ""},  // absent: the other positions are not read
       {"0|Intel|HD 620||||1^1|AMD|R5||||1", " + AMD R5"},
       {"1||GeForce 940MX||||1", " GeForce 940MX"}});
  expect_built("BUILD_MEREVLEMEZ", BUILD_MEREVLEMEZ,
               {{"1|500 GB|SSD||1^1|1 TB|HDD|5400 rpm|2", "500 GB SSD + 2 x 1 TB HDD 5400 rpm"},
                {"|500 GB", ""}});
  expect_built("BUILD_MEMORY", BUILD_MEMORY,
               {{"8 GB|DDR4", "8 GB DDR4"},  // missing positions read empty
                {"|DDR4|2400 MHz", " DDR4 2400 MHz"}});
  expect_built("BUILD_KIJELZO", BUILD_KIJELZO,
               {{"|HD||0|1|0|", " HD matt"},
                {"15.6|HD|1366x768|igen|2|1 |", "15.6 HD (1366x768)"}});  // flags are "1" only
  expect_built("BUILD_PROCESSZOR", BUILD_PROCESSZOR,
               {{"AMD|A6", "AMD A6 "},
                {"Intel|Core i3|2.0 GHz||abc|", "Intel Core i3 (2.0 GHz)"},
                {"Intel|Celeron|1.1 GHz||1|", "Intel Celeron (1.1 GHz)"},
                {"|Core i5|2.5 GHz||2|", "Core i5 (2 x 2.5 GHz)"},
                {"Intel|Core i5|||4|", "Intel Core i5 ()"},  // cores alone print nothing
                {"Intel|Core i5||3.4 GHz||", "Intel Core i5 ( / 3.4 GHz Turbo)"},
                {"Intel|Core i5||||6 MB", "Intel Core i5 (, 6 MB Cache)"}});
}

TEST(SpecBuilders, MissingPositionOrNonNumberRaises) {
  EXPECT_THROW(BUILD("1|x"), ListIndexError);
  EXPECT_THROW(BUILD_NUMBERED("1|1|a|1^1|1"), ListIndexError);
  EXPECT_THROW(BUILD_GCARD("1|NVIDIA|GeForce 940MX|2 GB|GDDR5|"), ListIndexError);
  EXPECT_THROW(BUILD("1|DVD-RW|két"), ConversionError);       // read before the text replaces it
  EXPECT_THROW(BUILD_NUMBERED("1|1|x|1^"), ConversionError);  // an empty entry has no number
  EXPECT_THROW(BUILD_GCARD("1|Intel|HD||||2x"), ConversionError);
  EXPECT_THROW(BUILD_MEREVLEMEZ("1|500 GB|SSD||"), ConversionError);  // no empty-means-0 here
}

}  // namespace
}  // namespace talmo
