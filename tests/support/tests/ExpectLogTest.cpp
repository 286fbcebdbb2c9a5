// SPDX-License-Identifier: MIT
#include "support/ExpectLog.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <QtDebug>

#include <memory>

using LumetraTest::ExpectLog;

TEST(ExpectLog, takesTheDeclaredMessage)
{
    ExpectLog log("^first .* message$");
    qWarning("first expected message");
    qCritical("first critical message");
    EXPECT_EQ(log.GetCount(), 2);
}

TEST(ExpectLog, failsTheTestOnAnUndeclaredMessage)
{
    EXPECT_NONFATAL_FAILURE(qWarning("nobody waits for this"),
                            "unexpected message in the log: nobody waits for this");
}

TEST(ExpectLog, failsTheTestWhenTheMessageDoesNotCome)
{
    EXPECT_NONFATAL_FAILURE({ ExpectLog log("never"); },
                            "expected a message in the log like \"never\", found none");
}

TEST(ExpectLog, givesTheMessageToTheInnermostMatch)
{
    ExpectLog outer("message");
    {
        ExpectLog inner("message");
        qWarning("a message");
        EXPECT_EQ(inner.GetCount(), 1);
        EXPECT_EQ(outer.GetCount(), 0);
    }
    qWarning("another message");
    EXPECT_EQ(outer.GetCount(), 1);
}

TEST(ExpectLog, leavesDebugAndInformationAlone)
{
    qInfo("a test may say this");
}
