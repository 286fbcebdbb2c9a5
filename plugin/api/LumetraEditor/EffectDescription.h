// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

#include <string>
#include <vector>

namespace LumetraEditor {

/// One number of an effect, described for users.
struct ParameterDescription
{
    enum class Kind
    {
        Number, ///< any number of the range
        Whole,  ///< whole numbers only
        Switch, ///< 0 is off, 1 is on
        Angle,  ///< degrees of a circle, on which both ends of the range are the same
    };

    std::string name; ///< the key in the effect's stored form
    QString title;    ///< in the user's language
    QString unit;     ///< in the user's language, such as "%"; it may be empty
    double minimum = 0;
    double maximum = 1;
    double defaultValue = 0;
    Kind kind = Kind::Number;
    /// True: the parameter changes the photo when it alone leaves its default. False: it only
    /// shapes what other parameters of the effect do, as a radius or a hue does.
    bool actsAlone = false;
};

/// One kind of effect that the editor draws, described for users.
struct EffectDescription
{
    std::string effectID; ///< the id in stored forms
    QString title;        ///< in the user's language
    std::vector<ParameterDescription> parameters;
    /// False: the effect is more than its numbers, such as a table of colours, which have to come
    /// from elsewhere.
    bool isOnlyNumbers = true;
};

} // namespace LumetraEditor
