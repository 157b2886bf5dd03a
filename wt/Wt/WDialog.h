// SPDX-License-Identifier: MIT
#ifndef WT_WDIALOG_H_
#define WT_WDIALOG_H_

#include <Wt/WPopupWidget>

namespace Wt
{

class WContainerWidget;
class WText;

/**
 * A window over the page, with a title bar, contents and a footer.
 *
 * A modal dialog (the default) covers the page: what lies below gets no events, neither in the browser nor on
 * the server. Dialogs stack.
 *
 * done() ends a dialog that is shown: outside exec() it hides and then emits finished(); within exec() it
 * emits finished() while still shown, and exec() hides it on its return. Further calls until then have no
 * effect. hide() and destruction emit nothing and do not end exec().
 *
 * A movable dialog follows a press on its title bar, a resizable one its lower right corner; each has a
 * handle that gets the focus after everything else in the dialog and takes the arrow keys.
 */
class WDialog : public WPopupWidget
{
public:
  enum DialogCode { Rejected = 0, Accepted = 1 };

  explicit WDialog(WObject *parent = nullptr);
  explicit WDialog(const WString &windowTitle, WObject *parent = nullptr);
  ~WDialog() override;

  void setWindowTitle(const WString &title);
  WString windowTitle() const;
  void setTitleBarEnabled(bool enabled);
  bool isTitleBarEnabled() const;

  WContainerWidget *titleBar() const { return titleBar_; }
  WContainerWidget *contents() const { return contents_; }
  /// Made by the first call.
  WContainerWidget *footer();

  /// Shows the dialog, handles events until it is done, and hides it. Throws WException if it runs already,
  /// and when the session ends meanwhile.
  DialogCode exec(const WAnimation &animation = WAnimation());
  virtual void done(DialogCode result);
  virtual void accept();
  virtual void reject();
  DialogCode result() const { return result_; }
  Signal<DialogCode> &finished() { return finished_; }

  /// Takes effect when the dialog is shown next; switching it off, at once.
  void rejectWhenEscapePressed(bool enable = true);
  /// Takes effect when the dialog is shown next.
  void setModal(bool modal) { modal_ = modal; }
  bool isModal() const { return modal_; }
  void setResizable(bool resizable);
  bool resizable() const;
  void setMovable(bool movable);
  bool isMovable() const;
  /// An icon in the title bar that rejects the dialog.
  void setClosable(bool closable);
  bool closable() const { return closeIcon_ != nullptr; }

  void setHidden(bool hidden, const WAnimation &animation = WAnimation()) override;

private:
  class Frame;
  class CloseIcon;
  struct Execution;
  class Cover;

  void open();
  void close();
  void coverPage();
  void escape();

  Frame *frame_;
  WContainerWidget *layout_;
  WContainerWidget *titleBar_;
  WText *caption_;
  WContainerWidget *contents_;
  WContainerWidget *footer_ = nullptr;
  Cover *cover_ = nullptr;
  CloseIcon *closeIcon_ = nullptr;
  Execution *execution_ = nullptr; ///< on the stack of exec()
  DialogCode result_ = Rejected;
  bool modal_ = true;
  bool escapeRejects_ = false;
  bool escapeActive_ = false; ///< as it was when the dialog was shown
  Signal<DialogCode> finished_;
};

} // namespace Wt

#endif // WT_WDIALOG_H_
