// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/lut3d/Lut3dSettings.h"

#include "engine/effects/EffectKinds.h"
#include "engine/effects/lut3d/LookUpTableText.h"
#include "storage/ContentFolder.h"
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ISerializable;
using Zorvik::Brassel::SerializerPtr;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::IEffectSettings;

SerializerPtr MakeNode()
{
    return Zorvik::Brassel::SerializerProperty::Create(
        std::make_shared<Zorvik::Core::Property>("effect"));
}

EffectPtr Read(const std::string& json)
{
    RegisterEffects();
    const auto node = JsonDocument::Parse(QByteArray::fromStdString(json), "look.json").GetRoot();
    const EffectPtr effect = IEffectSettings::CreateEffectSettings(node);
    static_cast<ISerializable&>(*effect).Deserialize(node);
    return effect;
}

std::string ErrorOf(const std::string& json)
{
    try {
        Read(json);
    } catch (const Zorvik::Exception& error) {
        return error.what();
    }
    return "no error";
}

const Lut3dSettings& AsTables(const EffectPtr& effect)
{
    return dynamic_cast<const Lut3dSettings&>(*effect);
}

LookUpTable MakeTable(LookUpTable::Kind kind, int size, float low, float high)
{
    auto table = LookUpTable::MakeIdentity(kind, size, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < table.values.size(); ++i)
        if (i % 4 != 3)
            table.values[i] = low + (high - low) * static_cast<float>(i % 101) / 100.0f;
    return table;
}

// Two points along each axis, eight entries of three 16-bit numbers.
const std::string SmallCube = "AAAAAAAA//8AAAAAAAD//wAA/////wAAAAAAAP////8AAP//AAD/////////////";

TEST(Lut3dSettings, readsItsTableFromText)
{
    const auto effect = Read(R"({"id": "lut3d", "strength": 60, "cube": {"size": 2, "data": ")" +
                             SmallCube + "\"}}");
    EXPECT_EQ(effect->GetParameter("strength"), 60);
    ASSERT_TRUE(AsTables(effect).GetCube());
    EXPECT_FALSE(AsTables(effect).GetCurve());
    EXPECT_EQ(AsTables(effect).GetCube()->size, 2);
    EXPECT_EQ(AsTables(effect).GetCube()->values[4], 1.0f);
    EXPECT_EQ(AsTables(effect).GetCube()->values[5], 0.0f);
}

TEST(Lut3dSettings, survivesARoundTripWithWhatItDoesNotKnow)
{
    const auto effect = Read(
        R"({"id": "lut3d", "note": "keep me", "cube": {"size": 2, "maxRed": 1.5, "origin": {"file":
            "a.cube"}, "data": ")" +
        SmallCube + "\"}}");
    const auto node = MakeNode();
    static_cast<const ISerializable&>(*effect->Clone()).Serialize(node);

    EXPECT_EQ(node->Get("note", ""), "keep me");
    EXPECT_EQ(node->GetNode("cube")->GetNode("origin")->Get("file", ""), "a.cube");
    EXPECT_EQ(node->GetNode("cube")->Get("maxRed", 0.0), 1.5);
    const EffectPtr again = IEffectSettings::CreateEffectSettings(node);
    static_cast<ISerializable&>(*again).Deserialize(node);
    EXPECT_EQ(AsTables(again).GetCube()->values, AsTables(effect).GetCube()->values);
    EXPECT_EQ(AsTables(again).GetCube()->maximum[0], 1.5);
}

TEST(Lut3dSettings, sharesItsTablesWithItsClones)
{
    RegisterEffects();
    const auto curve = MakeTable(LookUpTable::Kind::Curve, 64, 0, 1);
    const EffectPtr effect = Lut3dSettings::Create(&curve, nullptr);
    const EffectPtr clone = effect->Clone();
    EXPECT_EQ(AsTables(clone).GetCurve(), AsTables(effect).GetCurve());
    clone->SetParameter("strength", 10);
    EXPECT_EQ(effect->GetParameter("strength"), 100);
}

