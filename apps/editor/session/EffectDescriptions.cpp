// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/EffectDescriptions.h"

#include "engine/effects/EffectKinds.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <set>
#include <string>

namespace LumetraEditor {
namespace {

using LumetraHost::EffectKind;
using Zorvik::Quindle::EffectParameter;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectSettingsImpl;

/// The context of texts that the engine marks for translation.
constexpr char Context[] = "Effects";

/// Names of parameters, or parts of them, in words for the user.
struct Word
{
    const char* name;
    const char* text;
};
constexpr Word Words[] = {
    {"amount", QT_TRANSLATE_NOOP("Effects", "Amount")},
    {"stops", QT_TRANSLATE_NOOP("Effects", "Brightness")},
    {"temperature", QT_TRANSLATE_NOOP("Effects", "Temperature")},
    {"tint", QT_TRANSLATE_NOOP("Effects", "Tint")},
    {"blacks", QT_TRANSLATE_NOOP("Effects", "Blacks")},
    {"shadows", QT_TRANSLATE_NOOP("Effects", "Shadows")},
    {"midtones", QT_TRANSLATE_NOOP("Effects", "Mid-tones")},
    {"highlights", QT_TRANSLATE_NOOP("Effects", "Highlights")},
    {"whites", QT_TRANSLATE_NOOP("Effects", "Whites")},
    {"darks", QT_TRANSLATE_NOOP("Effects", "Darks")},
    {"lights", QT_TRANSLATE_NOOP("Effects", "Lights")},
    {"shadow", QT_TRANSLATE_NOOP("Effects", "Shadows")},
    {"midtone", QT_TRANSLATE_NOOP("Effects", "Mid-tones")},
    {"highlight", QT_TRANSLATE_NOOP("Effects", "Highlights")},
    {"global", QT_TRANSLATE_NOOP("Effects", "Whole photo")},
    {"hue", QT_TRANSLATE_NOOP("Effects", "Hue")},
    {"saturation", QT_TRANSLATE_NOOP("Effects", "Saturation")},
    {"luminance", QT_TRANSLATE_NOOP("Effects", "Luminance")},
    {"blending", QT_TRANSLATE_NOOP("Effects", "Blending")},
    {"balance", QT_TRANSLATE_NOOP("Effects", "Balance")},
    {"split", QT_TRANSLATE_NOOP("Effects", "Split")},
    {"red", QT_TRANSLATE_NOOP("Effects", "Red")},
    {"orange", QT_TRANSLATE_NOOP("Effects", "Orange")},
    {"yellow", QT_TRANSLATE_NOOP("Effects", "Yellow")},
    {"green", QT_TRANSLATE_NOOP("Effects", "Green")},
    {"aqua", QT_TRANSLATE_NOOP("Effects", "Aqua")},
    {"blue", QT_TRANSLATE_NOOP("Effects", "Blue")},
    {"purple", QT_TRANSLATE_NOOP("Effects", "Purple")},
    {"magenta", QT_TRANSLATE_NOOP("Effects", "Magenta")},
    {"radius", QT_TRANSLATE_NOOP("Effects", "Radius")},
    {"threshold", QT_TRANSLATE_NOOP("Effects", "Threshold")},
    {"size", QT_TRANSLATE_NOOP("Effects", "Size")},
    {"feather", QT_TRANSLATE_NOOP("Effects", "Feather")},
    {"roundness", QT_TRANSLATE_NOOP("Effects", "Roundness")},
    {"roughness", QT_TRANSLATE_NOOP("Effects", "Roughness")},
    {"seed", QT_TRANSLATE_NOOP("Effects", "Pattern")},
    {"slope", QT_TRANSLATE_NOOP("Effects", "Slope")},
    {"offset", QT_TRANSLATE_NOOP("Effects", "Offset")},
    {"power", QT_TRANSLATE_NOOP("Effects", "Power")},
    {"clamp", QT_TRANSLATE_NOOP("Effects", "Clip between the steps")},
    {"strength", QT_TRANSLATE_NOOP("Effects", "Strength")},
    {"points", QT_TRANSLATE_NOOP("Effects", "Points")},
    {"rr", QT_TRANSLATE_NOOP("Effects", "Red from red")},
    {"rg", QT_TRANSLATE_NOOP("Effects", "Red from green")},
    {"rb", QT_TRANSLATE_NOOP("Effects", "Red from blue")},
    {"gr", QT_TRANSLATE_NOOP("Effects", "Green from red")},
    {"gg", QT_TRANSLATE_NOOP("Effects", "Green from green")},
    {"gb", QT_TRANSLATE_NOOP("Effects", "Green from blue")},
    {"br", QT_TRANSLATE_NOOP("Effects", "Blue from red")},
    {"bg", QT_TRANSLATE_NOOP("Effects", "Blue from green")},
    {"bb", QT_TRANSLATE_NOOP("Effects", "Blue from blue")},
};

/// Parameters whose title says more in their effect than their name does.
struct OwnTitle
{
    const char* effectID;
    const char* parameter;
    const char* text;
};
constexpr OwnTitle OwnTitles[] = {
    {"parametricCurve", "shadowSplit", QT_TRANSLATE_NOOP("Effects", "Shadows end at")},
    {"parametricCurve", "midtoneSplit", QT_TRANSLATE_NOOP("Effects", "Middle at")},
    {"parametricCurve", "highlightSplit", QT_TRANSLATE_NOOP("Effects", "Highlights begin at")},
    {"primaries", "shadowTint", QT_TRANSLATE_NOOP("Effects", "Tint of the shadows")},
};

QString Translate(const char* text)
{
    return QCoreApplication::translate(Context, text);
}

/// The parts of "shadowHue": "shadow" and "hue".
QStringList SplitName(const QString& name)
{
    QStringList parts{QString()};
    for (const QChar letter : name) {
        if (letter.isUpper())
            parts.append(QString());
        parts.last() += letter.toLower();
    }
    parts.removeAll(QString());
    return parts;
}

QString TranslatePart(const QString& part)
{
    const auto* const word = std::find_if(std::begin(Words), std::end(Words), [&](const Word& one) {
        return part == QLatin1String(one.name);
    });
    if (word != std::end(Words))
        return Translate(word->text);
    return part.isEmpty() ? part : part.left(1).toUpper() + part.mid(1);
}

ParameterDescription::Kind KindOf(const EffectParameter& parameter)
{
    static const std::set<std::string> wholes = {"seed", "points", "redPoints", "greenPoints",
                                                 "bluePoints"};
    if (parameter.name == "clamp")
        return ParameterDescription::Kind::Switch;
    if (wholes.count(parameter.name) > 0)
        return ParameterDescription::Kind::Whole;
    const bool isCircle = parameter.unit == "°" && parameter.maximum - parameter.minimum == 360;
    return isCircle ? ParameterDescription::Kind::Angle : ParameterDescription::Kind::Number;
}

bool Draws(const EffectKind& kind, const EffectPtr& effect)
{
    const LumetraHost::StageContext context;
    return kind.createStage(*effect, context) ||
           (kind.createPass && kind.createPass(*effect, context));
}

/// True when one end of the parameter's range is seen, with all others at their defaults. Defaults
/// change nothing, so the only parameter of an effect acts alone, even where the effect needs a
/// picture to be seen.
bool ActsAlone(const EffectKind& kind, const EffectParameter& parameter)
{
    if (kind.descriptor.parameters.size() == 1)
        return true;
    const auto drawsAt = [&](double value) {
        const EffectPtr effect = EffectSettingsImpl::Create(kind.descriptor.effectID);
        effect->SetParameter(parameter.name, value);
        return Draws(kind, effect);
    };
    return drawsAt(parameter.minimum) || drawsAt(parameter.maximum);
}

/// For each parameter of each effect, in their order. It follows from the engine and never changes.
const std::vector<std::vector<bool>>& GetActsAlone()
{
    static const auto all = [] {
        std::vector<std::vector<bool>> effects;
        for (const EffectKind& kind : LumetraHost::EffectKinds::GetAll()) {
            std::vector<bool> parameters;
            for (const EffectParameter& parameter : kind.descriptor.parameters)
                parameters.push_back(!kind.descriptor.create && ActsAlone(kind, parameter));
            effects.push_back(std::move(parameters));
        }
        return effects;
    }();
    return all;
}

ParameterDescription Describe(const std::string& effectID, const EffectParameter& parameter)
{
    ParameterDescription description;
    description.name = parameter.name;
    description.title = EffectDescriptions::MakeTitle(effectID, parameter.name);
    description.unit = Translate(parameter.unit.c_str());
    description.minimum = parameter.minimum;
    description.maximum = parameter.maximum;
    description.defaultValue = parameter.defaultValue;
    description.kind = KindOf(parameter);
    return description;
}

EffectDescription Describe(const EffectKind& kind, const std::vector<bool>& actsAlone)
{
    EffectDescription description;
    description.effectID = kind.descriptor.effectID;
    description.title = Translate(kind.title);
    description.isOnlyNumbers = !kind.descriptor.create;
    for (std::size_t i = 0; i < kind.descriptor.parameters.size(); ++i) {
        description.parameters.push_back(
            Describe(kind.descriptor.effectID, kind.descriptor.parameters[i]));
        description.parameters.back().actsAlone = actsAlone[i];
    }
    return description;
}

} // namespace

std::vector<EffectDescription> EffectDescriptions::Make()
{
    const auto& kinds = LumetraHost::EffectKinds::GetAll();
    std::vector<EffectDescription> descriptions;
    for (std::size_t i = 0; i < kinds.size(); ++i)
        descriptions.push_back(Describe(kinds[i], GetActsAlone()[i]));
    return descriptions;
}

QString EffectDescriptions::MakeTitle(const std::string& effectID, const std::string& parameter)
{
    for (const OwnTitle& own : OwnTitles)
        if (effectID == own.effectID && parameter == own.parameter)
            return Translate(own.text);
    QStringList words;
    for (const QString& part : SplitName(QString::fromStdString(parameter)))
        words.append(TranslatePart(part));
    return words.join(QStringLiteral(": "));
}

} // namespace LumetraEditor
