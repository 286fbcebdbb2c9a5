// SPDX-License-Identifier: GPL-2.0-or-later
#include "drawer/Drawer.h"

#include "engine/run/WholePicture.h"
#include "image/Overview.h"

#include "Zorvik/Proc/SettingsEffectEmpty.h"
#include "storage/FailWith.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace LumetraHost {
namespace {

void AddLayer(const StackedPackage& package, PictureRecipe& recipe)
{
    if (package.isOn)
        recipe.layers.push_back({package.settings, std::nullopt});
}

} // namespace

using Zorvik::Quindle::EffectsSettings;
using Zorvik::Quindle::EffectsSettingsPackage;

Drawer::Drawer() : m_painter(m_stack, [this] { NotifyFrameChanged(); }), m_previews(m_renderer) {}

void Drawer::SetPhoto(const KeptImage& photo)
{
    m_painter.DropPainting();
    m_stack.TakeAll();
    m_committed.clear();
    m_above.clear();
    if (!m_photo.SharesPixelsWith(photo)) {
        m_overview = photo.IsNull() ? nullptr : std::make_shared<Overview>(photo);
        m_whole = photo.IsNull() ? nullptr : WholePicture::OfPhoto(photo);
    }
    m_photo = photo;
    NotifyCommittedPhotoChanged();
    NotifyFrameChanged();
}

PictureRecipe Drawer::GetRecipe() const
{
    PictureRecipe recipe = GetCommittedRecipe();
    const auto shown = m_painter.GetShownLayer();
    const auto painted = m_painter.FindPackage();
    for (std::size_t i = 0; i < m_stack.GetCount(); ++i)
        if (shown && painted == i)
            recipe.layers.push_back(*shown);
        else
            AddLayer(m_stack.GetPackage(i), recipe);
    AddAbove(recipe);
    return recipe;
}

void Drawer::AddAbove(PictureRecipe& recipe) const
{
    for (const StackedPackage& package : m_above)
        AddLayer(package, recipe);
}

PictureRecipe Drawer::GetCommittedRecipe() const
{
    PictureRecipe recipe;
    recipe.photo = m_photo;
    recipe.overview = m_overview;
    recipe.whole = m_whole;
    for (const StackedPackage& package : m_committed)
        AddLayer(package, recipe);
    recipe.committed = recipe.layers.size();
    return recipe;
}

PictureRecipe Drawer::GetRecipeWith(const EffectsSettings& settings) const
{
    PackageStack stack = m_stack;
    stack.Apply(settings);
    PictureRecipe recipe = GetCommittedRecipe();
    for (const StackedPackage& package : stack.TakeAll())
        AddLayer(package, recipe);
    AddAbove(recipe);
    return recipe;
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
    for (const StackedPackage& package : m_committed)
        packages.push_back(*package.settings);
    return packages;
}

std::vector<StackedPackage> Drawer::GetStack() const
{
    std::vector<StackedPackage> packages = m_committed;
    for (std::size_t i = 0; i < m_stack.GetCount(); ++i)
        packages.push_back(m_stack.GetPackage(i));
    packages.insert(packages.end(), m_above.begin(), m_above.end());
    return packages;
}

std::vector<StackedPackage> Drawer::GetShownStack() const
{
    std::vector<StackedPackage> packages = GetStack();
    const auto painted = m_painter.FindPackage();
    if (painted && m_painter.GetPainted()) {
        StackedPackage& package = packages[m_committed.size() + *painted];
        package.settings = m_painter.GetPainted();
        package.isOn = true;
    }
    return packages;
}

void Drawer::SetCommitted(std::vector<StackedPackage> committed, std::vector<StackedPackage> above)
{
    m_painter.DropPainting();
    m_stack.TakeAll();
    m_committed = std::move(committed);
    m_above = std::move(above);
    NotifyCommittedPhotoChanged();
    NotifyFrameChanged();
}

bool Drawer::CommitAbove()
{
    if (m_above.empty() || m_stack.GetCount() > 0)
        return false;
    TakeAboveForCommitted();
    NotifyCommittedPhotoChanged();
    return true;
}

void Drawer::TakeAboveForCommitted()
{
    std::move(m_above.begin(), m_above.end(), std::back_inserter(m_committed));
    m_above.clear();
}

void Drawer::ArrangeOpen(const std::vector<std::string>& names)
{
    if (m_stack.Arrange(names))
        NotifyFrameChanged();
}

void Drawer::SetOn(std::size_t position, bool isOn)
{
    m_painter.FinishOpenPainting();
    const bool isCommitted = position < m_committed.size();
    const std::size_t firstAbove = m_committed.size() + m_stack.GetCount();
    if (GetStack()[position].isOn == isOn)
        return;
    if (isCommitted)
        m_committed[position].isOn = isOn;
    else if (position < firstAbove)
        m_stack.SetOn(position - m_committed.size(), isOn);
    else
        m_above[position - firstAbove].isOn = isOn;
    if (isCommitted)
        NotifyCommittedPhotoChanged();
    NotifyFrameChanged();
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

void Drawer::ApplyAs(const std::string& origin, const EffectsSettings& effects)
{
    m_painter.FinishOpenPainting();
    m_stack.Apply(effects, origin);
    NotifyFrameChanged();
}

void Drawer::CommitAs(const std::string& origin, const Zorvik::Quindle::ConstEffectPtr& effect)
{
    if (!effect)
        FailWith("effect cannot be applied: expected an effect, found null");
    m_painter.FinishOpenPainting();
    for (StackedPackage& package : m_stack.TakeAll())
        m_committed.push_back(std::move(package));
    const bool isEmpty = effect->GetEffectID() == Zorvik::Proc::SettingsEffectEmpty::EFFECT_ID;
    if (!isEmpty) {
        auto single = std::make_shared<EffectsSettings>(EffectsSettings::PhotoAlone);
        single->Effects().push_back(effect->Clone());
        m_committed.push_back({std::move(single), origin, true});
    }
    TakeAboveForCommitted();
    NotifyCommittedPhotoChanged();
    if (!isEmpty)
        NotifyFrameChanged();
}

void Drawer::ApplyEffect(const EffectsSettings& effects,
                         const std::map<std::string, int>& /*options*/)
{
    ApplyAs({}, effects);
}

void Drawer::ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                         const std::map<std::string, int>& /*options*/)
{
    CommitAs({}, effect);
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
