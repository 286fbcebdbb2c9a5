// SPDX-License-Identifier: MIT
// This part of the model answers the roles and changes and removes presets.
#include "EffectPresets/EffectPresetModel.h"

#include "EffectPresets/IEffectPresetControllerFactory.h"
#include "EffectPresets/PersistentPlace.h"
#include "Settings/TuneSettingType.h"
#include "Zorvik/Util/Utf8.h"

namespace Zorvik::Lumetra {

// Its declaration in the header exports this instantiation.
template class GroupedSequentalModel<LumetraPresets::PresetGroupInfo,
                                     boost::intrusive_ptr<LumetraPresets::IEffectPresetController>>;

namespace LumetraPresets {

using Util::Utf8ToQString;

namespace {

std::string ToUtf8(const QVariant& value)
{
    return value.toString().toUtf8().toStdString();
}

// Hosts may give the number instead of the enumerator, which QVariant of Qt 6 does not convert.
TuneSettingType ReadTune(const QVariant& value)
{
    if (value.userType() == qMetaTypeId<TuneSettingType>())
        return value.value<TuneSettingType>();
    return static_cast<TuneSettingType>(static_cast<int>(value.toLongLong()));
}

} // namespace

EffectPresetModel::EffectPresetModel(
    std::shared_ptr<IEffectPresetControllerFactory> controllerFactory)
    : factory(std::move(controllerFactory))
{
}

EffectPresetModel::~EffectPresetModel() = default;

QVariant EffectPresetModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    // Each search for a parent walks all presets, so there is one per level.
    const QModelIndex group = index.parent();
    const int groupRow = group.isValid() ? group.row() : index.row();
    if (groupRow < 0 || groupRow >= static_cast<int>(m_groups.size()))
        return QVariant();
    const GroupInfo& record = m_groups[groupRow];
    if (!group.isValid())
        return GroupData(record.info, role);
    if (index.row() < 0 || index.row() >= static_cast<int>(record.items.size()))
        return QVariant();
    const ControllerPtr controller = record.items[index.row()];
    return PresetData(record.info, *controller, role);
}

QVariant EffectPresetModel::GroupData(const PresetGroupInfo& info, int role)
{
    switch (role) {
    case PresetNameRole:
        return Utf8ToQString(info.name);
    case PresetIdRole:
        return info.editable;
    case AppliedRole:
        return Utf8ToQString(info.appStoreId);
    default:
        return QVariant();
    }
}

QVariant EffectPresetModel::PresetData(const PresetGroupInfo& info,
                                       IEffectPresetController& controller, int role)
{
    switch (role) {
    case PresetNameRole:
        return Utf8ToQString(controller.GetName());
    case PresetIdRole:
        return Utf8ToQString(controller.GetID());
    case AppliedRole:
        return controller.IsApplied();
    case PreviewImageRole:
        return controller.GetPreviewImage();
    case IntensityRole:
        return controller.GetIntensity();
    case IntensityMinRole:
        return controller.IntensityMin();
    case IntensityMaxRole:
        return controller.IntensityMax();
    case IntensitySettingTypeRole:
        return QVariant::fromValue(controller.GetIntensitySettingType());
    case SettingsValuesRole:
        return QVariant::fromValue(controller.GetSettings());
    case DefaultSettingsValuesRole:
        return QVariant::fromValue(controller.GetSettingsDefault());
    case EditableRole:
        return info.editable;
    case FavouriteRole:
        return controller.IsFavourite();
    case PopularRole:
        return controller.IsPopular();
    case AppStoreIdRole:
        return Utf8ToQString(info.appStoreId);
    case DownloadableRole:
        return controller.IsDownloadable();
    default:
        return QVariant();
    }
}

bool EffectPresetModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!IsSingleElement(index))
        return false;
    const auto& items = m_groups[index.parent().row()].items;
    if (index.row() < 0 || index.row() >= static_cast<int>(items.size()))
        return false;
    const ControllerPtr controller = items[index.row()];

    switch (role) {
    case PresetNameRole:
        controller->SetName(ToUtf8(value));
        break;
    case AppliedRole:
        SetAppliedData(index, controller, value.toBool());
        break;
    case SaveChangesRole:
        controller->SaveChanges();
        break;
    case IntensityRole:
        if (const int intensity = value.toInt(); intensity != controller->GetIntensity())
            controller->SetIntensity(intensity, true);
        break;
    case TuneRole:
        Tune(controller, value);
        break;
    case SettingsValuesRole:
        SetSettingsData(index, *controller, value);
        break;
    case SaveAsUserPresetRole:
        SaveAsUserPreset(controller, value.toString());
        break;
    case FavouriteRole:
        SetFavouriteData(index, *controller, value.toBool());
        break;
    case ResetRole:
        ResetData(index, *controller);
        break;
    case DownloadedResourceRole:
        controller->SetDownloadedResource(ToUtf8(value));
        break;
    default:
        break;
    }
    return false;
}

