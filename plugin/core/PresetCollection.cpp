// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetCollection.h"

#include "Settings/TuneSettingType.h"
#include "Zorvik/Exception.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "core/PresetModel.h"
#include "core/userstore/UserPresetStore.h"
#include "lut/LutReader.h"

namespace LumetraPlugin {

using LumetraHost::CatalogueParser;
using Zorvik::Lumetra::LumetraPresets::TuneSettingType;

PresetCollection::PresetCollection(const std::string& packageName,
                                   std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace)
    : m_packageName(packageName), m_workspace(std::move(workspace)),
      m_factory(std::make_shared<PresetControllerFactory>(packageName)),
      m_model(std::make_unique<PresetModel>(m_factory))
{
}

PresetCollection::~PresetCollection() = default;

void PresetCollection::OpenStore(const QString& path)
{
    m_store = std::make_unique<UserPresetStore>(path, m_factory);
}

void PresetCollection::CloseStore()
{
    m_store.reset();
}

QStringList PresetCollection::Load(const QStringList& catalogueFiles,
                                   const Zorvik::Brassel::ConstSerializerPtr& userData)
{
    const auto stored = m_store ? m_store->Load() : userData;
    m_catalogueFiles = catalogueFiles;
    CatalogueParser parser(PresetControllerFactory::GetKinds(), LumetraHost::LutReader::ReadTable);
    QStringList unusable;
    for (const QString& file : catalogueFiles)
        if (!parser.AddFile(file))
            unusable.append(file);
    parser.Parse(*m_model, stored);
    m_model->SetGroupNames(parser.GetGroupNames());
    if (m_store)
        m_store->Remember(*m_model);
    m_reports = parser.GetReports();
    return unusable;
}

QStringList PresetCollection::LoadWithStore(const QStringList& catalogueFiles,
                                            const QString& storePath, QStringList& problems)
{
    OpenStore(storePath);
    try {
        const QStringList unusable = Load(catalogueFiles, nullptr);
        for (const std::string& report : m_store->GetReports())
            problems.append(QString::fromStdString(report));
        return unusable;
    } catch (const Zorvik::Exception& error) {
        problems.append(QString::fromUtf8(error.what()));
        CloseStore();
        return Load(catalogueFiles, nullptr);
    }
}

void PresetCollection::StartPhoto()
{
    PutValuesBack();
    m_model->SetWorkspaceController(m_workspace);
}

void PresetCollection::DiscardChanges()
{
    m_model->ApplyCurrentChanges(false);
    PutValuesBack();
}

void PresetCollection::PutValuesBack()
{
    m_model->DiscardUserChanges();
    for (int g = 0; g < m_model->rowCount(); ++g) {
        const QModelIndex group = m_model->index(g, 0);
        for (int i = 0; i < m_model->rowCount(group); ++i)
            PutIntensityBack(m_model->index(i, 0, group));
    }
}

/// A reset misses two kinds of intensity, which are put back here: one that moves effects would be
/// read from the effects that its drag has changed, and one of few mixtures has positions that are
/// read back as their neighbours. Draws only the preset that is on the photo.
void PresetCollection::PutIntensityBack(const QModelIndex& index)
{
    const auto preset = m_model->GetPreset(index);
    if (!preset || preset->GetIntensity() == preset->GetStartIntensity())
        return;
    if (!preset->IsApplied() || !preset->GetWorkspaceController(false))
        return preset->PutIntensityBack();
    m_model->setData(index, preset->GetStartIntensity(), PresetModel::IntensityRole);
    m_model->setData(index, QVariant::fromValue(TuneSettingType::ChangeEnd), PresetModel::TuneRole);
}

} // namespace LumetraPlugin
