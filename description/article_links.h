#pragma once

#include <string>

namespace talmo {

// The shop's articles on the Hungarian site, linked from the long description. They always point
// to the HU article base address, whatever site is exported; ADDLINK keeps them off the sister
// sites. The texts are the shop's own, typos included ("<bt />", the mixed "õ"/"ő"), because the
// marketplace description finds them again by exact comparison.

// before + "<a href=\"" + HU article base + path + "\" " + attribute + ">" + anchor + "</a>" +
// after, where `attribute` is a whole attribute such as target="_self".
std::string hu_article_link(const std::string& before, const std::string& path,
                            const std::string& attribute, const std::string& anchor,
                            const std::string& after = "");

// The links of the shop's own pages (inline, so they are ready before any other constant).
inline const std::string PROCESSZOR_LINK = hu_article_link(
    "<br /><br />A Kelvor laptop processzorok teljesítményét összefoglaló cikkünket itt "
    "tekintheti meg: ",
    "/laptop-processzor", "target=\"_self\"", "Kelvor - laptop processzor");
inline const std::string MEREVLEMEZ_LINK = hu_article_link(
    "<br /><br />A Kelvor laptop winchester-ről szóló összefoglaló leírását itt tekintheti meg: ",
    "/laptop-winchester", "target=\"_self\"", "Kelvor - laptop winchester");
// Written with blank="_self" instead of target, as the shop has always had it.
inline const std::string KIJELZO_LINK =
    hu_article_link("<br /><br />A kijelzőhöz Kelvor pixelhibagaranciát is igényelhet: ",
                    "/store/szolgaltatasok-pixelgarancia/pixelerror-leiras", "blank=\"_self\"",
                    "Kelvor - pixelhiba garancia");
inline const std::string GRAFIKUS_KARTYA_LINK = hu_article_link(
    "<br /><br />A Kelvor laptop grafikus kártyák összehasonlító elemzését itt tekintheti meg: ",
    "/grafikus-kartyak", "target=\"_self\"", "Kelvor - laptop grafikus kártya");
inline const std::string KIEGESZITOK_LINK =
    hu_article_link("<br /><br />További érdekes kiegészítőket a Kelvor ", "/laptop-kiegeszitok",
                    "target=\"_self\"", "kiegészítõk", " rovatában talál!");
inline const std::string WINDOWS8_LINK = hu_article_link(
    "<br /><br />Amennyiben szeretne többet megtudni a Windows 8 -ról, úgy tekintse meg "
    "tesztünket: ",
    "/blog/77-10-ok-windows-8", "target=\"_self\"", "Kelvor Windows 8 leírás");
inline const std::string LINUX_LINK =
    hu_article_link("<bt /><br />Bõvebb információt a Linux operációs rendszerről itt olvashat: ",
                    "/linux-operacios-rendszer", "target=\"_self\"", "Linux operációs rendszer");
inline const std::string ANDROID_LINK = hu_article_link(
    "<bt /><br />Bõvebb információt az Android operációs rendszerről itt olvashat: ",
    "/android-operacios-rendszer", "target=\"_self\"", "Android operációs rendszer");

// The marketplace forms: the article in a new window, in the shop's bare component view. Each
// text before the link ends in two blanks, which the marketplace description collapses to one.
inline const std::string PROCESSZOR_LINK_SE = hu_article_link(
    "<br /><br />A laptop processzorok teljesítményéről szóló összefoglalót  ",
    "/laptop-processzor?tmpl=component", "target=\"_blank\"", "itt", " tekintheti meg");
inline const std::string MEREVLEMEZ_LINK_SE = hu_article_link(
    "<br /><br />A laptop winchester-ről szóló összefoglaló leírást  ",
    "/laptop-winchester?tmpl=component", "target=\"_blank\"", "itt", " tekintheti meg");
inline const std::string GRAFIKUS_KARTYA_LINK_SE = hu_article_link(
    "<br /><br />A laptop grafikus kártyák összehasonlító elemzését  ",
    "/grafikus-kartyak?tmpl=component", "target=\"_blank\"", "itt", " tekintheti meg.");
inline const std::string WINDOWS8_LINK_SE = hu_article_link(
    "<br /><br />Amennyiben szeretne többet megtudni a Windows 8 -ról, úgy tekintse meg  ",
    "/blog/77-10-ok-windows-8?tmpl=component", "target=\"_blank\"", "cikkünket");

// LINK itself when SITE is the Hungarian site ("hu" in any case) and LINK is exactly one of the
// eight article links above; "" otherwise (the sister sites get no links to HU articles).
std::string ADDLINK(const std::string& LINK, const std::string& SITE);

}  // namespace talmo
