// SPDX-License-Identifier: GPL-2.0-or-later
#include "FilmTables.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace LumetraTools {
namespace {

using LumetraHost::LookUpTable;
using Color = std::array<double, 3>;

double Mix(double from, double to, double weight)
{
    return from + weight * (to - from);
}

/// A step from 0 at `begin` to 1 at `end`, flat at both.
double Step(double begin, double end, double value)
{
    const double t = std::clamp((value - begin) / (end - begin), 0.0, 1.0);
    return t * t * (3 - 2 * t);
}

/// An S through black, the middle and white; `strength` 0 is the diagonal.
double Contrast(double value, double strength)
{
    return Mix(value, value * value * (3 - 2 * value), strength);
}

double Luma(const Color& color)
{
    return 0.2126 * color[0] + 0.7152 * color[1] + 0.0722 * color[2];
}

Color Saturated(const Color& color, double saturation)
{
    const double luma = Luma(color);
    return {Mix(luma, color[0], saturation), Mix(luma, color[1], saturation),
            Mix(luma, color[2], saturation)};
}

/// A print: dyes that stain each other, a soft shoulder, an open toe, and pure colours darker than
/// muted ones, as dyes are.
Color Print(const Color& c)
{
    const Color stained{0.93 * c[0] + 0.05 * c[1] + 0.02 * c[2],
                        0.04 * c[0] + 0.92 * c[1] + 0.04 * c[2],
                        0.02 * c[0] + 0.09 * c[1] + 0.89 * c[2]};
    const auto [least, most] = std::minmax_element(stained.begin(), stained.end());
    const double density = 1 - 0.2 * (*most - *least) * (*most - *least);
    const Color toe{0.025, 0.03, 0.04};
    const Color shoulder{0.985, 0.97, 0.93};
    Color print{};
    for (std::size_t i = 0; i < 3; ++i)
        print[i] = Mix(toe[i], shoulder[i], Contrast(stained[i] * density, 0.55));
    return Saturated(print, 1.1);
}

/// Colours drawn to one axis: skin and light towards orange, shade and sky towards teal.
Color TealAndOrange(const Color& c)
{
    const double luma = Luma(c);
    const double along = ((c[0] - luma) - (c[2] - luma)) / 2;
    const double across = (c[1] - luma) - 0.1 * along;
    const double tint = Mix(-0.07, 0.05, Step(0.1, 0.8, luma)) * 4 * luma * (1 - luma);
    const double warm = 1.15 * along + tint;
    const double level = Contrast(luma, 0.25);
    return {level + warm - 0.35 * across, level + 0.12 * warm + 0.7 * across,
            level - warm - 0.35 * across};
}

/// The silver left in the picture: its grey laid over half of its colours.
Color SilverKept(const Color& c)
{
    const double grey = Luma(c);
    Color result{};
    for (std::size_t i = 0; i < 3; ++i) {
        const double laid = grey < 0.5 ? 2 * grey * c[i] : 1 - 2 * (1 - grey) * (1 - c[i]);
        result[i] = Mix(c[i], laid, 0.6);
    }
    return Saturated(result, 0.5);
}

/// Slide film in the bath for negatives: steep red and green, blue flat, with violet shadows and
/// yellow lights.
Color Crossed(const Color& c)
{
    return {Contrast(c[0], 0.75), Contrast(c[1], 0.5) * 0.98, Mix(0.14, 0.8, Contrast(c[2], -0.2))};
}

/// Two dyes for all colours: red-orange and blue-green.
Color TwoStrip(const Color& c)
{
    const double red = Contrast(0.9 * c[0] + 0.1 * c[1], 0.3);
    const double cyan = Contrast(0.18 * c[0] + 0.52 * c[1] + 0.3 * c[2], 0.3);
    return {0.96 * red + 0.03, 0.2 * red + 0.78 * cyan + 0.01, 0.1 * red + 0.84 * cyan + 0.03};
}

using Look = Color (*)(const Color&);

const std::map<std::string, Look>& Looks()
{
    static const std::map<std::string, Look> looks{{"print", Print},
                                                   {"teal-and-orange", TealAndOrange},
                                                   {"silver-kept", SilverKept},
                                                   {"crossed", Crossed},
                                                   {"two-strip", TwoStrip}};
    return looks;
}

} // namespace

std::vector<std::string> FilmTables::GetNames()
{
    std::vector<std::string> names;
    for (const auto& [name, look] : Looks())
        names.push_back(name);
    return names;
}

LookUpTable FilmTables::Make(const std::string& name)
{
    const auto look = Looks().find(name);
    if (look == Looks().end())
        throw Zorvik::Exception("expected the name of a table, found \"" + name + "\"",
                                BOOST_CURRENT_FUNCTION, "film-tables/FilmTables", __LINE__);
    LookUpTable table =
        LookUpTable::MakeIdentity(LookUpTable::Kind::Cube, PointsPerAxis, {0, 0, 0}, {1, 1, 1});
    for (std::size_t i = 0; i < table.GetCount(); ++i) {
        float* const entry = table.values.data() + i * LookUpTable::Stride;
        const Color color = look->second({entry[0], entry[1], entry[2]});
        for (std::size_t channel = 0; channel < 3; ++channel)
            entry[channel] = static_cast<float>(std::clamp(color[channel], 0.0, 1.0));
    }
    return table;
}

} // namespace LumetraTools
