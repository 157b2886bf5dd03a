// SPDX-License-Identifier: MIT
#ifndef WT_GALLERY_SECTIONS_H_
#define WT_GALLERY_SECTIONS_H_

#include <Wt/WContainerWidget>

namespace gallery
{

/// Texts that break what is built for short Latin words only.
extern const char *const kLongText;
extern const char *const kHebrewText;
extern const char *const kEmojiText;
extern const char *const kMarkupText;

/// Each adds its section to the page.
void addButtons(Wt::WContainerWidget *page);
void addLineEdits(Wt::WContainerWidget *page);
void addTextAreas(Wt::WContainerWidget *page);
void addCheckBoxes(Wt::WContainerWidget *page);
void addComboBoxes(Wt::WContainerWidget *page);
void addTextsAndLinks(Wt::WContainerWidget *page);
void addIconPairs(Wt::WContainerWidget *page);
void addProgressBars(Wt::WContainerWidget *page);
void addTables(Wt::WContainerWidget *page);
void addLayouts(Wt::WContainerWidget *page);
void addViews(Wt::WContainerWidget *page);
void addTabs(Wt::WContainerWidget *page);
void addStacks(Wt::WContainerWidget *page);
void addDialogs(Wt::WContainerWidget *page);
void addUploads(Wt::WContainerWidget *page);

} // namespace gallery

#endif // WT_GALLERY_SECTIONS_H_
