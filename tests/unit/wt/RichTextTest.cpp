// SPDX-License-Identifier: MIT
#include "base/RichText.h"

#include <gtest/gtest.h>

using Wt::Engine::isHarmlessUrl;
using Wt::Engine::RichText;

namespace
{

/// The reduced markup, or "(plain)" if the text is not well-formed.
std::string reduced(const std::string &markup, RichText::Trust trust = RichText::Trust::None)
{
  const auto text = RichText::parse(markup, trust);
  return text ? text->markup() : "(plain)";
}

} // namespace

TEST(RichText, keepsHarmlessMarkup)
{
  for (const char *markup : {"plain", "a <b>b</b> c", "<p class=\"x\">y<br />z</p>", "&lt;b&gt; &amp; more",
                             "<a href=\"http://x/?a=1&amp;b\" target=\"_blank\">l</a>",
                             "<table><tr><td colspan=\"2\" style=\"color: red\">c</td></tr></table>", ""})
    EXPECT_EQ(reduced(markup), markup);
}

TEST(RichText, textThatIsNotWellFormedIsTold)
{
  for (const char *markup : {"<br>",
                             "a & b",
                             "a < b",
                             "<b>",
                             "</b>",
                             "<b></i>",
                             "<b><i></b></i>",
                             "<B></b>",
                             "&unknown;",
                             "&#0;",
                             "&#xd800;",
                             "<b x>y</b>",
                             "<b x=1>y</b>",
                             "<b x='1'y='2'></b>",
                             "<b x='1' x='2'></b>",
                             "<b x='<'></b>",
                             "<b",
                             "<b x=\"",
                             "<!-- x",
                             "<!-- -- -->",
                             "<![CDATA[x",
                             "<?xml?>",
                             "<!DOCTYPE x>",
                             "<>",
                             "< b></b>",
                             "a\x01z",
                             "&",
                             "&;",
                             "<b/ >"})
    EXPECT_EQ(reduced(markup), "(plain)") << markup;
}

TEST(RichText, dangerousElementsGoWithTheirContent)
{
  for (const char *name :
       {"script", "object", "iframe", "frame", "link", "meta", "title", "base", "body", "embed", "style",
        "form", "input", "svg", "math", "video", "unknown", "SCRIPT", "x:y"})
    EXPECT_EQ(reduced("a<" + std::string(name) + ">bad <b>x</b></" + name + ">z"), "az") << name;
  EXPECT_EQ(reduced("<script/>x"), "x");
}

TEST(RichText, dangerousAttributesGo)
{
  EXPECT_EQ(reduced("<b onclick='x()' ONLOAD='y' id='i' name='n' data-x='1' data='2' srcdoc='q'>t</b>"),
            "<b>t</b>");
  EXPECT_EQ(reduced("<b id='i' name='n' data-x='1' onclick='x'>t</b>", RichText::Trust::Program),
            "<b id=\"i\" name=\"n\" data-x=\"1\">t</b>");
}

TEST(RichText, dangerousUrlsGo)
{
  for (const char *url : {"javascript:x", " javascript:x", "JaVaScRiPt:x", "java\tscript:x",
                          "&#106;avascript:x", "java&#10;script:x", "vbscript:x", "data:text/html,x",
                          "file:///etc/passwd", "blob:x", "&#1;javascript:x"}) {
    const std::string result = reduced(std::string("<a href='") + url + "'>l</a>");
    EXPECT_TRUE(result == "<a>l</a>" || result == "(plain)") << url << ": " << result;
  }
  for (const char *url :
       {"", "a.png", "/a?x=1:2", "#top", "?a:b", "http://h/", "HTTPS://h/", "mailto:a@b", "../x:y/"})
    EXPECT_TRUE(isHarmlessUrl(url)) << url;
  EXPECT_EQ(reduced("<img src='data:image/svg+xml,x' alt='a'/>"), "<img alt=\"a\" />");
}

TEST(RichText, dangerousStylesGo)
{
  for (const char *style : {"width: expression(x)", "background: url(x)", "background: u\\72l(x)",
                            "behavior: x", "-moz-binding: x", "position: fixed", "width: exp/**/ression(x)",
                            "background: URL (x)", "@import x", "color: javascript:x"})
    EXPECT_EQ(reduced(std::string("<b style='") + style + "'>t</b>"), "<b>t</b>") << style;
}

TEST(RichText, entitiesCommentsAndCharacterDataBecomeText)
{
  EXPECT_EQ(reduced("&nbsp;&auml;&yuml;&euro;&#8364;&#x41;&apos;&quot;"),
            "\xc2\xa0\xc3\xa4\xc3\xbf\xe2\x82\xac\xe2\x82\xac"
            "A'&quot;");
  EXPECT_EQ(reduced("a<!-- <b> -->b"), "ab");
  EXPECT_EQ(reduced("<![CDATA[<b>&]]>"), "&lt;b&gt;&amp;");
}

TEST(RichText, givesATreeThatNeedsNoParsing)
{
  const auto text = RichText::parse("a &lt; <B Class='x'>b<br/></B>");
  ASSERT_TRUE(text);
  ASSERT_EQ(text->nodes().size(), 2u);
  EXPECT_TRUE(text->nodes()[0].isText());
  EXPECT_EQ(text->nodes()[0].text, "a < ");
  EXPECT_EQ(text->nodes()[1].tag, "b");
  EXPECT_EQ(text->nodes()[1].attributes.front().first, "class");
  EXPECT_EQ(text->nodes()[1].children.size(), 2u);
  EXPECT_EQ(text->plainText(), "a < b\n");
}

TEST(RichText, ofAttributesThatDifferInCaseOnlyTheFirstStays)
{
  EXPECT_EQ(reduced("<p cLass='a' class='b'>t</p>"), "<p class=\"a\">t</p>");
  EXPECT_EQ(reduced("<p class='a' class='b'>t</p>"), "(plain)");
}

TEST(RichText, voidElementsLoseWhatTheyShouldNotHold)
{
  EXPECT_EQ(reduced("<br>x</br>"), "<br />");
  EXPECT_EQ(reduced("<b/>"), "<b></b>");
}

TEST(RichText, depthLengthAndAttributesHaveLimits)
{
  std::string deep;
  for (int i = 0; i < 100000; ++i)
    deep += "<b>";
  EXPECT_EQ(reduced(deep), "(plain)");
  EXPECT_EQ(reduced(std::string(1000000, 'x')), "(plain)");
  std::string many = "<b";
  for (int i = 0; i < 1000; ++i)
    many += " a" + std::to_string(i) + "='1'";
  EXPECT_EQ(reduced(many + "></b>"), "(plain)");
}

TEST(RichText, invalidBytesAreReplaced)
{
  EXPECT_EQ(reduced("a\xff"
                    "b"),
            "a?b");
}
