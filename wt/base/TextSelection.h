// SPDX-License-Identifier: MIT
#ifndef WT_BASE_TEXT_SELECTION_H_
#define WT_BASE_TEXT_SELECTION_H_

#include "RawEvent.h"

#include <string>

namespace Wt
{
namespace Engine
{

/// What is selected in a text field, as its browser told last: in UTF-16 units, as browsers count. What
/// browsers tell need not fit the text.
class TextSelection
{
public:
  /// Takes over what a "sel" event tells; false if it is none.
  bool read(const RawEvent &event);

  /// The first selected character of `text` (in UTF-8), counted in characters; -1 if none is selected.
  int start(const std::string &text) const;
  std::string selected(const std::string &text) const;
  /// The character that the cursor stands before.
  int cursor(const std::string &text) const;

private:
  int start_ = 0;
  int end_ = 0;
};

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_TEXT_SELECTION_H_
