// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "edits/PanelEdit.h"
#include "plugins/CallDepth.h"
#include "plugins/Failure.h"
#include "plugins/PluginLoader.h"
#include "plugins/RetiredPanel.h"

#include <QObject>

#include <optional>

namespace LumetraEditor {

/// The boundary between the editor and the panel of one module. All calls into the module and all
/// its requests to the editor go through here. No exception passes: the panel that throws one, of
/// whatever type, is put out of use. It is then not called any more, its requests are ignored, and
/// all its objects are deleted as soon as none of its code runs. A destructor that throws cannot be
/// stopped from ending the program.
class GuardedPanel : public QObject, private IEditor
{
    Q_OBJECT

public:
    /// `editor` is kept by reference and outlives the panel. `workspace` is the one that the module
    /// gets.
    GuardedPanel(const LoadedPlugin& plugin, IEditor& editor,
                 std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> workspace);
    ~GuardedPanel() override;

    /// Makes the panel. Where that fails the panel is out of use from the beginning.
    void Create();

    const QString& GetId() const { return m_plugin.id; }
    /// The title that the module has last given; its id before the first one.
    QString GetTitle() const { return m_title.isEmpty() ? m_plugin.id : m_title; }
    /// Asks for the title again, for example in another language.
    void UpdateTitle();
    bool IsUsable() const { return m_isUsable; }
    /// Null when the panel is out of use.
    QWidget* GetWidget() const { return m_isUsable ? m_parts.widget.data() : nullptr; }

    void PhotoChanged();
    void PreviewReady(const QString& key);
    /// The panel's edit; nothing when the panel is out of use, or is now because it has failed or
    /// has given what no edit can hold.
    std::optional<LumetraHost::PanelEdit> SaveEdit();
    void RestoreEdit(const LumetraHost::PanelEdit& edit);
    /// True when the panel is out of use, or is now.
    bool MayEnd();
    void PackagesCommitted();
    /// Gives the look to the panel: why it is not kept, or empty. Nothing when the panel keeps no
    /// looks.
    std::optional<QString> KeepLook(const NewLook& look);
    bool KeepsLooks();
    /// The name of a look that the panel keeps; empty when it keeps none of that id.
    QString FindKeptLook(const QString& id);
    /// The name, in the user's language, of a look that the panel knows; else empty.
    QString FindShownName(const QString& id);
    /// Why the look has not got the effects; empty when it has.
    QString UpdateKeptLook(const QString& id, const Zorvik::Quindle::EffectsSettings& settings);

    /// Runs a call into the module, unless it is out of use.
    template <class Call>
    void Guard(const Call& call);
    /// True when `object`, which is compared only, is among the objects of the panel, in use or
    /// not.
    bool Owns(const QObject* object) const;
    /// `reason` is a part of a sentence.
    void PutOutOfUse(const QString& reason);

signals:
    /// A sentence that names the module.
    void failed(const QString& message);
    /// The panel must not be shown any more. `widget` is null when the module has deleted it.
    void putOutOfUse(QWidget* widget);
    /// The module reports something about itself while its panel is made.
    void noticeGiven(const QString& message);

private:
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() override
    {
        return m_workspace;
    }
    QString GetPhotoPath() const override { return m_editor.GetPhotoPath(); }
    void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings) override;
    Zorvik::Proc::Frame RequestPreview(const QString& key, const Zorvik::Proc::FrameTarget& target,
                                       const Zorvik::Quindle::EffectsSettings& settings,
                                       int cropPolicy, int fitPolicy, unsigned flags) override;
    void CancelPreviews() override;
    void NoteEdit(const QString& text) override;
    void PushUndo(QUndoCommand* command) override;
    void ShowMessage(const QString& text) override;
    void ShowBriefly(const QString& text) override;
    std::vector<EditorLayer> GetLayers() const override { return m_editor.GetLayers(); }
    QString StoreLook(const NewLook& look) override;
    QString FindLookName(const QString& id) const override;
    QString UpdateLook(const QString& id,
                       const Zorvik::Quindle::EffectsSettings& settings) override;
    std::vector<EffectDescription> DescribeEffects() const override
    {
        return m_editor.DescribeEffects();
    }

    /// Runs a request to the editor; does nothing while the panel is only being made.
    template <class Call>
    void GuardPanel(const Call& call);
    void TakeWidget(QWidget* widget);
    QString MakeMessage(const QString& reason) const;

    LoadedPlugin m_plugin;
    IEditor& m_editor;
    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> m_workspace;
    QString m_title;
    PanelParts m_parts;
    QPointer<RetiredPanel> m_retired;
    bool m_isUsable = true;
    bool m_isMade = false;
    bool m_isSaving = false;
};

template <class Call>
void GuardedPanel::Guard(const Call& call)
{
    if (!m_isUsable)
        return;
    const CallDepth depth;
    try {
        call();
    } catch (...) {
        PutOutOfUse(Failure::Describe());
    }
}

template <class Call>
void GuardedPanel::GuardPanel(const Call& call)
{
    Guard([this, &call] {
        if (m_parts.panel)
            call(*m_parts.panel);
    });
}

} // namespace LumetraEditor
