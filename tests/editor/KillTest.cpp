// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorFixture.h"

#include "edit/EditStateFormat.h"
#include "storage/JsonDocument.h"

#include <QDirIterator>
#include <QFile>
#include <QProcess>

using namespace LumetraTest;

namespace {

/// Lets the stress program edit photos in a folder of the test's, and kills it.
class KillTest : public EditorFolder
{
protected:
    /// After at least `writes` sidecars have been seen to change.
    void RunAndKill(int seed, int writes)
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("TMPDIR"), Path("."));
        process.setProcessEnvironment(environment);
        process.setProcessChannelMode(QProcess::MergedChannels);
        process.start(QStringLiteral(LUMETRA_STRESS_PROGRAM),
                      {QString::number(seed), QStringLiteral("1000000")});
        ASSERT_TRUE(process.waitForStarted());
        QByteArray last;
        for (int seen = 0; seen < writes && process.state() == QProcess::Running;) {
            process.waitForReadyRead(1);
            const QByteArray now = ReadSidecars();
            seen += now != last ? 1 : 0;
            last = now;
        }
        ASSERT_EQ(process.state(), QProcess::Running) << process.readAll().toStdString();
        process.kill();
        process.waitForFinished(-1);
    }

    QStringList FindFiles(const char* pattern) const
    {
        QStringList files;
        QDirIterator found(Path("."), {QLatin1String(pattern)}, QDir::Files,
                           QDirIterator::Subdirectories);
        while (found.hasNext())
            files.append(found.next());
        return files;
    }

    QByteArray ReadSidecars() const
    {
        QByteArray all;
        for (const QString& path : FindFiles("*.lumetra.json")) {
            QFile file(path);
            if (file.open(QIODevice::ReadOnly))
                all += file.readAll();
        }
        return all;
    }
};

} // namespace

TEST_F(KillTest, aKilledEditorLeavesWholeFiles)
{
    for (int seed = 1; seed <= 4; ++seed)
        RunAndKill(seed, 3 * seed);

    const QStringList sidecars = FindFiles("*.lumetra.json");
    EXPECT_GE(sidecars.size(), 4);
    for (const QString& path : sidecars)
        EXPECT_NO_THROW(
            LumetraEditor::EditStateFormat::FromDocument(LumetraHost::JsonDocument::Read(path)))
            << path.toStdString();
    for (const QString& path : FindFiles("presets.json"))
        EXPECT_NO_THROW(LumetraHost::JsonDocument::Read(path)) << path.toStdString();
}
