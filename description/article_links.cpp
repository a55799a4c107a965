#include "description/article_links.h"

#include "core/strings.h"
#include "site_config.h"

namespace talmo {

std::string hu_article_link(const std::string& before, const std::string& path,
                            const std::string& attribute, const std::string& anchor,
                            const std::string& after) {
  return before + "<a href=\"" + site_config::kHuArticleBase + path + "\" " + attribute + ">" +
         anchor + "</a>" + after;
}

std::string ADDLINK(const std::string& LINK, const std::string& SITE) {
  if (!equals_ci(SITE, "hu"))
    return "";
  for (const std::string* link :
       {&PROCESSZOR_LINK, &MEREVLEMEZ_LINK, &KIJELZO_LINK, &GRAFIKUS_KARTYA_LINK, &KIEGESZITOK_LINK,
        &WINDOWS8_LINK, &LINUX_LINK, &ANDROID_LINK}) {
    if (LINK == *link)
      return LINK;
  }
  return "";
}

}  // namespace talmo
