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

bool HasCommitted(const Drawer& drawer, const std::vector<EditLayer>& committed)
{
    const auto stack = drawer.GetStack();
    return drawer.CountCommitted() == committed.size() &&
           std::equal(committed.begin(), committed.end(), stack.begin(),
                      [](const EditLayer& layer, const StackedPackage& package) {
                          return package.origin == layer.module.toStdString() &&
                                 IsSamePackage(*layer.settings, *package.settings);
                      });
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
    const std::size_t committed = drawer.CountCommitted();
    for (std::size_t i = 0; i < std::min(committed, layers.size()); ++i)
        if (!layers[i].isOpen)
            drawer.SetOn(i, layers[i].isOn);
    for (std::size_t i = committed; i < stack.size(); ++i) {
        const auto found = isOn.find(stack[i].settings->Package().GetPackageName());
        if (found != isOn.end())
            drawer.SetOn(i, found->second);
    }
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
        layer.isOpen = layers.size() >= drawer.CountCommitted();
        layers.push_back(std::move(layer));
    }
    return layers;
}

void DrawnLayers::RestoreCommitted(Drawer& drawer, const std::vector<EditLayer>& layers)
{
    std::vector<EditLayer> committed;
    std::copy_if(layers.begin(), layers.end(), std::back_inserter(committed),
                 [](const EditLayer& layer) { return !layer.isOpen; });
    if (HasCommitted(drawer, committed)) {
        for (const EffectsSettings& package : drawer.GetOpenPackages())
            drawer.ResetPackage(package.Package().GetIndex());
        return;
    }
    std::vector<StackedPackage> packages;
    std::transform(committed.begin(), committed.end(), std::back_inserter(packages), ToPackage);
    drawer.SetCommitted(std::move(packages));
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
    for (std::size_t i = drawer.CountCommitted(); i < stack.size(); ++i)
        if (stack[i].origin == origin)
            drawer.ResetPackage(stack[i].settings->Package().GetIndex());
}

} // namespace LumetraEditor
