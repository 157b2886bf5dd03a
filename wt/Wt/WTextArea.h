// SPDX-License-Identifier: MIT
#ifndef WT_WTEXTAREA_H_
#define WT_WTEXTAREA_H_

#include "../base/TextSelection.h"

#include <Wt/WFormWidget>

namespace Wt
{

/// A field for several lines of text. Lines end with a line feed alone.
class WTextArea : public WFormWidget
{
public:
  explicit WTextArea(WContainerWidget *parent = nullptr);
  explicit WTextArea(const WString &content, WContainerWidget *parent = nullptr);
  ~WTextArea() override;

  /// Checks the text with the validator; emits nothing.
  virtual void setText(const WString &text);
  const WString &text() const { return content_; }

  /// The size in characters; 20 by 5 by default.
  void setColumns(int columns);
  int columns() const { return columns_; }
  void setRows(int rows);
  int rows() const { return rows_; }

  /// The selection is known only if the field had the focus at the browser's last event. Positions count
  /// characters; -1 is none.
  int selectionStart() const;
  WString selectedText() const;
  bool hasSelectedText() const;
  int cursorPosition() const;

  WString valueText() const override;
  void setValueText(const WString &value) override;

protected:
  const char *domTag() const override;
  void render(Dom::Element &e) override;
  void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event) override;
  void formValue(Dom::Element &at, const std::string &value) override;

private:
  WString content_;
  Engine::TextSelection selection_;
  int columns_ = 20;
  int rows_ = 5;
};

} // namespace Wt

#endif // WT_WTEXTAREA_H_
