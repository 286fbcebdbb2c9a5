// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/ExportLook.h"

#include "engine/effects/EffectKinds.h"
#include "engine/run/Blend.h"
#include "engine/run/RenderPlan.h"
#include "storage/ContentHash.h"
#include "storage/JsonDocument.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Exception.h"

#include <algorithm>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;

/// Fewer stages than this are, as a rule, quicker than a table, and exact.
constexpr std::size_t FewestStages = 4;

bool IsOfColourOnly(const EffectPtr& effect)
{
    const EffectKind* const kind = effect ? EffectKinds::Find(effect->GetEffectID()) : nullptr;
    return !kind || kind->reach == EffectReach::ColourOnly;
}

bool IsLong(const EffectList& colours, const std::shared_ptr<const RgbSpace>& space)
{
    const RenderPlan plan(colours,
                          {GetDefaultIsa(), PictureArea::Whole(1, 1), Image::Depth::Bits8, space});
    return plan.MakeChains().front().GetStages().size() >= FewestStages;
}

void WriteEffects(const EffectList& effects, const Zorvik::Brassel::CollectionPtr& list)
{
    using Zorvik::Quindle::IEffectSettings;
    for (const EffectPtr& effect : effects)
        if (effect)
            list->AddElement()->WriteObject(IEffectSettings::EFFECT, *effect);
}

} // namespace

ExportLook::ExportLook(const std::vector<EffectsSettings>& packages, Precision precision)
    : m_precision(precision)
{
    for (const EffectsSettings& settings : packages)
        if (ClampBlendAmount(settings.GetBlendAmount()) != SourceOnly)
            m_packages.push_back(Divide(settings));
}

ExportLook::Package ExportLook::Divide(const EffectsSettings& settings)
{
    const EffectList& effects = settings.Effects();
    const auto end = std::find_if_not(effects.begin(), effects.end(), IsOfColourOnly);
    Package package;
    package.colours.assign(effects.begin(), end);
    package.others.assign(end, effects.end());
    package.blendAmount = ClampBlendAmount(settings.GetBlendAmount());
    return package;
}

std::shared_ptr<const ColourTable>
ExportLook::FindTable(Package& package, const std::shared_ptr<const RgbSpace>& space,
                      ThreadPool& pool, const CancelToken* cancel)
{
    std::vector<SpaceTable>& tables = package.tables;
    const auto found = std::find_if(tables.begin(), tables.end(),
                                    [&](const SpaceTable& known) { return known.space == space; });
    if (found != tables.end())
        return found->table;
    std::shared_ptr<const ColourTable> table;
    if (IsLong(package.colours, space))
        table = ColourTable::Make(package.colours, ColourTable::ExportPoints, GetDefaultIsa(), pool,
                                  cancel, space);
    const bool isKnown = table || !(cancel && cancel->IsCancelled());
    if (isKnown)
        tables.push_back({space, table});
    if (tables.size() > MostTables)
        tables.erase(tables.begin());
    return table;
}

ExportLook::Layer ExportLook::MakeLayer(const Package& package,
                                        std::shared_ptr<const ColourTable> table)
{
    Layer layer;
    layer.blendAmount = package.blendAmount;
    layer.table = std::move(table);
    (layer.table ? layer.tabled : layer.effects) = package.colours;
    layer.effects.insert(layer.effects.end(), package.others.begin(), package.others.end());
    return layer;
}

std::vector<ExportLook::Layer> ExportLook::GetLayers(const PictureForm& picture, bool is8Bit,
                                                     ThreadPool& pool,
                                                     const CancelToken* cancel) const
{
    const bool isTabled =
        m_precision == Precision::Tables && is8Bit &&
        static_cast<long long>(picture.width) * picture.height >= SmallestTabledPixels;
    const std::lock_guard lock(m_mutex);
    std::vector<Layer> layers;
    for (Package& package : m_packages)
        layers.push_back(MakeLayer(
            package, isTabled ? FindTable(package, picture.space, pool, cancel) : nullptr));
    return layers;
}

std::string ExportLook::MakeDigest() const
{
    const JsonDocument document("look");
    const auto root = document.GetRoot();
    root->Set("exact", m_precision == Precision::Exact);
    const auto layers = root->CreateCollection("layers");
    for (const Package& package : m_packages) {
        const auto layer = layers->AddElement();
        layer->Set("blend", package.blendAmount);
        const auto effects = layer->CreateCollection("effects");
        WriteEffects(package.colours, effects);
        WriteEffects(package.others, effects);
    }
    return ContentHash::Of(document.ToText().toStdString());
}

const std::string& ExportLook::GetDigest() const
{
    std::call_once(m_isDigested, [this] {
        try {
            m_digest = MakeDigest();
        } catch (const Zorvik::Exception&) {
            m_digest.clear(); // such effects are drawn, but are equal to nothing
        }
    });
    return m_digest;
}

} // namespace LumetraHost
