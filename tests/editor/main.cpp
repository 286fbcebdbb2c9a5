// SPDX-License-Identifier: GPL-2.0-or-later
// The entry point of the editor's tests: the application is the editor's own, which stops
// exceptions at the border of an event.
#include "plugins/GuardedApplication.h"
#include "support/LogGuard.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>

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
    const LumetraEditor::GuardedApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
