// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/render/PreviewRenderer.h"
#include "drawer/stack/IDrawerObserver.h"
#include "drawer/stack/PackageStack.h"
#include "drawer/stack/Painter.h"
#include "drawer/stack/PictureRecipe.h"

#include "engine/run/Renderer.h"

#include "image/KeptImage.h"

#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace LumetraHost {

/// The core drawer of one workspace: the untouched photo, the packages committed into it, the open
/// packages on top, and the recipe of the picture that they make. It renders nothing but previews,
/// on the calling thread (and the pool's), when somebody asks for one; pictures are made from the
/// recipe elsewhere, see LiveView and Export. Owned by the workspace controller; one thread only.
///
/// Rounding: every package, committed or open, and every effect committed by itself rounds its
/// picture to the photo's depth once, at whatever size it is rendered. Committing changes no pixel.
/// A picture of the committed photo at another size is the scaled photo with the packages on it,
/// not the scaled picture of the photo with them.
///
/// GetPackage(0xFFFFFFFF) is the open package applied last, also when an earlier one was replaced
/// in its place. An application with the index 0xFFFFFFFF that replaces a package by its name keeps
/// that package's index. Indexes go on counting when a new photo comes.
///
/// A package that is off keeps its place and is found as before, but is in no picture. Applying to
/// it, or painting on it, sets it on.
///
/// While a lower layer of an edit is open again, packages may lie above the open ones. They are in
/// every picture of the photo, and no operation of the platform's interface finds them. A commit
/// makes them committed ones above those that it commits.
class Drawer : public Zorvik::Quindle::IQuindleDrawer
{
public:
    Drawer();

    /// A new photo (null: none) without any packages; an open painting is dropped.
    void SetPhoto(const KeptImage& photo);
    /// The photo that SetPhoto() was given.
    const KeptImage& GetPhoto() const { return m_photo; }
    /// The photo with all packages, those above the open ones included, and with what an open
    /// painting shows.
    PictureRecipe GetRecipe() const;
    /// The photo with the committed packages below the open ones alone.
    PictureRecipe GetCommittedRecipe() const;
    /// GetRecipe() as it would be after applying `settings`, without what an open painting shows.
    PictureRecipe GetRecipeWith(const Zorvik::Quindle::EffectsSettings& settings) const;

    /// Takes the open package of that index off, with its painting; nothing when there is none.
    void ResetPackage(unsigned index);

    /// The open packages, bottom first, as they were applied: an open painting does not change
    /// them.
    std::vector<Zorvik::Quindle::EffectsSettings> GetOpenPackages() const;
    std::vector<Zorvik::Quindle::EffectsSettings> GetCommittedPackages() const;

    /// All packages, bottom first: the committed ones, the open ones, and those above them.
    std::vector<StackedPackage> GetStack() const;
    /// GetStack() as it would be after finishing an open painting, which goes on: what the user
    /// sees.
    std::vector<StackedPackage> GetShownStack() const;
    /// How many packages of GetStack(), from the bottom, are committed.
    std::size_t CountCommitted() const { return m_committed.size(); }
    /// How many packages of GetStack() are open. They lie together.
    std::size_t CountOpen() const { return m_stack.GetCount(); }
    /// Replaces all packages by these: the committed ones, and those above the open ones that are
    /// to come. An open painting is dropped.
    void SetCommitted(std::vector<StackedPackage> committed,
                      std::vector<StackedPackage> above = {});
    /// Where no package is open, makes the packages above the place of the open ones committed, so
    /// that the next one comes on top of all. Returns whether there were any.
    bool CommitAbove();
    /// Puts the open packages of these names into this order, below all other open ones.
    void ArrangeOpen(const std::vector<std::string>& names);
    /// Sets a package of GetStack() on or off, after finishing an open painting. `position` is
    /// below the stack's size.
    void SetOn(std::size_t position, bool isOn);

    /// ApplyEffect(), in the name of `origin`.
    void ApplyAs(const std::string& origin, const Zorvik::Quindle::EffectsSettings& effects);
    /// ApplyEffect(), in the name of `origin`. Zorvik::Exception for a null effect.
    void CommitAs(const std::string& origin, const Zorvik::Quindle::ConstEffectPtr& effect);

    /// Observers are not owned and must be removed before they die.
    void AddObserver(IDrawerObserver* observer);
    void RemoveObserver(IDrawerObserver* observer);

    Zorvik::Quindle::EffectsSettingsPackage GetPackage(unsigned index) const override;
    unsigned GetDefaultPackageIndex() const override;
    unsigned GetPackageIndex(const std::string& packageName) const override;
    void ApplyEffect(const Zorvik::Quindle::EffectsSettings& effects,
                     const std::map<std::string, int>& options) override;
    /// Zorvik::Exception for a null effect.
    void ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                     const std::map<std::string, int>& options) override;
    Zorvik::Quindle::IQuindleDrawerPainter& GetPainter() override;
    Zorvik::Proc::Frame RenderPreview(const Zorvik::Proc::FrameTarget& target,
                                      const Zorvik::Quindle::EffectsSettings& effects,
                                      int cropPolicy, int fitPolicy, unsigned flags) override;

private:
    void AddAbove(PictureRecipe& recipe) const;
    void TakeAboveForCommitted();
    void NotifyFrameChanged();
    void NotifyCommittedPhotoChanged();

    Renderer m_renderer;
    KeptImage m_photo;
    std::shared_ptr<Overview> m_overview;        ///< of the photo; null without one
    std::shared_ptr<const WholePicture> m_whole; ///< the photo; null without one
    std::vector<StackedPackage> m_committed;
    PackageStack m_stack;
    std::vector<StackedPackage> m_above;
    Painter m_painter;
    PreviewRenderer m_previews;
    std::vector<IDrawerObserver*> m_observers;
};

} // namespace LumetraHost
