// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Quindle/EffectRegistry.h"
#include "Zorvik/Quindle/IEffectSettings.h"

#include <QtGlobal>

#include <cstddef>
#include <vector>

namespace LumetraHost {

/// Units that are words. Signs, such as "%" and "K", are the same in every language: rows have them
/// as they are.
namespace Units {
constexpr const char* Stops = QT_TRANSLATE_NOOP("Effects", "stops");
constexpr const char* Points = QT_TRANSLATE_NOOP("Effects", "points");
constexpr const char* EightBitSteps = QT_TRANSLATE_NOOP("Effects", "8-bit steps");
constexpr const char* PercentOfDiagonal = QT_TRANSLATE_NOOP("Effects", "% of the diagonal");
} // namespace Units

/// One number of an effect. An effect lists its numbers once, as the array `Table` of its
/// parameters: they are read by it, and the platform, the schema of catalogues and the tables of
/// docs/effects.md know them from it. The default is the value that the field is initialised with.
template <class Parameters>
struct ParameterRow
{
    const char* name; ///< in settings and stored forms
    double Parameters::*field;
    double minimum;
    double maximum;
    const char* unit = "";
};

/// The value in `settings`, moved into the parameter's range; the default when the settings lack
/// the parameter or hold NaN.
double ReadNumber(const Zorvik::Quindle::IEffectSettings& settings,
                  const Zorvik::Quindle::EffectParameter& parameter);

/// The table as the platform wants it. An effect whose numbers are no fields specialises this
/// function and the next one.
template <class Parameters>
const std::vector<Zorvik::Quindle::EffectParameter>& DescribeParameters()
{
    static const auto Described = [] {
        const Parameters defaults;
        std::vector<Zorvik::Quindle::EffectParameter> all;
        for (const ParameterRow<Parameters>& row : Parameters::Table)
            all.push_back({row.name, row.minimum, row.maximum, defaults.*row.field, row.unit});
        return all;
    }();
    return Described;
}

/// Reads every number of the table; none is ever out of its range.
template <class Parameters>
Parameters ReadParameters(const Zorvik::Quindle::IEffectSettings& settings)
{
    Parameters parameters;
    std::size_t next = 0;
    for (const ParameterRow<Parameters>& row : Parameters::Table)
        parameters.*row.field = ReadNumber(settings, DescribeParameters<Parameters>()[next++]);
    return parameters;
}

} // namespace LumetraHost
