// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/stack/Painter.h"

#include "storage/FailWith.h"

#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::SettingsPainterEffectsPackage;

// The first effect of an id in `update` replaces the first one of that id in `effects`, the second
// one the second; an effect without a counterpart is left out.
void ReplaceSameIds(EffectList& effects, const EffectList& update)
{
    std::vector<bool> isReplaced(effects.size(), false);
    for (const EffectPtr& changed : update)
        for (std::size_t i = 0; changed && i < effects.size(); ++i)
            if (!isReplaced[i] && effects[i] &&
                effects[i]->GetEffectID() == changed->GetEffectID()) {
                effects[i] = changed->Clone();
                isReplaced[i] = true;
                break;
            }
}

} // namespace

Painter::Painter(PackageStack& stack, std::function<void()> frameChanged)
    : m_stack(stack), m_frameChanged(std::move(frameChanged))
{
}

void Painter::FinishOpenPainting()
{
    if (m_package)
        FinishPainting(MAX_POS, MAX_POS, false);
}

void Painter::DropPainting()
{
    m_package.reset();
    m_shown.reset();
}

std::optional<std::size_t> Painter::FindPackage() const
{
    return m_package ? m_stack.FindName(m_package->GetPackageName()) : std::nullopt;
}

std::optional<Layer> Painter::GetShownLayer() const
{
    const auto position = FindPackage();
    if (!m_shown || !position)
        return std::nullopt;
    if (IsBlendPainting())
        return Layer{m_stack.GetShared(*position), m_shown->GetBlendAmount()};
    return Layer{m_shown, std::nullopt};
}

void Painter::StartPainting(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package)
{
    if (!package)
        FailWith("painting cannot start: expected a painter package, found null");
    FinishOpenPainting();
    m_package = package;
}

void Painter::SetPositions(int /*x*/, int /*y*/) {}

void Painter::UpdatePainting(const EffectsSettings& effects, int /*flags*/)
{
    const auto position = FindPackage();
    if (!position)
        return;
    m_shown = MakeShown(m_stack.Get(*position), effects);
    m_frameChanged();
}

void Painter::FinishPainting(int /*x*/, int /*y*/, bool cancel)
{
    const auto position = FindPackage();
    const bool isShown = m_shown && position;
    if (isShown && !cancel)
        m_stack.SetShared(*position, m_shown);
    DropPainting();
    if (isShown)
        m_frameChanged();
}

bool Painter::IsBlendPainting() const
{
    return m_package->GetKind() == SettingsPainterEffectsPackage::Kind::BlendSource;
}

/// Makes the package with the update; effects that the update leaves as they are get shared.
SharedSettings Painter::MakeShown(const EffectsSettings& package,
                                  const EffectsSettings& update) const
{
    auto shown = std::make_shared<EffectsSettings>(package.GetInputCount());
    shown->Package() = package.Package();
    shown->SetWaitApply(package.GetWaitApply());
    shown->SetBlendAmount(IsBlendPainting() ? update.GetBlendAmount() : package.GetBlendAmount());
    shown->Effects() = package.Effects();
    if (!IsBlendPainting())
        ReplaceSameIds(shown->Effects(), update.Effects());
    return shown;
}

} // namespace LumetraHost
