// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/LayerChanges.h"

#include "edits/EditStateFormat.h"

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;
using LumetraHost::EditState;
using LumetraHost::PanelEdit;

using Layers = std::vector<EditLayer>;

const std::string& PackageOf(const EditLayer& layer)
{
    return layer.settings->Package().GetPackageName();
}

bool CanBeOpenTogether(const EditLayer& first, const EditLayer& second)
{
    return first.module != second.module && PackageOf(first) != PackageOf(second);
}

/// Closes a layer, which takes the part of its module along.
void Close(EditState& edit, EditLayer& layer)
{
    if (!layer.isOpen)
        return;
    layer.isOpen = false;
    if (const auto part = edit.panels.find(layer.module); part != edit.panels.end()) {
        layer.part = part->second;
        edit.panels.erase(part);
    }
}

/// Closes the open layers that do not lie together with the one at `kept`.
void CloseParted(EditState& edit, std::size_t kept)
{
    std::size_t first = kept;
    while (first > 0 && edit.layers[first - 1].isOpen)
        --first;
    std::size_t end = kept + 1;
    while (end < edit.layers.size() && edit.layers[end].isOpen)
        ++end;
    for (std::size_t i = 0; i < edit.layers.size(); ++i)
        if (i < first || i >= end)
            Close(edit, edit.layers[i]);
}

/// Returns the position of the topmost open layer; the number of layers where none is open.
std::size_t FindTopmostOpen(const EditState& edit)
{
    for (std::size_t i = edit.layers.size(); i > 0; --i)
        if (edit.layers[i - 1].isOpen)
            return i - 1;
    return edit.layers.size();
}

Layers::iterator At(Layers& layers, std::size_t position)
{
    return layers.begin() + static_cast<std::ptrdiff_t>(position);
}

} // namespace

EditState LayerChanges::CloseAll(const EditState& edit)
{
    EditState result = edit;
    for (EditLayer& layer : result.layers)
        Close(result, layer);
    return result;
}

EditState LayerChanges::Open(const EditState& edit, std::size_t position)
{
    EditState result = edit;
    if (position >= edit.layers.size())
        return result;
    EditLayer& opened = result.layers[position];
    opened.isOn = true;
    if (opened.isOpen)
        return result;
    for (EditLayer& layer : result.layers)
        if (!CanBeOpenTogether(layer, opened))
            Close(result, layer);
    opened.isOpen = true;
    CloseParted(result, position);
    result.panels[opened.module] =
        opened.part ? *opened.part : LumetraHost::EditStateFormat::MakePart(opened);
    opened.part.reset();
    return result;
}

EditState LayerChanges::Remove(const EditState& edit, std::size_t position)
{
    EditState result = edit;
    if (position >= edit.layers.size())
        return result;
    Close(result, result.layers[position]);
    result.layers.erase(At(result.layers, position));
    return result;
}

EditState LayerChanges::Move(const EditState& edit, std::size_t from, std::size_t to)
{
    EditState result = edit;
    if (from >= edit.layers.size() || to >= edit.layers.size() || from == to)
        return result;
    const EditLayer moved = edit.layers[from];
    result.layers.erase(At(result.layers, from));
    result.layers.insert(At(result.layers, to), moved);
    const std::size_t kept = moved.isOpen ? to : FindTopmostOpen(result);
    if (kept < result.layers.size())
        CloseParted(result, kept);
    return result;
}

} // namespace LumetraEditor
