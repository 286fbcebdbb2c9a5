// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/EditChanges.h"

#include "edit/LayerChanges.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <utility>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;
using LumetraHost::EditState;
using LumetraHost::PanelEdit;

using Layers = std::vector<EditLayer>;
using Choice = std::function<bool(const EditLayer& layer)>;

Layers Pick(const Layers& layers, const Choice& isChosen)
{
    Layers picked;
    std::copy_if(layers.begin(), layers.end(), std::back_inserter(picked), isChosen);
    return picked;
}

Choice IsOf(const EditParts& parts)
{
    return [&parts](const EditLayer& layer) { return parts.Has(layer.module); };
}

Choice IsOf(const QString& module)
{
    return [module](const EditLayer& layer) { return layer.module == module; };
}

Layers PickOpen(const EditState& edit, const Choice& isChosen)
{
    return Pick(edit.layers,
                [&](const EditLayer& layer) { return layer.isOpen && isChosen(layer); });
}

Layers PickCommitted(const EditState& edit, const Choice& isChosen)
{
    return Pick(edit.layers,
                [&](const EditLayer& layer) { return !layer.isOpen && isChosen(layer); });
}

bool IsAny(const EditLayer&)
{
    return true;
}

void Append(Layers& layers, const Layers& added)
{
    layers.insert(layers.end(), added.begin(), added.end());
}

Layers Join(Layers committed, const Layers& open)
{
    Append(committed, open);
    return committed;
}

Layers PickBelow(const EditState& edit)
{
    const auto count = static_cast<std::ptrdiff_t>(edit.CountCommitted());
    return Layers(edit.layers.begin(), edit.layers.begin() + count);
}

Layers PickAbove(const EditState& edit)
{
    return Layers(edit.layers.end() - static_cast<std::ptrdiff_t>(edit.CountAbove()),
                  edit.layers.end());
}

/// Closes a lower layer that is open again, so that open layers lie on top.
EditState Settle(const EditState& edit)
{
    return edit.CountAbove() > 0 ? LayerChanges::CloseAll(edit) : edit;
}

/// The layers with `added` in the place of the replaced ones.
Layers PutInPlace(const Layers& layers, const Layers& added, const Choice& isReplaced)
{
    Layers result;
    std::optional<std::size_t> place;
    for (const EditLayer& layer : layers)
        if (!isReplaced(layer))
            result.push_back(layer);
        else if (!place)
            place = result.size();
    const auto position = static_cast<std::ptrdiff_t>(place.value_or(result.size()));
    result.insert(result.begin() + position, added.begin(), added.end());
    return result;
}

const std::string& PackageOf(const EditLayer& layer)
{
    return layer.settings->Package().GetPackageName();
}

/// True when one of each cannot be open on a photo together.
bool Collide(const Layers& first, const Layers& second)
{
    return std::any_of(first.begin(), first.end(), [&second](const EditLayer& one) {
        return std::any_of(second.begin(), second.end(), [&one](const EditLayer& other) {
            return one.module == other.module || PackageOf(one) == PackageOf(other);
        });
    });
}

PanelEdit FindPart(const EditState& edit, const QString& module)
{
    const auto found = edit.panels.find(module);
    return found == edit.panels.end() ? PanelEdit() : found->second;
}

void ReplaceOpen(EditState& edit, const Layers& added, const Choice& isReplaced)
{
    const Layers kept = PickOpen(edit, [&](const EditLayer& layer) { return !isReplaced(layer); });
    if (Collide(kept, added)) {
        edit.layers = Join(Join(PickBelow(edit), kept), PickAbove(edit));
        edit = LayerChanges::CloseAll(edit);
    }
    const Layers above = PickAbove(edit);
    edit.layers =
        Join(Join(PickBelow(edit), PutInPlace(PickOpen(edit, IsAny), added, isReplaced)), above);
}

std::set<QString> FindModules(const EditState& first, const EditState& second)
{
    std::set<QString> modules;
    for (const EditState* const edit : {&first, &second}) {
        for (const auto& [module, part] : edit->panels)
            modules.insert(module);
        for (const EditLayer& layer : edit->layers)
            modules.insert(layer.module);
    }
    return modules;
}

