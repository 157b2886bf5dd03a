// SPDX-License-Identifier: MIT
#include "SessionRows.h"

#include "Text.h"

ListColumns SessionRows::columns()
{
  return {{text("Username")},
          {text("Receiver")},
          {text("Transmitter")},
          {text("Mode")},
          {text("Duration"), Wt::AlignRight}};
}

std::optional<ListRows> SessionRows::of(const std::optional<std::vector<SessionRecord>> &sessions)
{
  if (!sessions)
    return std::nullopt;
  ListRows rows;
  for (const SessionRecord &session : *sessions)
    rows.push_back(
        {session.index,
         {session.user, session.receiver, session.transmitter, session.mode, session.durationText()}});
  return rows;
}
