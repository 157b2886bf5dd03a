// SPDX-License-Identifier: MIT
#include "WTextDerived.h"

#include <Wt/WString>

WTextDerived::WTextDerived(TextOf textOf, Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent),
      derive([textOf](unsigned int index, std::string &text, Errors &errors) {
        return (Db_db.*textOf)(index, text, errors);
      })
{
}

WTextDerived::WTextDerived(PortOf portOf, Wt::WContainerWidget *parent)
    : Wt::WText("", Wt::PlainText, parent),
      derive([portOf](unsigned int index, std::string &text, Errors &errors) {
        unsigned int swxIndex = 0;
        unsigned int portIndex = 0;
        const unsigned int failed = (Db_db.*portOf)(index, swxIndex, portIndex, errors);
        text = std::to_string(portIndex);
        return failed;
      })
{
}

bool WTextDerived::readFromDatabase(std::vector<unsigned int> &indexes, std::vector<std::string> &errors)
{
  setText("");
  std::string common;
  for (std::size_t i = 0; i < indexes.size(); ++i) {
    std::string single;
    if (derive(indexes[i], single, errors))
      return true;
    if (i == 0)
      common = single;
    else if (single != common)
      return false;
  }
  setText(Wt::WString::fromUTF8(common));
  return false;
}
