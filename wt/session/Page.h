// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_PAGE_H_
#define WT_SESSION_PAGE_H_

#include "dom/Document.h"

#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace Wt
{

class WContainerWidget;
class WWebWidget;
class WWidget;

namespace Engine
{

/**
 * The page of one session: the mirror of what the browser shows, the widgets whose part of it is out of date,
 * the keyboard focus, and the windows that lie over the page.
 */
class Page : public Dom::Document
{
public:
  Page() = default;
  ~Page();

  /// The page of an element.
  static Page &of(const Dom::Element &element) { return static_cast<Page &>(element.document()); }

  /// The widget that fills the page. May be null.
  void setRoot(WContainerWidget *root) { root_ = root; }

  /// Marks a rendered widget for the next render().
  void mark(WWebWidget &widget);
  void unmark(WWebWidget &widget);

  /// Brings the mirror up to date.
  void render();

  /// What the browser must do to follow, as JSON operations; empty if nothing. Counts as update `number`.
  std::string takeUpdate(std::uint64_t number);

  /// Windows over the page. A widget is exposed if it is in the topmost modal window, or in a window above
  /// that.

  void pushWindow(WWidget *window, bool modal);
  void removeWindow(WWidget *window);
  /// The topmost window, or null.
  WWidget *topWindow() const;
  bool exposed(const WWidget *widget) const;

  /// Keyboard focus

  /// As far as the browser has told, or a widget has asked since.
  bool hasFocus(const WWebWidget &widget) const;
  /// The browser tells which element has the focus; 0 for none.
  void focusReported(Dom::Element::Id id);
  /// Moves the focus to the widget when it is shown.
  void wantFocus(WWebWidget &widget);
  void giveUpFocus(WWebWidget &widget);
  /// The widget is being destroyed.
  void forget(WWebWidget &widget);

  /// Values of form elements that the program has set, which an older one of the browser must not overwrite

  void valueSet(Dom::Element::Id id);
  /// True if a message from a browser that had seen updates up to `seen` may still tell this element's value.
  bool valueAccepted(Dom::Element::Id id, std::uint64_t seen) const;
  void seen(std::uint64_t number);

  /// Commands to the page as a whole

  void setTitle(const std::string &title);
  void setLanguage(const std::string &language);
  void addStyleSheet(const std::string &url);
  void setHtmlClass(const std::string &classes);
  /// The sentences of the script that are not the script's own, as a JSON object.
  void setTexts(const std::string &texts);

private:
  struct Window {
    WWidget *widget;
    bool modal;
  };

  void grantFocus();
  void textCommand(const char *name, const std::string &text);

  WContainerWidget *root_ = nullptr;
  std::vector<WWebWidget *> marked_;
  std::vector<Window> windows_;
  std::vector<Dom::Element::Id> freshValues_;
  std::unordered_map<Dom::Element::Id, std::uint64_t> valueUpdates_;
  std::string title_;
  std::string language_;
  std::string htmlClass_;
  std::string texts_ = "{}";
  WWebWidget *focusWanted_ = nullptr;
  std::uint64_t seen_ = 0;
  Dom::Element::Id focus_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_PAGE_H_
