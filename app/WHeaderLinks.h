// SPDX-License-Identifier: MIT
#ifndef APP_WHEADER_LINKS_H_
#define APP_WHEADER_LINKS_H_

#include <Wt/WContainerWidget>

namespace Wt
{
class WAnchor;
class WTable;
} // namespace Wt

/// The links at the right of the page's header. "Preferences" is there only on a master that is under no
/// manager.
class WHeaderLinks : public Wt::WContainerWidget
{
public:
  explicit WHeaderLinks(Wt::WContainerWidget *parent = 0);

private:
  Wt::WAnchor *addLink(int column, const Wt::WString &label, const char *styleClass);
  void preferencesClickedHandler();
  void logoutClickedHandler();

  Wt::WTable *table;
};

#endif // APP_WHEADER_LINKS_H_
