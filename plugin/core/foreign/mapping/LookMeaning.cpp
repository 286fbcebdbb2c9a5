// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/LookMeaning.h"

#include "core/foreign/ForeignNumber.h"

#include <algorithm>

namespace LumetraPlugin {
namespace {

bool IsSetTo(const ForeignLook& look, const char* setting, const char* text)
{
    const ForeignValue* const value = look.Find(QLatin1String(setting));
    return value && value->text.compare(QLatin1String(text), Qt::CaseInsensitive) == 0;
}

bool EndsWithMonochrome(const ForeignValue* value)
{
    return value && value->text.endsWith(QLatin1String("Monochrome"), Qt::CaseInsensitive);
}

void Remove(ForeignLook& look, std::initializer_list<const char*> settings)
{
    for (const char* setting : settings)
        look.settings.erase(QLatin1String(setting));
}

template <class Test>
void RemoveIf(ForeignLook& look, const Test& test)
{
    for (auto setting = look.settings.begin(); setting != look.settings.end();)
        setting = test(setting->first) ? look.settings.erase(setting) : std::next(setting);
}

/// Colours are mixed only in a coloured picture, greys only in a grey one.
void KeepOneMixer(ForeignLook& look)
{
    if (!LookMeaning::IsGrey(look)) {
        RemoveIf(look,
                 [](const QString& name) { return name.startsWith(QLatin1String("GrayMixer")); });
        return;
    }
    RemoveIf(look, [](const QString& name) {
        return name.startsWith(QLatin1String("HueAdjustment")) ||
               name.startsWith(QLatin1String("SaturationAdjustment")) ||
               name.startsWith(QLatin1String("LuminanceAdjustment"));
    });
    Remove(look, {"Saturation", "Vibrance"});
}

/// The numbers of the camera's own white balance belong to the photo that the look was saved from.
void DropWhiteBalanceOfThePhoto(ForeignLook& look)
{
    if (IsSetTo(look, "WhiteBalance", "As Shot"))
        Remove(look, {"Temperature", "Tint"});
    const ForeignValue* const setting = look.Find(QStringLiteral("White Balance/Setting"));
    if (setting && (setting->text == QLatin1String("Camera") ||
                    setting->text.startsWith(QLatin1String("auto"), Qt::CaseInsensitive)))
        Remove(look, {"White Balance/Temperature", "White Balance/Green"});
}

bool HasNewerSpelling(const ForeignLook& look)
{
    return std::any_of(look.settings.begin(), look.settings.end(), [](const auto& setting) {
        return setting.first.endsWith(QLatin1String("2012")) &&
               setting.first != QLatin1String("ToneCurveName2012");
    });
}

/// Zero of the three means a picture that had been developed before, for which zero is neutral; raw
/// photos start elsewhere.
bool IsForDevelopedPictures(const ForeignLook& look)
{
    const auto isZero = [&look](const char* setting) {
        const ForeignValue* const value = look.Find(QLatin1String(setting));
        return !value || ForeignNumber::Read(value->text).value_or(0) == 0;
    };
    return isZero("Contrast") && isZero("Brightness") && isZero("Shadows");
}

void KeepOneSpelling(ForeignLook& look)
{
    if (HasNewerSpelling(look))
        Remove(look,
               {"Exposure", "Contrast", "Brightness", "Shadows", "HighlightRecovery", "FillLight",
                "Clarity", "ToneCurve", "ToneCurveRed", "ToneCurveGreen", "ToneCurveBlue"});
    else if (IsForDevelopedPictures(look))
        Remove(look, {"Contrast", "Brightness", "Shadows"});
}

/// Grading follows split toning, whose two ranges it also has.
void KeepOneGrading(ForeignLook& look)
{
    const auto isUsed = [&look](const char* setting) {
        const ForeignValue* const value = look.Find(QLatin1String(setting));
        return value && ForeignNumber::Read(value->text).value_or(0) != 0;
    };
    if (isUsed("ColorGradeShadowSat"))
        Remove(look, {"SplitToningShadowHue", "SplitToningShadowSaturation"});
    else
        Remove(look, {"ColorGradeShadowHue", "ColorGradeShadowSat"});
    if (isUsed("ColorGradeHighlightSat"))
        Remove(look, {"SplitToningHighlightHue", "SplitToningHighlightSaturation"});
    else
        Remove(look, {"ColorGradeHighlightHue", "ColorGradeHighlightSat"});
    if (isUsed("ColorGradeBalance"))
        Remove(look, {"SplitToningBalance"});
    else
        Remove(look, {"ColorGradeBalance"});
}

} // namespace

bool LookMeaning::IsTrue(const ForeignValue* value)
{
    return value && value->text.compare(QLatin1String("true"), Qt::CaseInsensitive) == 0;
}

bool LookMeaning::IsGrey(const ForeignLook& look)
{
    return IsTrue(look.Find(QStringLiteral("ConvertToGrayscale"))) ||
           IsTrue(look.Find(QStringLiteral("Look/ConvertToGrayscale"))) ||
           EndsWithMonochrome(look.Find(QStringLiteral("Look"))) ||
           EndsWithMonochrome(look.Find(QStringLiteral("CameraProfile")));
}

ForeignLook LookMeaning::Resolve(ForeignLook look)
{
    KeepOneMixer(look);
    DropWhiteBalanceOfThePhoto(look);
    KeepOneSpelling(look);
    KeepOneGrading(look);
    return look;
}

} // namespace LumetraPlugin
