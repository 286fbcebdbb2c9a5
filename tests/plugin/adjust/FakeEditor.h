// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "support/CallLog.h"
#include "support/RecordingWorkspace.h"
#include "support/RegisteredEffects.h"

#include <QStringList>
#include <QUndoCommand>

#include <map>
#include <memory>
#include <vector>

namespace LumetraTest {

/// An editor on the recording workspace, with a photo: it notes what a panel asks of it, and
/// describes four effects: "exposure" (stops), "vignette" (amount, and the size, which only
/// shapes), "toneCurve" with all its points, and "colourGrading" with two ranges.
class FakeEditor : public LumetraEditor::IEditor
{
public:
    FakeEditor();
    virtual ~FakeEditor();

    /// Returns the packages on the photo, painting included, as the recording drawer has them.
    std::vector<std::string> GetShown() { return m_workspace->GetDrawer().GetStack().GetShown(); }
    CallLog& GetLog() { return m_log; }

    QString photoPath = QStringLiteral("lake.jpg");
    QStringList steps;
    QStringList messages;
    std::vector<LumetraEditor::NewLook> looks;
    QString problem; ///< the answer to StoreLook() and UpdateLook()
    std::vector<LumetraEditor::EditorLayer> layers;
    std::map<QString, QString> lookNames;
    std::vector<std::pair<QString, Zorvik::Quindle::EffectsSettings>> updates;

    std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> GetWorkspace() override
    {
        return m_workspace;
    }
    QString GetPhotoPath() const override { return photoPath; }
    void ShowOnPhoto(const Zorvik::Quindle::EffectsSettings*) override {}
    Zorvik::Proc::Frame RequestPreview(const QString&, const Zorvik::Proc::FrameTarget&,
                                       const Zorvik::Quindle::EffectsSettings&, int, int,
                                       unsigned) override
    {
        return {};
    }
    void CancelPreviews() override {}
    void NoteEdit(const QString& text) override { steps.append(text); }
    void PushUndo(QUndoCommand* command) override { delete command; }
    void ShowMessage(const QString& text) override { messages.append(text); }
    void ShowBriefly(const QString& text) override { messages.append(text); }
    std::vector<LumetraEditor::EditorLayer> GetLayers() const override { return layers; }
    QString StoreLook(const LumetraEditor::NewLook& look) override;
    QString FindLookName(const QString& id) const override;
    QString UpdateLook(const QString& id,
                       const Zorvik::Quindle::EffectsSettings& settings) override;
    std::vector<LumetraEditor::EffectDescription> DescribeEffects() const override
    {
        return m_descriptions;
    }

private:
    void Describe(const std::string& effectID, const QString& title,
                  std::vector<LumetraEditor::ParameterDescription> parameters);

    CallLog m_log;
    RegisteredEffects m_effects{m_log};
    std::shared_ptr<RecordingWorkspace> m_workspace;
    std::vector<LumetraEditor::EffectDescription> m_descriptions;
};

} // namespace LumetraTest
