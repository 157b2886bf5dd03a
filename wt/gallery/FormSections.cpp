// SPDX-License-Identifier: MIT
#include "Section.h"
#include "sections.h"

#include <Wt/Http/Request>
#include <Wt/Http/Response>
#include <Wt/WApplication>
#include <Wt/WCheckBox>
#include <Wt/WComboBox>
#include <Wt/WEvent>
#include <Wt/WIntValidator>
#include <Wt/WLabel>
#include <Wt/WLineEdit>
#include <Wt/WPushButton>
#include <Wt/WRegExpValidator>
#include <Wt/WResource>
#include <Wt/WTextArea>
#include <functional>
#include <ostream>
#include <string>

namespace gallery
{

using Wt::WString;

namespace
{

const char *const kCheckStateNames[] = {"unchecked", "partial", "checked"};

/// A file to be saved.
class Note : public Wt::WResource
{
public:
  explicit Note(Wt::WObject *parent) : WResource(parent) { suggestFileName("note.txt"); }
  ~Note() override { beingDeleted(); }

  void handleRequest(const Wt::Http::Request &, Wt::Http::Response &response) override
  {
    response.setMimeType("text/plain");
    response.out() << "noted";
  }
};

Wt::WPushButton *button(Section *section, const char *state, const char *text)
{
  Wt::WPushButton *made = new Wt::WPushButton(WString::fromUTF8(text), section->row(state));
  made->clicked().connect(std::bind(section->teller(std::string("clicked ") + state)));
  return made;
}

Wt::WLineEdit *lineEdit(Section *section, const char *name, const char *content)
{
  Wt::WContainerWidget *place = section->row(name);
  Wt::WLabel *label = new Wt::WLabel(WString::fromUTF8(name), place);
  Wt::WLineEdit *edit = new Wt::WLineEdit(WString::fromUTF8(content), place);
  label->setBuddy(edit);
  edit->changed().connect(std::bind([section, edit] { section->tell("changed to " + edit->text()); }));
  edit->enterPressed().connect(std::bind(section->teller(std::string("enter in ") + name)));
  return edit;
}

Wt::WTextArea *textArea(Section *section, const char *name, const char *content)
{
  Wt::WContainerWidget *place = section->row(name);
  Wt::WTextArea *area = new Wt::WTextArea(WString::fromUTF8(content), place);
  area->setAttributeValue("aria-label", WString::fromUTF8(name));
  area->changed().connect(std::bind([section, area] { section->tell("changed to " + area->text()); }));
  return area;
}

Wt::WCheckBox *checkBox(Section *section, const char *name, const char *text)
{
  Wt::WCheckBox *box = new Wt::WCheckBox(WString::fromUTF8(text), section->row(name));
  box->changed().connect(std::bind([section, box, name] {
    section->tell(std::string(name) + " is " + kCheckStateNames[box->checkState()]);
  }));
  return box;
}

Wt::WComboBox *comboBox(Section *section, const char *name, int items)
{
  Wt::WComboBox *combo = new Wt::WComboBox(section->row(name));
  combo->setAttributeValue("aria-label", WString::fromUTF8(name));
  for (int i = 0; i < items; ++i)
    combo->addItem("Choice " + std::to_string(i));
  combo->changed().connect(std::bind([section, combo] { section->tell("chosen " + combo->currentText()); }));
  return combo;
}

} // namespace

void addButtons(Wt::WContainerWidget *page)
{
  Section *section = new Section("Push buttons", page);
  button(section, "plain button", "Press me");
  button(section, "default button", "Save")->setDefault(true);
  button(section, "disabled button", "Not now")->disable();
  button(section, "button with icon", "With icon")
      ->setIcon(
          Wt::WLink("data:image/gif;base64,R0lGODlhAQABAPAAAACAgP///yH5BAAAAAAALAAAAAABAAEAAAICRAEAOw=="));
  button(section, "button with link", "Go to the end")->setLink(Wt::WLink("#end"));
  Note *note = new Note(section);
  button(section, "button that sends a file", "Fetch the note")->clicked().connect(std::bind([note] {
    Wt::WApplication::instance()->redirect(note->url());
  }));
  button(section, "long button", kLongText);
  button(section, "right-to-left button", kHebrewText);
  button(section, "emoji button", kEmojiText);
  button(section, "markup button", kMarkupText);
}

void addLineEdits(Wt::WContainerWidget *page)
{
  Section *section = new Section("Line edits", page);
  lineEdit(section, "Plain", "content");
  lineEdit(section, "Password", "secret")->setEchoMode(Wt::WLineEdit::Password);
  lineEdit(section, "At most five", "12345")->setMaxLength(5);
  lineEdit(section, "Wide", kLongText)->setTextSize(60);
  lineEdit(section, "Hint", "")->setEmptyText("For example 10.0.0.1");
  lineEdit(section, "Lower case only", "abc")->setValidator(new Wt::WRegExpValidator("[a-z]+"));
  lineEdit(section, "Invalid", "ABC")->setValidator(new Wt::WRegExpValidator("[a-z]+"));
  lineEdit(section, "One to ten", "5")->setValidator(new Wt::WIntValidator(1, 10));
  Wt::WRegExpValidator *mandatory = new Wt::WRegExpValidator();
  mandatory->setMandatory(true);
  lineEdit(section, "Mandatory", "")->setValidator(mandatory);
  // Two fields that the program has a say in at each key
  Wt::WLineEdit *again = lineEdit(section, "Say again", "");
  again->setValidator(new Wt::WRegExpValidator("[!-~]*"));
  again->keyWentUp().connect(
      std::bind([again] { again->toggleStyleClass("Wt-invalid", again->text() != WString("again")); }));
  Wt::WLineEdit *capitals = lineEdit(section, "Capitals", "");
  capitals->keyWentUp().connect(std::bind([capitals] {
    std::string text = capitals->text().toUTF8();
    for (char &c : text)
      c = c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
    capitals->setText(WString::fromUTF8(text));
  }));
  lineEdit(section, "Read only", "fixed")->setReadOnly(true);
  lineEdit(section, "Disabled", "greyed")->disable();
  lineEdit(section, "Right to left", kHebrewText);
  lineEdit(section, "Emoji", kEmojiText);
  lineEdit(section, "Markup", kMarkupText);
  lineEdit(section, "No autocomplete", "x")->setAutoComplete(false);
}

void addTextAreas(Wt::WContainerWidget *page)
{
  Section *section = new Section("Text areas", page);
  Wt::WTextArea *plain = textArea(section, "Plain area", "first line\nsecond line");
  Wt::WContainerWidget *place = section->row("selection");
  Wt::WPushButton *ask = new Wt::WPushButton("Selected text", place);
  plain->keyWentUp().connect(std::bind([section, plain] {
    if (plain->hasSelectedText())
      section->tell("selected " + plain->selectedText());
  }));
  ask->clicked().connect(std::bind([section, plain] {
    section->tell(plain->hasSelectedText() ? plain->selectedText() : WString("nothing selected"));
  }));
  textArea(section, "Read only area", "fixed")->setReadOnly(true);
  textArea(section, "Disabled area", "greyed")->disable();
  textArea(section, "Long area", kLongText)->setRows(3);
}

void addCheckBoxes(Wt::WContainerWidget *page)
{
  Section *section = new Section("Check boxes", page);
  checkBox(section, "unchecked box", "Off");
  checkBox(section, "checked box", "On")->setChecked();
  checkBox(section, "partial box", "In between")->setCheckState(Wt::PartiallyChecked);
  Wt::WCheckBox *three = checkBox(section, "three-state box", "One of three");
  three->setTristate(true);
  three->setPartialStateSelectable(true);
  checkBox(section, "disabled box", "Not now")->disable();
  checkBox(section, "long box", kLongText);
  checkBox(section, "right-to-left box", kHebrewText);
  checkBox(section, "bare box", "")->setAttributeValue("aria-label", "No text beside it");
}

void addComboBoxes(Wt::WContainerWidget *page)
{
  Section *section = new Section("Combo boxes", page);
  comboBox(section, "Plain combo", 4);
  comboBox(section, "Empty combo", 0);
  comboBox(section, "Disabled combo", 2)->disable();
  Wt::WComboBox *odd = comboBox(section, "Odd texts", 0);
  for (const char *text : {kLongText, kHebrewText, kEmojiText, kMarkupText})
    odd->addItem(WString::fromUTF8(text));
  Wt::WComboBox *none = comboBox(section, "Nothing chosen", 3);
  none->setNoSelectionEnabled(true);
  none->setCurrentIndex(-1);
}

} // namespace gallery
