// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/EditorLayer.h"

#include <QCoreApplication>

#include <functional>
#include <vector>

namespace LumetraAdjust {

/// Puts layers of the photo together, where that gives the same picture.
class LayerStack
{
    Q_DECLARE_TR_FUNCTIONS(LumetraAdjust::LayerStack)

public:
    using Layers = std::vector<LumetraEditor::EditorLayer>; ///< bottom first

    struct Flat
    {
        /// A sentence for the user that says why the layers cannot be put together; else empty.
        QString problem;
        /// The effects one after another. The blend amount is that of the only layer, else full.
        Zorvik::Quindle::EffectsSettings settings{Zorvik::Quindle::EffectsSettings::PhotoAlone};
    };

    /// Puts all layers together that are on. A layer at less than its full intensity is mixed with
    /// what lies below it, which effects one after another cannot do; by itself it can be a look,
    /// whose intensity mixes it with the photo.
    static Flat Flatten(const Layers& layers);

    /// A look of the user that the adjustments can become a part of.
    struct Update
    {
        QString id; ///< empty: there is none
        QString name;
        /// A sentence for the user that says why it cannot be updated; else empty.
        QString problem;
        Zorvik::Quindle::EffectsSettings settings{Zorvik::Quindle::EffectsSettings::PhotoAlone};
    };
    /// Finds the look whose open layer lies next to the open layer of `package`, and puts both
    /// together in their order. `findName` gives the names of the user's looks by their ids.
    static Update FindUpdate(const Layers& layers, const std::string& package,
                             const std::function<QString(const QString& id)>& findName);
};

} // namespace LumetraAdjust
