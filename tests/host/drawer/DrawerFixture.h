// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "host/drawer/DrawnPicture.h"
#include "host/engine/TestPictures.h"

#include "drawer/Drawer.h"

#include "Zorvik/Quindle/EffectSettingsImpl.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace LumetraHost {

/// Counts the notifications of a drawer.
class CountingObserver : public IDrawerObserver
{
public:
    void FrameChanged() override { ++frames; }
    void CommittedPhotoChanged() override { ++commits; }

    int frames = 0;
    int commits = 0;
};

/// A drawer with a small photo, and settings for it.
class DrawerFixture : public testing::Test
{
protected:
    DrawerFixture()
    {
        m_drawer.SetPhoto(m_photo);
        m_drawer.AddObserver(&m_observer);
    }

    static Zorvik::Quindle::EffectsSettings MakePackage(const std::string& name, unsigned index,
                                                        const Zorvik::Quindle::EffectList& effects,
                                                        int blendAmount = 1)
    {
        auto settings = MakeSettings(effects, blendAmount);
        settings.Package().SetPackageName(name);
        settings.Package().SetPresetName("preset of " + name);
        settings.Package().SetIndex(index);
        return settings;
    }

    /// A package with one exposure effect.
    static Zorvik::Quindle::EffectsSettings MakePackage(const std::string& name, unsigned index,
                                                        double stops)
    {
        const Zorvik::Quindle::EffectList effects = {MakeEffect("exposure", {{"stops", stops}})};
        return MakePackage(name, index, effects);
    }

    void Apply(const Zorvik::Quindle::EffectsSettings& settings)
    {
        m_drawer.ApplyEffect(settings, {});
    }

    void ApplySingle(const Zorvik::Quindle::ConstEffectPtr& effect)
    {
        m_drawer.ApplyEffect(effect, {});
    }

    void Commit()
    {
        ApplySingle(
            Zorvik::Quindle::EffectSettingsImpl::Create(Zorvik::Proc::SettingsEffectEmpty()));
    }

    Image Result() { return m_picture.Draw(); }
    Image CommittedPhoto() { return m_picture.DrawCommitted(); }

    /// The photo with the packages, each rendered on its own.
    Image Draw(const std::vector<Zorvik::Quindle::EffectsSettings>& packages) const
    {
        Image picture = m_photo;
        for (const auto& package : packages)
            picture = Renderer().Render(picture, package);
        return picture;
    }

    const Image m_photo = MakeRandomPicture(90, 60, Image::Depth::Bits8, 17);
    Drawer m_drawer;
    DrawnPicture m_picture{m_drawer};
    CountingObserver m_observer;
};

} // namespace LumetraHost
