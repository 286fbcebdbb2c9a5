// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/Painter.h"

#include "Zorvik/Exception.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Quindle::EffectList;
using Zorvik::Quindle::EffectPtr;
using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::SettingsPainterEffectsPackage;

// The first effect of an id in `update` stands for the first of that id in `effects`, the second
// for the second; what has no counterpart is left out.
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

Painter::Painter(PackageStack& stack, StackPicture& picture, std::function<void()> frameChanged)
    : m_stack(stack), m_picture(picture), m_frameChanged(std::move(frameChanged))
{
}

void Painter::FinishOpenPainting()
{
    if (IsPainting())
        FinishPainting(MAX_POS, MAX_POS, false);
}

void Painter::DropPainting()
{
    m_picture.EndShow(false);
    m_package.reset();
    m_lastUpdate.reset();
}

void Painter::Repaint()
{
    const auto position = FindPackage();
    if (!m_lastUpdate || !position)
        return;
    if (m_package->GetKind() == SettingsPainterEffectsPackage::Kind::BlendSource)
        m_picture.ShowBlend(*position, m_lastUpdate->GetBlendAmount());
    else
        m_picture.ShowEffects(*position, MakeShown(*position));
}

void Painter::StartPainting(const boost::intrusive_ptr<SettingsPainterEffectsPackage>& package)
{
    if (!package)
        throw Zorvik::Exception("painting cannot start: expected a painter package, found null",
                                BOOST_CURRENT_FUNCTION, "drawer/Painter", __LINE__);
    FinishOpenPainting();
    m_package = package;
}

void Painter::SetPositions(int /*x*/, int /*y*/) {}

void Painter::UpdatePainting(const EffectsSettings& effects, int /*flags*/)
{
    if (!IsPainting() || !FindPackage())
        return;
    m_lastUpdate = effects;
    Repaint();
    m_frameChanged();
}

void Painter::FinishPainting(int /*x*/, int /*y*/, bool cancel)
{
    const auto position = FindPackage();
    const bool isShown = m_lastUpdate && position;
    if (isShown && !cancel)
        m_stack.SetContent(*position, MakeShown(*position));
    m_picture.EndShow(!cancel);
    m_package.reset();
    m_lastUpdate.reset();
    if (isShown)
        m_frameChanged();
}

std::optional<std::size_t> Painter::FindPackage() const
{
    return m_package ? m_stack.FindName(m_package->GetPackageName()) : std::nullopt;
}

EffectsSettings Painter::MakeShown(std::size_t position) const
{
    EffectsSettings shown = m_stack.Get(position);
    if (m_package->GetKind() == SettingsPainterEffectsPackage::Kind::BlendSource)
        shown.SetBlendAmount(m_lastUpdate->GetBlendAmount());
    else
        ReplaceSameIds(shown.Effects(), m_lastUpdate->Effects());
    return shown;
}

} // namespace LumetraHost
