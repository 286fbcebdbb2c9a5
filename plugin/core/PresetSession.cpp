// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/PresetSession.h"

#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "core/UserPresetStore.h"
#include "engine/EffectKinds.h"
#include "workspace/WorkspaceController.h"

namespace LumetraPlugin {

using LumetraHost::CatalogueParser;
using LumetraHost::Image;
using LumetraHost::WorkspaceController;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

PresetSession::PresetSession(const std::string& packageName)
    : m_workspace(std::make_shared<WorkspaceController>()),
      m_factory(std::make_shared<PresetControllerFactory>(packageName)),
      m_model(std::make_unique<EffectPresetModel>(m_factory))
{
    LumetraHost::RegisterEffects();
}

PresetSession::~PresetSession() = default;

void PresetSession::OpenStore(const QString& path)
{
    m_store = std::make_unique<UserPresetStore>(path, m_factory);
}

void PresetSession::CloseStore()
{
    m_store.reset();
}

QStringList PresetSession::Load(const QStringList& catalogueFiles,
                                const Zorvik::Brassel::ConstSerializerPtr& userData)
{
    const auto stored = m_store ? m_store->Load() : userData;
    CatalogueParser parser(PresetControllerFactory::GetKinds());
    QStringList unusable;
    for (const QString& file : catalogueFiles)
        if (!parser.AddFile(file))
            unusable.append(file);
    parser.Parse(*m_model, stored);
    if (m_store)
        m_store->Remember(*m_model);
    m_reports = parser.GetReports();
    return unusable;
}

void PresetSession::OpenPhoto(const Image& photo)
{
    m_workspace->GetDrawer().SetPhoto(photo);
    m_model->DiscardUserChanges();
    m_model->SetWorkspaceController(m_workspace);
}

void PresetSession::ClosePhoto()
{
    OpenPhoto(Image());
}

} // namespace LumetraPlugin
