// SPDX-License-Identifier: MIT
#ifndef STORE_NEVO_UTIL_H_
#define STORE_NEVO_UTIL_H_

#include <set>
#include <string>
#include <vector>

namespace Wt
{
class WMenuItem;
class WModelIndex;
class WSortFilterProxyModel;
class WStandardItemModel;
class WString;
} // namespace Wt

/// Small helpers of the views.

/// An optional "-" and then one or more digits, and nothing else.
bool NevoUtil_isNumeric(const char *text);

/// The number of characters of the value in decimal, the sign included.
int NevoUtil_strLenOfDecInt(int value);

/// Turns a text to lower case in place and returns it.
char *NevoUtil_toLowercase(char *text);

/// Judges a file by its size and first bytes: 0 if it is a PNG image of 24 by 24 pixels, 1 if it is not or
/// can't be read, 8 if it is larger than 10 MiB.
int NevoUtil_validate24x24PngFile(const char *path);

/// Appends a blank and the message for each message, so that a box can join them to its own sentence.
void NevoUtil_concatErrMsgs(Wt::WString &text, const std::vector<std::string> &errors);

/// "0:59", "1:00:00" or "1:00:00:00": minutes and seconds, and hours and days where there are any.
std::string NevoUtil_secsToFormattedTimeString(unsigned int seconds);

/// The same for what has lasted since `start`, in seconds since 1970. A start that lies ahead, as a device
/// tells whose clock runs ahead of this one's, is "0:00".
std::string NevoUtil_durationSince(unsigned int start);

/// The sort order of lists: texts that are equal up to a number are ordered by the number, so that "Rx 9"
/// comes before "Rx 10"; all others by their bytes. An empty text comes first. The order is not transitive
/// where numbers meet other texts ("10" < "1a" < "2" < "10"), so sort with an algorithm that bears it.
bool NevoUtil_lessThan(const std::string &a, const std::string &b);

/// Shows or takes away the mark of unsaved edits, one "*" at the end of a tab's label. A tab that
/// the page does not have (null) is passed over.
void NevoUtil_indicateChange(Wt::WMenuItem *menuItem, bool changed);

/// From an index of a list's proxy model to the store index, which the model keeps in column 0 as an
/// unsigned int in Wt::EditRole. Another type there is a programming error and throws boost::bad_any_cast.
void NevoUtil_modelIndexToZelIndex(const Wt::WModelIndex &index, Wt::WStandardItemModel *model,
                                   Wt::WSortFilterProxyModel *proxy, unsigned int &zelIndex);

/// The same for the EID in a column, a std::string in Wt::EditRole. `eid` has room for 14 bytes.
void NevoUtil_modelIndexToEid(const Wt::WModelIndex &index, Wt::WStandardItemModel *model,
                              Wt::WSortFilterProxyModel *proxy, unsigned int column, char *eid);

/// Appends the store index of each index of a selection, in the set's order.
void NevoUtil_modelIndexSetToZelIndexVect(const std::set<Wt::WModelIndex> &indexes,
                                          Wt::WStandardItemModel *model, Wt::WSortFilterProxyModel *proxy,
                                          std::vector<unsigned int> &zelIndexes);

#endif // STORE_NEVO_UTIL_H_
