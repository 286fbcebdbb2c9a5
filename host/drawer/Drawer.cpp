// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/Drawer.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <utility>

namespace LumetraHost {

using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::EffectsSettingsPackage;

Drawer::Drawer()
    : m_picture(m_stack, m_renderer),
      m_painter(m_stack, m_picture, [this] { NotifyFrameChanged(); }), m_previews(m_renderer)
{
}

void Drawer::SetPhoto(const Image& photo)
{
    m_painter.DropPainting();
    m_stack.TakeAll();
    m_committed.clear();
    m_photo = photo;
    SetCommittedPhoto(photo);
    NotifyCommittedPhotoChanged();
    NotifyFrameChanged();
}

Image Drawer::Result()
{
    return m_picture.GetResult();
}

void Drawer::ResetPackage(unsigned index)
{
    const auto position = m_stack.FindIndex(index);
    if (!position)
        return;
    if (m_painter.FindPackage() == position)
        m_painter.DropPainting();
    m_stack.Remove(*position);
    m_picture.Invalidate(*position);
    m_painter.Repaint();
    NotifyFrameChanged();
}

std::vector<EffectsSettings> Drawer::GetOpenPackages() const
{
    std::vector<EffectsSettings> packages;
    for (std::size_t i = 0; i < m_stack.GetCount(); ++i)
        packages.push_back(m_stack.Get(i));
    return packages;
}

const std::vector<EffectsSettings>& Drawer::GetCommittedPackages() const
{
    return m_committed;
}

std::vector<std::string> Drawer::GetUnknownEffects() const
{
    Zorvik::Quindle::EffectList effects;
    const auto add = [&effects](const EffectsSettings& package) {
        effects.insert(effects.end(), package.Effects().begin(), package.Effects().end());
    };
    std::for_each(m_committed.begin(), m_committed.end(), add);
    for (std::size_t i = 0; i < m_stack.GetCount(); ++i)
        add(m_stack.Get(i));
    return Renderer::FindUnknownEffects(effects);
}

void Drawer::AddObserver(IDrawerObserver* observer)
{
    m_observers.push_back(observer);
}

void Drawer::RemoveObserver(IDrawerObserver* observer)
{
    m_observers.erase(std::remove(m_observers.begin(), m_observers.end(), observer),
                      m_observers.end());
}

EffectsSettingsPackage Drawer::GetPackage(unsigned index) const
{
    const auto position =
        index == PackageStack::NoIndex ? m_stack.FindLastApplied() : m_stack.FindIndex(index);
    return position ? m_stack.Get(*position).Package() : EffectsSettingsPackage();
}

unsigned Drawer::GetDefaultPackageIndex() const
{
    return m_stack.GetNextIndex();
}

unsigned Drawer::GetPackageIndex(const std::string& packageName) const
{
    const auto position = m_stack.FindName(packageName);
    return position ? m_stack.Get(*position).Package().GetIndex() : PackageStack::NoIndex;
}

void Drawer::ApplyEffect(const EffectsSettings& effects,
                         const std::map<std::string, int>& /*options*/)
{
    m_painter.FinishOpenPainting();
    m_picture.Invalidate(m_stack.Apply(effects));
    NotifyFrameChanged();
}

void Drawer::ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                         const std::map<std::string, int>& /*options*/)
{
    if (!effect)
        throw Zorvik::Exception("effect cannot be applied: expected an effect, found null",
                                BOOST_CURRENT_FUNCTION, "drawer/Drawer", __LINE__);
    m_painter.FinishOpenPainting();
    Image picture = Result();
    for (EffectsSettings& package : m_stack.TakeAll())
        m_committed.push_back(std::move(package));
    const bool isEmpty = effect->GetEffectID() == Zorvik::Proc::SettingsEffectEmpty::EFFECT_ID;
    if (!isEmpty) {
        EffectsSettings single(1);
        single.Effects().push_back(effect->Clone());
        picture = m_renderer.Render(picture, single);
        m_committed.push_back(std::move(single));
    }
    SetCommittedPhoto(picture);
    NotifyCommittedPhotoChanged();
    if (!isEmpty)
        NotifyFrameChanged();
}

Zorvik::Quindle::IQuindleDrawerPainter& Drawer::GetPainter()
{
    return m_painter;
}

Zorvik::Proc::Frame Drawer::RenderPreview(const Zorvik::Proc::FrameTarget& target,
                                          const EffectsSettings& effects, int cropPolicy,
                                          int fitPolicy, unsigned flags)
{
    return m_previews.Render(target, effects, cropPolicy, fitPolicy, flags);
}

void Drawer::SetCommittedPhoto(const Image& photo)
{
    m_picture.SetBase(photo);
    m_previews.SetPhoto(photo);
}

// Over a copy: an observer may remove itself.
void Drawer::NotifyFrameChanged()
{
    const auto observers = m_observers;
    for (IDrawerObserver* const observer : observers)
        observer->FrameChanged();
}

void Drawer::NotifyCommittedPhotoChanged()
{
    const auto observers = m_observers;
    for (IDrawerObserver* const observer : observers)
        observer->CommittedPhotoChanged();
}

} // namespace LumetraHost
