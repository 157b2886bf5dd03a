// SPDX-License-Identifier: MIT
#ifndef APP_MAIN_TABS_H_
#define APP_MAIN_TABS_H_

#include "ChangeTracker.h"

#include <Wt/WObject>
#include <Wt/WString>
#include <optional>
#include <vector>

namespace Wt
{
class WMenuItem;
class WTabWidget;
class WWidget;
} // namespace Wt

class MainView;

/// One row of the page's table of main tabs.
struct MainTab {
  struct View {
    Wt::WWidget *widget;
    MainView *view; ///< the same object
  };
  /// The maker of a view class.
  template <class ViewClass> static View make()
  {
    ViewClass *view = new ViewClass();
    return {view, view};
  }

  Wt::WString title;
  std::optional<ChangeTracker::SectionId> section; ///< whose unsaved edits the label marks
  View (*maker)();
};

/// The page's main tabs, and the record of what is unsaved in them. Only the tab in front keeps itself
/// current.
class MainTabs : public Wt::WObject
{
public:
  /// Makes the views, in the table's order, as pages of `widget`, which owns them, and reads the one in
  /// front.
  void build(Wt::WTabWidget &widget, const std::vector<MainTab> &table);

  /// The record of unsaved edits. Those that change it also mark the label of the section's tab, which keeps
  /// its mark as long as any of the section's subsections has one. A whole section of the system settings
  /// marks nothing: its view does that.
  bool sectionChanged(ChangeTracker::SectionId id) const { return changes.sectionChanged(id); }
  void sectionChanged(ChangeTracker::SectionId id, bool changed);
  void subsectionChanged(ChangeTracker::SubsectionId id, bool changed);
  bool parentSectionChanged(ChangeTracker::SubsectionId id) const;
  bool anythingChanged() const { return changes.anythingChanged(); }

  /// Whether any view says that it has unsaved edits, recorded or not.
  bool anyViewHasChanged() const;

  /// Tells every view to let go of what was begun and not saved.
  void discardChanges();

  /// The first view of that class; null if there is none.
  template <class ViewClass> ViewClass *find() const
  {
    for (const Tab &tab : tabs)
      if (ViewClass *view = dynamic_cast<ViewClass *>(tab.view.widget))
        return view;
    return nullptr;
  }

private:
  struct Tab {
    MainTab::View view;
    Wt::WMenuItem *menuItem;
    std::optional<ChangeTracker::SectionId> section;
  };

  void mainTabChangedHandler();
  void markSection(ChangeTracker::SectionId section, bool changed);

  Wt::WTabWidget *tabWidget = nullptr;
  std::vector<Tab> tabs; ///< as they stand on the page
  ChangeTracker changes;
};

#endif // APP_MAIN_TABS_H_
