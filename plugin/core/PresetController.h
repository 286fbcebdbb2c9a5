// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/EffectPresetControllerBase.h"

#include <QSize>

#include <memory>

namespace LumetraPlugin {

/// What all presets of one panel share about their preview pictures.
struct PreviewOptions
{
    QSize size = {160, 120}; ///< pixels; a preview is at most this large
    bool isDraft = true;     ///< quick rather than exact
};

/// A preset of the editor: names its statistics events, redraws while its extra sliders move, and
/// renders its preview from the open photo by itself. Made by PresetControllerFactory; a copy is
/// of the same class.
class PresetController : public Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase
{
    Q_OBJECT

public:
    static constexpr char EVENT_CLICK[] = "presetClick";
    static constexpr char EVENT_APPLY[] = "presetApply";
    static constexpr char EVENT_RESET[] = "presetReset";
    static constexpr char EVENT_FAVOURITE_ADD[] = "presetFavouriteAdd";
    static constexpr char EVENT_FAVOURITE_REMOVE[] = "presetFavouriteRemove";

    /// `previews` must not be null.
    PresetController(const std::string& packageName,
                     const std::shared_ptr<const PreviewOptions>& previews);
    PresetController(const PresetController& other);
    ~PresetController() override;

    /// A new preset of this object's own class, which starts from its settings.
    virtual boost::intrusive_ptr<PresetController> Copy() const;

    /// True: a moved slider shows at once.
    bool ApplySettingsOnProgress() const override;
    /// The preset on the open photo at its current intensity, rendered anew at each call; a null
    /// picture without a photo.
    QImage GetPreviewImage() override;

protected:
    std::string GetStatisticEventNameClick() const override;
    std::string GetStatisticEventNameApply() const override;
    std::string GetStatisticEventNameReset() const override;
    std::string GetStatisticEventNameFavoriteAdd() const override;
    std::string GetStatisticEventNameFavoriteRemove() const override;

private:
    void BringIntensityIntoPreview();

    std::shared_ptr<const PreviewOptions> m_previews;
};

} // namespace LumetraPlugin
