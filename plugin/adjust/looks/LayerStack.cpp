// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/LayerStack.h"

#include <algorithm>

namespace LumetraAdjust {
namespace {

using LumetraEditor::EditorLayer;
using Zorvik::Quindle::EffectsSettings;

void Append(const EffectsSettings& settings, EffectsSettings& all)
{
    for (const auto& effect : settings.Effects())
        all.Effects().push_back(effect->Clone());
}

bool IsWhole(const EditorLayer& layer)
{
    return layer.settings.GetBlendAmount() <= EffectsSettings::FullEffect;
}

QString NameOf(const EditorLayer& layer)
{
    return layer.name.isEmpty() ? LayerStack::tr("a layer without a name")
                                : QStringLiteral("“%1”").arg(layer.name);
}

QString ShareOf(const EditorLayer& layer)
{
    constexpr double Range = EffectsSettings::NoEffect - EffectsSettings::FullEffect;
    const double rest = EffectsSettings::NoEffect - layer.settings.GetBlendAmount();
    return QString::number(qRound(100 * rest / Range));
}

bool IsOpenLayerOf(const EditorLayer& layer, const std::string& package)
{
    return layer.isOpen && layer.isOn && layer.settings.Package().GetPackageName() == package;
}

} // namespace

LayerStack::Flat LayerStack::Flatten(const Layers& layers)
{
    Layers shown;
    std::copy_if(layers.begin(), layers.end(), std::back_inserter(shown),
                 [](const EditorLayer& layer) { return layer.isOn; });
    Flat flat;
    const auto mixed = std::find_if_not(shown.begin(), shown.end(), IsWhole);
    if (shown.size() > 1 && mixed != shown.end()) {
        flat.problem = tr("The layers cannot become one look: %1 has an intensity of %2 % and is "
                          "mixed with what lies below it. Set it to 100 %, and save again.")
                           .arg(NameOf(*mixed), ShareOf(*mixed));
        return flat;
    }
    for (const EditorLayer& layer : shown)
        Append(layer.settings, flat.settings);
    if (flat.settings.Effects().empty())
        flat.problem = tr("There is nothing on the photo that could become a look.");
    else if (shown.size() == 1)
        flat.settings.SetBlendAmount(shown.front().settings.GetBlendAmount());
    return flat;
}

LayerStack::Update LayerStack::FindUpdate(const Layers& layers, const std::string& package,
                                          const std::function<QString(const QString& id)>& findName)
{
    Update update;
    const auto own = std::find_if(layers.begin(), layers.end(), [&](const EditorLayer& layer) {
        return IsOpenLayerOf(layer, package);
    });
    if (own == layers.end())
        return update;
    const auto at = own - layers.begin();
    for (const auto beside : {at - 1, at + 1}) {
        if (beside < 0 || beside >= static_cast<std::ptrdiff_t>(layers.size()))
            continue;
        const EditorLayer& look = layers[static_cast<std::size_t>(beside)];
        const QString id = QString::fromStdString(look.settings.Package().GetPresetName());
        const QString name = look.isOpen && look.isOn && !id.isEmpty() ? findName(id) : QString();
        if (name.isEmpty())
            continue;
        update.id = id;
        update.name = name;
        if (!IsWhole(look))
            update.problem = tr("“%1” has an intensity of %2 %. Set it to 100 %, and update again.")
                                 .arg(name, ShareOf(look));
        Append(beside < at ? look.settings : own->settings, update.settings);
        Append(beside < at ? own->settings : look.settings, update.settings);
        return update;
    }
    return update;
}

} // namespace LumetraAdjust
