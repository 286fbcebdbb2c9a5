// SPDX-License-Identifier: GPL-2.0-or-later
#include "FakeEditor.h"

#include <cctype>

namespace LumetraTest {
namespace {

using LumetraEditor::ParameterDescription;
using Kind = ParameterDescription::Kind;

constexpr int PointsOfCurve = 16;

ParameterDescription Number(const char* name, const char* title, double minimum, double maximum,
                            bool actsAlone)
{
    return {name, QString::fromUtf8(title), {}, minimum, maximum, 0, Kind::Number, actsAlone};
}

std::vector<ParameterDescription> DescribeCurves()
{
    std::vector<ParameterDescription> all;
    for (const std::string channel : {"", "red", "green", "blue"}) {
        const auto name = [&channel](const std::string& own) {
            std::string joined = channel + own;
            joined[channel.size()] =
                static_cast<char>(channel.empty() ? own[0] : std::toupper(own[0]));
            return joined;
        };
        all.push_back(Number(name("points").c_str(), "Points", 0, PointsOfCurve, false));
        for (int i = 0; i < PointsOfCurve; ++i) {
            all.push_back(Number(name("x" + std::to_string(i)).c_str(), "X", 0, 100, false));
            all.push_back(Number(name("y" + std::to_string(i)).c_str(), "Y", 0, 100, false));
        }
    }
    return all;
}

} // namespace

FakeEditor::FakeEditor() : m_workspace(std::make_shared<RecordingWorkspace>(m_log))
{
    Describe("exposure", QStringLiteral("Exposure"), {Number("stops", "Stops", -5, 5, true)});
    Describe("vignette", QStringLiteral("Vignette"),
             {Number("amount", "Amount", -5, 5, true), Number("size", "Size", -100, 100, false)});
    Describe("toneCurve", QStringLiteral("Tone curve"), DescribeCurves());
    ParameterDescription hue = Number("shadowHue", "Shadows: Hue", 0, 360, false);
    hue.kind = Kind::Angle;
    ParameterDescription lightHue = Number("highlightHue", "Highlights: Hue", 0, 360, false);
    lightHue.kind = Kind::Angle;
    Describe("colourGrading", QStringLiteral("Colour grading"),
             {hue, Number("shadowSaturation", "Shadows: Saturation", 0, 100, true),
              Number("shadowLuminance", "Shadows: Luminance", -100, 100, true), lightHue,
              Number("highlightSaturation", "Highlights: Saturation", 0, 100, true),
              Number("balance", "Balance", -100, 100, false)});
    m_log.Clear();
}

FakeEditor::~FakeEditor() = default;

void FakeEditor::Describe(const std::string& effectID, const QString& title,
                          std::vector<ParameterDescription> parameters)
{
    Zorvik::Quindle::EffectDescriptor descriptor;
    descriptor.effectID = effectID;
    for (const ParameterDescription& one : parameters)
        descriptor.parameters.push_back({one.name, one.minimum, one.maximum, one.defaultValue, {}});
    m_effects.Add(descriptor);
    m_descriptions.push_back({effectID, title, std::move(parameters), true});
}

QString FakeEditor::StoreLook(const LumetraEditor::NewLook& look)
{
    looks.push_back(look);
    return problem;
}

QString FakeEditor::FindLookName(const QString& id) const
{
    const auto found = lookNames.find(id);
    return found == lookNames.end() ? QString() : found->second;
}

QString FakeEditor::UpdateLook(const QString& id, const Zorvik::Quindle::EffectsSettings& settings)
{
    updates.emplace_back(id, settings);
    return problem;
}

} // namespace LumetraTest
