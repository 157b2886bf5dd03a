// SPDX-License-Identifier: MIT
#ifndef WT_WTEXT_H_
#define WT_WTEXT_H_

#include <Wt/WInteractWidget>

namespace Wt
{

/**
 * A text. XHTMLText that is a literal, or has arguments, is filtered by an allow-list; if it is not well
 * formed the widget turns to PlainText for good. A translated text without arguments is trusted; if it is not
 * well formed it is shown as it stands.
 */
class WText : public WInteractWidget
{
public:
  explicit WText(WContainerWidget *parent = nullptr);
  explicit WText(const WString &text, WContainerWidget *parent = nullptr);
  WText(const WString &text, TextFormat format, WContainerWidget *parent = nullptr);
  ~WText() override;

  /// XHTML comes back as the filter left it.
  const WString &text() const { return text_; }
  /// False if the text is not well formed; it is then shown as plain text.
  bool setText(const WString &text);
  /// False if the present text does not fit the format, which then stays as it was.
  bool setTextFormat(TextFormat format);
  TextFormat textFormat() const { return static_cast<TextFormat>(format_); }

  void setWordWrap(bool wordWrap);
  bool wordWrap() const { return wordWrap_; }
  /// AlignLeft, AlignCenter or AlignRight.
  void setTextAlignment(AlignmentFlag alignment);
  AlignmentFlag textAlignment() const { return static_cast<AlignmentFlag>(alignment_); }
  /// Left and right only.
  void setPadding(const WLength &padding, WFlags<Side> sides = Left | Right);
  WLength padding(Side side) const;

  void refresh() override;

protected:
  const char *domTag() const override;
  const char *displayStyle() const override;
  void render(Dom::Element &e) override;
  void renderContents(Dom::Element &e) override;

private:
  bool trusted() const;
  bool filter();

  WString text_;
  std::unique_ptr<std::pair<WLength, WLength>> padding_; ///< left, right
  std::uint8_t alignment_;
  std::uint8_t format_ = XHTMLText;
  bool wordWrap_ = true;
};

} // namespace Wt

#endif // WT_WTEXT_H_
