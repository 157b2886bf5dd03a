// SPDX-License-Identifier: MIT
#ifndef WT_GALLERY_SECTION_H_
#define WT_GALLERY_SECTION_H_

#include <Wt/WContainerWidget>
#include <Wt/WString>
#include <functional>
#include <string>

namespace Wt
{
class WText;
}

namespace gallery
{

/**
 * One kind of widget on the gallery's page: a heading, rows that each hold a name and a widget in one of its
 * states, and a line that tells what happened last.
 */
class Section : public Wt::WContainerWidget
{
public:
  Section(const std::string &title, Wt::WContainerWidget *parent);

  /// A row's place for the widget that shows the state `name`.
  Wt::WContainerWidget *row(const std::string &name);

  /// Shows `text` as what happened last.
  void tell(const Wt::WString &text);

  /// A slot that tells `text`.
  std::function<void()> teller(const std::string &text);

private:
  Wt::WText *told_;
};

} // namespace gallery

#endif // WT_GALLERY_SECTION_H_
