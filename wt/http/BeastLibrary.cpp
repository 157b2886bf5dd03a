// SPDX-License-Identifier: MIT
// The one place where the HTTP parser library is compiled.
#include <boost/beast/src.hpp>
