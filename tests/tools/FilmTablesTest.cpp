// SPDX-License-Identifier: GPL-2.0-or-later
#include "FilmTables.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"
#include "engine/effects/lut3d/LookUpTableText.h"
#include "storage/JsonDocument.h"

#include <QString>

#include <gtest/gtest.h>

#include <set>

using LumetraHost::JsonDocument;
using LumetraHost::LookUpTable;
using LumetraHost::LookUpTableText;
using LumetraTools::FilmTables;
using Zorvik::Brassel::ConstSerializerPtr;

namespace {

std::string TextOf(const std::string& name)
{
    const JsonDocument document("table");
    LookUpTableText::Write(FilmTables::Make(name), document.GetRoot());
    return document.GetRoot()->Get("data", "");
}

/// The tables of all shipped presets, as they are stored.
std::set<std::string> ShippedTables()
{
    std::set<std::string> tables;
    const auto root = JsonDocument::Read(QStringLiteral(LUMETRA_SHIPPED_CATALOGUE)).GetRoot();
    const auto groups = root->GetCollection("groups");
    for (std::size_t g = 0; g < groups->GetCount(); ++g) {
        const auto items = groups->GetElement(g)->GetCollection("items");
        for (std::size_t i = 0; i < items->GetCount(); ++i) {
            const auto effects =
                items->GetElement(i)->GetNode("settings")->GetCollection("effects");
            for (std::size_t e = 0; e < effects->GetCount(); ++e)
                if (const auto cube = effects->GetElement(e)->GetNode("effect")->GetNode("cube"))
                    tables.insert(cube->Get("data", ""));
        }
    }
    return tables;
}

const float* EntryAt(const LookUpTable& table, int red, int green, int blue)
{
    const int index = (blue * table.size + green) * table.size + red;
    return table.values.data() + static_cast<std::size_t>(index) * LookUpTable::Stride;
}

} // namespace

TEST(FilmTables, standInTheShippedPresetsAsTheyAreComputed)
{
    const auto shipped = ShippedTables();
    std::set<std::string> computed;
    for (const std::string& name : FilmTables::GetNames()) {
        computed.insert(TextOf(name));
        EXPECT_EQ(shipped.count(TextOf(name)), 1u)
            << "lumetra-film-tables " << name << " prints what belongs into its preset";
    }
    EXPECT_EQ(shipped.size(), computed.size());
}

TEST(FilmTables, letGreysGrowBrighterFromBlackToWhite)
{
    for (const std::string& name : FilmTables::GetNames()) {
        const LookUpTable table = FilmTables::Make(name);
        for (int i = 1; i < table.size; ++i)
            for (int channel = 0; channel < 3; ++channel)
                EXPECT_GE(EntryAt(table, i, i, i)[channel],
                          EntryAt(table, i - 1, i - 1, i - 1)[channel])
                    << name << ", grey " << i << ", channel " << channel;
        EXPECT_LT(EntryAt(table, 0, 0, 0)[1], 0.1f) << name;
        EXPECT_GT(EntryAt(table, 8, 8, 8)[1], 0.9f) << name;
    }
}

TEST(FilmTables, haveNamesOfTheirOwn)
{
    EXPECT_THROW(FilmTables::Make("none"), Zorvik::Exception);
    EXPECT_GE(FilmTables::GetNames().size(), 5u);
}
