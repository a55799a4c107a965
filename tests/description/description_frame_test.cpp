// Restyling ignores letter case: stored texts may carry the shop's inline styles in capitals.
// Everything else the frame does is in the whole descriptions of description_test.cpp.
#include "description/description_frame.h"

#include <gtest/gtest.h>

namespace talmo {
namespace {

TEST(DescriptionFrame, RestyleIgnoresLetterCase) {
  struct Case {
    std::string raw, restyled;
  };
  for (const Case& c : std::vector<Case>{
           {"<P STYLE=\"FONT-SIZE: 12PX; LINE-HEIGHT: 15PX; MARGIN-LEFT: 5PX; FONT-FAMILY: "
            "'FEDERO', ARIAL, SANS-SERIF;\">x",
            "<p id=\"item_detail_text\">x"},
           {"a<SCRIPT TYPE=\"TEXT/JAVASCRIPT\">\r<!--\r  FUNCTION SHOW_ITEM(ID) {\r    VAR E = "
            "DOCUMENT.GETELEMENTBYID(ID);\r    IF (E.STYLE.DISPLAY == 'BLOCK')\r      "
            "E.STYLE.DISPLAY = 'NONE';\r    ELSE\r      E.STYLE.DISPLAY = 'BLOCK';\r  }\r//-->\r"
            "</SCRIPT>b",
            "ab"},
           {"<p style=\"color: red;\">x</p>", "<p style=\"color: red;\">x</p>"},  // not the shop's
       }) {
    EXPECT_EQ(restyle_description(c.raw), c.restyled) << c.raw;
  }
}

}  // namespace
}  // namespace talmo
