// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/EffectTexts.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "core/PresetController.h"

#include <QLocale>

#include <algorithm>
#include <map>

namespace LumetraPlugin {
namespace {

using Zorvik::Quindle::ConstEffectPtr;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;

const std::map<std::string, const char*>& KnownNames()
{
    static const std::map<std::string, const char*> names = {
        {"exposure", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Exposure")},
        {"whiteBalance", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "White balance")},
        {"contrast", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Contrast")},
        {"toneRegions", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Tones")},
        {"saturation", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Saturation")},
        {"vibrance", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Vibrance")},
        {"toneCurve", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Tone curve")},
        {"splitToning", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Split toning")},
        {"channelMixer", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Channel mixer")},
        {"blackAndWhite", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Black and white")},
        {"liftGammaGain", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Lift, gamma, gain")},
        {"lut3d", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Colour table")},
        {"vignette", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Vignette")},
        {"grain", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Grain")},
        {"sharpen", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Sharpening")},
        {"clarity", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Clarity")},
        {"gaussianBlur", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Blur")}};
    return names;
}

/// The units of parameters. Signs are the same in all languages and stand here too, so that a unit
/// that is missing is noticed.
const std::map<std::string, const char*>& KnownUnits()
{
    static const std::map<std::string, const char*> units = {
        {"stops", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "stops")},
        {"points", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "points")},
        {"8-bit steps", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "8-bit steps")},
        {"% of the diagonal", QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "% of the diagonal")},
        {"%", "%"},
        {"‰", "‰"},
        {"K", "K"},
        {"°", "°"}};
    return units;
}

/// Only to be found by the translator's tool.
[[maybe_unused]] constexpr const char* ShippedTitles[] = {
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Temperature"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Tint"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Colour"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Portrait"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Landscape"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Black and White"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Warm Moods"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Cool Moods"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Faded"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Film"),
    QT_TRANSLATE_NOOP("LumetraPlugin::EffectTexts", "Cinematic")};

bool IsMoved(const ConstEffectPtr& effect, const EffectParameter& parameter)
{
    return effect->HasParameter(parameter.name) &&
           effect->GetParameter(parameter.name) != parameter.defaultValue;
}

/// "+0.3 stops" when the effect moves one number, as most do; else nothing.
QString ValueText(const ConstEffectPtr& effect, const std::vector<EffectParameter>& moved)
{
    if (moved.size() != 1)
        return {};
    const double value = effect->GetParameter(moved.front().name);
    const QString number = QLocale().toString(value, 'g', 3);
    const bool isSigned = moved.front().minimum < 0 && value > 0;
    const QString unit = EffectTexts::GetUnit(moved.front().unit);
    return QLatin1Char(' ') + (isSigned ? QStringLiteral("+") : QString()) + number +
           (unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
}

/// An empty text for an effect that changes nothing.
QString EffectText(const ConstEffectPtr& effect)
{
    const QString name = EffectTexts::GetEffectName(effect->GetEffectID());
    const auto descriptor = EffectRegistry::Find(effect->GetEffectID());
    if (!descriptor || descriptor->parameters.empty())
        return name;
    std::vector<EffectParameter> moved;
    std::copy_if(descriptor->parameters.begin(), descriptor->parameters.end(),
                 std::back_inserter(moved),
                 [&effect](const EffectParameter& one) { return IsMoved(effect, one); });
    // One with more than numbers is made by itself and may change things without them.
    if (moved.empty() && !descriptor->create)
        return {};
    return name + ValueText(effect, moved);
}

QStringList SliderTitles(const PresetController& preset)
{
    QStringList titles;
    for (const auto& slider : preset.GetSettings())
        titles.append(EffectTexts::Translate(slider.Title()));
    return titles;
}

} // namespace

QString EffectTexts::GetEffectName(const std::string& effectID)
{
    const auto known = KnownNames().find(effectID);
    return known == KnownNames().end() ? QString::fromStdString(effectID) : tr(known->second);
}

QString EffectTexts::GetUnit(const std::string& unit)
{
    const auto known = KnownUnits().find(unit);
    return known == KnownUnits().end() ? QString::fromStdString(unit) : tr(known->second);
}

QString EffectTexts::Translate(const std::string& title)
{
    return tr(title.c_str());
}

QString EffectTexts::GetToolTip(PresetController& preset)
{
    QStringList lines;
    lines.append(
        QStringLiteral("<b>%1</b>").arg(QString::fromStdString(preset.GetName()).toHtmlEscaped()));
    const auto settings = preset.MakeSettings();
    for (const ConstEffectPtr& effect : settings.EffectsConst())
        if (const QString text = EffectText(effect); !text.isEmpty())
            lines.append(text.toHtmlEscaped());
    const QStringList titles = SliderTitles(preset);
    if (!titles.isEmpty())
        lines.append(
            QStringLiteral("<i>%1</i>")
                .arg(tr("Sliders: %1").arg(titles.join(QStringLiteral(", "))).toHtmlEscaped()));
    return lines.join(QStringLiteral("<br>"));
}

} // namespace LumetraPlugin
