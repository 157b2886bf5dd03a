// SPDX-License-Identifier: MIT
#ifndef WT_DOM_RICH_TEXT_H_
#define WT_DOM_RICH_TEXT_H_

#include <string>
#include <string_view>

namespace Wt {
namespace Dom {

/**
 * XHTML text, read strictly as XML and let through by an allow-list of elements and attributes: what is not on it
 * is dropped; elements such as script go with their content, unknown ones leave their content behind. HTML's names
 * of characters (such as &nbsp;) are known.
 *
 * The browser gets it as data and never as markup: a JSON array of texts and of elements
 * ["name", {attributes}, content...].
 */
class RichText
{
public:
  /// `trusted` texts, which come with the program, may also have the attributes id and name.
  static RichText parse(std::string_view xhtml, bool trusted);

  /// Plain text as content: line breaks become elements.
  static std::string plainContent(std::string_view text);

  /// False if the text is not well-formed XML; there is no content then.
  bool wellFormed() const { return wellFormed_; }
  /// The JSON array.
  const std::string &content() const { return content_; }
  /// The XHTML text that was let through.
  const std::string &filtered() const { return filtered_; }
  /// The text itself, without markup, if there is no markup in it.
  bool isPlain() const { return plain_; }
  const std::string &plainText() const { return plainText_; }

private:
  friend class RichTextParser;

  std::string content_;
  std::string filtered_;
  std::string plainText_;
  bool wellFormed_ = false;
  bool plain_ = true;
};

} // namespace Dom
} // namespace Wt

#endif // WT_DOM_RICH_TEXT_H_
