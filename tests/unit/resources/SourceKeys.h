// SPDX-License-Identifier: MIT
#ifndef TESTS_SOURCE_KEYS_H_
#define TESTS_SOURCE_KEYS_H_

#include <set>
#include <string>

// The keys of interface texts in a piece of C++, in the places that store/Text.h tells.
std::set<std::string> keysInSource(const std::string &source);

// The keys in all sources below a folder of the project, such as "store".
std::set<std::string> keysInFolder(const std::string &folder);

#endif // TESTS_SOURCE_KEYS_H_
