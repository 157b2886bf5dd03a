// SPDX-License-Identifier: MIT
#include "Section.h"
#include "sections.h"

#include <Wt/WCheckBox>
#include <Wt/WDialog>
#include <Wt/WFileUpload>
#include <Wt/WLineEdit>
#include <Wt/WMenuItem>
#include <Wt/WProgressBar>
#include <Wt/WPushButton>
#include <Wt/WStackedWidget>
#include <Wt/WTabWidget>
#include <Wt/WText>
#include <functional>

namespace gallery
{

using Wt::WString;

namespace
{

Wt::WPushButton *closer(Wt::WDialog &dialog, const char *text, bool accepts)
{
  Wt::WPushButton *made = new Wt::WPushButton(text, dialog.contents());
  if (accepts)
    made->clicked().connect(&dialog, &Wt::WDialog::accept);
  else
    made->clicked().connect(&dialog, &Wt::WDialog::reject);
  return made;
}

const char *codeName(Wt::WDialog::DialogCode code)
{
  return code == Wt::WDialog::Accepted ? "accepted" : "rejected";
}

void runInner()
{
  Wt::WDialog dialog("Inner dialog");
  dialog.rejectWhenEscapePressed();
  new Wt::WText("On top of the other one. ", dialog.contents());
  closer(dialog, "Back", true)->setFocus();
  dialog.exec();
}

void runModal(Section *section)
{
  Wt::WDialog dialog("Name it");
  dialog.rejectWhenEscapePressed();
  dialog.setMaximumSize(400, Wt::WLength());
  new Wt::WText(WString::fromUTF8(kLongText), Wt::PlainText, dialog.contents());
  Wt::WLineEdit *name = new Wt::WLineEdit(dialog.contents());
  name->setAttributeValue("aria-label", "Name");
  name->enterPressed().connect(&dialog, &Wt::WDialog::accept);
  Wt::WPushButton *inner = new Wt::WPushButton("Another dialog", dialog.contents());
  inner->clicked().connect(std::bind(runInner));
  closer(dialog, "Cancel", false);
  closer(dialog, "Accept", true);
  const Wt::WDialog::DialogCode code =
      dialog.exec(Wt::WAnimation(Wt::WAnimation::Fade, Wt::WAnimation::Linear, 150));
  section->tell(WString(codeName(code)) + " " + name->text());
}

void showFree(Section *section)
{
  Wt::WDialog *dialog = new Wt::WDialog("Free dialog");
  dialog->setModal(false);
  dialog->setClosable(true);
  dialog->setResizable(true);
  dialog->resize(300, 160);
  new Wt::WText("The page below stays usable.", dialog->contents());
  new Wt::WPushButton("In the footer", dialog->footer());
  dialog->finished().connect(std::bind([section, dialog] {
    section->tell(WString("free dialog ") + codeName(dialog->result()));
    delete dialog;
  }));
  dialog->show();
}

void showBare(Section *section)
{
  Wt::WDialog *dialog = new Wt::WDialog();
  dialog->setTitleBarEnabled(false);
  dialog->resize(320, 120);
  new Wt::WText("Without a title bar. ", dialog->contents());
  Wt::WPushButton *proceed = closer(*dialog, "Proceed", true);
  proceed->setFocus();
  dialog->finished().connect(std::bind([section, dialog] {
    section->tell("bare dialog gone");
    delete dialog;
  }));
  dialog->show();
}

} // namespace

void addTabs(Wt::WContainerWidget *page)
{
  Section *section = new Section("Tabs", page);
  Wt::WTabWidget *tabs = new Wt::WTabWidget(section->row("tabs"));
  const char *const names[] = {"First", "Second", "Off", "Hidden", "Last *"};
  for (const char *name : names) {
    Wt::WContainerWidget *child = new Wt::WContainerWidget();
    new Wt::WText(WString("Contents of ") + name + " ", child);
    (new Wt::WLineEdit(child))->setAttributeValue("aria-label", WString("Field of ") + name);
    tabs->addTab(child, name, Wt::WTabWidget::LazyLoading);
  }
  tabs->setTabEnabled(2, false);
  tabs->setTabHidden(3, true);
  tabs->currentChanged().connect(
      std::bind([section, tabs] { section->tell("tab " + std::to_string(tabs->currentIndex())); }));
}

void addStacks(Wt::WContainerWidget *page)
{
  Section *section = new Section("Stacked widgets", page);
  Wt::WContainerWidget *place = section->row("stack");
  Wt::WStackedWidget *stack = new Wt::WStackedWidget(place);
  for (const char *name : {"page one", "page two", "page three"})
    stack->addWidget(new Wt::WText(name));
  Wt::WPushButton *next = new Wt::WPushButton("Next page", place);
  next->clicked().connect(
      std::bind([stack] { stack->setCurrentIndex((stack->currentIndex() + 1) % stack->count()); }));
}

void addDialogs(Wt::WContainerWidget *page)
{
  Section *section = new Section("Dialogs", page);
  Wt::WPushButton *modal = new Wt::WPushButton("Modal dialog", section->row("modal"));
  modal->clicked().connect(std::bind(runModal, section));
  Wt::WPushButton *free = new Wt::WPushButton("Free dialog", section->row("not modal"));
  free->clicked().connect(std::bind(showFree, section));
  Wt::WPushButton *bare = new Wt::WPushButton("Bare dialog", section->row("no title bar"));
  bare->clicked().connect(std::bind(showBare, section));
}

void addUploads(Wt::WContainerWidget *page)
{
  Section *section = new Section("File uploads", page);
  Wt::WContainerWidget *place = section->row("upload");
  Wt::WFileUpload *upload = new Wt::WFileUpload(place);
  upload->setAttributeValue("aria-label", "File to send");
  Wt::WProgressBar *bar = new Wt::WProgressBar();
  upload->setProgressBar(bar);
  Wt::WPushButton *send = new Wt::WPushButton("Send file", place);
  send->disable();
  upload->changed().connect(std::bind([section, send] {
    send->enable();
    section->tell("file chosen");
  }));
  send->clicked().connect(upload, &Wt::WFileUpload::upload);
  upload->uploaded().connect(
      std::bind([section, upload] { section->tell("uploaded " + upload->clientFileName()); }));
  upload->fileTooLarge().connect(std::bind(section->teller("file too large")));
  Wt::WFileUpload *off = new Wt::WFileUpload(section->row("disabled upload"));
  off->setAttributeValue("aria-label", "Disabled upload");
  off->disable();
  Wt::WText *end = new Wt::WText("End of the gallery", section);
  end->setInline(false);
  end->addStyleClass("gallery-end");
}

} // namespace gallery
