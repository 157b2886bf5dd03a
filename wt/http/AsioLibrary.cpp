// SPDX-License-Identifier: MIT
// The one place where the sockets library is compiled; everything else sees declarations only.
#include <boost/asio/impl/src.hpp>
