// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/Drawer.h"

#include "image/Overview.h"

#include "Zorvik/Exception.h"
#include "Zorvik/Proc/SettingsEffectEmpty.h"

#include <boost/current_function.hpp>

#include <algorithm>
#include <utility>

namespace LumetraHost {

using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::EffectsSettingsPackage;

Drawer::Drawer() : m_painter(m_stack, [this] { NotifyFrameChanged(); }), m_previews(m_renderer) {}

void Drawer::SetPhoto(const Image& photo)
{
    m_painter.DropPainting();
    m_stack.TakeAll();
    m_committed.clear();
    if (!m_photo.SharesPixelsWith(photo))
        m_overview = photo.IsNull() ? nullptr : std::make_shared<Overview>(photo);
    m_photo = photo;
    NotifyCommittedPhotoChanged();
    NotifyFrameChanged();
}

PictureRecipe Drawer::GetRecipe() const
{
    PictureRecipe recipe = MakeRecipe(m_stack);
    if (const auto shown = m_painter.GetShownLayer())
        recipe.layers[recipe.committed + *m_painter.FindPackage()] = *shown;
    return recipe;
}

PictureRecipe Drawer::GetCommittedRecipe() const
{
    return MakeRecipe(PackageStack());
}

PictureRecipe Drawer::GetRecipeWith(const EffectsSettings& settings) const
{
    PackageStack stack = m_stack;
    stack.Apply(settings);
    return MakeRecipe(stack);
}

void Drawer::ResetPackage(unsigned index)
{
    const auto position = m_stack.FindIndex(index);
    if (!position)
        return;
    if (m_painter.FindPackage() == position)
        m_painter.DropPainting();
    m_stack.Remove(*position);
    NotifyFrameChanged();
}

std::vector<EffectsSettings> Drawer::GetOpenPackages() const
{
    std::vector<EffectsSettings> packages;
    for (std::size_t i = 0; i < m_stack.GetCount(); ++i)
        packages.push_back(m_stack.Get(i));
    return packages;
}

std::vector<EffectsSettings> Drawer::GetCommittedPackages() const
{
    std::vector<EffectsSettings> packages;
    for (const SharedSettings& settings : m_committed)
        packages.push_back(*settings);
    return packages;
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
    m_stack.Apply(effects);
    NotifyFrameChanged();
}

void Drawer::ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                         const std::map<std::string, int>& /*options*/)
{
    if (!effect)
        throw Zorvik::Exception("effect cannot be applied: expected an effect, found null",
                                BOOST_CURRENT_FUNCTION, "drawer/Drawer", __LINE__);
    m_painter.FinishOpenPainting();
    for (SharedSettings& package : m_stack.TakeAll())
        m_committed.push_back(std::move(package));
    const bool isEmpty = effect->GetEffectID() == Zorvik::Proc::SettingsEffectEmpty::EFFECT_ID;
    if (!isEmpty) {
        auto single = std::make_shared<EffectsSettings>(EffectsSettings::PhotoAlone);
        single->Effects().push_back(effect->Clone());
        m_committed.push_back(std::move(single));
    }
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
    return m_previews.Render(GetCommittedRecipe(), target, effects, {cropPolicy, fitPolicy, flags});
}

PictureRecipe Drawer::MakeRecipe(const PackageStack& stack) const
{
    PictureRecipe recipe;
    recipe.photo = m_photo;
    recipe.overview = m_overview;
    recipe.committed = m_committed.size();
    for (const SharedSettings& settings : m_committed)
        recipe.layers.push_back({settings, std::nullopt});
    for (std::size_t i = 0; i < stack.GetCount(); ++i)
        recipe.layers.push_back({stack.GetShared(i), std::nullopt});
    return recipe;
}

// Walks over a copy: an observer may remove itself.
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
