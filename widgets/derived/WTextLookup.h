// SPDX-License-Identifier: MIT
#ifndef WIDGETS_WTEXT_LOOKUP_H_
#define WIDGETS_WTEXT_LOOKUP_H_

#include "WTextZel.h"

#include <Wt/WString>
#include <iterator>

/// Shows a word of the store by the text that it has in the table of a combo box; any other word, and the
/// empty one of records that differ, by the last text of the table. After a bulk read it shows the word
/// itself.
template <class ComboBox> class WTextLookup : public WTextZel
{
public:
  using WTextZel::WTextZel;

protected:
  Wt::WString textOfRead(const std::string &word) const override
  {
    for (const auto &row : ComboBox::sLookup) {
      if (word == row.storeValue)
        return Wt::WString::tr(row.label);
    }
    return Wt::WString::tr(std::rbegin(ComboBox::sLookup)->label);
  }
};

#endif // WIDGETS_WTEXT_LOOKUP_H_
