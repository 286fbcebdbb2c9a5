// SPDX-License-Identifier: MIT
#include "support/LogGuard.h"

#include "support/ExpectLog.h"

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

QtMessageHandler earlierHandler = nullptr;

void Handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
{
    if (type == QtWarningMsg || type == QtCriticalMsg) {
        if (!ExpectLog::Take(message))
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
