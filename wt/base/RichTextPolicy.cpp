// SPDX-License-Identifier: MIT
#include "base/RichTextPolicy.h"

#include <algorithm>
#include <cctype>
#include <iterator>

namespace Wt
{
namespace Engine
{

namespace
{

const std::string_view kAllowedElements[] = {
    "a",    "abbr",       "acronym", "address", "article", "aside", "b",     "bdi",        "bdo",
    "big",  "blockquote", "br",      "caption", "center",  "cite",  "code",  "col",        "colgroup",
    "dd",   "del",        "dfn",     "div",     "dl",      "dt",    "em",    "figcaption", "figure",
    "font", "footer",     "h1",      "h2",      "h3",      "h4",    "h5",    "h6",         "header",
    "hr",   "i",          "img",     "ins",     "kbd",     "label", "li",    "main",       "mark",
    "nav",  "ol",         "p",       "pre",     "q",       "s",     "samp",  "section",    "small",
    "span", "strike",     "strong",  "sub",     "sup",     "table", "tbody", "td",         "tfoot",
    "th",   "thead",      "time",    "tr",      "tt",      "u",     "ul",    "var",        "wbr",
};

const std::string_view kAllowedAttributes[] = {
    "abbr", "align",  "alt",   "bgcolor", "border",   "cellpadding", "cellspacing", "char",
    "cite", "class",  "color", "colspan", "datetime", "dir",         "face",        "height",
    "href", "hspace", "lang",  "nowrap",  "rel",      "role",        "rowspan",     "scope",
    "size", "span",   "src",   "start",   "style",    "summary",     "target",      "title",
    "type", "valign", "value", "vspace",  "width",
};

const std::string_view kHarmlessSchemes[] = {"http", "https", "ftp", "mailto", "tel"};

/// What makes a style dangerous: code, fetches, and what lets a text lie over the page.
const std::string_view kDangerousInStyles[] = {
    "expression", "javascript",   "vbscript", "url(", "image(", "image-set(", "@import",
    "behavior",   "-moz-binding", "position", "\\",   "/*",     "<",          "z-index",
};

template <std::size_t N> bool contains(const std::string_view (&list)[N], std::string_view name)
{
  return std::find(std::begin(list), std::end(list), name) != std::end(list);
}

bool startsWith(std::string_view text, std::string_view start)
{
  return text.substr(0, start.size()) == start;
}

/// As a browser reads it: without blanks and control characters, in lower case.
std::string condensed(std::string_view text)
{
  std::string result;
  for (char c : text)
    if (static_cast<unsigned char>(c) > ' ' && c != 0x7f)
      result += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  return result;
}

bool isHarmlessStyle(std::string_view style)
{
  const std::string text = condensed(style);
  return std::none_of(std::begin(kDangerousInStyles), std::end(kDangerousInStyles),
                      [&text](std::string_view danger) { return text.find(danger) != std::string::npos; });
}

} // namespace

bool isAllowedElement(std::string_view name)
{
  return contains(kAllowedElements, name);
}

bool isAllowedAttribute(std::string_view name, std::string_view value, RichText::Trust trust)
{
  if (name == "href" || name == "src" || name == "cite")
    return isHarmlessUrl(value);
  if (name == "style")
    return isHarmlessStyle(value);
  if (trust == RichText::Trust::Program && (name == "id" || name == "name" || startsWith(name, "data-")))
    return true;
  return contains(kAllowedAttributes, name) || startsWith(name, "aria-");
}

bool isHarmlessUrl(std::string_view url)
{
  const std::string text = condensed(url);
  const std::size_t colon = text.find(':');
  if (colon == std::string::npos || text.find_first_of("/?#") < colon)
    return true;
  return contains(kHarmlessSchemes, std::string_view(text).substr(0, colon));
}

} // namespace Engine
} // namespace Wt
