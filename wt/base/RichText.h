// SPDX-License-Identifier: MIT
#ifndef WT_BASE_RICH_TEXT_H_
#define WT_BASE_RICH_TEXT_H_

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A piece of rich text: an element, or text if it has no tag.
struct RichNode {
  std::string tag;  ///< in lower case
  std::string text; ///< of a text only; without entities
  std::vector<std::pair<std::string, std::string>> attributes;
  std::vector<RichNode> children;

  bool isText() const { return tag.empty(); }
};

/// XHTML text, parsed and reduced to the elements and attributes that cannot do harm. It is rendered from the
/// tree; no browser ever parses markup that came this way.
class RichText
{
public:
  enum class Trust {
    None,    ///< text from anywhere
    Program, ///< text of the program's own: ids, names and data attributes stay
  };

  /// Nothing if the markup is not well-formed, or too deep or long to be meant.
  static std::optional<RichText> parse(const std::string &markup, Trust trust = Trust::None);

  const std::vector<RichNode> &nodes() const { return nodes_; }
  /// The reduced text as markup.
  std::string markup() const;
  /// The text without any markup.
  std::string plainText() const;

private:
  std::vector<RichNode> nodes_;
};

/// Whether a link or image may have the URL: relative, or of a scheme that runs nothing.
bool isHarmlessUrl(std::string_view url);

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_RICH_TEXT_H_
