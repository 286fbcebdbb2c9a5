// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"

#include <QString>

namespace LumetraEditor {

/// One layer of the edit of the open photo, as the editor tells its panels of it. A copy: changing
/// it changes nothing.
struct EditorLayer
{
    QString module;      ///< the id of the module that has drawn the layer; empty: unknown
    QString name;        ///< the layer in words for the user; may be empty
    int intensity = 100; ///< percent of the full effect
    bool isOn = true;    ///< false: the layer keeps its place and is neither shown nor exported
    bool isOpen = false; ///< its module can still change it; else it has been committed, or lies
                         ///< above a layer that the user has opened again
    /// Effects, blend amount and names of the package.
    Zorvik::Quindle::EffectsSettings settings{Zorvik::Quindle::EffectsSettings::PhotoAlone};
};

} // namespace LumetraEditor
