// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WCONFIRMATION_H_
#define WIDGETS_WCONFIRMATION_H_

#include <Wt/WString>

/// The question before an action that destroys something. Each user may turn it off in the box itself.
struct WConfirmation {
  const char *warning; ///< the parameter of the user's record that says whether to ask
  Wt::WString title;
  Wt::WString question;
  Wt::WString action;           ///< the button that goes on; the other is "Cancel"
  bool asksIfUnreadable = true; ///< whether to ask when the store does not say

  /// Asks, unless the logged-in user has turned this warning off, and keeps what the user says about asking
  /// again, whichever button that came with. True if the action may take place.
  bool ask() const;
};

#endif // WIDGETS_WCONFIRMATION_H_
