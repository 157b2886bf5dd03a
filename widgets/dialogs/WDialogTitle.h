// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WDIALOG_TITLE_H_
#define WIDGETS_WDIALOG_TITLE_H_

#include <Wt/WString>
#include <string>

namespace Wt
{
class WDialog;
class WImage;
class WText;
} // namespace Wt

/// The title line that all of the system's dialogs share: an icon of 16 pixels' height beside the title.
struct WDialogTitle {
  Wt::WImage *icon; ///< owned by the dialog
  Wt::WText *text;  ///< owned by the dialog

  /// The image's path for a severity: 0 information, 1 warning, anything else error.
  static std::string severityIcon(int severity);

  /// Builds the line in the dialog's title bar from the image at the path `iconUrl` and the title.
  static WDialogTitle build(Wt::WDialog &dialog, const std::string &iconUrl, const Wt::WString &title);
};

#endif // WIDGETS_WDIALOG_TITLE_H_
