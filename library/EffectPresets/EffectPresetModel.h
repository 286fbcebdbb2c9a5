// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/GroupedSequentalModel.h"
#include "EffectPresets/IEffectPresetController.h"
#include "EffectPresets/PresetGroupInfo.h"
#include "Zorvik/Brassel/IParserConfigGroup.h"

#include <QStringList>

namespace Zorvik::Lumetra {

// The template's one instantiation in this library.
extern template class LUMETRAPRESETSUTIL_EXPORT GroupedSequentalModel<
    LumetraPresets::PresetGroupInfo, boost::intrusive_ptr<LumetraPresets::IEffectPresetController>>;

namespace LumetraPresets {

class IEffectPresetControllerFactory;

/// All presets of one panel, in groups; at most one is meant to be applied to the photo.
///
/// The host's configuration parser fills it: default sliders, groups, then the user's data. Views
/// and widgets read and change presets through data() and setData() with the roles below. It never
/// announces insertions: views are set after parsing, and refresh on a change of
/// SaveAsUserPresetRole and on dataChanged with invalid indexes, which says that anything may have
/// changed. The user's presets live in the first editable group.
class LUMETRAPRESETSUTIL_EXPORT EffectPresetModel
    : public GroupedSequentalModel<PresetGroupInfo, boost::intrusive_ptr<IEffectPresetController>>,
      public Brassel::Config::IParserConfigGroup,
      public virtual Brassel::ISerializable,
      public virtual IWorkspaceUser
{
    Q_OBJECT

public:
    /// What data() answers for a preset and what setData() does; on a group only the first three
    /// answer, with the meaning in brackets. The numbers are part of the contract.
    ///
    /// Reading throws nothing, the image apart. The model catches nothing, so setData() throws what
    /// its preset does. A write that is said below to *draw* throws
    /// - the platform's Exception when the workspace is gone or was never attached,
    /// - std::invalid_argument when the preset's intensity is a slider and the preset lacks an
    ///   effect that this slider drives,
    /// - whatever the host's drawer throws.
    /// A write that sends a usage event throws what the host's statistics throw. What was changed
    /// before the exception stays changed, and the change is then not announced.
    enum PresetRole
    {
        /// QString [the group's name]; set: rename, no notification. Throws nothing.
        PresetNameRole = 256,
        /// QString [bool: the group is editable]
        PresetIdRole = 257,
        /// bool [QString: store id]; set: switch on or off. Switching on draws, unless the drawer
        /// is locked; switching off draws if the preset was on. The flag is set before, and before
        /// switching on the other presets are switched off. Sends a usage event.
        AppliedRole = 258,
        /// set: make what is shown part of the photo. Always draws, and sends a usage event.
        SaveChangesRole = 259,
        /// QImage. Throws what the host's preset throws while it renders.
        PreviewImageRole = 260,
        /// int; set: draw live. Draws if the value differs and the preset has an intensity, also
        /// while the drawer is locked; the value is taken before.
        IntensityRole = 261,
        /// int
        IntensityMinRole = 262,
        /// int
        IntensityMaxRole = 263,
        /// IntensitySettingType
        IntensitySettingTypeRole = 264,
        /// set: a TuneSettingType. ChangeEnd draws only if a live change is open, which stays open
        /// after an exception; Apply is like switching on with AppliedRole.
        TuneRole = 265,
        /// SliderSetting::List; set: by position. Draws, like switching on with AppliedRole, only
        /// if a value differs and the preset applies its sliders on progress.
        SettingsValuesRole = 266,
        /// SliderSetting::List
        DefaultSettingsValuesRole = 267,
        /// set: a copy under that name in the user's group. Throws what the host's factory throws,
        /// and the platform's Exception "User preset group not found." without an editable group;
        /// the copy is then lost.
        SaveAsUserPresetRole = 268,
        /// bool: the preset's group is editable
        EditableRole = 269,
        /// bool; set. Draws nothing, and sends a usage event.
        FavouriteRole = 270,
        /// bool
        PopularRole = 271,
        /// set: sliders and intensity back to their defaults. Draws, like switching on with
        /// AppliedRole, only if a slider differed. Throws std::invalid_argument when the intensity
        /// is a slider and the preset lacks the first effect that it drives.
        ResetRole = 272,
        /// QString: store id of the preset's group
        AppStoreIdRole = 273,
        /// set: path of a downloaded resource. Throws what the host's preset throws.
        DownloadedResourceRole = 274,
        /// bool: a resource is yet to be downloaded
        DownloadableRole = 275
    };

    explicit EffectPresetModel(std::shared_ptr<IEffectPresetControllerFactory> controllerFactory);
    ~EffectPresetModel() override;

    // Filling. Exceptions of the serializer or the factory pass; the group at hand is then not
    // added.
    void ParseGroup(const std::string& groupName, const Brassel::ConstCollectionPtr& items,
                    const Brassel::ConstSerializerPtr& groupSettings) override;
    /// Replaces the default sliders, which reach only groups parsed afterwards.
    void ParseAdditionalInfo(const Brassel::ConstCollectionPtr& collection) override;
    /// Appends the group "User presets" and marks favourites. Call once, after all groups.
    void ParseAdditionalInfo(const Brassel::ConstSerializerPtr& serializer) override;

    // Activation and pending changes.
    /// Marks the presets of that id as applied with these effects, without drawing, and switches
    /// all others off; an unknown id switches every preset off. std::invalid_argument if the
    /// preset's intensity slider drives an effect that `effects` lacks; the others are then still
    /// on, and nothing is announced.
    void ActivatePreset(const std::string& id, const Quindle::EffectsSettings& effects);
    void ActivatePreset(const std::string& id, const Quindle::ConstEffectList& effects);
    /// Keeps (`commit`) or takes off what the applied preset shows; nothing without one. Throws
    /// like a write of SaveChangesRole or AppliedRole.
    void ApplyCurrentChanges(bool commit);
    /// Puts every preset's values back and forgets every reset index. Draws nothing. Throws what
    /// IEffectPresetController::ResetSettingsValues() throws; later presets then keep their values.
    void DiscardUserChanges();
    /// True exactly when a preset is applied, whether or not its values were edited.
    bool HasUnsavedChanges() const;
    /// Spreads the drawer's package index that presets take next; 0xFFFFFFFF: none.
    void SetResetIndex(unsigned int index);
    /// Attaches all presets, unapplied, and registers their ids with the workspace.
    void SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller) override;

