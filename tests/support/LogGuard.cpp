// SPDX-License-Identifier: MIT
#include "support/LogGuard.h"

#include "support/ExpectLog.h"

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

QtMessageHandler earlierHandler = nullptr;

/// True for the offscreen plug-in's message about a call that it has no window system for, such as
/// raise().
bool IsPlatformNoise(const QString& message)
{
    return message.startsWith(QLatin1String("This plugin does not support "));
}

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        if (!IsPlatformNoise(message) && !ExpectLog::Take(message))
            ADD_FAILURE() << "unexpected message in the log: " << message.toStdString();
    } else {
        earlierHandler(type, context, message);
    }
}

} // namespace

LogGuard::LogGuard()
{
    earlierHandler = qInstallMessageHandler(Handle);
}

LogGuard::~LogGuard()
{
    qInstallMessageHandler(earlierHandler);
}

} // namespace LumetraTest
