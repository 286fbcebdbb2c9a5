// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/LutImport.h"
#include "host/drawer/DrawnPicture.h"

#include "core/PresetSession.h"
#include "core/userstore/UserPresetStore.h"
#include "image/Image.h"
#include "workspace/WorkspaceController.h"

#include "Zorvik/Exception.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace LumetraPlugin;
using LumetraHost::Image;

namespace {

constexpr char Inverting[] = "LUT_1D_SIZE 2\n1 1 1\n0 0 0\n";
constexpr char Corrections[] =
    "<ColorCorrectionCollection xmlns=\"urn:ASC:CDL:v1.2\">"
    "<ColorCorrection id=\"dawn\"><SOPNode><Slope>1.2 1 1</Slope><Offset>0 0 0</Offset>"
    "<Power>1 1 1</Power></SOPNode></ColorCorrection>"
    "<ColorCorrection id=\"dusk\"><SOPNode><Slope>1 1 1.2</Slope><Offset>0 0 0</Offset>"
    "<Power>1 1 1</Power></SOPNode></ColorCorrection></ColorCorrectionCollection>";

class LutImportTest : public testing::Test
{
protected:
    void SetUp() override
    {
        session.OpenStore(folder.filePath(QStringLiteral("presets.json")));
        session.Load({}, nullptr);
    }

    QString Write(const QString& name, const QByteArray& content) const
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(content), content.size());
        return file.fileName();
    }

    static QString GetName(const QModelIndex& preset)
    {
        return preset.data(PresetModel::PresetNameRole).toString();
    }

    QTemporaryDir folder;
    PresetSession session{"test"};
};

TEST_F(LutImportTest, announcesThePresetAndAppliesItToTheOpenPhoto)
{
    session.OpenPhoto(Image::Allocate(2, 2, Image::Depth::Bits8));
    int insertions = 0;
    QObject::connect(&session.GetModel(), &QAbstractItemModel::rowsInserted,
                     [&insertions] { ++insertions; });

    const auto added = LutImport::AddTo(session, Write(QStringLiteral("negative.cube"), Inverting));

    ASSERT_EQ(added.size(), 1u);
    EXPECT_EQ(insertions, 1);
    EXPECT_EQ(added.front().parent(), session.GetModel().GetUserGroup());
    EXPECT_EQ(GetName(added.front()), QStringLiteral("negative"));
    EXPECT_TRUE(added.front().data(PresetModel::EditableRole).toBool());
    EXPECT_EQ(added.front().data(PresetModel::IntensityRole).toInt(), 100);
    session.GetModel().setData(added.front(), true, PresetModel::AppliedRole);
    EXPECT_EQ(LumetraHost::DrawWhole(session.GetWorkspace().GetDrawer()).Row(0)[0], 255);
}

TEST_F(LutImportTest, numbersNamesThatAreTakenAndShortensLongOnes)
{
    const QString corrections = Write(QStringLiteral("a.ccc"), Corrections);
    const auto first = LutImport::AddTo(session, corrections);
    ASSERT_EQ(first.size(), 2u);
    EXPECT_EQ(GetName(first[0]), QStringLiteral("dawn"));
    EXPECT_EQ(GetName(first[1]), QStringLiteral("dusk"));
    EXPECT_NE(first[0].data(PresetModel::PresetIdRole), first[1].data(PresetModel::PresetIdRole));
    const auto again = LutImport::AddTo(session, corrections);
    EXPECT_EQ(GetName(again[0]), QStringLiteral("dawn 2"));
    EXPECT_EQ(GetName(again[1]), QStringLiteral("dusk 2"));
    const QString longName = QString(60, QLatin1Char('x'));
    const QString file = Write(longName + QStringLiteral(".cube"), Inverting);
    EXPECT_EQ(GetName(LutImport::AddTo(session, file).front()), longName.left(50));
    EXPECT_EQ(GetName(LutImport::AddTo(session, file).front()),
              longName.left(48) + QStringLiteral(" 2"));
}

TEST_F(LutImportTest, keepsItsPresetsInTheStore)
{
    LutImport::AddTo(session, Write(QStringLiteral("negative.cube"), Inverting));
    session.GetStore()->Save(session.GetModel());

    PresetSession later("test");
    later.OpenStore(folder.filePath(QStringLiteral("presets.json")));
    later.Load({}, nullptr);

    const QModelIndex group = later.GetModel().GetUserGroup();
    ASSERT_EQ(later.GetModel().rowCount(group), 1);
    later.OpenPhoto(Image::Allocate(2, 2, Image::Depth::Bits8));
    const QModelIndex preset = later.GetModel().index(0, 0, group);
    EXPECT_EQ(GetName(preset), QStringLiteral("negative"));
    later.GetModel().setData(preset, true, PresetModel::AppliedRole);
    EXPECT_EQ(LumetraHost::DrawWhole(later.GetWorkspace().GetDrawer()).Row(0)[0], 255);
}

TEST_F(LutImportTest, addsNothingFromABadFile)
{
    EXPECT_THROW(
        LutImport::AddTo(session, Write(QStringLiteral("cut.cube"), "LUT_1D_SIZE 5\n0 0 0")),
        Zorvik::Exception);
    EXPECT_EQ(session.GetModel().rowCount(session.GetModel().GetUserGroup()), 0);
}

TEST_F(LutImportTest, knowsLutFilesByTheirNames)
{
    for (const char* name : {"a.cube", "A.CUBE", "b.3dl", "c.clf", "d.cc", "e.ccc", "f.cdl"})
        EXPECT_TRUE(LutImport::IsLutName(QString::fromLatin1(name), false)) << name;
    EXPECT_TRUE(LutImport::IsLutName(QStringLiteral("hald.png"), true));
    EXPECT_FALSE(LutImport::IsLutName(QStringLiteral("hald.png"), false));
    EXPECT_FALSE(LutImport::IsLutName(QStringLiteral("photo.jpg"), true));
}

} // namespace
