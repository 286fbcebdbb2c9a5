// SPDX-License-Identifier: GPL-2.0-or-later
#include "TestEditor.h"
#include "host/drawer/DrawnPicture.h"

#include "LumetraEditor/IEditorPlugin.h"
#include "engine/effects/EffectKinds.h"
#include "image/Image.h"
#include "workspace/WorkspaceController.h"

namespace LumetraTest {
namespace {

/// Size and settings of a request as text, to tell requests with one key apart.
QString Signature(const QString& key, const Zorvik::Proc::FrameTarget& target,
                  const Zorvik::Quindle::EffectsSettings& settings)
{
    QString text = QStringLiteral("%1|%2x%3|%4")
                       .arg(key)
                       .arg(target.width)
                       .arg(target.height)
                       .arg(settings.GetBlendAmount());
    for (const auto& effect : settings.EffectsConst()) {
        text += QLatin1Char('|') + QString::fromStdString(effect->GetEffectID());
        for (const char* const name : {"stops", "amount", "temperature", "tint", "rr", "size"})
            if (effect->HasParameter(name))
                text += QLatin1Char(',') + QString::number(effect->GetParameter(name), 'g', 17);
    }
    return text;
}

} // namespace

TestEditor::TestEditor() : m_workspace(std::make_shared<LumetraHost::WorkspaceController>())
{
    LumetraHost::RegisterEffects();
}

TestEditor::~TestEditor() = default;

void TestEditor::OpenPhoto(const LumetraHost::Image& photo)
{
    m_workspace->GetDrawer().SetPhoto(photo);
    m_rendered.clear();
    if (m_panel)
        m_panel->PhotoChanged();
}

LumetraHost::Image TestEditor::GetResult()
{
    return LumetraHost::DrawWhole(m_workspace->GetDrawer());
}

QStringList TestEditor::RenderPreviews()
{
    const QStringList keys = m_queue;
    m_queue.clear();
    for (const QString& key : keys) {
        const Request request = m_requests.at(key);
        const QString signature = Signature(key, request.target, request.settings);
        m_rendered[signature] = m_workspace->GetDrawer().RenderPreview(
            request.target, request.settings, request.cropPolicy, request.fitPolicy, request.flags);
        if (m_panel)
            m_panel->PreviewReady(key);
    }
    return keys;
}

std::shared_ptr<Zorvik::Lumetra::IWorkspaceController> TestEditor::GetWorkspace()
{
    return m_workspace;
}

QString TestEditor::GetPhotoPath() const
{
    return photoPath;
}

void TestEditor::ShowOnPhoto(const Zorvik::Quindle::EffectsSettings* settings)
{
    ++shownCount;
    if (settings)
        shown = *settings;
    else
        shown.reset();
}

Zorvik::Proc::Frame TestEditor::RequestPreview(const QString& key,
                                               const Zorvik::Proc::FrameTarget& target,
                                               const Zorvik::Quindle::EffectsSettings& settings,
                                               int cropPolicy, int fitPolicy, unsigned flags)
{
    const auto found = m_rendered.find(Signature(key, target, settings));
    if (found != m_rendered.end())
        return found->second;
    m_requests.insert_or_assign(key, Request{target, settings, cropPolicy, fitPolicy, flags});
    m_queue.removeAll(key);
    m_queue.append(key);
    return {};
}

void TestEditor::CancelPreviews()
{
    m_queue.clear();
}

void TestEditor::NoteEdit(const QString& text)
{
    steps.append(text);
    if (m_panel)
        edits.push_back(m_panel->SaveEdit());
}

void TestEditor::PushUndo(QUndoCommand* command)
{
    undoStack.push(command);
}

void TestEditor::ShowMessage(const QString& text)
{
    messages.append(text);
}

} // namespace LumetraTest
