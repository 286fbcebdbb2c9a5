// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "engine/base/ParameterTable.h"
#include "engine/effects/EffectKind.h"
#include "engine/stages/MatrixStage.h"

#include <memory>

namespace LumetraHost {

// Kinds of effect whose settings are the numbers of a table and nothing else. `Parameters` has the
// constant EffectId, the array Table (see ParameterRow) and IsIdentity(). `create` is called for
// parameters that change something.

/// The stage works on pixels by themselves.
template <class Parameters>
EffectKind MakeKind(const char* title, StagePtr (*create)(const Parameters&, const StageContext&),
                    EffectReach reach = EffectReach::ColourOnly)
{
    const auto createStage = [create](const auto& settings, const StageContext& context) {
        const auto parameters = ReadParameters<Parameters>(settings);
        return parameters.IsIdentity() ? nullptr : create(parameters, context);
    };
    return {
        {Parameters::EffectId, DescribeParameters<Parameters>(), {}}, title, createStage, reach};
}

/// The effect is a matrix on colours of `space`: Parameters::GetMatrix().
template <class Parameters, ColourSpace space>
EffectKind MakeMatrixKind(const char* title)
{
    return MakeKind<Parameters>(
        title, [](const Parameters& parameters, const StageContext& context) -> StagePtr {
            return std::make_shared<MatrixStage>(parameters.GetMatrix(), space, context.isa);
        });
}

/// The effect looks at neighbouring pixels.
template <class Parameters>
EffectKind MakeSpatialKind(const char* title,
                           SpatialPassPtr (*create)(const Parameters&, const StageContext&))
{
    const auto createPass = [create](const auto& settings, const StageContext& context) {
        const auto parameters = ReadParameters<Parameters>(settings);
        return parameters.IsIdentity() ? nullptr : create(parameters, context);
    };
    return {{Parameters::EffectId, DescribeParameters<Parameters>(), {}},
            title,
            [](const auto&, const StageContext&) { return StagePtr(); },
            EffectReach::Spatial,
            createPass};
}

} // namespace LumetraHost
