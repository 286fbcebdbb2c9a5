// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/PresetsPanel.h"

#include "EffectPresets/IObjectsConnectorID.h"
#include "LumetraEditor/IEditor.h"
#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "core/CatalogueLocations.h"
#include "core/PresetCollection.h"
#include "core/PresetControllerFactory.h"
#include "core/userstore/UserPresetStore.h"
#include "panel/commands/AppliedEdit.h"
#include "panel/commands/PresetCommands.h"
#include "panel/commands/RecentPresets.h"
#include "panel/grid/HoverPreview.h"
#include "panel/grid/ThumbnailCache.h"
#include "panel/widgets/PresetsFrame.h"
#include "panel/widgets/PresetsWidget.h"

#include <QDir>
#include <QFileInfo>
#include <QLayout>

#include <utility>

namespace LumetraPlugin {

using LumetraHost::CatalogueReport;
using Zorvik::Lumetra::LumetraPresets::IObjectsConnectorID;
using Zorvik::Util::ObjectsConnector;

PanelFiles PanelFiles::Find()
{
    const QString store = UserPresetStore::GetDefaultPath();
    const QDir folder = QFileInfo(store).dir();
    return {CatalogueLocations::FindFiles(), store, folder.filePath(QStringLiteral("panel.ini")),
            CatalogueLocations::GetResourceFolders()};
}

PresetsPanel::PresetsPanel(LumetraEditor::IEditor& editor, const PanelFiles& files)
    : m_editor(editor), m_presets(std::make_unique<PresetCollection>(PresetCollection::PackageName,
                                                                     editor.GetWorkspace())),
      m_edit(std::make_unique<AppliedEdit>(*m_presets, editor.GetWorkspace())),
      m_recent(std::make_unique<RecentPresets>(files.recent)), m_frame(new PresetsFrame)
{
    Load(files);
    UseEditorsPreviews(ThumbnailSize::Medium);
    m_thumbnails = std::make_unique<ThumbnailCache>(m_presets->GetModel());
    m_hover = std::make_unique<HoverPreview>(m_presets->GetModel(), editor);
    m_commands = std::make_unique<PresetCommands>(*m_presets, *m_edit, *m_recent, editor, *m_frame);
    m_commands->SetResourceFolders(files.resources);
    m_commands->SetSettingsFile(files.recent);
    m_presets->StartPhoto();
    m_widget = new PresetsWidget(*m_commands, *m_edit, *m_recent, *m_thumbnails, *m_hover,
                                 PanelChoices(files.recent), *m_frame);
    connect(m_widget, &PresetsWidget::thumbnailSizeChanged, this, [this](ThumbnailSize size) {
        UseEditorsPreviews(size);
        m_thumbnails->Clear();
    });
    m_frame->layout()->addWidget(m_widget);
    connect(m_frame, &PresetsFrame::looksDropped, m_commands.get(), &PresetCommands::Import);
    ListenToBus();
}

/// Deletes the views first, since they use the model; a frame that has been placed is the editor's.
PresetsPanel::~PresetsPanel()
{
    delete m_widget;
    if (m_frame && !m_frame->parent())
        delete m_frame;
}

void PresetsPanel::Load(const PanelFiles& files)
{
    QStringList problems;
    m_presets->LoadWithStore(files.catalogues, files.store, problems);
    for (const CatalogueReport& report : m_presets->GetReports())
        if (report.severity == CatalogueReport::Severity::Error)
            problems.append(QString::fromStdString(report.ToText()));
    for (const QString& problem : problems)
        m_editor.ShowMessage(problem);
}

/// Lets the editor render thumbnails, away from this thread.
void PresetsPanel::UseEditorsPreviews(ThumbnailSize size)
{
    PreviewOptions options;
    options.size = ThumbnailShape::Of(size).picture * m_frame->devicePixelRatioF();
    options.isDraft = false; // nobody waits for it
    options.render = [this](const std::string& key, const Zorvik::Proc::FrameTarget& target,
                            const Zorvik::Quindle::EffectsSettings& settings,
                            const LumetraHost::PreviewPolicies& policies) {
        return m_editor.RequestPreview(QString::fromStdString(key), target, settings, policies.crop,
                                       policies.fit, policies.flags);
    };
    m_presets->GetFactory().SetPreviewOptions(options);
}

void PresetsPanel::ListenToBus()
{
    const auto listen = [this](const QString& channel, const char* slot) {
        ObjectsConnector::registerReceiver(channel, this, QString::fromLatin1(slot), false);
    };
    listen(IObjectsConnectorID::ACTIVATE_PRESET, "1OnActivatePreset(QString)");
    listen(IObjectsConnectorID::SETTINGS_ENABLE, "1OnSettingsEnable(bool)");
    listen(Zorvik::Lumetra::LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK,
           "1OnCoreDrawerLock(bool)");
}

QWidget* PresetsPanel::GetWidget()
{
    return m_frame;
}

void PresetsPanel::PhotoChanged()
{
    m_hover->End();
    m_isNewPhoto = true;
    m_editor.CancelPreviews();
    m_edit->ForgetStray();
    m_presets->StartPhoto();
    m_thumbnails->Clear();
    m_commands->RememberEdit();
}

void PresetsPanel::PreviewReady(const QString& key)
{
    if (key.isEmpty())
        m_thumbnails->MarkAllOld();
    else
        m_thumbnails->SetReady(key);
}

Zorvik::Core::Property::Ptr PresetsPanel::SaveEdit() const
{
    return m_edit->Save();
}

void PresetsPanel::RestoreEdit(const Zorvik::Core::Property::Ptr& edit)
{
    m_hover->End();
    for (const QString& report : m_edit->Restore(edit))
        m_editor.ShowMessage(report);
    m_thumbnails->MarkAllOld();
    m_commands->RememberEdit();
    if (!m_widget)
        return;
    if (std::exchange(m_isNewPhoto, false))
        m_widget->RevealApplied();
    else
        m_widget->ShowApplied();
}

bool PresetsPanel::MayEnd()
{
    return m_commands->SaveOrAsk();
}

void PresetsPanel::PackagesCommitted()
{
    m_hover->End();
    m_commands->TakeForCommitted();
}

QString PresetsPanel::KeepLook(const LumetraEditor::NewLook& look)
{
    return m_commands->Keep(look);
}

QString PresetsPanel::FindLookName(const QString& id) const
{
    return m_commands->FindUsersName(id);
}

QString PresetsPanel::FindShownName(const QString& id) const
{
    return m_presets->GetModel().FindId(id).data(PresetModel::ShownNameRole).toString();
}

QString PresetsPanel::UpdateLook(const QString& id,
                                 const Zorvik::Quindle::EffectsSettings& settings)
{
    return m_commands->Update(id, settings);
}

void PresetsPanel::OnActivatePreset(const QString& id)
{
    m_commands->ApplyId(id);
}

void PresetsPanel::OnSettingsEnable(bool isEnabled)
{
    m_hover->End();
    if (m_frame)
        m_frame->setEnabled(isEnabled);
}

void PresetsPanel::OnCoreDrawerLock(bool isLocked)
{
    ObjectsConnector::sendMessage(IObjectsConnectorID::SETTINGS_ENABLE, {!isLocked});
}

} // namespace LumetraPlugin