/// True when the step has left the layers alone that were committed before it.
bool KeepsCommitted(const EditState& before, const EditState& after)
{
    const std::size_t count = before.CountCommitted();
    return after.CountCommitted() >= count &&
           std::equal(before.layers.begin(),
                      before.layers.begin() + static_cast<std::ptrdiff_t>(count),
                      after.layers.begin());
}

bool Contains(const Layers& layers, const EditLayer& layer)
{
    return std::find(layers.begin(), layers.end(), layer) != layers.end();
}

/// Commits as the step has done. A layer that was not open before the step, since the step has
/// changed or added it, comes along.
void FollowCommit(EditState& edit, const EditState& before, const EditState& after)
{
    const Layers wasOpen = PickOpen(before, IsAny);
    Layers added;
    for (std::size_t i = before.CountCommitted(); i < after.CountCommitted(); ++i) {
        EditLayer layer = after.layers[i];
        layer.isOpen = true;
        const auto changed =
            std::find_if(edit.layers.begin(), edit.layers.end(), [&layer](const EditLayer& one) {
                return one.isOpen && one.module == layer.module &&
                       PackageOf(one) == PackageOf(layer);
            });
        if (Contains(wasOpen, layer))
            continue;
        if (changed != edit.layers.end())
            *changed = layer;
        else
            added.push_back(after.layers[i]);
    }
    edit = LayerChanges::CloseAll(edit);
    Append(edit.layers, added);
}

/// Takes the layers off both edits that lie above the open ones of the first. Returns false, and
/// changes nothing, where the second has not got them on top.
bool LeaveOutAbove(EditState& before, EditState& after)
{
    const Layers above = PickAbove(before);
    if (above.size() > after.layers.size() ||
        !std::equal(above.rbegin(), above.rend(), after.layers.rbegin()))
        return false;
    before.layers.resize(before.layers.size() - above.size());
    after.layers.resize(after.layers.size() - above.size());
    return true;
}

} // namespace

EditState EditChanges::Replace(const EditState& edit, const EditState& copied,
                               const EditParts& parts)
{
    EditState result = Settle(edit);
    const EditState source = Settle(copied);
    for (auto panel = result.panels.begin(); panel != result.panels.end();)
        panel = parts.Has(panel->first) ? result.panels.erase(panel) : std::next(panel);
    ReplaceOpen(result, PickOpen(source, IsOf(parts)), IsOf(parts));
    result.layers = Join(
        PutInPlace(PickCommitted(result, IsAny), PickCommitted(source, IsOf(parts)), IsOf(parts)),
        PickOpen(result, IsAny));
    for (const auto& [module, part] : source.panels)
        if (parts.Has(module))
            result.panels[module] = part;
    return result;
}

EditState EditChanges::AddOnTop(const EditState& edit, const EditState& copied,
                                const EditParts& parts)
{
    EditState result = Settle(edit);
    const EditState source = Settle(copied);
    const Layers committed = PickCommitted(source, IsOf(parts));
    const Layers open = PickOpen(source, IsOf(parts));
    if (!committed.empty() || Collide(PickOpen(result, IsAny), open))
        result = LayerChanges::CloseAll(result);
    result.layers =
        Join(Join(PickCommitted(result, IsAny), committed), Join(PickOpen(result, IsAny), open));
    for (const EditLayer& layer : open)
        result.panels[layer.module] = FindPart(source, layer.module);
    return result;
}

EditState EditChanges::Follow(const EditState& edit, const EditState& before,
                              const EditState& after)
{
    EditState from = before, to = after;
    if (!LeaveOutAbove(from, to) || !KeepsCommitted(from, to))
        return edit;
    EditState result = edit;
    if (to.CountCommitted() > from.CountCommitted())
        FollowCommit(result, from, to);
    for (const QString& module : FindModules(from, to)) {
        const Layers open = PickOpen(to, IsOf(module));
        const PanelEdit part = FindPart(to, module);
        if (open == PickOpen(from, IsOf(module)) && part == FindPart(from, module))
            continue;
        ReplaceOpen(result, open, IsOf(module));
        result.panels[module] = part;
    }
    return result;
}

bool EditChanges::AreSame(const EditState& first, const EditState& second)
{
    if (!(first.layers == second.layers))
        return false;
    const auto modules = FindModules(first, second);
    return std::all_of(modules.begin(), modules.end(), [&](const QString& module) {
        return FindPart(first, module) == FindPart(second, module);
    });
}

} // namespace LumetraEditor
