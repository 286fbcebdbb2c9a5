// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/StackPicture.h"

#include "engine/Blend.h"

#include <utility>

namespace LumetraHost {

using Zorvik::Quindle::EffectsSettings;

StackPicture::StackPicture(const PackageStack& stack, const Renderer& renderer)
    : m_stack(stack), m_renderer(renderer)
{
}

void StackPicture::SetBase(const Image& base)
{
    m_base = base;
    m_recycled = Image();
    Invalidate(0);
}

void StackPicture::Invalidate(std::size_t position)
{
    if (position < m_outputs.size()) {
        m_recycled = std::move(m_outputs.back());
        m_outputs.resize(position);
    }
    if (m_shown && position <= m_shown->position) {
        m_shown.reset();
        m_fullEffect = Image();
    }
}

void StackPicture::ShowBlend(std::size_t position, int blendAmount)
{
    const bool isSame = m_shown && m_shown->position == position && m_shown->blendAmount;
    Image fullEffect = isSame ? std::move(m_fullEffect) : Image();
    Invalidate(position);
    m_fullEffect = std::move(fullEffect);
    m_shown = Shown{position, blendAmount};
}

void StackPicture::ShowEffects(std::size_t position, const EffectsSettings& settings)
{
    Invalidate(position);
    m_shown = Shown{position, std::nullopt, settings};
}

void StackPicture::EndShow(bool isKept)
{
    if (!m_shown)
        return;
    if (isKept && !m_shown->blendAmount)
        m_shown.reset();
    else
        Invalidate(m_shown->position);
}

Image StackPicture::GetResult()
{
    const Image result = GetBelow(m_stack.GetCount());
    DropUnused();
    return result;
}

Image StackPicture::GetBelow(std::size_t position)
{
    if (position == 0 || m_base.IsNull())
        return m_base;
    m_outputs.resize(m_stack.GetCount());
    Image& output = m_outputs[position - 1];
    if (output.IsNull())
        output = RenderPackage(position - 1, GetBelow(position - 1));
    return output;
}

Image StackPicture::RenderPackage(std::size_t position, const Image& below)
{
    if (!m_shown || m_shown->position != position)
        return m_renderer.Render(below, m_stack.Get(position), {}, std::move(m_recycled));
    if (m_shown->blendAmount)
        return RenderBlend(*m_shown, below);
    return m_renderer.Render(below, m_shown->settings, {}, std::move(m_recycled));
}

Image StackPicture::RenderBlend(const Shown& shown, const Image& below)
{
    if (m_fullEffect.IsNull())
        m_fullEffect = m_renderer.Render(below, m_stack.Get(shown.position).Effects(), FullEffect);
    return m_renderer.Interpolate(below, m_fullEffect, *shown.blendAmount, {},
                                  std::move(m_recycled));
}

void StackPicture::DropUnused()
{
    for (std::size_t i = 0; i + 2 < m_outputs.size(); ++i)
        if (!m_shown || i + 1 != m_shown->position)
            m_outputs[i] = Image();
}

} // namespace LumetraHost
