// SPDX-License-Identifier: GPL-2.0-or-later
#include "session/DrawnLayers.h"

#include "drawer/Drawer.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <string>
#include <utility>

namespace LumetraEditor {
namespace {

using LumetraHost::Drawer;
using LumetraHost::EditLayer;
using LumetraHost::IsSamePackage;
using LumetraHost::StackedPackage;
using Zorvik::Quindle::EffectsSettings;

constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

const std::string& NameOf(const EditLayer& layer)
{
    return layer.settings->Package().GetPackageName();
}

StackedPackage ToPackage(const EditLayer& layer)
{
    return {layer.settings, layer.module.toStdString(), layer.isOn};
}

/// The closed layers of an edit: those below the open ones, and those above.
struct ClosedLayers
{
    std::vector<EditLayer> below;
    std::vector<EditLayer> above;
};

ClosedLayers PickClosed(const std::vector<EditLayer>& layers)
{
    ClosedLayers closed;
    bool isAbove = false;
    for (const EditLayer& layer : layers)
        if (layer.isOpen)
            isAbove = true;
        else
            (isAbove ? closed.above : closed.below).push_back(layer);
    return closed;
}

bool IsDrawn(const EditLayer& layer, const StackedPackage& package)
{
    return package.origin == layer.module.toStdString() &&
           IsSamePackage(*layer.settings, *package.settings);
}

bool HasClosed(const Drawer& drawer, const ClosedLayers& closed)
{
    const auto stack = drawer.GetStack();
    const std::size_t firstAbove = drawer.CountCommitted() + drawer.CountOpen();
    return drawer.CountCommitted() == closed.below.size() &&
           stack.size() - firstAbove == closed.above.size() &&
           std::equal(closed.below.begin(), closed.below.end(), stack.begin(), IsDrawn) &&
           std::equal(closed.above.rbegin(), closed.above.rend(), stack.rbegin(), IsDrawn);
}

std::vector<StackedPackage> ToPackages(const std::vector<EditLayer>& layers)
{
    std::vector<StackedPackage> packages;
    std::transform(layers.begin(), layers.end(), std::back_inserter(packages), ToPackage);
    return packages;
}

/// Applies the layer without the index that it had, which may be another package's by now.
void Draw(Drawer& drawer, const EditLayer& layer)
{
    EffectsSettings settings = *layer.settings;
    settings.Package().SetIndex(NoIndex);
    drawer.ApplyAs(layer.module.toStdString(), settings);
}

/// An open layer is found by its package, whose name no other open one has. A module may have drawn
/// or committed what is not in `layers`; that stays as it is.
void SetOnAndOff(Drawer& drawer, const std::vector<EditLayer>& layers)
{
    std::map<std::string, bool> isOn;
    for (const EditLayer& layer : layers)
        if (layer.isOpen)
            isOn[NameOf(layer)] = layer.isOn;
    const auto stack = drawer.GetStack();
    const ClosedLayers closed = PickClosed(layers);
    const std::size_t committed = drawer.CountCommitted();
    const std::size_t firstAbove = committed + drawer.CountOpen();
    for (std::size_t i = 0; i < std::min(committed, closed.below.size()); ++i)
        drawer.SetOn(i, closed.below[i].isOn);
    for (std::size_t i = committed; i < firstAbove; ++i) {
        const auto found = isOn.find(stack[i].settings->Package().GetPackageName());
        if (found != isOn.end())
            drawer.SetOn(i, found->second);
    }
    for (std::size_t i = firstAbove; i < stack.size(); ++i)
        if (const std::size_t above = i - firstAbove; above < closed.above.size())
            drawer.SetOn(i, closed.above[above].isOn);
}

} // namespace

std::vector<EditLayer> DrawnLayers::Read(const Drawer& drawer)
{
    std::vector<EditLayer> layers;
    for (const StackedPackage& package : drawer.GetShownStack()) {
        EditLayer layer;
        layer.module = QString::fromStdString(package.origin);
        layer.settings = package.settings;
        layer.isOn = package.isOn;
        layer.isOpen = layers.size() >= drawer.CountCommitted() &&
                       layers.size() < drawer.CountCommitted() + drawer.CountOpen();
        layers.push_back(std::move(layer));
    }
    return layers;
}

void DrawnLayers::RestoreClosed(Drawer& drawer, const std::vector<EditLayer>& layers)
{
    const ClosedLayers closed = PickClosed(layers);
    if (HasClosed(drawer, closed)) {
        for (const EffectsSettings& package : drawer.GetOpenPackages())
            drawer.ResetPackage(package.Package().GetIndex());
        return;
    }
    drawer.SetCommitted(ToPackages(closed.below), ToPackages(closed.above));
}

void DrawnLayers::RestoreOpen(Drawer& drawer, const std::vector<EditLayer>& layers,
                              const std::function<bool(const QString& module)>& isInUse)
{
    std::vector<std::string> order;
    for (const EditLayer& layer : layers) {
        if (!layer.isOpen)
            continue;
        order.push_back(NameOf(layer));
        if (!isInUse(layer.module) && drawer.GetPackageIndex(NameOf(layer)) == NoIndex)
            Draw(drawer, layer);
    }
    drawer.ArrangeOpen(order);
    SetOnAndOff(drawer, layers);
}

void DrawnLayers::RemoveOpen(Drawer& drawer, const QString& module)
{
    const auto stack = drawer.GetStack();
    const std::string origin = module.toStdString();
    const std::size_t firstAbove = drawer.CountCommitted() + drawer.CountOpen();
    for (std::size_t i = drawer.CountCommitted(); i < firstAbove; ++i)
        if (stack[i].origin == origin)
            drawer.ResetPackage(stack[i].settings->Package().GetIndex());
}

} // namespace LumetraEditor
