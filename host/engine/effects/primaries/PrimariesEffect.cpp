// SPDX-License-Identifier: GPL-2.0-or-later
#include "engine/effects/primaries/PrimariesEffect.h"

#include "engine/base/PureColour.h"
#include "engine/effects/MakeKind.h"
#include "engine/effects/primaries/PrimariesKernel.h"
#include "engine/kernels/KernelSelection.h"
#include "engine/stages/KernelStage.h"
#include "image/Srgb.h"

#include <cstddef>

namespace LumetraHost {
namespace {

constexpr double TurnAtHundred = 45; // degrees
constexpr double Magenta = 300;
constexpr double TintAtHundred = 0.2;

struct Primary
{
    double degrees;
    double luma;
};

constexpr Primary Primaries[3] = {{0, LumaRed}, {120, LumaGreen}, {240, LumaBlue}};

/// Adds the change of one primary to the matrix. `hue` and `saturation` are in per cent.
void AddPrimary(std::size_t primary, double hue, double saturation, ColourMatrix& matrix)
{
    const auto [degrees, luma] = Primaries[primary];
    const auto turned = GetTint(degrees + TurnAtHundred * hue / 100, 1 + saturation / 100);
    for (std::size_t row = 0; row < 3; ++row) {
        const double change = luma + turned[row] - (row == primary ? 1 : 0);
        for (std::size_t column = 0; column < 3; ++column)
            matrix.rows[row][column] += change * ((column == primary ? 1 : 0) - 1.0 / 3);
    }
}

PrimariesNumbers GetNumbers(const PrimariesParameters& parameters)
{
    const ColourMatrix matrix = parameters.GetMatrix();
    const auto tint = GetTint(Magenta, TintAtHundred * parameters.shadowTint / 100);
    PrimariesNumbers numbers;
    for (std::size_t i = 0; i < 3; ++i) {
        for (std::size_t j = 0; j < 3; ++j)
            numbers.matrix[3 * i + j] = static_cast<float>(matrix.rows[i][j]);
        numbers.tint[i] = static_cast<float>(tint[i]);
    }
    return numbers;
}

StagePtr CreateStage(const PrimariesParameters& parameters, const StageContext& context)
{
    if (parameters.shadowTint == 0)
        return std::make_shared<MatrixStage>(parameters.GetMatrix(), ColourSpace::Encoded,
                                             context.isa);
    return MakeKernelStage(SelectKernel<PrimariesKernel>(context.isa), ColourSpace::Encoded,
                           ChannelWork::Mixed, GetNumbers(parameters));
}

} // namespace

bool PrimariesParameters::HasSamePrimaries() const
{
    return redHue == 0 && redSaturation == 0 && greenHue == 0 && greenSaturation == 0 &&
           blueHue == 0 && blueSaturation == 0;
}

ColourMatrix PrimariesParameters::GetMatrix() const
{
    ColourMatrix matrix;
    AddPrimary(0, redHue, redSaturation, matrix);
    AddPrimary(1, greenHue, greenSaturation, matrix);
    AddPrimary(2, blueHue, blueSaturation, matrix);
    return matrix;
}

EffectKind MakePrimariesKind()
{
    return MakeKind(QT_TRANSLATE_NOOP("Effects", "Primaries"), CreateStage);
}

} // namespace LumetraHost
