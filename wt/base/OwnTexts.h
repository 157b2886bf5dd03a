// SPDX-License-Identifier: MIT
#ifndef WT_BASE_OWN_TEXTS_H_
#define WT_BASE_OWN_TEXTS_H_

#include <string>

namespace Wt
{
namespace Engine
{

/// A sentence of the toolkit itself: what the application, or without a session the server, has for the key,
/// else the English one.
std::string ownText(const char *key, const char *english);

/// The sentences of the page's script that the application has its own for, as a JSON object of names and
/// texts.
std::string ownScriptTexts();

} // namespace Engine
} // namespace Wt

#endif // WT_BASE_OWN_TEXTS_H_
