// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Quindle/EffectsSettings.h"
#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <optional>
#include <string>
#include <vector>

namespace LumetraTest {

/// The recording drawer's state of a photo, without pixels: the open packages from bottom to top,
/// the committed layers below them, and the painting in progress.
class PackageStack
{
public:
    static constexpr unsigned NoIndex = Zorvik::Quindle::EffectsSettingsPackage::NoIndex;

    /// The package of that index; NoIndex: the one applied last. Default-made when there is none.
    Zorvik::Quindle::EffectsSettingsPackage GetPackage(unsigned index) const;
    unsigned GetNextIndex() const;
    unsigned FindIndex(const std::string& packageName) const;

    /// Replaces the package of the index, else the topmost of the same name, else opens one.
    void Apply(const Zorvik::Quindle::EffectsSettings& effects);
    /// Closes all packages over `effect`.
    void Commit(const Zorvik::Quindle::ConstEffectPtr& effect);
    void Remove(unsigned index);

    void
    StartPainting(const boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage>& how);
    void UpdatePainting(const Zorvik::Quindle::EffectsSettings& update);
    void FinishPainting(bool cancel);
    bool IsPainting() const;

    /// All that is seen, painting included: the committed layers, a line each, then the open
    /// packages.
    std::vector<std::string> GetShown() const;

private:
    struct Layer
    {
        Zorvik::Quindle::EffectsSettings effects;
        unsigned long applied; ///< counts applications, to tell the last
    };
    using Layers = std::vector<Layer>;

    Layers::iterator FindLayer(unsigned index);
    Layers::iterator FindTopmost(const std::string& packageName);
    std::vector<std::string> GetOpen() const;

    Layers m_layers;
    std::vector<std::string> m_committed;
    unsigned m_nextIndex = 0;
    unsigned long m_applications = 0;
    boost::intrusive_ptr<Zorvik::Quindle::SettingsPainterEffectsPackage> m_painting;
    /// The painted package as the last update left it.
    std::optional<Zorvik::Quindle::EffectsSettings> m_painted;
};

} // namespace LumetraTest
