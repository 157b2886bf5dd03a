// SPDX-License-Identifier: MIT
#include "GalleryApplication.h"

#include "sections.h"

#include <Wt/WContainerWidget>
#include <Wt/WEnvironment>
#include <Wt/WText>

namespace gallery
{

const char *const kLongText =
    "A text that is longer than any place that it is likely to be given, so that it has to wrap, to be cut "
    "off with an ellipsis, or to scroll, and Donaudampfschifffahrtselektrizitätenhauptbetriebswerk besides";
const char *const kHebrewText = "שלום עולם, שדר 12";
const char *const kEmojiText = "👩‍💻 café ☕ 日本語";
const char *const kMarkupText = "<b onclick=\"alert(1)\">not bold</b> & <script>alert(2)</script>";

GalleryApplication::GalleryApplication(const Wt::WEnvironment &environment) : Wt::WApplication(environment)
{
  setTitle("Widget gallery");
  const std::string *theme = environment.getParameter("theme");
  setCssTheme(theme ? *theme : "unknown");
  enableUpdates(true);
  Wt::WContainerWidget *page = new Wt::WContainerWidget(root());
  page->addStyleClass("gallery");
  page->setAttributeValue("role", "main");
  new Wt::WText("<h1>Widget gallery</h1>", page);
  addButtons(page);
  addLineEdits(page);
  addTextAreas(page);
  addCheckBoxes(page);
  addComboBoxes(page);
  addTextsAndLinks(page);
  addIconPairs(page);
  addProgressBars(page);
  addTables(page);
  addLayouts(page);
  addViews(page);
  addTabs(page);
  addStacks(page);
  addDialogs(page);
  addUploads(page);
}

} // namespace gallery
