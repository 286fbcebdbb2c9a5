// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Core/Property.h"

#include <QStringList>
#include <QUndoStack>

#include <map>
#include <optional>

namespace LumetraHost {
class Image;
class WorkspaceController;
} // namespace LumetraHost

namespace LumetraEditor {
class IEditorPanel;
}

namespace LumetraTest {

/// The smallest editor that a panel can work with: the reference workspace, no window. It notes the
/// panel's requests; previews are rendered when the test says so.
class TestEditor : public LumetraEditor::IEditor
{
public:
    TestEditor();
    virtual ~TestEditor();

    LumetraHost::WorkspaceController& GetHostWorkspace() { return *m_workspace; }
    /// The panel whose edits are kept; null: none are.
    void SetPanel(LumetraEditor::IEditorPanel* panel) { m_panel = panel; }
    /// Opens a photo and tells the panel.
    void OpenPhoto(const LumetraHost::Image& photo);
    LumetraHost::Image GetResult();

    /// Renders all queued previews and tells the panel; returns their keys, as they were asked for.
    QStringList RenderPreviews();
    const QStringList& GetQueue() const { return m_queue; }
    /// Forgets what has been rendered, as an editor does that is short of memory.
    void ForgetPreviews() { m_rendered.clear(); }

    // Messages of the panel.
    QString photoPath = QStringLiteral("photo.jpg");
    QStringList messages;
    QStringList briefMessages; ///< those that leave by themselves
    QStringList steps;
    std::vector<Zorvik::Core::Property::Ptr> edits;
    std::optional<Zorvik::Quindle::EffectsSettings> shown; ///< on the photo, without applying
    int shownCount = 0;
    QUndoStack undoStack;

    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() override;
    QString GetPhotoPath() const override;
    void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings) override;
    Zorvik::Proc::Frame RequestPreview(const QString& key, const Zorvik::Proc::FrameTarget& target,
                                       const Zorvik::Quindle::EffectsSettings& settings,
                                       int cropPolicy, int fitPolicy, unsigned flags) override;
    void CancelPreviews() override;
    void NoteEdit(const QString& text) override;
    void PushUndo(QUndoCommand* command) override;
    void ShowMessage(const QString& text) override;
    void ShowBriefly(const QString& text) override
    {
        messages.append(text);
        briefMessages.append(text);
    }
    std::vector<LumetraEditor::EditorLayer> GetLayers() const override { return {}; }
    QString StoreLook(const LumetraEditor::NewLook&) override { return {}; }
    QString FindLookName(const QString&) const override { return {}; }
    QString UpdateLook(const QString&, const Zorvik::Quindle::EffectsSettings&) override
    {
        return {};
    }
    std::vector<LumetraEditor::EffectDescription> DescribeEffects() const override { return {}; }

private:
    struct Request
    {
        Zorvik::Proc::FrameTarget target;
        Zorvik::Quindle::EffectsSettings settings{1};
        int cropPolicy = 1;
        int fitPolicy = 0;
        unsigned flags = 0;
    };

    std::shared_ptr<LumetraHost::WorkspaceController> m_workspace;
    LumetraEditor::IEditorPanel* m_panel = nullptr;
    QStringList m_queue;
    std::map<QString, Request> m_requests;
    std::map<QString, Zorvik::Proc::Frame> m_rendered;
};

} // namespace LumetraTest
