// SPDX-License-Identifier: MIT
#pragma once

#include "EffectPresets/GroupedSequentalModel.h"
#include "EffectPresets/IEffectPresetController.h"
#include "EffectPresets/PresetGroupInfo.h"
#include "Zorvik/Brassel/IParserConfigGroup.h"

#include <QStringList>

namespace Zorvik::Lumetra {

// The library exports this one instantiation of the template.
extern template class LUMETRAPRESETSUTIL_EXPORT GroupedSequentalModel<
    LumetraPresets::PresetGroupInfo, boost::intrusive_ptr<LumetraPresets::IEffectPresetController>>;

namespace LumetraPresets {

class IEffectPresetControllerFactory;

/// Holds all presets of one panel, in groups; at most one is meant to be applied to the photo.
///
/// The host's configuration parser fills it in the order default sliders, groups, user's data.
/// Views and widgets read and change presets through data() and setData() with the roles below. It
/// never announces insertions: views are set after parsing, and refresh on a change of
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
    /// The roles say what data() answers for a preset and what setData() does with it; where
    /// nothing is said of writing, a write does nothing, and where nothing is said of reading, the
    /// answer is an invalid QVariant. On a group only the first three answer, and no write does
    /// anything. The numbers are part of the contract.
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
        /// Reads as a QString, the name of the preset or group. Writing renames the preset without
        /// a notification and throws nothing.
        PresetNameRole = 256,
        /// Reads as a QString, the preset's ID; on a group as a bool, true when it is editable.
        PresetIdRole = 257,
        /// Reads as a bool, true while the preset is applied; on a group as a QString, its store
        /// id. Writing a bool switches the preset on or off. Switching on draws, unless the drawer
        /// is locked; switching off draws if the preset was on. The flag is set before, and before
        /// switching on the other presets are switched off. Both send a usage event, and a change
        /// of this role if the state is another one.
        AppliedRole = 258,
        /// Writing anything makes the shown picture part of the photo. It always draws, and sends a
        /// usage event.
        SaveChangesRole = 259,
        /// Reads as a QImage, which may be null. Throws what the host's preset throws while it
        /// renders.
        PreviewImageRole = 260,
        /// Reads as an int, the intensity. Writing an int draws live if the value differs and the
        /// preset has an intensity, also while the drawer is locked; the value is taken before. No
        /// notification is sent.
        IntensityRole = 261,
        /// Reads as an int, the lower end of the intensity slider.
        IntensityMinRole = 262,
        /// Reads as an int, the upper end of the intensity slider.
        IntensityMaxRole = 263,
        /// Reads as an IntensitySettingType.
        IntensitySettingTypeRole = 264,
        /// Takes a TuneSettingType; a value that does not convert counts as ChangeEnd. ChangeEnd
        /// draws only if a live change is open, which stays open after an exception. Apply works
        /// like switching on with AppliedRole, but sends no notification.
        TuneRole = 265,
        /// Reads as a SliderSetting::List, the extra sliders with their current values. Writing
        /// such a list takes its values by position. It draws, like switching on with AppliedRole,
        /// only if a value differs and the preset applies its sliders on progress.
        SettingsValuesRole = 266,
        /// Reads as a SliderSetting::List, the extra sliders with their default values.
        DefaultSettingsValuesRole = 267,
        /// Writing a QString puts a copy of the preset under that name at the end of the user's
        /// group, and announces it as a change of this role on the new row. Throws what the host's
        /// factory throws, and the platform's Exception "User preset group not found." without an
        /// editable group; the copy is then lost.
        SaveAsUserPresetRole = 268,
        /// Reads as a bool, true when the preset's group is editable.
        EditableRole = 269,
        /// Reads as a bool, the user's favourite mark. Writing a bool sets it, draws nothing, and
        /// always sends a usage event and a change of this role.
        FavouriteRole = 270,
        /// Reads as a bool, true when the catalogue recommends the preset.
        PopularRole = 271,
        /// Writing anything puts the extra sliders back to their defaults and reads the intensity
        /// from the preset's effects. It draws, like switching on with AppliedRole, only if a
        /// slider differed; a change of all roles is sent in any case. Throws std::invalid_argument
        /// when the intensity is a slider and the preset lacks the first effect that it drives.
        ResetRole = 272,
        /// Reads as a QString, the store id of the preset's group; empty when there is none.
        AppStoreIdRole = 273,
        /// Takes a QString, the path of a downloaded resource. No notification is sent. Throws what
        /// the host's preset throws.
        DownloadedResourceRole = 274,
        /// Reads as a bool, true while a resource is yet to be downloaded.
        DownloadableRole = 275
    };

