// SPDX-License-Identifier: GPL-2.0-or-later
#include "LookFixture.h"

#include "Zorvik/Exception.h"
#include "core/LutImport.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetMaker.h"
#include "core/looks/LookReader.h"
#include "core/looks/LookWriter.h"
#include "core/userstore/UserPresetStore.h"

#include <QFile>

namespace LumetraTest {

using namespace LumetraPlugin;

void LookTest::SetUp()
{
    session.OpenStore(Path("presets.json"));
    session.Load({}, nullptr);
}

QString LookTest::Write(const char* name, const QByteArray& content) const
{
    QFile file(Path(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    EXPECT_EQ(file.write(content), content.size());
    return file.fileName();
}

QByteArray LookTest::ReadFile(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

PresetModel::PresetPtr LookTest::AddPreset(const char* name, const QByteArray& members)
{
    QStringList problems;
    const auto document =
        LumetraHost::JsonDocument::Parse(LookText(name, members), "a look of the test");
    const auto presets = LookReader::Read(document, session.GetFactory(), problems);
    EXPECT_TRUE(problems.isEmpty()) << problems.value(0).toStdString();
    session.GetModel().AddUserPreset(presets.at(0));
    return presets.at(0);
}

PresetModel::PresetPtr LookTest::AddTable(const char* name, int points)
{
    const ImportedLooks looks = LutImport::Read(Write("table.cube", CubeText(points)), {});
    const auto preset =
        PresetMaker::Make(QString::fromUtf8(name), looks.at(0).effects, 100, session.GetFactory());
    session.GetModel().AddUserPreset(preset);
    return preset;
}

QString LookTest::WriteLooks(const char* name,
                             const std::vector<PresetModel::PresetPtr>& presets) const
{
    LookWriter writer;
    for (const auto& preset : presets)
        writer.Add(*preset);
    writer.Write(Path(name));
    return Path(name);
}

void LookTest::Save()
{
    session.GetStore()->Save(session.GetModel());
}

ImportReport LookTest::ImportInto(PresetSession& target, const QString& path,
                                  const ImportNaming& naming)
{
    return PresetImport::AddTo(target, {PresetImport::Read(path, {})}, naming);
}

std::string LookTest::Refusal(const QString& path)
{
    const ImportReport report = Import(path);
    EXPECT_TRUE(report.presets.empty()) << "added";
    return report.problems.join(QLatin1Char('\n')).toStdString();
}

QByteArray LookText(const QByteArray& name, const QByteArray& members)
{
    return R"({ "format": "lumetra-look", "version": 1, "looks": [ { "name": ")" + name + "\", " +
           members + " } ] }";
}

QByteArray CubeText(int points)
{
    QByteArray text = "LUT_3D_SIZE " + QByteArray::number(points) + '\n';
    const double last = points - 1;
    for (int b = 0; b < points; ++b)
        for (int g = 0; g < points; ++g)
            for (int r = 0; r < points; ++r)
                text += QByteArray::number(b / last) + ' ' + QByteArray::number(r / last) + ' ' +
                        QByteArray::number(g / last) + '\n';
    return text;
}

} // namespace LumetraTest
