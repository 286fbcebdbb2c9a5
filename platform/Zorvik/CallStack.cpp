// SPDX-License-Identifier: MIT
#include "Zorvik/CallStack.h"

#include <boost/stacktrace.hpp>

namespace Zorvik {

std::string GetCallStack()
{
    return boost::stacktrace::to_string(boost::stacktrace::stacktrace());
}

} // namespace Zorvik