    /// Names of the user's presets, in order, duplicates kept. Exception without an editable group.
    QStringList GetUserPresetNames() const;

    /// Writes the user's presets and all favourite marks. Exception without an editable group.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Does nothing: user data comes back through ParseAdditionalInfo().
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Always false, also when the value was taken. PresetRole tells which writes may throw.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    /// Removes presets of the group `parent`, editable or not. False, and nothing removed, for
    /// groups and for a range that the group does not have.
    bool removeRows(int row, int count, const QModelIndex& parent = QModelIndex()) override;

private:
    using ControllerPtr = boost::intrusive_ptr<IEffectPresetController>;
    struct PersistentPlace;

    static QVariant GroupData(const PresetGroupInfo& info, int role);
    static QVariant PresetData(const PresetGroupInfo& info, IEffectPresetController& controller,
                               int role);

    void SetAppliedData(const QModelIndex& index, const ControllerPtr& controller, bool applied);
    void Tune(const ControllerPtr& controller, const QVariant& value);
    void SetSettingsData(const QModelIndex& index, IEffectPresetController& controller,
                         const QVariant& value);
    void SaveAsUserPreset(const ControllerPtr& controller, const QString& name);
    void SetFavouriteData(const QModelIndex& index, IEffectPresetController& controller,
                          bool favourite);
    void ResetData(const QModelIndex& index, IEffectPresetController& controller);

    ControllerPtr CreateController(const Brassel::ConstSerializerPtr& item,
                                   const PresetGroupInfo& group, const std::string& groupKind,
                                   const Brassel::ConstSerializerPtr& groupSettings);
    void MarkFavourite(const std::string& group, const std::string& id);

    void DeactivatePresets(const ControllerPtr& keep);
    ControllerPtr GetActivePreset(std::size_t& groupIndex) const;
    const GroupInfo& GetCustomGroup() const;
    GroupInfo& GetCustomGroup();

    /// Calls `visit(group, controller)` for every preset, in order, each held for its turn.
    template <class Visit>
    void ForEachPreset(const Visit& visit) const;

    std::vector<PersistentPlace> CollectPersistentPlaces() const;
    void RepointPersistentIndexes(const std::vector<PersistentPlace>& places);

    std::vector<SliderSetting> defaultSettings;
    std::shared_ptr<IEffectPresetControllerFactory> factory;
};

template <class Visit>
void EffectPresetModel::ForEachPreset(const Visit& visit) const
{
    // By position, and holding a reference: what a preset does may reach the host.
    for (std::size_t g = 0; g < m_groups.size(); ++g) {
        for (std::size_t i = 0; i < m_groups[g].items.size(); ++i) {
            const ControllerPtr controller = m_groups[g].items[i];
            visit(g, controller);
        }
    }
}

} // namespace LumetraPresets
} // namespace Zorvik::Lumetra
