// SPDX-License-Identifier: GPL-2.0-or-later
#include "Places.h"
#include "editor/EditorFixture.h"
#include "editor/edit/SampleEdits.h"

#include "edits/EditFile.h"
#include "engine/effects/EffectKinds.h"
#include "userdata/EditPlaces.h"

#include <QFile>
#include <QProcess>

#include <set>

using namespace LumetraTest;
using LumetraHost::EditPlaces::GetBeside;

namespace {

class ManyKillTest : public EditorFolder
{
protected:
    /// Kills the program when the edit of `photo` has changed so often.
    void RunAndKill(const QString& photo, int changes) const
    {
        QProcess process;
        process.start(QStringLiteral(LUMETRA_MANY_EDITS_PROGRAM), {Path(".")});
        ASSERT_TRUE(process.waitForStarted());
        QByteArray last;
        for (int seen = 0; seen < changes && process.state() == QProcess::Running;) {
            process.waitForFinished(1);
            const QByteArray now = ReadFile(qPrintable(photo + QStringLiteral(".lumetra.json")));
            seen += now != last ? 1 : 0;
            last = now;
        }
        ASSERT_EQ(process.state(), QProcess::Running);
        process.kill();
        process.waitForFinished(-1);
    }
};

} // namespace

TEST_F(ManyKillTest, everyFileHasOneEditOrTheOther)
{
    LumetraHost::RegisterEffects();
    QStringList photos;
    for (int i = 0; i < 6; ++i)
        photos.append(WritePhoto(qPrintable(QStringLiteral("%1.png").arg(i)), 16 + i, 12));

    for (int i = 0; i < photos.size(); ++i) {
        RunAndKill(QStringLiteral("%1.png").arg(i), i + 1);
        for (const QString& photo : photos) {
            if (!QFile::exists(GetBeside(photo)))
                continue; // the first run was killed before this photo
            const auto names = NameLayers(LumetraHost::EditFile::Read(GetBeside(photo)).state);
            EXPECT_EQ(names.size(), 100u) << photo.toStdString();
            EXPECT_EQ(std::set<std::string>(names.begin(), names.end()).size(), 1u);
        }
    }
    EXPECT_TRUE(QFile::exists(GetBeside(photos.last())));
}
