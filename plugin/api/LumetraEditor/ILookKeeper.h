// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

namespace LumetraEditor {

/// A look that one module hands over and another one keeps among the looks of the user.
struct NewLook
{
    enum class Intensity
    {
        None,  ///< the look has no intensity: it is used as it is
        Blend, ///< the intensity mixes the look with the photo
    };

    /// The name for the user, of 1 to 50 characters without control characters, that no other look
    /// of the user has. Spaces around it do not count.
    QString name;
    /// The effects, at least one, none of them null. The blend amount is the intensity that the
    /// look starts with, kept to the next percent; without an intensity it is the full effect. The
    /// names and the index of the package do not count.
    Zorvik::Quindle::EffectsSettings settings{Zorvik::Quindle::EffectsSettings::PhotoAlone};
    Intensity intensity = Intensity::Blend;
};

/// A panel that keeps the looks of the user implements this interface beside IEditorPanel and
/// returns it from IEditorPanel::GetLookKeeper().
class ILookKeeper
{
public:
    /// Keeps a copy of the look. Returns a sentence in the user's language that says why not; empty
    /// when the look is kept and saved.
    virtual QString KeepLook(const NewLook& look) = 0;

protected:
    ~ILookKeeper() = default;
};

} // namespace LumetraEditor
