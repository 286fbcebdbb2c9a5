// SPDX-License-Identifier: GPL-2.0-or-later
// The tables of parameters in docs/effects.md. A new effect gets a line "| `id` |" in one of them;
// the other lines are written by
//   LUMETRA_WRITE_EFFECTS_PAGE=1 build/dev/bin/host-engine --gtest_filter='EffectsPage*'
#include "engine/effects/EffectKinds.h"

#include <QByteArray>

#include <gtest/gtest.h>

#include <cstdlib>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>
#include <vector>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectParameter;
using Row = std::vector<EffectParameter>;

constexpr char Head[] = "| effect | parameter | unit | range | default |";

std::string GetText(double number)
{
    return QByteArray::number(number).toStdString();
}

/// All cells of a parameter's row except the name.
std::string GetCells(const EffectParameter& parameter)
{
    return " | " + (parameter.unit.empty() ? "" : parameter.unit + ' ') + "| " +
           GetText(parameter.minimum) + " to " + GetText(parameter.maximum) + " | " +
           GetText(parameter.defaultValue) + " |\n";
}

/// Makes the rows; neighbours that differ only in their names share one.
std::vector<Row> MakeRows(const std::vector<EffectParameter>& parameters)
{
    std::vector<Row> rows;
    for (const EffectParameter& parameter : parameters) {
        if (rows.empty() || GetCells(rows.back().front()) != GetCells(parameter))
            rows.emplace_back();
        rows.back().push_back(parameter);
    }
    return rows;
}

/// Many names are cut down to the first two and the last two.
std::string GetNames(const Row& row)
{
    const bool areMany = row.size() > 9;
    std::string names;
    for (std::size_t i = 0; i < row.size(); ++i) {
        const bool isShown = !areMany || i < 2 || i + 2 >= row.size();
        if (isShown || i == 2)
            names += (i == 0 ? "" : " ") + (isShown ? '`' + row[i].name + '`' : "…");
    }
    return names;
}

std::string GetText(const EffectKind& kind)
{
    std::string text;
    std::string effect = '`' + kind.descriptor.effectID + "` ";
    for (const Row& row : MakeRows(kind.descriptor.parameters)) {
        text += "| " + effect + "| " + GetNames(row) + GetCells(row.front());
        effect.clear();
    }
    return text;
}

/// The page with its tables written anew, and the effects that it names in them.
struct Page
{
    std::string text;
    std::multiset<std::string> effects;

    explicit Page(std::istream&& old)
    {
        bool isInTable = false;
        for (std::string line; std::getline(old, line);) {
            isInTable = line == Head || (isInTable && line.rfind('|', 0) == 0);
            if (!isInTable || line == Head || line.rfind("|---", 0) == 0)
                text += line + '\n';
            else if (line.rfind("| `", 0) == 0)
                AddEffect(line.substr(3, line.find('`', 3) - 3));
        }
    }

    void AddEffect(const std::string& id)
    {
        effects.insert(id);
        if (const EffectKind* const kind = EffectKinds::Find(id))
            text += GetText(*kind);
    }
};

std::string ReadText(const char* path)
{
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

TEST(EffectsPage, hasTheParametersOfEveryEffect)
{
    const std::string shipped = ReadText(LUMETRA_EFFECTS_PAGE);
    const Page expected{std::istringstream(shipped)};
    if (std::getenv("LUMETRA_WRITE_EFFECTS_PAGE"))
        std::ofstream(LUMETRA_EFFECTS_PAGE) << expected.text;

    EXPECT_EQ(ReadText(LUMETRA_EFFECTS_PAGE), expected.text);
    std::multiset<std::string> effects;
    for (const EffectKind& kind : EffectKinds::GetAll())
        effects.insert(kind.descriptor.effectID);
    EXPECT_EQ(expected.effects, effects);
}

} // namespace
} // namespace LumetraHost
