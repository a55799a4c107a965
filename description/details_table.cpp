#include "description/details_table.h"

#include "description/html_helpers.h"
#include "product/translation.h"

namespace talmo {

std::vector<DetailsRow> value_rows(const StringList& items, std::span<const LabelAt> labels) {
  std::vector<DetailsRow> rows;
  for (const LabelAt& at : labels) {
    rows.push_back({at.label, [&items, position = at.position] {
                      const std::string& text = item_at(items, position);
                      return RowValue{!text.empty(), text};
                    }});
  }
  return rows;
}

std::string details_open(Query& VAR_QUERY, const std::string& SITE, const std::string& heading,
                         const std::string& id, std::int32_t table) {
  const std::string text = GETTRANSLATION(VAR_QUERY, heading, SITE);
  const std::string toggle = GETTRANSLATION(VAR_QUERY, "mutat/elrejt", SITE);
  return "<p " + HTML_ADDPSTYLING1() + ">" + text + " <a href=\"#" + id +
         "\" onclick=\"show_item('" + id + "');\">" + toggle + "</a></p>" + "<table " +
         HTML_ADDTABLESTYLING(table) + ">";
}

std::string details_header_row(Query& VAR_QUERY, const std::string& SITE, const std::string& number,
                               const std::string& name) {
  const std::string left = HTML_STRONG(number + GETTRANSLATION(VAR_QUERY, name, SITE));
  const std::string right = HTML_STRONG(GETTRANSLATION(VAR_QUERY, "Érték", SITE));
  return "<tr><th " + HTML_ADDTHSTYLING1() + "><p " + HTML_ADDPSTYLING1() + ">" + left +
         "</p></th><th " + HTML_ADDTHSTYLING2() + "><p " + HTML_ADDPSTYLING2() + ">" + right +
         "</p></th></tr>";
}

std::string details_rows(Query& VAR_QUERY, const std::string& SITE,
                         const std::vector<DetailsRow>& rows) {
  std::string html;
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const bool last = i + 1 == rows.size();
    const std::string label = HTML_STRONG(GETTRANSLATION(VAR_QUERY, rows[i].label, SITE));
    const RowValue value = rows[i].value();
    const std::string image = HTML_ADDTRUEORFALSEIMAGE(value.present, VAR_QUERY, SITE);
    html += "<tr><td " + (last ? HTML_ADDTDSTYLING_BOTTOM1() : HTML_ADDTDSTYLING_EMPTY()) + "><p " +
            HTML_ADDPSTYLING1() + ">" + label + "</p></td><td " +
            (last ? HTML_ADDTDSTYLING_BOTTOM2() : HTML_ADDTDSTYLING_ALL()) + "><p " +
            HTML_ADDPSTYLING2() + ">" + image + " " + value.text + "</p></td></tr>";
  }
  return html;
}

}  // namespace talmo
