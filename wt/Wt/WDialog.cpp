// SPDX-License-Identifier: MIT
#include "base/OwnTexts.h"
#include "base/RawEvent.h"
#include "dom/Element.h"
#include "session/Session.h"
#include "session/WidgetAccess.h"

#include <Wt/WApplication>
#include <Wt/WContainerWidget>
#include <Wt/WDialog>
#include <Wt/WException>
#include <Wt/WText>
#include <sstream>

namespace Wt
{

/// The dialog's own element. Its behaviour is attached while the dialog is shown.
class WDialog::Frame : public WContainerWidget
{
public:
  explicit Frame(WDialog *dialog) : dialog_(dialog) {}

  void setResizable(bool resizable) { changeFlag(resizable_, resizable); }
  bool resizable() const { return resizable_; }
  void setMovable(bool movable) { changeFlag(movable_, movable); }
  bool movable() const { return movable_; }
  void update() { repaint(); }

protected:
  void addOwnClasses(std::string &classes) const override
  {
    WContainerWidget::addOwnClasses(classes);
    classes += " Wt-dialog Wt-outset";
    if (resizable_)
      classes += " Wt-resizable";
  }

  void render(Dom::Element &e) override
  {
    WContainerWidget::render(e);
    const bool modal = dialog_->cover_ != nullptr;
    std::string configuration = "{";
    const auto add = [&configuration](bool wanted, const char *name) {
      if (wanted)
        configuration += (configuration.size() > 1 ? ",\"" : "\"") + std::string(name) + "\":1";
    };
    add(modal, "m");
    add(dialog_->escapeActive_, "e");
    add(movable_, "v");
    add(resizable_, "r");
    e.set("role", "dialog");
    e.setIf(modal, "aria-modal", "true");
    e.setIf(!isHidden(), "!dialog", configuration + "}");
  }

  void handleDomEvent(Dom::Element &at, const Engine::RawEvent &event) override
  {
    if (event.name == "dialog:escape")
      dialog_->escape();
    else
      WContainerWidget::handleDomEvent(at, event);
  }

private:
  void changeFlag(bool &flag, bool value)
  {
    flag = value;
    repaint();
  }

