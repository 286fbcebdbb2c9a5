// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/PackageStack.h"

#include "engine/Renderer.h"

#include "photo/Image.h"

#include <optional>
#include <vector>

namespace LumetraHost {

/// The picture that a package stack makes of the committed photo, rendered when it is asked for.
/// While a painting shows one package differently, its ticks reuse what they do not change. Owned
/// by the drawer, which tells it about every change of the stack.
///
/// Kept are the result, the picture below the topmost package, the one below the painted package,
/// and while the blend is dragged the painted package's full effect.
class StackPicture
{
public:
    /// Both are kept by reference.
    StackPicture(const PackageStack& stack, const Renderer& renderer);

    /// The committed photo; may be null.
    void SetBase(const Image& base);
    const Image& GetBase() const { return m_base; }

    /// The package at `position` is new, other or gone; what is above has to be drawn again.
    void Invalidate(std::size_t position);

    /// Shows the package with another blend amount: exactly the integer blend of the picture below
    /// and the package's finished full effect.
    void ShowBlend(std::size_t position, int blendAmount);
    /// Shows the package with other effects, as if they had been applied.
    void ShowEffects(std::size_t position, const Zorvik::Quindle::EffectsSettings& settings);
    /// Back to the stack as it is. A package whose effects were shown and have become the stack's
    /// settings (`isKept`) is not drawn again.
    void EndShow(bool isKept);

    /// Null when there is no photo.
    Image GetResult();

private:
    struct Shown
    {
        std::size_t position;
        std::optional<int> blendAmount;               ///< ShowBlend
        Zorvik::Quindle::EffectsSettings settings{1}; ///< ShowEffects
    };

    Image GetBelow(std::size_t position);
    Image RenderPackage(std::size_t position, const Image& below);
    Image RenderBlend(const Shown& shown, const Image& below);
    void DropUnused();

    const PackageStack& m_stack;
    const Renderer& m_renderer;
    Image m_base;
    std::vector<Image> m_outputs; ///< after each package; null: to be rendered
    std::optional<Shown> m_shown;
    Image m_fullEffect; ///< of the package whose blend is shown
    Image m_recycled;
};

} // namespace LumetraHost
