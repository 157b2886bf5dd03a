// SPDX-License-Identifier: MIT
#ifndef STORE_TEXT_H_
#define STORE_TEXT_H_

#include <Wt/WString>
#include <string>

/// Keys of interface texts. Nearly all are the marker "[RSnnn]" and the English text behind it; the others
/// are dotted names and stand whole.
///
/// A test holds the keys in the sources against the message bundle. It finds a key in these places, each a
/// string literal, or several in a row that the compiler joins:
//   text("English")            the key "[RSnnn]English"
//   "[RSnnn]English"           the key as it stands: in tables of data, and where a key is passed on
//   wholeKey("dotted.name")    the key as it stands
//   tr("dotted.name")          the key as it stands, Wt::WString::tr as well
//   textOfWord("dotted.", x)   the keys that begin so and end in a word of the store; which words there are,
//                              the test has in a table
/// So but for the last a key is never put together from parts at run time, and never written in another way.

/// The text whose key is the marker and `english`. In a class that has a text() of its own: ::text().
inline Wt::WString text(const char *english)
{
  return Wt::WString::tr(std::string("[RSnnn]") + english);
}

/// The text whose key is `prefix` with a word of the store behind it. A word that has no text shows as such a
/// key.
inline Wt::WString textOfWord(const char *prefix, const std::string &word)
{
  return Wt::WString::tr(prefix + word);
}

/// Marks a literal as a key without the marker, in tables.
constexpr const char *wholeKey(const char *key)
{
  return key;
}

#endif // STORE_TEXT_H_