void EffectPresetModel::SetAppliedData(const QModelIndex& index, const ControllerPtr& controller,
                                       bool applied)
{
    if (applied)
        DeactivatePresets(controller);
    const bool wasApplied = controller->IsApplied();
    controller->SetApplied(applied, true);
    if (applied != wasApplied)
        emit dataChanged(index, index, {AppliedRole});
}

void EffectPresetModel::Tune(const ControllerPtr& controller, const QVariant& value)
{
    switch (ReadTune(value)) {
    case TuneSettingType::Apply:
        DeactivatePresets(controller);
        controller->SetApplied(true, true);
        break;
    case TuneSettingType::ChangeEnd:
        controller->IntensityChangeEnd();
        break;
    }
}

void EffectPresetModel::SetSettingsData(const QModelIndex& index,
                                        IEffectPresetController& controller, const QVariant& value)
{
    const bool isChanged = controller.SetSettingsValues(value.value<SliderSetting::List>());
    if (isChanged && controller.ApplySettingsOnProgress())
        setData(index, QVariant(true), AppliedRole);
}

void EffectPresetModel::SaveAsUserPreset(const ControllerPtr& controller, const QString& name)
{
    const ControllerPtr copy = factory->CopyController(controller);
    copy->SetName(name.toUtf8().toStdString());
    copy->SetWorkspaceController(GetWorkspaceReference());

    GroupInfo& group = GetCustomGroup();
    const auto places = CollectPersistentPlaces();
    group.items.push_back(copy);
    RepointPersistentIndexes(places);
    copy->SetGroupInfo(group.info.name, group.info.editable);

    const int groupRow = static_cast<int>(&group - m_groups.data());
    const int row = static_cast<int>(group.items.size()) - 1;
    const QModelIndex added = index(row, 0, index(groupRow, 0, QModelIndex()));
    emit dataChanged(added, added, {SaveAsUserPresetRole});
}

void EffectPresetModel::SetFavouriteData(const QModelIndex& index,
                                         IEffectPresetController& controller, bool favourite)
{
    controller.SetFavourite(favourite);
    emit dataChanged(index, index, {FavouriteRole});
}

void EffectPresetModel::ResetData(const QModelIndex& index, IEffectPresetController& controller)
{
    if (controller.ResetSettingsValues())
        setData(index, QVariant(true), AppliedRole);
    emit dataChanged(index, index);
}

bool EffectPresetModel::removeRows(int row, int count, const QModelIndex& parent)
{
    if (!parent.isValid() || parent.row() < 0 || parent.row() >= static_cast<int>(m_groups.size()))
        return false;
    auto& items = m_groups[parent.row()].items;
    const int size = static_cast<int>(items.size());
    if (row < 0 || count < 1 || row > size || count > size - row)
        return false;

    beginRemoveRows(parent, row, row + count - 1);
    items.erase(items.begin() + row, items.begin() + row + count);
    endRemoveRows();
    return true;
}

} // namespace LumetraPresets
} // namespace Zorvik::Lumetra
