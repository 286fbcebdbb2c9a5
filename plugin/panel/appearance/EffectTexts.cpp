// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/appearance/EffectTexts.h"

#include "Zorvik/Quindle/EffectRegistry.h"
#include "core/PresetController.h"
#include "engine/effects/EffectKinds.h"

#include <QLocale>

#include <algorithm>

namespace LumetraPlugin {
namespace {

using Zorvik::Quindle::ConstEffectPtr;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectRegistry;

/// The context of texts that the engine marks for translation, and of the ones in this file.
constexpr char Context[] = "Effects";

/// These titles stand here only so that the translator's tool finds them.
[[maybe_unused]] constexpr const char* ShippedTitles[] = {
    QT_TRANSLATE_NOOP("Effects", "Temperature"), QT_TRANSLATE_NOOP("Effects", "Tint"),
    QT_TRANSLATE_NOOP("Effects", "Colour")};

bool IsMoved(const ConstEffectPtr& effect, const EffectParameter& parameter)
{
    return effect->HasParameter(parameter.name) &&
           effect->GetParameter(parameter.name) != parameter.defaultValue;
}

/// The change as text, such as "+0.3 stops", when the effect moves one number, as most do; else
/// nothing.
QString ValueText(const ConstEffectPtr& effect, const std::vector<EffectParameter>& moved)
{
    if (moved.size() != 1)
        return {};
    const double value = effect->GetParameter(moved.front().name);
    const QString number = QLocale().toString(value, 'g', 3);
    const bool isSigned = moved.front().minimum < 0 && value > 0;
    const QString unit = EffectTexts::Translate(moved.front().unit);
    return QLatin1Char(' ') + (isSigned ? QStringLiteral("+") : QString()) + number +
           (unit.isEmpty() ? QString() : QLatin1Char(' ') + unit);
}

/// The effect's name and change; empty for an effect that changes nothing.
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
    // Effects that are more than numbers may change things without any.
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
    const auto* const kind = LumetraHost::EffectKinds::Find(effectID);
    return kind ? Translate(kind->title) : QString::fromStdString(effectID);
}

QString EffectTexts::Translate(const std::string& text)
{
    return QCoreApplication::translate(Context, text.c_str());
}

QString EffectTexts::GetToolTip(PresetController& preset)
{
    QStringList lines;
    lines.append(QStringLiteral("<b>%1</b>").arg(preset.GetShownName().toHtmlEscaped()));
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