    /// Makes an empty model without a parent object. `controllerFactory` makes its presets; it is
    /// shared with the caller and must not be null.
    explicit EffectPresetModel(std::shared_ptr<IEffectPresetControllerFactory> controllerFactory);
    ~EffectPresetModel() override;

    // These operations fill the model. Exceptions of the serializer or the factory pass; the group
    // at hand is then not added, and earlier ones stay.
    /// Appends a group with a preset for each of `items`. An item without a controller kind or an
    /// intensity of its own takes the group's.
    void ParseGroup(const std::string& groupName, const Brassel::ConstCollectionPtr& items,
                    const Brassel::ConstSerializerPtr& groupSettings) override;
    /// Replaces the default sliders, which reach only groups parsed afterwards. A slider that
    /// drives an unknown parameter is std::invalid_argument; those before it are then kept.
    void ParseAdditionalInfo(const Brassel::ConstCollectionPtr& collection) override;
    /// Appends the editable group "User presets", from `serializer` as Serialize() has written it,
    /// and marks the favourites in all groups. Marks that match no preset are ignored. Call it
    /// once, after all groups: a second call appends a second group.
    void ParseAdditionalInfo(const Brassel::ConstSerializerPtr& serializer) override;

    // These operations keep one preset applied, and keep or drop its changes.
    /// Marks the preset of that id as applied with these effects, without drawing, and switches all
    /// others off; an unknown id switches every preset off. If several presets have the id, all of
    /// them take the effects and the last one stays on. The form with a list sets a blending
    /// intensity to full strength, since a list has no blend amount. Throws std::invalid_argument
    /// if the preset's intensity slider drives an effect that `effects` lacks; the others are then
    /// still on, and nothing is announced.
    void ActivatePreset(const std::string& id, const Quindle::EffectsSettings& effects);
    void ActivatePreset(const std::string& id, const Quindle::ConstEffectList& effects);
    /// With `commit` makes the applied preset's look part of the photo and leaves the preset marked
    /// as applied; without it takes the look off. Does nothing without an applied preset. Throws
    /// like a write of SaveChangesRole or AppliedRole.
    void ApplyCurrentChanges(bool commit);
    /// Puts every preset's values back and forgets every reset index. It draws and announces
    /// nothing. Throws what IEffectPresetController::ResetSettingsValues() throws; later presets
    /// then keep their values.
    void DiscardUserChanges();
    /// True exactly when a preset is applied, whether or not its values were edited.
    bool HasUnsavedChanges() const;
    /// Gives every preset the index of the drawer's package to take when it is applied next;
    /// 0xFFFFFFFF means none. Presets made later do not get it.
    void SetResetIndex(unsigned int index);
    /// Attaches all presets, unapplied, announces that anything may have changed, and registers the
    /// (preset ID, store id) pairs with the workspace. An empty reference detaches them. A preset
    /// that is saved later is attached at once, but registered only by the next call.
    void SetWorkspaceController(const std::weak_ptr<IWorkspaceController>& controller) override;

    /// Returns the names of the user's presets, in order, duplicates kept, for NewPresetDialog.
    /// Throws the platform's Exception without an editable group.
    QStringList GetUserPresetNames() const;

    /// Writes the user's presets and the favourite marks of all groups. Throws the platform's
    /// Exception without an editable group, and what the serializer throws; `node` is then half
    /// written, so write into a fresh one.
    void Serialize(const Brassel::SerializerPtr& node) const override;
    /// Does nothing, because user data comes back through ParseAdditionalInfo().
    void Deserialize(const Brassel::ConstSerializerPtr& node) override;

    /// Answers the roles above. Every other role, Qt::DisplayRole included, and an index out of
    /// range give an invalid QVariant.
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    /// Takes the roles above. The result is false even when the value was taken. PresetRole tells
    /// which writes may throw.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
    /// Removes presets of the group `parent`, editable or not, and tells nobody but the views. An
    /// applied one stays on the photo. Returns false, with nothing removed, for groups and for a
    /// range that the group does not have.
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

    /// Calls `visit(group, controller)` for every preset, in order; each is held for its turn.
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
    // The loops go by position and hold a reference, because a preset may call the host meanwhile.
    for (std::size_t g = 0; g < m_groups.size(); ++g) {
        for (std::size_t i = 0; i < m_groups[g].items.size(); ++i) {
            const ControllerPtr controller = m_groups[g].items[i];
            visit(g, controller);
        }
    }
}

} // namespace LumetraPresets
} // namespace Zorvik::Lumetra
