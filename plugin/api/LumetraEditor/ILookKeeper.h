// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraEditor/NewLook.h"

#include <QString>

namespace LumetraEditor {

/// A panel that keeps the looks of the user implements this interface beside IEditorPanel and
/// returns it from IEditorPanel::GetLookKeeper().
class ILookKeeper
{
public:
    /// Keeps a copy of the look, and may ask the user about its name. Returns a sentence in the
    /// user's language that says why not; empty when the look is kept and saved.
    virtual QString KeepLook(const NewLook& look) = 0;

    /// Returns the name of the look of the user with that id, which is the preset name of its
    /// layers; empty when the panel keeps no such look.
    virtual QString FindLookName(const QString& id) const = 0;
    /// Gives the look of the user with that id copies of the effects in place of its own. Its name,
    /// its kind of intensity and its extra sliders stay; effects that lack what the intensity moves
    /// are refused. Where the look is on the photo, it is drawn anew at its full intensity. Returns
    /// a sentence in the user's language that says why the look is as it was; empty when it has the
    /// effects and is saved.
    virtual QString UpdateLook(const QString& id,
                               const Zorvik::Quindle::EffectsSettings& settings) = 0;
    /// Returns the name, in the user's language, of the look with that id, the user's or not; empty
    /// when the panel knows no such look.
    virtual QString FindShownName(const QString& /*id*/) const { return {}; }

protected:
    ~ILookKeeper() = default;
};

} // namespace LumetraEditor
