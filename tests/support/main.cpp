// SPDX-License-Identifier: MIT
#include "support/LogGuard.h"

#include <QApplication>
#include <QTemporaryDir>

#include <gmock/gmock.h>

/// Runs the tests of one executable inside an offscreen QApplication. Listing them needs none.
int main(int argc, char** argv)
{
    testing::InitGoogleMock(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();

    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    const LumetraTest::LogGuard guard;
    const QTemporaryDir runtimeDir;
    if (!qEnvironmentVariableIsSet("XDG_RUNTIME_DIR"))
        qputenv("XDG_RUNTIME_DIR", runtimeDir.path().toLocal8Bit());
    QApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
