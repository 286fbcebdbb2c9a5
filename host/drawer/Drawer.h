// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "drawer/IDrawerObserver.h"
#include "drawer/PackageStack.h"
#include "drawer/Painter.h"
#include "drawer/PreviewRenderer.h"
#include "drawer/StackPicture.h"

#include "engine/Renderer.h"

#include "photo/Image.h"

#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <vector>

namespace LumetraHost {

/// The core drawer of one workspace: the untouched photo, the packages committed into it, the open
/// packages on top, and the picture that they make. Renders on the calling thread (and the pool's),
/// when a picture is asked for. Owned by the workspace controller; one thread only.
///
/// GetPackage(0xFFFFFFFF) is the open package applied last, also when an earlier one was replaced
/// in its place. An application with the index 0xFFFFFFFF that replaces a package by its name keeps
/// that package's index. Indexes go on counting when a new photo comes.
class Drawer : public Zorvik::Quindle::IQuindleDrawer
{
public:
    Drawer();

    /// A new photo (null: none) without any packages; an open painting is dropped.
    void SetPhoto(const Image& photo);
    /// As it was given.
    const Image& GetPhoto() const { return m_photo; }
    /// With the committed packages.
    const Image& GetCommittedPhoto() const { return m_picture.GetBase(); }
    /// With the open packages too, and with what an open painting shows. Null without a photo.
    Image Result();

    /// Takes the open package of that index off, with its painting; nothing when there is none.
    void ResetPackage(unsigned index);

    /// Bottom first; without what an open painting shows.
    std::vector<Zorvik::Quindle::EffectsSettings> GetOpenPackages() const;
    const std::vector<Zorvik::Quindle::EffectsSettings>& GetCommittedPackages() const;
    /// The ids of the effects on the photo that the engine does not know and leaves out.
    std::vector<std::string> GetUnknownEffects() const;

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
    void NotifyFrameChanged();
    void NotifyCommittedPhotoChanged();
    void SetCommittedPhoto(const Image& photo);

    Renderer m_renderer;
    Image m_photo;
    std::vector<Zorvik::Quindle::EffectsSettings> m_committed;
    PackageStack m_stack;
    StackPicture m_picture;
    Painter m_painter;
    PreviewRenderer m_previews;
    std::vector<IDrawerObserver*> m_observers;
};

} // namespace LumetraHost
