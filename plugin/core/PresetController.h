// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "EffectPresets/EffectPresetControllerBase.h"
#include "Settings/SliderSetting.h"

#include "Zorvik/Proc/Frame.h"
#include "catalogue/LocalNames.h"
#include "drawer/render/PreviewPart.h"
#include "engine/base/IStoredElsewhere.h"

#include <QSize>

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

namespace LumetraPlugin {

/// Options of the preview pictures that all presets of one panel share.
struct PreviewOptions
{
    QSize size = {160, 120}; ///< pixels; a preview is at most this large
    bool isDraft = true;     ///< quick rather than exact
    /// Renders in place of the drawer, which keeps the caller waiting. Takes the preset's key, the
    /// size, the effects and the policies; returns a null frame when the picture is not there yet.
    /// May be empty.
    std::function<Zorvik::Proc::Frame(const std::string&, const Zorvik::Proc::FrameTarget&,
                                      const Zorvik::Quindle::EffectsSettings&,
                                      const LumetraHost::PreviewPolicies&)>
        render = {};
};

/// The author, the licence and further names of a look; all of them may be empty.
struct LookCredits
{
    std::map<std::string, std::string> names; ///< in other languages, by language
    std::string author;
    std::string licence;
};

/// A preset of the editor: names its statistics events, redraws while its extra sliders move, and
/// renders its preview from the open photo by itself. Made by PresetControllerFactory; a copy is
/// of the same class.
class PresetController : public Zorvik::Lumetra::LumetraPresets::EffectPresetControllerBase
{
    Q_OBJECT

public:
    static constexpr char EventClick[] = "presetClick";
    static constexpr char EventApply[] = "presetApply";
    static constexpr char EventReset[] = "presetReset";
    static constexpr char EventFavouriteAdd[] = "presetFavouriteAdd";
    static constexpr char EventFavouriteRemove[] = "presetFavouriteRemove";

    /// `previews` must not be null.
    PresetController(const std::string& packageName,
                     const std::shared_ptr<const PreviewOptions>& previews);
    PresetController(const PresetController& other);
    ~PresetController() override;

    /// A new preset of this object's own class, with a copy of its settings and of its name
    /// without translations.
    virtual boost::intrusive_ptr<PresetController> Copy() const;
    /// A copy whose sliders and intensity are where those of this preset start.
    boost::intrusive_ptr<PresetController> CopyAtStart() const;

    const LookCredits& GetCredits() const { return m_credits; }
    /// The credits with the names that a catalogue has for the preset.
    LookCredits MakeCredits() const;
    void SetCredits(const LookCredits& credits) { m_credits = credits; }
    /// Another name drops those in other languages, which are translations of the old one.
    void SetName(const std::string& name) override;

    /// The package that applying the preset now would put on the photo: its effects with the
    /// current values of its sliders and its intensity. A copy of the preset's own.
    Zorvik::Quindle::EffectsSettings MakeSettings();
    /// The package for the preset's picture, made of the catalogue's preview list where there is
    /// one.
    Zorvik::Quindle::EffectsSettings MakePreviewSettings();
    LumetraHost::PreviewPolicies GetPreviewPolicies() const;
    /// The key of the preset's picture, from group and id; no other preset has it.
    std::string GetPreviewKey() const;
    /// The intensity that the preset came with, which a reset goes back to. It lies within the
    /// range: a stored one that does not has been moved to the nearest end.
    int GetStartIntensity() const { return m_startIntensity; }
    /// "expected …, found …" when the stored intensity was out of its range; else empty.
    const std::string& GetIntensityRemark() const { return m_intensityRemark; }
    /// Gives the preset copies of other effects. Its sliders take their positions from them, and a
    /// blending intensity starts at the full effect. Draws nothing. Exception, with nothing
    /// changed, when the effects lack one that the intensity moves.
    /// Returns what puts the preset back to what it was, as long as it lives.
    std::function<void()> ReplaceEffects(const Zorvik::Quindle::ConstEffectList& effects);
    /// Puts the intensity back to where it started, in the value and in the effects. Draws nothing
    /// and needs no workspace.
    void PutIntensityBack();

    /// The name that the user reads: that of the catalogue in the user's language where there is
    /// one, else GetName(). Presets of the user have one name.
    QString GetShownName() const;
    /// The translations of the name, by language; none for presets of the user.
    const LumetraHost::LocalNames& GetLocalNames() const;

    /// The file with the preset's effects, inside the folder of the group's store id; empty for a
    /// preset that brings its effects along.
    const std::string& GetResource() const { return m_resource; }

    /// A sentence about the first file that the preset's effects need and that is missing, such as
    /// a look-up table beside the user's presets, and what was expected; empty when all are there.
    /// A preset with a problem cannot be drawn. A resource that has not been handed over yet is no
    /// problem.
    std::string FindProblem(LumetraHost::ContentCheck check) const;

    /// A preset that lists extra sliders has those, in place of `sliders`.
    void InitDefaultSettings(
        const std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting>& sliders) override;
    /// Exception for an intensity that moves effects which the preset has not.
    void InitIntensity(const Zorvik::Brassel::ConstSerializerPtr& node) override;
    /// True until the resource has been handed over.
    bool IsDownloadable() const override { return !m_resource.empty() && !m_hasResource; }
    /// Takes the path of the resource, a JSON file (see PresetResource), and with it sliders and
    /// intensity. Exception with file and place, and nothing changed, when it cannot be used.
    void SetDownloadedResource(const std::string& resource) override;
    /// True: a moved slider shows at once.
    bool ApplySettingsOnProgress() const override { return true; }
    /// The preset on the open photo at its current intensity, from PreviewOptions::render; without
    /// that the drawer renders it at each call. A null picture without a photo, and while a file
    /// that the preset needs is missing.
    QImage GetPreviewImage() override;

protected:
    /// These two know the preset's list of extra sliders and its credits, too.
    void Serialize(const Zorvik::Brassel::SerializerPtr& node) const override;
    void Deserialize(const Zorvik::Brassel::ConstSerializerPtr& node) override;
    std::string GetStatisticEventNameClick() const override;
    std::string GetStatisticEventNameApply() const override;
    std::string GetStatisticEventNameReset() const override;
    std::string GetStatisticEventNameFavoriteAdd() const override;
    std::string GetStatisticEventNameFavoriteRemove() const override;

private:
    static void CheckIntensityEffects(const Zorvik::Lumetra::LumetraPresets::SliderSetting& slider,
                                      const Zorvik::Quindle::EffectsSettings& settings);
    void LimitIntensity();
    void WriteIntensityToPreview();

    std::function<void()> MakePutBack();
    void MoveEffectsTo(int intensity);

    int m_startIntensity = 0;
    std::string m_intensityRemark;
    LumetraHost::LocalNames m_localNames;
    std::string m_resource;
    /// The sliders that the preset lists; without a value it has those of the catalogue.
    std::optional<std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting>> m_ownSliders;
    LookCredits m_credits;
    bool m_hasResource = false;
    // Sliders and intensity that were given before the effects.
    std::vector<Zorvik::Lumetra::LumetraPresets::SliderSetting> m_laterSliders;
    Zorvik::Brassel::ConstSerializerPtr m_laterIntensity;
    std::shared_ptr<const PreviewOptions> m_previews;
};

} // namespace LumetraPlugin
