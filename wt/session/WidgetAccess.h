// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_WIDGET_ACCESS_H_
#define WT_SESSION_WIDGET_ACCESS_H_

#include <string>
#include <vector>

namespace Wt
{

class WApplication;
class WContainerWidget;
class WWebWidget;
class WWidget;

namespace Dom
{
class Document;
class Element;
} // namespace Dom

namespace Engine
{

class Page;

/// What the engine (layouts, views, dialogs, tests) may do with any widget, beyond the public API.
struct WidgetAccess {
  /// The widget's element; null until it is rendered.
  static Dom::Element *element(const WWidget *widget);
  /// The widget's element, rendered if it is new; null for a hidden widget that never was shown.
  static Dom::Element *render(WWidget *widget, Dom::Document &document);
  static void repaint(WWidget *widget);
  static WWebWidget *webWidget(const WWidget *widget);
  /// The widget that owns the element, or null.
  static WWebWidget *ownerOf(const Dom::Element *element);
  static void layoutSizeChanged(WWidget *widget, int width, int height);

  /// The container above root(), which holds the dialogs too.
  static WContainerWidget *domRoot(const WApplication *application);
  /// The page that the widget is rendered on; null until it is rendered.
  static Page *page(const WWidget *widget);
};

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_WIDGET_ACCESS_H_
