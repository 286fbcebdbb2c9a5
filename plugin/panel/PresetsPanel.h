// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"
#include "LumetraEditor/ILookKeeper.h"

#include "panel/grid/ThumbnailSize.h"

#include <QObject>
#include <QPointer>

#include <memory>

namespace LumetraPlugin {

class AppliedEdit;
class HoverPreview;
class PresetCollection;
class PresetCommands;
class PresetsFrame;
class PresetsWidget;
class RecentPresets;
class ThumbnailCache;

/// The files from which a panel reads presets, and in which it keeps the user's.
struct PanelFiles
{
    QStringList catalogues;
    QString store;
    QString recent;             ///< what was used last; may be empty: not kept
    QStringList resources = {}; ///< folders

    /// The places where this program looks for them.
    static PanelFiles Find();
};

/// The presets panel as the editor knows it: joins the presets, the editor and the widgets.
class PresetsPanel : public QObject,
                     public LumetraEditor::IEditorPanel,
                     public LumetraEditor::ILookKeeper
{
    Q_OBJECT

public:
    /// `editor` is kept by reference. Errors in the files are shown to the user.
    PresetsPanel(LumetraEditor::IEditor& editor, const PanelFiles& files);
    ~PresetsPanel() override;

    QWidget* GetWidget() override;
    void PhotoChanged() override;
    void PreviewReady(const QString& key) override;
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    bool MayEnd() override;
    void PackagesCommitted() override;
    LumetraEditor::ILookKeeper* GetLookKeeper() override { return this; }
    QString KeepLook(const LumetraEditor::NewLook& look) override;
    QString FindLookName(const QString& id) const override;
    QString FindShownName(const QString& id) const override;
    QString UpdateLook(const QString& id,
                       const Zorvik::Quindle::EffectsSettings& settings) override;

    PresetCollection& GetPresets() { return *m_presets; }

private slots:
    // Called by the message bus.
    void OnActivatePreset(const QString& id);
    void OnSettingsEnable(bool isEnabled);
    void OnCoreDrawerLock(bool isLocked);

private:
    void Load(const PanelFiles& files);
    void UseEditorsPreviews(ThumbnailSize size);
    void ListenToBus();

    LumetraEditor::IEditor& m_editor;
    std::unique_ptr<PresetCollection> m_presets;
    std::unique_ptr<AppliedEdit> m_edit;
    std::unique_ptr<RecentPresets> m_recent;
    std::unique_ptr<ThumbnailCache> m_thumbnails;
    std::unique_ptr<HoverPreview> m_hover;
    std::unique_ptr<PresetCommands> m_commands;
    QPointer<PresetsFrame> m_frame; // the editor's, once it has been placed
    QPointer<PresetsWidget> m_widget;
    bool m_isNewPhoto = false; ///< the edit that comes next is that of another photo
};

} // namespace LumetraPlugin