TEST(Lut3dSettings, namesThePlaceOfWhatItCannotRead)
{
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 1, "data": ""}})"),
              "look.json/cube/size: expected a whole number from 2 to 129, found 1");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 100000, "data": ""}})"),
              "look.json/cube/size: expected a whole number from 2 to 129, found 100000");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "curve": {"size": 70000}})"),
              "look.json/curve/size: expected a whole number from 2 to 65536, found 70000");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 2}})"),
              "look.json/cube/data: expected 64 characters of base64, found 0");
    EXPECT_EQ(
        ErrorOf(R"({"id": "lut3d", "cube": {"size": 2, "data": ")" + SmallCube.substr(1) + "*\"}}"),
        "look.json/cube/data: expected base64, found something else");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 2, "format": "int8"}})"),
              "look.json/cube/format: expected \"uint16\" or \"float32\", found \"int8\"");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 2, "maxBlue": 0}})"),
              "look.json/cube/maxBlue: expected more than \"minBlue\"");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": {"size": 2, "low": 3}})"),
              "look.json/cube/high: expected more than \"low\", both within the range of a float");
    EXPECT_EQ(ErrorOf(R"({"id": "lut3d", "cube": 5})"),
              "look.json/cube: expected node, found number");
}

TEST(Lut3dSettings, refusesNumbersThatAreNone)
{
    RegisterEffects();
    for (const float bad : {std::numeric_limits<float>::infinity(), std::nanf("")}) {
        auto table = MakeTable(LookUpTable::Kind::Curve, 4, 0, 60);
        table.values[5] = bad;
        EXPECT_THROW(Lut3dSettings::Create(&table, nullptr), Zorvik::Exception);
    }
}

TEST(Lut3dSettings, staysAsItWasWhenReadingFails)
{
    RegisterEffects();
    const auto curve = MakeTable(LookUpTable::Kind::Curve, 64, 0, 1);
    const EffectPtr effect = Lut3dSettings::Create(&curve, nullptr);
    const auto before = AsTables(effect).GetCurve();
    const auto node =
        JsonDocument::Parse(R"({"strength": 5, "curve": {"size": 3, "data": "AA=="}})", "x")
            .GetRoot();
    EXPECT_THROW(static_cast<ISerializable&>(*effect).Deserialize(node), Zorvik::Exception);
    EXPECT_EQ(effect->GetParameter("strength"), 100);
    EXPECT_EQ(AsTables(effect).GetCurve(), before);
}

/// A document beside whose file tables are kept.
class Lut3dSettingsInFiles : public testing::Test
{
protected:
    Lut3dSettingsInFiles()
        : contents(std::make_shared<const ContentFolder>(folder.filePath(QStringLiteral("tables"))))
    {
        RegisterEffects();
        contents->Add(Bytes());
    }

    static QByteArray Bytes() { return QByteArray::fromBase64(SmallCube.c_str()); }
    static std::string Name() { return ContentFolder::NameOf(Bytes()); }
    QString File() const
    {
        return contents->GetPath() + QLatin1Char('/') + QString::fromStdString(Name());
    }

    JsonDocument Document(const std::string& name) const
    {
        auto document = JsonDocument::Parse(
            QByteArray::fromStdString(
                R"({"id": "lut3d", "cube": {"size": 2, "note": "x", "sha256": ")" + name + "\"}}"),
            "store.json");
        document.SetContents(contents);
        return document;
    }

    static EffectPtr ReadFrom(const JsonDocument& document)
    {
        const EffectPtr effect = Lut3dSettings::Create();
        static_cast<ISerializable&>(*effect).Deserialize(document.GetRoot());
        return effect;
    }

    static QByteArray Written(const EffectPtr& effect,
                              const std::shared_ptr<const ContentFolder>& target)
    {
        JsonDocument document("written.json");
        document.SetContents(target);
        static_cast<const ISerializable&>(*effect).Serialize(document.GetRoot());
        return document.ToText();
    }

    QTemporaryDir folder;
    std::shared_ptr<const ContentFolder> contents;
};

TEST_F(Lut3dSettingsInFiles, readsTheFileWhenTheTableIsWantedAndOnce)
{
    const EffectPtr effect = ReadFrom(Document(Name()));
    const EffectPtr clone = effect->Clone();
    EXPECT_EQ(AsTables(clone).GetCube()->values[4], 1.0f);
    ASSERT_TRUE(QFile::remove(File()));
    EXPECT_EQ(AsTables(effect).GetCube(), AsTables(clone).GetCube());
    EXPECT_EQ(AsTables(effect).FindProblem(ContentCheck::Content), "");
}

