// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Places.h"

#include "photo/PhotoReader.h"
#include "photo/PhotoWriter.h"

#include <QDir>
#include <QFile>
#include <QProcess>

using LumetraHost::Image;

namespace {

constexpr char Looks[] = R"({
  "format": "lumetra-catalogue", "version": 1,
  "defaultSettings": {
    "exposure": { "title": "Brightness", "begin": -100, "end": 100,
      "variables": [ { "setting": "stops", "begin": -2, "end": 2 } ] } },
  "groups": [ {
    "name": "Test looks",
    "settings": { "intensity": { "type": 1, "blendSetting": { "value": 80 } } },
    "items": [
      { "name": "Test Bright", "id": "test.bright", "popular": true,
        "settings": { "effects": [ { "effect": { "id": "exposure", "stops": 1 } } ] } },
      { "name": "Test Grey", "id": "test.grey",
        "settings": { "effects": [ { "effect": { "id": "saturation", "amount": -100 } } ] } },
      { "name": "Test Slide", "id": "test.slide",
        "intensity": { "type": 2, "sliderSetting": { "begin": 0, "end": 50, "variables":
          [ { "effectID": "liftGammaGain", "setting": "saturation", "begin": 1, "end": 0 } ] } },
        "settings": { "effects": [ { "effect": { "id": "liftGammaGain", "saturation": 0.5 } } ] } },
      { "name": "Test Plain", "id": "test.plain", "intensity": { "type": 0 },
        "settings": { "effects": [ { "effect": { "id": "saturation", "amount": 50 } } ] } },
      { "name": "Test Twin", "id": "test.twin-1",
        "settings": { "effects": [ { "effect": { "id": "saturation", "amount": 50 } } ] } },
      { "name": "Test Twin", "id": "test.twin-2",
        "settings": { "effects": [ { "effect": { "id": "saturation", "amount": 20 } } ] } } ] } ]
})";

QProcessEnvironment CleanEnvironment(const QString& folder)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "XDG_RUNTIME_DIR", "QT_QPA_PLATFORM"})
        environment.remove(QLatin1String(name));
    const QString empty = folder + QStringLiteral("/empty");
    for (const char* name : {"HOME", "XDG_DATA_HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS"})
        environment.insert(QLatin1String(name), empty);
    environment.remove(QStringLiteral("LANGUAGE"));
    environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
    return environment;
}

QStringList OnlyLooks()
{
    return {QStringLiteral("--only-named"), QStringLiteral("--catalogue"),
            QStringLiteral("looks.json")};
}

} // namespace

QStringList Words(const char* line)
{
    return QString::fromLatin1(line).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

void CliTest::SetUp()
{
    ASSERT_TRUE(folder.isValid());
    WriteFile("looks.json", Looks);
}

CliResult CliTest::RunPlain(const QStringList& arguments) const
{
    return Start(CleanEnvironment(folder.path()), arguments);
}

CliResult CliTest::RunIn(const char* locale, const QStringList& arguments) const
{
    QProcessEnvironment environment = CleanEnvironment(folder.path());
    environment.insert(QStringLiteral("LC_ALL"), QLatin1String(locale));
    return Start(environment, arguments + OnlyLooks());
}

CliResult CliTest::RunWith(const std::map<const char*, QString>& variables,
                           const QStringList& arguments) const
{
    QProcessEnvironment environment = GetEnvironment();
    for (const auto& [name, value] : variables)
        environment.insert(QLatin1String(name), value);
    return Start(environment, arguments);
}

QProcessEnvironment CliTest::GetEnvironment() const
{
    return CleanEnvironment(folder.path());
}

CliResult CliTest::RunWithInput(const QStringList& arguments, const QByteArray& input) const
{
    return Start(GetEnvironment(), arguments + OnlyLooks(), input);
}

CliResult CliTest::RunThrough(const QString& program, const QStringList& before,
                              const QStringList& arguments) const
{
    return StartProgram(program, GetEnvironment(),
                        before + QStringList{QStringLiteral(LUMETRA_PRESETS_PROGRAM)} + arguments +
                            OnlyLooks(),
                        {});
}

CliResult CliTest::Start(const QProcessEnvironment& environment, const QStringList& arguments,
                         const QByteArray& input) const
{
    return StartProgram(QStringLiteral(LUMETRA_PRESETS_PROGRAM), environment, arguments, input);
}

CliResult CliTest::StartProgram(const QString& program, const QProcessEnvironment& environment,
                                const QStringList& arguments, const QByteArray& input) const
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(folder.path());
    process.start(program, arguments);
    process.write(input);
    process.closeWriteChannel();
    const bool isDone = process.waitForFinished(-1);
    CliResult result;
    if (isDone && process.exitStatus() == QProcess::NormalExit)
        result.code = process.exitCode();
    result.output = process.readAllStandardOutput().toStdString();
    result.messages = process.readAllStandardError().toStdString();
    return result;
}

CliResult CliTest::Run(const QStringList& arguments) const
{
    return RunPlain(arguments + OnlyLooks());
}

QString CliTest::Path(const char* name) const
{
    return QFileInfo(folder.path()).canonicalFilePath() + QLatin1Char('/') + QLatin1String(name);
}

bool CliTest::Exists(const char* name) const
{
    return QFile::exists(Path(name));
}

void CliTest::WriteFile(const char* name, const QByteArray& content) const
{
    QDir().mkpath(QFileInfo(Path(name)).path());
    QFile file(Path(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    ASSERT_EQ(file.write(content), content.size());
}

QByteArray CliTest::ReadFile(const char* name) const
{
    QFile file(Path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Image CliTest::WritePhoto(const char* name, int width, int height) const
{
    LumetraHost::Photo photo;
    photo.image = Image::Allocate(width, height, Image::Depth::Bits8);
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            std::uint8_t* pixel = photo.image.Row(y) + 4 * x;
            pixel[0] = static_cast<std::uint8_t>(20 + 200 * x / width);
            pixel[1] = static_cast<std::uint8_t>(20 + 200 * y / height);
            pixel[2] = static_cast<std::uint8_t>(20 + (x * 7 + y * 3) % 200);
            pixel[3] = 255;
        }
    }
    QDir().mkpath(QFileInfo(Path(name)).path());
    LumetraHost::PhotoWriter::Write(Path(name), photo);
    return photo.image;
}

Image CliTest::ReadPhoto(const char* name) const
{
    return LumetraHost::PhotoReader::Read(Path(name)).image;
}
