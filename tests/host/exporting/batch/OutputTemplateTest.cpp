// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/OutputTemplate.h"

#include "host/photo/PhotoSamples.h"
#include "photo/PhotoWriter.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>

using namespace LumetraHost;
using LumetraTest::ErrorOf;

namespace {

OutputValues MakeValues()
{
    OutputValues values;
    values.photo = QStringLiteral("/photos/IMG 1.DNG");
    values.number = 7;
    values.preset = QStringLiteral("Warm/Look");
    values.group = QStringLiteral("Film");
    values.intensity = QStringLiteral("60+80");
    return values;
}

std::string Expand(const char* text, const OutputValues& values = MakeValues())
{
    return OutputTemplate(QString::fromUtf8(text)).Expand(values).toStdString();
}

std::string Refuse(const char* text)
{
    return ErrorOf([text] { return Expand(text); });
}

} // namespace

TEST(OutputTemplate, fillsInWhatIsKnownOfThePhotoAndTheLook)
{
    EXPECT_EQ(Expand("{folder}/{name}_{preset}.{ext}"), "/photos/IMG 1_Warm_Look.jpg");
    EXPECT_EQ(Expand("/o/{group}/{intensity}-{name}.{original_ext}.png"),
              "/o/Film/60+80-IMG 1.DNG.png");
    OutputValues values = MakeValues();
    values.extension = QStringLiteral("png");
    EXPECT_EQ(Expand("/o/{name}.{ext}", values), "/o/IMG 1.png");
}

TEST(OutputTemplate, numbersPhotosWithAsManyDigitsAsAskedFor)
{
    EXPECT_EQ(Expand("/o/{n}.jpg"), "/o/7.jpg");
    EXPECT_EQ(Expand("/o/{n:04}-{n:2}.jpg"), "/o/0007-07.jpg");
    OutputValues values = MakeValues();
    values.number = 12345;
    EXPECT_EQ(Expand("/o/{n:04}.jpg", values), "/o/12345.jpg");
}

TEST(OutputTemplate, takesTheDateOfTheFileWherePhotosSayNone)
{
    const QTemporaryDir folder;
    OutputValues values = MakeValues();
    values.photo = folder.filePath(QStringLiteral("a.png"));
    PhotoWriter::Write(values.photo, Photo{{}, LumetraTest::MakeGradient(4, 4)});
    QFile file(values.photo);
    ASSERT_TRUE(file.open(QIODevice::ReadWrite));
    ASSERT_TRUE(
        file.setFileTime(QDateTime({2024, 5, 1}, {12, 34, 56}), QFileDevice::FileModificationTime));
    file.close();

    EXPECT_EQ(Expand("/o/{date}.jpg", values), "/o/2024-05-01.jpg");
    EXPECT_EQ(Expand("/o/{date:yyyy/MMM/dd HH:mm}.jpg", values), "/o/2024/May/01 12_34.jpg");
}

TEST(OutputTemplate, keepsBracesOfTheValues)
{
    OutputValues values = MakeValues();
    values.preset = QStringLiteral("{name}");
    EXPECT_EQ(Expand("/o/{preset}.jpg", values), "/o/{name}.jpg");
}

TEST(OutputTemplate, refusesWhatItDoesNotKnow)
{
    const std::string known =
        "expected {folder}, {name}, {ext}, {original_ext}, {preset}, {group}, "
        "{intensity}, {n} or {date}, found ";
    EXPECT_EQ(Refuse("{nmae}.jpg"), known + "{nmae}");
    EXPECT_EQ(Refuse("{}.jpg"), known + "{}");
    EXPECT_EQ(Refuse("{name:04}.jpg"), known + "{name:04}");
    EXPECT_EQ(Refuse("{N}.jpg"), known + "{N}");
    const std::string number = "expected {n} or a number of digits such as {n:04}, found ";
    for (const char* text : {"{n:}", "{n:00}", "{n:x}", "{n:-4}", "{n:010}"})
        EXPECT_EQ(Refuse((std::string(text) + ".jpg").c_str()), number + text);
    EXPECT_EQ(Refuse("{date:}.jpg"),
              "expected a form of a date such as {date:yyyy-MM-dd}, found {date:}");
}

TEST(OutputTemplate, refusesNamesThatNoFormatHas)
{
    const std::string name =
        "expected a name that ends in .{ext}, .jpg, .png, .tif or .webp, found ";
    EXPECT_EQ(Refuse("{name}"), name + "\"{name}\"");
    EXPECT_EQ(Refuse("out.gif"), name + "\"out.gif\"");
    EXPECT_EQ(Refuse("{name}.{original_ext}"), name + "\"{name}.{original_ext}\"");
}

TEST(OutputTemplate, tellsWhichPlaceholdersItHas)
{
    const OutputTemplate names(QStringLiteral("{n:03}-{preset}.jpg"));
    EXPECT_TRUE(names.Uses(QStringLiteral("n")) && names.Uses(QStringLiteral("preset")));
    EXPECT_FALSE(names.Uses(QStringLiteral("name")) || names.Uses(QStringLiteral("pre")));
}
