// SPDX-License-Identifier: GPL-2.0-or-later
#include "support/ExpectLog.h"

#include "workspace/StatisticsLog.h"

#include <QDateTime>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>

#include <sys/resource.h>

namespace LumetraHost {
namespace {

class StatisticsLogFile : public testing::Test
{
protected:
    QList<QJsonObject> ReadLines() const
    {
        QFile file(m_path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        QList<QJsonObject> objects;
        const QList<QByteArray> lines = file.readAll().split('\n');
        EXPECT_TRUE(lines.back().isEmpty());
        for (int i = 0; i + 1 < lines.size(); ++i)
            objects.append(QJsonDocument::fromJson(lines[i]).object());
        return objects;
    }

    const QTemporaryDir m_folder;
    const QString m_path = m_folder.filePath(QStringLiteral("events.jsonl"));
    StatisticsLog m_log;
};

TEST_F(StatisticsLogFile, isNotWrittenUntilAPathIsGiven)
{
    m_log.SendEvent("applied", {});
    m_log.SetPath(m_path);
    EXPECT_FALSE(QFile::exists(m_path));
}

TEST_F(StatisticsLogFile, getsOneLineForEachEvent)
{
    m_log.SetPath(m_path);
    m_log.SendEvent("applied", {{"effectGroup", "Portrait"}, {"effectName", "Soft \"Skin\"\n"}});
    StatisticsLog other;
    other.SetPath(m_path);
    other.SendEvent("reset", {});

    const auto lines = ReadLines();

    ASSERT_EQ(lines.size(), 2);
    EXPECT_EQ(lines[0][QStringLiteral("event")].toString(), QStringLiteral("applied"));
    const auto parameters = lines[0][QStringLiteral("parameters")].toObject();
    EXPECT_EQ(parameters[QStringLiteral("effectName")].toString(),
              QStringLiteral("Soft \"Skin\"\n"));
    EXPECT_EQ(parameters.size(), 2);
    EXPECT_EQ(lines[1][QStringLiteral("event")].toString(), QStringLiteral("reset"));
    EXPECT_TRUE(lines[1][QStringLiteral("parameters")].isObject());
    const auto time =
        QDateTime::fromString(lines[0][QStringLiteral("time")].toString(), Qt::ISODateWithMs);
    EXPECT_TRUE(time.isValid());
    EXPECT_EQ(time.timeSpec(), Qt::UTC);
}

TEST_F(StatisticsLogFile, takesNamesThatAreNotUtf8)
{
    m_log.SetPath(m_path);
    m_log.SendEvent("a\xFFz", {{"key", "\xC3"}});
    EXPECT_EQ(ReadLines()[0][QStringLiteral("event")].toString(), QStringLiteral("a\uFFFDz"));
}

TEST_F(StatisticsLogFile, isReportedOnceWhenItCannotBeWritten)
{
    const LumetraTest::ExpectLog expected("statistics file .*missing.* cannot be written");
    m_log.SetPath(m_folder.filePath(QStringLiteral("missing/events.jsonl")));
    m_log.SendEvent("applied", {});
    m_log.SendEvent("applied", {});
    EXPECT_EQ(expected.GetCount(), 1);
}

// Keeps files of this process from growing past the limit, as on a full disk.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        m_oldHandler = std::signal(SIGXFSZ, SIG_IGN);
        getrlimit(RLIMIT_FSIZE, &m_oldLimit);
        const rlimit limit{bytes, m_oldLimit.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &m_oldLimit);
        std::signal(SIGXFSZ, m_oldHandler);
    }

private:
    rlimit m_oldLimit{};
    void (*m_oldHandler)(int);
};

TEST_F(StatisticsLogFile, isReportedWhenALineDoesNotFit)
{
    const LumetraTest::ExpectLog expected("statistics file .*events.jsonl cannot be written");
    const FileSizeLimit limit(10);
    m_log.SetPath(m_path);
    m_log.SendEvent("applied", {});
    EXPECT_EQ(expected.GetCount(), 1);
}

} // namespace
} // namespace LumetraHost
