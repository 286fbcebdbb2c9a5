// SPDX-License-Identifier: MIT
#include "support/PackageStack.h"

#include "support/CallText.h"

#include <algorithm>

namespace LumetraTest {

using namespace Zorvik::Quindle;

PackageStack::Layers::iterator PackageStack::FindLayer(unsigned index)
{
    return std::find_if(m_layers.begin(), m_layers.end(), [index](const Layer& layer) {
        return layer.effects.Package().GetIndex() == index;
    });
}

PackageStack::Layers::iterator PackageStack::FindTopmost(const std::string& packageName)
{
    const auto found = std::find_if(m_layers.rbegin(), m_layers.rend(), [&](const Layer& layer) {
        return layer.effects.Package().GetPackageName() == packageName;
    });
    return found == m_layers.rend() ? m_layers.end() : std::prev(found.base());
}

EffectsSettingsPackage PackageStack::GetPackage(unsigned index) const
{
    const Layer* wanted = nullptr;
    for (const Layer& layer : m_layers)
        if (index == NoIndex ? !wanted || layer.applied > wanted->applied
                             : layer.effects.Package().GetIndex() == index)
            wanted = &layer;
    return wanted ? wanted->effects.Package() : EffectsSettingsPackage();
}

unsigned PackageStack::GetNextIndex() const
{
    return m_nextIndex;
}

unsigned PackageStack::FindIndex(const std::string& packageName) const
{
    const auto found = const_cast<PackageStack*>(this)->FindTopmost(packageName);
    return found == m_layers.end() ? NoIndex : found->effects.Package().GetIndex();
}

void PackageStack::Apply(const EffectsSettings& effects)
{
    FinishPainting(false);
    Layer layer{effects, ++m_applications};
    auto place = FindLayer(effects.Package().GetIndex());
    if (place == m_layers.end())
        place = FindTopmost(effects.Package().GetPackageName());

    EffectsSettingsPackage& package = layer.effects.Package();
    if (package.GetIndex() == NoIndex)
        package.SetIndex(place == m_layers.end() ? m_nextIndex
                                                 : place->effects.Package().GetIndex());
    m_nextIndex = std::max(m_nextIndex, package.GetIndex() + 1);
    if (place == m_layers.end())
        m_layers.push_back(std::move(layer));
    else
        *place = std::move(layer);
}

void PackageStack::Commit(const ConstEffectPtr& effect)
{
    FinishPainting(false);
    for (const std::string& layer : GetOpen())
        m_committed.push_back("committed " + layer);
    m_committed.push_back("committed " + CallText(effect));
    m_layers.clear();
}

void PackageStack::Remove(unsigned index)
{
    const auto layer = FindLayer(index);
    if (layer == m_layers.end())
        return;
    if (m_painting && m_painting->GetPackageName() == layer->effects.Package().GetPackageName()) {
        m_painting.reset();
        m_painted.reset();
    }
    m_layers.erase(layer);
}

void PackageStack::StartPainting(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& how)
{
    FinishPainting(false);
    m_painting = how;
}

void PackageStack::UpdatePainting(const EffectsSettings& update)
{
    if (!m_painting)
        return;
    const auto layer = FindTopmost(m_painting->GetPackageName());
    if (layer == m_layers.end())
        return;
    m_painted = layer->effects;
    if (m_painting->GetKind() == SettingsPainterEffectsPackage::Kind::BlendSource) {
        m_painted->SetBlendAmount(update.GetBlendAmount());
        return;
    }
    for (EffectPtr& effect : m_painted->Effects())
        if (const auto changed = IEffectSettings::Find(update.Effects(), effect->GetEffectID()))
            effect = changed->Clone();
}

void PackageStack::FinishPainting(bool cancel)
{
    if (m_painted && !cancel)
        FindTopmost(m_painting->GetPackageName())->effects = *m_painted;
    m_painted.reset();
    m_painting.reset();
}

bool PackageStack::IsPainting() const
{
    return m_painting != nullptr;
}

std::vector<std::string> PackageStack::GetOpen() const
{
    std::vector<std::string> open;
    for (const Layer& layer : m_layers) {
        const bool isPainted =
            m_painted && layer.effects.Package().GetIndex() == m_painted->Package().GetIndex();
        open.push_back(CallText(isPainted ? *m_painted : layer.effects));
    }
    return open;
}

std::vector<std::string> PackageStack::GetShown() const
{
    std::vector<std::string> shown = m_committed;
    for (const std::string& layer : GetOpen())
        shown.push_back(layer);
    return shown;
}

} // namespace LumetraTest