TEST_F(Lut3dSettingsInFiles, writesTheNameThereAndTheNumbersElsewhere)
{
    const EffectPtr effect = ReadFrom(Document(Name()));
    const QByteArray named = Written(effect, contents);
    EXPECT_TRUE(named.contains(Name().c_str()) && named.contains("\"note\""));
    EXPECT_FALSE(named.contains("\"data\""));

    const auto other = std::make_shared<const ContentFolder>(folder.filePath(QStringLiteral("x")));
    for (const auto& target : {std::shared_ptr<const ContentFolder>(), other}) {
        const QByteArray whole = Written(effect, target);
        EXPECT_TRUE(whole.contains(SmallCube.c_str()) && whole.contains("\"note\""));
        EXPECT_FALSE(whole.contains("\"sha256\""));
    }
}

TEST_F(Lut3dSettingsInFiles, writesTheNameOfAMissingFileAndTheNumbersOnceTheyAreInMemory)
{
    const EffectPtr effect = ReadFrom(Document(Name()));
    const EffectPtr drawn = ReadFrom(Document(Name()));
    ASSERT_TRUE(AsTables(drawn).GetCube());
    ASSERT_TRUE(QFile::remove(File()));
    EXPECT_TRUE(Written(effect, contents).contains(Name().c_str()));
    EXPECT_TRUE(Written(drawn, contents).contains(SmallCube.c_str()));
    EXPECT_THROW(Written(effect, nullptr), Zorvik::Exception);
}

TEST_F(Lut3dSettingsInFiles, triesAgainWhenTheFileComesBack)
{
    ASSERT_TRUE(QFile::remove(File()));
    const EffectPtr effect = ReadFrom(Document(Name()));
    try {
        AsTables(effect).GetCube();
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription(), "store.json/cube: " + File().toStdString() +
                                              ": expected a file of 48 bytes, found none");
    }
    EXPECT_NE(AsTables(effect).FindProblem(ContentCheck::Presence), "");
    contents->Add(Bytes());
    EXPECT_TRUE(AsTables(effect).GetCube());
}

TEST_F(Lut3dSettingsInFiles, refusesNamesThatAreNoneAndNamesWithoutAFolder)
{
    EXPECT_THROW(ReadFrom(Document("../../etc/passwd")), Zorvik::Exception);
    JsonDocument alone = Document(Name());
    alone.SetContents(nullptr);
    try {
        ReadFrom(alone);
        ADD_FAILURE() << "expected an exception";
    } catch (const Zorvik::Exception& error) {
        EXPECT_EQ(error.GetDescription().rfind("store.json/cube: expected \"data\"", 0), 0u)
            << error.GetDescription();
    }
}

TEST_F(Lut3dSettingsInFiles, areTheSameAsThoseThatHoldTheirNumbers)
{
    const auto whole = JsonDocument::Parse(
        QByteArray::fromStdString(R"({"id": "lut3d", "cube": {"size": 2, "data": ")" + SmallCube +
                                  "\"}}"),
        "whole.json");
    ASSERT_TRUE(QFile::remove(File()));
    EXPECT_TRUE(AsTables(ReadFrom(whole)).HasSameTables(AsTables(ReadFrom(Document(Name())))));
}

TEST(LookUpTableText, keepsSixteenBitsOrWholeFloats)
{
    struct Case
    {
        float low, high, tolerance;
        const char* format;
    };
    for (const Case& c : {Case{0, 1, 0.5f / 65535, "uint16"},
                          Case{-0.5f, 1.5f, 1.0f / 65535, "uint16"}, Case{-2, 90, 0, "float32"}}) {
        const auto table = MakeTable(LookUpTable::Kind::Cube, 5, c.low, c.high);
        const auto node = MakeNode();
        LookUpTableText::Write(table, node);
        const auto again = LookUpTableText::Read(node, LookUpTable::Kind::Cube);
        EXPECT_EQ(node->Get("format", ""), c.format);
        for (std::size_t i = 0; i < table.values.size(); i += i % 4 == 2 ? 2 : 1)
            ASSERT_NEAR(again.values[i], table.values[i], c.tolerance * 1.001f + 1e-7f);
    }
}

} // namespace
} // namespace LumetraHost
