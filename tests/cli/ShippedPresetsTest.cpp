// SPDX-License-Identifier: GPL-2.0-or-later
#include "CliTest.h"
#include "Places.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "catalogue/CatalogueFiles.h"
#include "storage/JsonDocument.h"

#include <vector>

using LumetraHost::HaveSamePixels;
using LumetraHost::Image;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

/// All presets that a list as JSON has.
std::vector<ConstSerializerPtr> Presets(const std::string& json)
{
    std::vector<ConstSerializerPtr> presets;
    const auto groups = LumetraHost::JsonDocument::Parse(QByteArray::fromStdString(json), "list")
                            .GetRoot()
                            ->GetCollection("groups");
    for (std::size_t g = 0; g < groups->GetCount(); ++g) {
        const auto items = groups->GetElement(g)->GetCollection("presets");
        for (std::size_t i = 0; i < items->GetCount(); ++i)
            presets.push_back(items->GetElement(i));
    }
    return presets;
}

} // namespace

TEST_F(CliTest, everyPresetChangesThePhoto)
{
    const Image photo = WritePhoto("a.png", 64, 48);
    const auto presets =
        Presets(RunPlain({QStringLiteral("list"), QStringLiteral("--json")}).output);
    ASSERT_GE(presets.size(), 10U);

    for (const ConstSerializerPtr& preset : presets) {
        const std::string id = preset->Get("id", "");
        const QString name = QString::fromStdString(id);
        ASSERT_EQ(RunPlain({QStringLiteral("apply"), QStringLiteral("a.png"), QStringLiteral("-p"),
                            name, QStringLiteral("-o"), QStringLiteral("out.png"),
                            QStringLiteral("--overwrite")})
                      .code,
                  0)
            << id;
        EXPECT_FALSE(HaveSamePixels(ReadPhoto("out.png"), photo)) << id;
    }
}

TEST_F(CliTest, everyBlendingPresetGivesTheSourceBackAtItsLowestIntensity)
{
    const Image photo = WritePhoto("a.png", 64, 48);
    const auto presets =
        Presets(RunPlain({QStringLiteral("list"), QStringLiteral("--json")}).output);

    for (const ConstSerializerPtr& preset : presets) {
        const std::string id = preset->Get("id", "");
        if (preset->GetNode("intensity")->Get("kind", "") != "blending")
            continue;
        ASSERT_EQ(RunPlain({QStringLiteral("apply"), QStringLiteral("a.png"), QStringLiteral("-p"),
                            QString::fromStdString(id), QStringLiteral("-i"), QStringLiteral("1"),
                            QStringLiteral("-o"), QStringLiteral("out.png"),
                            QStringLiteral("--overwrite")})
                      .code,
                  0)
            << id;
        EXPECT_TRUE(HaveSamePixels(ReadPhoto("out.png"), photo)) << id;
    }
}

TEST_F(CliTest, theShippedCataloguesAreWithoutFault)
{
    const QStringList files =
        LumetraHost::CatalogueFiles::FindIn(QStringLiteral(LUMETRA_SOURCE_CATALOGUE));
    ASSERT_FALSE(files.isEmpty());
    const QStringList arguments = QStringList{QStringLiteral("check")} + files;

    const CliResult result = RunPlain(arguments);

    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(WithoutTableNotes(result.output), "");
}
