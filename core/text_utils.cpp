#include "core/text_utils.h"

#include "site_config.h"

namespace talmo {

std::string GETSITENAME(const std::string& SITE) {
  const std::string code = upper_ascii(SITE);
  if (code == "HU")
    return site_config::kHostHu;
  if (code == "SK")
    return site_config::kHostSk;
  if (code == "CZ")
    return site_config::kHostCz;
  return "";
}

std::string GETSITEURL(const std::string& SITE) {
  return "https://" + GETSITENAME(SITE);
}

void STRINGEXTRACT(std::string S, StringList& LIST, char DELIMITER) {
  LIST.clear();
  for (std::size_t pos = S.find(DELIMITER); pos != std::string::npos; pos = S.find(DELIMITER)) {
    LIST.push_back(S.substr(0, pos));
    S.erase(0, pos + 1);
  }
  LIST.push_back(trim(S));
}

StringList split_stored(const std::string& S, char DELIMITER) {
  StringList list;
  STRINGEXTRACT(S, list, DELIMITER);
  return list;
}

std::int32_t COUNTOCCURENCES(const std::string& SUBTEXT, const std::string& TEXT) {
  if (SUBTEXT.empty() || TEXT.empty())
    return 0;
  const std::size_t removed = TEXT.size() - replace_all(TEXT, SUBTEXT, "").size();
  return static_cast<std::int32_t>(removed / SUBTEXT.size());
}

std::string MAKEVALIDNUMERICVALUE(std::string S) {
  if (S.empty())
    return "0";
  if (contains_ci(S, "kalkul"))
    return "0";
  S = replace_all(S, " ", "");
  if (COUNTOCCURENCES(".", S) + COUNTOCCURENCES(",", S) >= 2) {
    S = replace_all(S, ",", ".");
    while (COUNTOCCURENCES(".", S) >= 2)
      S.erase(S.find('.'), 1);
  } else {
    S = replace_all(S, ",", ".");
  }
  return S;
}

char GETITEMDELIMITER() {
  return ITEMDELIMITER;
}
char GETENTRYDELIMITER() {
  return ENTRYDELIMITER;
}

std::string GETVAR(const std::string& NAME, const std::string& SITE) {
  const bool hu = SITE == "hu";
  const bool sister = SITE == "sk" || SITE == "cz";
  if (!hu && !sister)
    return "";
  if (NAME == "megnevezes_szoveg") {
    return hu ? "<div id=\"sor\"><div id=\"megnevezes\"><p id=\"megnevezes_szoveg\"><strong>"
              : "<div id=\"linia\"><div id=\"oznacenie\"><p id=\"oznacenie_text\"><strong>";
  }
  if (NAME == "megnevezes_leiras") {
    return hu ? "</strong></p></div><div id=\"leiras\"><p id=\"leiras_szoveg\" "
                "itemprop=\"ingredients\">"
              : "</strong></p></div><div id=\"popis\"><p id=\"popis_text\" "
                "itemprop=\"ingredients\">";
  }
  if (NAME == "leiras_szoveg")
    return "</p></div></div>";
  return "";
}

std::string ADDTEXTDELIMITER2(const std::string& S) {
  return "\"" + replace_all(S, "\"", "\"\"") + "\"";
}

std::string ADDTEXTDELIMITER(const std::string& S) {
  return std::string(1, DELIMITER2) + S + DELIMITER2;
}

}  // namespace talmo
