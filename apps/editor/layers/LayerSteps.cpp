// SPDX-License-Identifier: GPL-2.0-or-later
#include "layers/LayerSteps.h"

#include "edit/LayerChanges.h"
#include "edits/EditStateFormat.h"
#include "session/Editor.h"

#include <algorithm>

namespace LumetraEditor {

using LumetraHost::EditLayer;
using LumetraHost::EditState;

QString LayerSteps::Name(const EditLayer& layer) const
{
    const QString shown = m_editor.FindShownName(layer);
    if (!shown.isEmpty())
        return shown;
    for (const auto& [module, title] : m_editor.GetModules())
        if (module == layer.module)
            return title;
    return layer.module.isEmpty() ? tr("Layer") : layer.module;
}

QString LayerSteps::NameAt(std::size_t position) const
{
    const auto& layers = m_editor.GetSteppedLayers();
    return position < layers.size() ? Name(layers[position]) : QString();
}

void LayerSteps::SetOn(std::size_t position, bool isOn)
{
    m_editor.SetLayerOn(position, isOn);
}

/// Tries the part that the layer has kept, then one that is made of the layer.
bool LayerSteps::Open(std::size_t position)
{
    const auto& layers = m_editor.GetSteppedLayers();
    if (position >= layers.size() || layers[position].isOpen)
        return false;
    const QString name = NameAt(position);
    const QString text = tr("Open “%1”").arg(name);
    const auto isDrawn = [](const EditState& wanted, const EditState& made) {
        return made.layers == wanted.layers;
    };
    const bool hasPart = layers[position].part.has_value();
    const auto open = [position](const EditState& edit) {
        return LayerChanges::Open(edit, position);
    };
    const auto openByItself = [position](const EditState& edit) {
        EditState plain = edit;
        plain.layers[position].part.reset();
        return LayerChanges::Open(plain, position);
    };
    const bool isInUse = m_editor.IsInUse(layers[position].module);
    if (isInUse && (m_editor.ChangeEdit(text, open, isDrawn) ||
                    (hasPart && m_editor.ChangeEdit(text, openByItself, isDrawn))))
        return true;
    m_editor.ShowMessage(
        isInUse ? tr("“%1” cannot be opened again: its panel does not draw it as it is.").arg(name)
                : tr("“%1” cannot be opened again: its panel is not there.").arg(name));
    return false;
}

void LayerSteps::Close()
{
    m_editor.ChangeEdit(tr("Close the layer"), &LayerChanges::CloseAll);
}

void LayerSteps::Remove(std::size_t position)
{
    const QString text = tr("Take “%1” away").arg(NameAt(position));
    m_editor.ChangeEdit(
        text, [position](const EditState& edit) { return LayerChanges::Remove(edit, position); });
}

bool LayerSteps::Move(std::size_t from, std::size_t to)
{
    return m_editor.ChangeEdit(
        tr("Move “%1”").arg(NameAt(from)),
        [from, to](const EditState& edit) { return LayerChanges::Move(edit, from, to); });
}

} // namespace LumetraEditor
