// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/mapping/MappingRules.h"

#include "core/foreign/ForeignNumber.h"
#include "core/foreign/mapping/LookBuilder.h"
#include "core/foreign/mapping/LookMeaning.h"

#include <algorithm>
#include <cmath>

namespace LumetraPlugin::MappingRules {
namespace {

constexpr double Daylight = 5500; // K, of photos by day
constexpr double Neutral = 6500;  // K, at which our white balance changes nothing
constexpr double LeastAbsoluteTemperature = 1000;

/// Colour temperatures count by their reciprocals: equal steps of these look equal.
double ToMireds(double kelvin)
{
    return 1e6 / kelvin;
}

/// Calls `use` with the number, or leaves the setting out.
template <class Use>
void WithNumber(const ForeignValue& value, LookBuilder& look, const Use& use)
{
    if (const auto number = ForeignNumber::Read(value.text))
        return use(*number);
    look.LeaveOut(LookBuilder::tr("expected a number"));
}

bool HasSign(const QString& text)
{
    return text.startsWith(QLatin1Char('+')) || text.startsWith(QLatin1Char('-'));
}

/// Warms by so many mireds; the effect's own limits hold.
void SetMireds(LookBuilder& look, double warmer)
{
    constexpr double Least = 10;
    look.Set(LookStep::WhiteBalance, "temperature",
             1e6 / std::max(ToMireds(Neutral) - warmer, Least));
}

/// True for a look that says how its ranges overlap, as those with three ranges do.
bool IsGraded(const LookBuilder& look)
{
    return look.GetLook().Find(QStringLiteral("ColorGradeBlending")) != nullptr;
}

/// Newer looks keep two of three ranges under the names of split toning.
MappingRow WithSplitStep(MappingRow row, const LookBuilder& look)
{
    if (IsGraded(look))
        row.step = LookStep::ColourGrading;
    return row;
}

} // namespace

void SetDifference(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        look.Set(row.step, row.parameter, row.scale * (number - row.neutral));
    });
}

void AddDifference(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        look.Add(row.step, row.parameter, row.scale * (number - row.neutral));
    });
}

void SetValue(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look,
               [&](double number) { look.Set(row.step, row.parameter, row.scale * number); });
}

void SetHue(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        const double degrees = std::fmod(number, 360.0);
        look.Set(row.step, row.parameter, degrees < 0 ? degrees + 360 : degrees);
    });
}

void TellOnly(const MappingRow&, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [](double) {});
}

/// An S around the middle of the encoded range keeps black and white where they are.
void SetContrast(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        const double amount = row.scale * (number - row.neutral);
        const double outer = amount < 0 ? 0.5 * amount : amount;
        const double inner = amount < 0 ? 0.4 * amount : 0.6 * amount;
        look.Set(row.step, "shadows", -outer);
        look.Set(row.step, "darks", -inner);
        look.Set(row.step, "lights", inner);
        look.Set(row.step, "highlights", outer);
    });
}

/// A signed or small number is a difference from daylight; an absolute one becomes that difference,
/// for the picture has been developed already.
void SetTemperature(const MappingRow&, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        const bool isRelative = HasSign(value.text.trimmed()) || number < LeastAbsoluteTemperature;
        const double kelvin = std::max(isRelative ? Daylight + number : number, 1000.0);
        SetMireds(look, ToMireds(Daylight) - ToMireds(kelvin));
    });
}

void SetTemperatureStep(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) { SetMireds(look, row.scale * number); });
}

void SetBlending(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look,
               [&](double number) { look.Set(row.step, row.parameter, 50 + row.scale * number); });
}

void SetGradeSaturation(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    SetDifference(row, value, look);
    if (!IsGraded(look))
        look.Set(row.step, "blending", 75);
}

void SetSplitHue(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    SetHue(WithSplitStep(row, look), value, look);
}

void SetSplitNumber(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    SetDifference(WithSplitStep(row, look), value, look);
}

void SetGrey(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    if (LookMeaning::IsTrue(&value))
        look.Set(row.step, row.parameter, 100);
}

void SetNestedLook(const MappingRow& row, const ForeignValue&, LookBuilder& look)
{
    if (LookMeaning::IsGrey(look.GetLook()))
        look.Set(row.step, row.parameter, 100);
    else
        look.LeaveOut({});
}

void SetProfile(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    if (value.text.endsWith(QLatin1String("Monochrome"), Qt::CaseInsensitive))
        look.Set(row.step, row.parameter, 100);
    else if (value.text != QLatin1String("Embedded"))
        look.LeaveOut({});
}

void CheckWhiteBalance(const MappingRow&, const ForeignValue& value, LookBuilder& look)
{
    const bool isSaidByNumbers = look.GetLook().Find(QStringLiteral("Temperature")) ||
                                 look.GetLook().Find(QStringLiteral("IncrementalTemperature"));
    if (!isSaidByNumbers && value.text != QLatin1String("As Shot") &&
        value.text != QLatin1String("Custom"))
        look.LeaveOut({});
}

/// The share of fine detail makes the same amount weaker or stronger.
void SetSharpness(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        const double detail = std::clamp(look.GetNumber("SharpenDetail", 25), 0.0, 100.0);
        look.Set(row.step, row.parameter, row.scale * number * (0.75 + detail / 100));
    });
}

/// Darkening goes further than brightening, as everywhere in photos.
void SetVignette(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        look.Set(row.step, "amount", number * (number < 0 ? row.scale : row.scale * 2 / 3));
        look.Set(row.step, "size", 0.7 * look.GetNumber("PostCropVignetteMidpoint", 50));
        look.Set(row.step, "feather", 40 + 0.6 * look.GetNumber("PostCropVignetteFeather", 50));
        look.Set(row.step, "roundness",
                 std::max(look.GetNumber("PostCropVignetteRoundness", 0), 0.0));
    });
}

void SetGrain(const MappingRow& row, const ForeignValue& value, LookBuilder& look)
{
    WithNumber(value, look, [&](double number) {
        look.Set(row.step, "amount", row.scale * number);
        look.Set(row.step, "size", 0.1 + 0.013 * look.GetNumber("GrainSize", 25));
        look.Set(row.step, "roughness", look.GetNumber("GrainFrequency", 50));
    });
}

} // namespace LumetraPlugin::MappingRules
