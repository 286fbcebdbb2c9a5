// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/stack/PackageStack.h"
#include "drawer/stack/PictureRecipe.h"

#include "Zorvik/Quindle/IQuindleDrawerPainter.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <functional>
#include <optional>

namespace LumetraHost {

/// Shows a package while its intensity is dragged. Owned by the drawer. Renders nothing: it names
/// the layer that stands for the package. Always paints the whole picture: positions are accepted
/// and not used. The source's alpha is kept whether or not the painting asks for it, since no
/// effect changes it.
///
/// Two guarantees about rounding: a tick of a blend painting is the integer blend of the picture
/// below and the package's finished effect (see Blend()); the picture after finishing is the one
/// that applying the same settings gives. The two may differ by one step.
class Painter : public Zorvik::Quindle::IQuindleDrawerPainter
{
public:
    /// The stack is kept by reference; `frameChanged` is called when the picture is another one.
    Painter(PackageStack& stack, std::function<void()> frameChanged);

    /// Finishes an open painting; the last update stays.
    void FinishOpenPainting();
    /// Ends an open painting without keeping anything.
    void DropPainting();
    /// The position of the package that an open painting shows.
    std::optional<std::size_t> FindPackage() const;
    /// The layer that is shown instead of that package; empty before the first update.
    std::optional<Layer> GetShownLayer() const;

    /// The settings that finishing would give that package; null before the first update.
    const SharedSettings& GetPainted() const { return m_shown; }

    /// Zorvik::Exception for a null package.
    void StartPainting(const boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage>&
                           package) override;
    void SetPositions(int x, int y) override;
    void UpdatePainting(const Zorvik::Quindle::EffectsSettings& effects, int flags) override;
    void FinishPainting(int x, int y, bool cancel) override;

private:
    bool IsBlendPainting() const;
    SharedSettings MakeShown(const Zorvik::Quindle::EffectsSettings& package,
                             const Zorvik::Quindle::EffectsSettings& update) const;

    PackageStack& m_stack;
    std::function<void()> m_frameChanged;
    boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage> m_package;
    SharedSettings m_shown; ///< the package with the last update; null before the first one
};

} // namespace LumetraHost
