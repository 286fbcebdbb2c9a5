// SPDX-License-Identifier: GPL-2.0-or-later
#include "Places.h"
#include "editor/EditorFixture.h"

#include "edits/EditStateFormat.h"
#include "storage/JsonDocument.h"
#include "window/MessageBar.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QListView>
#include <QProcess>

using namespace LumetraTest;

namespace {

/// Lets the stress program edit photos in a folder of the test's, and kills it.
class KillTest : public EditorFolder
{
protected:
    /// Kills the program after at least `writes` changes of sidecars.
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

    /// The names of the user's presets in a store.
    static QStringList NamesIn(const QString& store)
    {
        QFile file(store);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << store.toStdString();
        const QJsonObject user = QJsonDocument::fromJson(file.readAll())
                                     .object()[QStringLiteral("UserPresets")]
                                     .toObject();
        QStringList names;
        for (const QJsonValue& item : user[QStringLiteral("items")].toArray())
            names.append(item.toObject()[QStringLiteral("name")].toString());
        return names;
    }

    /// The names of all looks that the editor shows with the data of a killed one.
    static QStringList LooksOfEditorWith(const QString& store)
    {
        const QString data = QFileInfo(store).dir().absoluteFilePath(QStringLiteral(".."));
        qputenv("XDG_DATA_HOME", QFile::encodeName(QDir::cleanPath(data)));
        LumetraEditor::Editor editor;
        LumetraEditor::EditorWindow window(editor);
        window.LoadPanels({QStringLiteral(LUMETRA_MODULES)});
        EXPECT_EQ(window.findChild<LumetraEditor::MessageBar*>()->GetText(), QString());
        QStringList names;
        for (const auto* const list : window.findChildren<QListView*>())
            for (int row = 0; list->model() && row < list->model()->rowCount(); ++row)
                names.append(list->model()->index(row, 0).data().toString());
        return names;
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

TEST_F(KillTest, aKilledEditorLeavesWholeFilesAndItsPresetsAreShownAgain)
{
    for (int seed = 1; seed <= 4; ++seed)
        RunAndKill(seed, 12 * seed);

    const QStringList sidecars = FindFiles("*.lumetra.json");
    EXPECT_GE(sidecars.size(), 4);
    for (const QString& path : sidecars)
        EXPECT_NO_THROW(
            LumetraHost::EditStateFormat::FromDocument(LumetraHost::JsonDocument::Read(path)))
            << path.toStdString();
    int presets = 0;
    for (const QString& path : FindFiles("presets.json")) {
        EXPECT_NO_THROW(LumetraHost::JsonDocument::Read(path)) << path.toStdString();
        const QStringList looks = LooksOfEditorWith(path);
        for (const QString& name : NamesIn(path)) {
            EXPECT_TRUE(looks.contains(name)) << name.toStdString();
            ++presets;
        }
    }
    EXPECT_GT(presets, 0);
}
