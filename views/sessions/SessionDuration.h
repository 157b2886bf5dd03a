// SPDX-License-Identifier: MIT
#ifndef VIEWS_SESSIONS_SESSION_DURATION_H_
#define VIEWS_SESSIONS_SESSION_DURATION_H_

#include <string>

/// How long a session has lasted that began at `start`, in seconds since 1970, as a text.
std::string SessionDuration_since(unsigned int start);

#endif // VIEWS_SESSIONS_SESSION_DURATION_H_