  WDialog *dialog_;
  bool resizable_ = false;
  bool movable_ = true;
};

namespace
{

/// The title, as a heading.
class Caption : public WText
{
public:
  explicit Caption(WContainerWidget *parent) : WText(WString(), PlainText, parent)
  {
    setInline(false);
    hide();
  }

protected:
  const char *domTag() const override { return "h4"; }
};

WContainerWidget *makePart(const char *styleClass, WContainerWidget *parent)
{
  WContainerWidget *part = new WContainerWidget(parent);
  part->addStyleClass(styleClass);
  return part;
}

} // namespace

/// Its sign is the style sheet's.
class WDialog::CloseIcon : public WText
{
public:
  explicit CloseIcon(WContainerWidget *parent) : WText(parent)
  {
    addStyleClass("closeicon");
    setAttributeValue("aria-label", WString::fromUTF8(Engine::ownText("Wt.WDialog.Close", "Close")));
  }

protected:
  void render(Dom::Element &e) override
  {
    WText::render(e);
    e.set("!press", "{\"r\":\"button\"}");
  }
};

/// One run of exec(), which may outlive the dialog.
struct WDialog::Execution {
  bool running = true;
  bool alive = true;
};

/// Lies below a modal dialog. The page that holds both may delete it first.
class WDialog::Cover : public WContainerWidget
{
public:
  explicit Cover(WDialog &dialog) : dialog_(dialog) {}
  ~Cover() override { dialog_.cover_ = nullptr; }

private:
  WDialog &dialog_;
};

WDialog::WDialog(WObject *parent) : WDialog(WString(), parent) {}

WDialog::WDialog(const WString &windowTitle, WObject *parent)
    : WPopupWidget(new Frame(this), parent), frame_(static_cast<Frame *>(implementation())), finished_(this)
{
  layout_ = makePart("dialog-layout movable", frame_);
  titleBar_ = makePart("titlebar", layout_);
  caption_ = new Caption(titleBar_);
  contents_ = makePart("body", layout_);
  setWindowTitle(windowTitle);
}

WDialog::~WDialog()
{
  if (execution_)
    execution_->alive = false;
  close();
}

void WDialog::setWindowTitle(const WString &title)
{
  caption_->setText(title);
  caption_->setHidden(title.empty());
}

WString WDialog::windowTitle() const
{
  return caption_->text();
}

void WDialog::setTitleBarEnabled(bool enabled)
{
  titleBar_->setHidden(!enabled);
}

bool WDialog::isTitleBarEnabled() const
{
  return !titleBar_->isHidden();
}

WContainerWidget *WDialog::footer()
{
  if (!footer_)
    footer_ = makePart("footer", layout_);
  return footer_;
}

WDialog::DialogCode WDialog::exec(const WAnimation &animation)
{
  if (execution_)
    throw WException("WDialog::exec(): the dialog runs already");
  Execution execution;
  execution_ = &execution;
  animateShow(animation);
  try {
    Engine::Session::current()->waitForDialog(*this,
                                              [&execution] { return execution.running && execution.alive; });
  } catch (...) {
    if (execution.alive)
      execution_ = nullptr;
    throw;
  }
  if (!execution.alive)
    return Rejected;
  execution_ = nullptr;
  animateHide(animation);
  return result_;
}

void WDialog::done(DialogCode result)
{
  if (isHidden() || (execution_ && !execution_->running))
    return;
  result_ = result;
  if (execution_)
    execution_->running = false;
  else
    hide();
  finished_.emit(result);
}

void WDialog::accept()
{
  done(Accepted);
}

void WDialog::reject()
{
  done(Rejected);
}

void WDialog::rejectWhenEscapePressed(bool enable)
{
  escapeRejects_ = enable;
  if (enable || !escapeActive_)
    return;
  escapeActive_ = false;
  frame_->update();
}

void WDialog::setResizable(bool resizable)
{
  frame_->setResizable(resizable);
}

bool WDialog::resizable() const
{
  return frame_->resizable();
}

void WDialog::setMovable(bool movable)
{
  layout_->toggleStyleClass("movable", movable);
  frame_->setMovable(movable);
}

bool WDialog::isMovable() const
{
  return frame_->movable();
}

void WDialog::setClosable(bool closable)
{
  if (closable == this->closable())
    return;
  if (closable) {
    closeIcon_ = new CloseIcon(titleBar_);
    closeIcon_->clicked().connect(this, &WDialog::reject);
  } else {
    delete closeIcon_;
    closeIcon_ = nullptr;
  }
}

void WDialog::setHidden(bool hidden, const WAnimation &animation)
{
  if (hidden != isHidden()) {
    if (hidden)
      close();
    else
      open();
    frame_->update();
  }
  WPopupWidget::setHidden(hidden, animation);
}

void WDialog::open()
{
  escapeActive_ = escapeRejects_;
  // The one that was shown last lies on top.
  WContainerWidget *page = static_cast<WContainerWidget *>(parent());
  if (page->indexOf(this) != page->count() - 1) {
    page->removeWidget(this);
    page->addWidget(this);
  }
  if (modal_)
    coverPage();
  Engine::Session::current()->page().pushWindow(this, modal_);
}

void WDialog::close()
{
  if (Engine::Session *session = Engine::Session::current())
    session->page().removeWindow(this);
  delete cover_;
}

void WDialog::coverPage()
{
  std::string classes = "Wt-dialogcover in";
  std::istringstream own(styleClass().toUTF8());
  std::string word;
  while (own >> word)
    if (word != "Wt-disabled")
      classes += ' ' + word + "-cover";
  cover_ = new Cover(*this);
  cover_->setStyleClass(WString::fromUTF8(classes));
  static_cast<WContainerWidget *>(parent())->insertBefore(cover_, this);
}

void WDialog::escape()
{
  if (escapeActive_ && Engine::Session::current()->page().topWindow() == this)
    reject();
}

} // namespace Wt
