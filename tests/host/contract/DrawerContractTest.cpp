// SPDX-License-Identifier: GPL-2.0-or-later
#include "contract/DrawerContract.h"
#include "host/drawer/DrawnPicture.h"

#include "engine/effects/EffectKinds.h"
#include "workspace/WorkspaceController.h"

#include <cstdlib>
#include <ostream>

namespace LumetraTest {
namespace {

using namespace Zorvik::Quindle;
using LumetraHost::Image;

/// A picture that equals another when no channel differs by more than one step: drags and applied
/// packages may round at different places.
class Picture
{
public:
    explicit Picture(const Image& image) : m_image(image) {}

    friend bool operator==(const Picture& a, const Picture& b)
    {
        const Image& first = a.m_image;
        const Image& second = b.m_image;
        if (first.GetWidth() != second.GetWidth() || first.GetHeight() != second.GetHeight())
            return false;
        for (int y = 0; y < first.GetHeight(); ++y)
            for (int i = 0; i < Image::Channels * first.GetWidth(); ++i)
                if (std::abs(first.Row(y)[i] - second.Row(y)[i]) > 1)
                    return false;
        return true;
    }
    friend bool operator!=(const Picture& a, const Picture& b) { return !(a == b); }

    friend std::ostream& operator<<(std::ostream& stream, const Picture& picture)
    {
        const Image& image = picture.m_image;
        stream << image.GetWidth() << "x" << image.GetHeight() << " middle";
        const std::uint8_t* pixel = image.Row(image.GetHeight() / 2) + 2 * image.GetWidth();
        for (int i = 0; i < Image::Channels; ++i)
            stream << " " << int(pixel[i]);
        return stream;
    }

private:
    Image m_image;
};

/// A colourful picture without pure black and white, so that every effect is seen.
Image MakePhoto()
{
    Image photo = Image::Allocate(60, 40, Image::Depth::Bits8);
    for (int y = 0; y < photo.GetHeight(); ++y) {
        for (int x = 0; x < photo.GetWidth(); ++x) {
            std::uint8_t* pixel = photo.Row(y) + Image::Channels * x;
            pixel[0] = static_cast<std::uint8_t>(60 + x);
            pixel[1] = static_cast<std::uint8_t>(90 + y);
            pixel[2] = 140;
            pixel[3] = 255;
        }
    }
    return photo;
}

class HostDrawerSubject
{
public:
    HostDrawerSubject()
    {
        LumetraHost::RegisterEffects();
        m_workspace.GetDrawer().SetPhoto(MakePhoto());
    }

    IQuindleDrawer& GetDrawer() { return m_workspace.GetCoreDrawer(); }
    Zorvik::Lumetra::IResetReceiver& GetResetReceiver() { return m_workspace.GetResetReceiver(); }
    void ClosePhoto() { m_workspace.GetDrawer().SetPhoto(Image()); }

    EffectPtr MakeEffect(double amount) const
    {
        const auto effect = EffectSettingsImpl::Create("exposure");
        effect->SetParameter("stops", amount);
        return effect;
    }

    EffectPtr MakeOtherEffect() const
    {
        const auto effect = EffectSettingsImpl::Create("saturation");
        effect->SetParameter("amount", -60);
        return effect;
    }

    Picture GetShown() { return Picture(LumetraHost::DrawWhole(m_workspace.GetDrawer())); }

private:
    LumetraHost::WorkspaceController m_workspace;
};

} // namespace

INSTANTIATE_TYPED_TEST_SUITE_P(Host, DrawerContract, HostDrawerSubject);

} // namespace LumetraTest
