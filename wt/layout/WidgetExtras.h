// SPDX-License-Identifier: MIT
#ifndef WT_LAYOUT_WIDGET_EXTRAS_H_
#define WT_LAYOUT_WIDGET_EXTRAS_H_

#include "layout/WidgetBox.h"

#include <Wt/WAnimation>
#include <Wt/WSignal>
#include <Wt/WString>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace Wt
{
namespace Engine
{

/// A tool tip.
struct WidgetTip {
  WString text;
  TextFormat format;
};

/// What most widgets do not have.
struct WidgetExtras {
  std::string styleClass;
  std::unique_ptr<WidgetBox> box;
  std::unique_ptr<WidgetTip> tip;
  std::unique_ptr<WAnimation> animation; ///< of the next change between hidden and shown
  std::vector<std::pair<std::string, WString>> attributes;
  std::vector<std::unique_ptr<EventSignalBase>> signals;
};

} // namespace Engine
} // namespace Wt

#endif // WT_LAYOUT_WIDGET_EXTRAS_H_
