// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "core/PresetController.h"

#include <memory>
#include <set>
#include <string>

namespace LumetraPlugin {

/// Makes the presets of one panel. They share one package of the drawer, so that they replace each
/// other on the photo, and the options of their previews. Shared with the model.
class PresetControllerFactory
    : public Zorvik::Lumetra::LumetraPresets::IEffectPresetControllerFactory
{
public:
    using ControllerPtr =
        boost::intrusive_ptr<Zorvik::Lumetra::LumetraPresets::IEffectPresetController>;

    explicit PresetControllerFactory(const std::string& packageName);
    ~PresetControllerFactory() override;

    /// The kinds that a catalogue may name; "" and "photo" mean one kind.
    static const std::set<std::string>& GetKinds();

    /// Sets the options of all presets, also those made before.
    void SetPreviewOptions(const PreviewOptions& options);

    /// Exception for a kind that is none of GetKinds().
    ControllerPtr CreateController(const std::string& kind) override;
    /// Exception for a preset that this kind of factory has not made.
    ControllerPtr CopyController(const ControllerPtr& source) override;

private:
    std::string m_packageName;
    std::shared_ptr<PreviewOptions> m_previews;
};

} // namespace LumetraPlugin
