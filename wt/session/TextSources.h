// SPDX-License-Identifier: MIT
#ifndef WT_SESSION_TEXT_SOURCES_H_
#define WT_SESSION_TEXT_SOURCES_H_

namespace Wt
{
namespace Engine
{

/// Lets texts and locales come from the application whose code runs. May be called again.
void installTextSources();

} // namespace Engine
} // namespace Wt

#endif // WT_SESSION_TEXT_SOURCES_H_
