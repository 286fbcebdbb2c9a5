// SPDX-License-Identifier: GPL-2.0-or-later
#include "many/ManyCommands.h"

#include "actions/EditorActions.h"
#include "edit/EditChanges.h"
#include "many/FollowSwitch.h"
#include "many/ManyProgress.h"
#include "many/ManyTexts.h"
#include "many/PasteDialog.h"
#include "session/Editor.h"
#include "settings/EditorSettings.h"

#include <QAction>
#include <QWidget>

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::EditState;

const QString FollowKey = QStringLiteral("many/follow");

} // namespace

ManyCommands::ManyCommands(Editor& editor, EditorActions& actions, EditorSettings& settings,
                           QWidget& window)
    : QObject(&window), m_editor(editor), m_actions(actions), m_settings(settings),
      m_window(window), m_progress(new ManyProgress(editor.GetManySteps().GetEdits(), &window)),
      m_follow(new FollowSwitch(&window))
{
    m_follow->setChecked(m_settings.Get(FollowKey, true).toBool());
    m_editor.SetFollowers([this] { return GetFollowers(); });
    Connect();
    Update();
}

ManyCommands::~ManyCommands()
{
    m_editor.SetFollowers({});
}

void ManyCommands::Connect()
{
    const auto on = [this](QAction* action, void (ManyCommands::*operation)()) {
        connect(action, &QAction::triggered, this, operation);
    };
    on(m_actions.copyEdit, &ManyCommands::Copy);
    on(m_actions.pasteEdit, &ManyCommands::Paste);
    on(m_actions.pasteParts, &ManyCommands::PasteParts);
    on(m_actions.putLook, &ManyCommands::PutLook);
    on(m_actions.revert, &ManyCommands::Revert);
    connect(&m_editor, &Editor::photoChanged, this, [this] {
        m_progress->Clear();
        Update();
    });
    // By then the photo has the edit of its file, which is no step.
    connect(&m_editor, &Editor::openingEnded, this, &ManyCommands::Update);
    connect(&m_editor.GetUndoStack(), &QUndoStack::indexChanged, this, &ManyCommands::Update);
    connect(&m_editor, &Editor::layersChanged, this, &ManyCommands::Update);
    connect(&m_editor.GetManySteps(), &ManySteps::ended, this, &ManyCommands::ShowEnd);
    connect(m_follow, &FollowSwitch::toggled, this,
            [this](bool isOn) { m_settings.Set(FollowKey, isOn); });
}

QWidget& ManyCommands::GetProgress()
{
    return *m_progress;
}

QWidget& ManyCommands::GetFollowSwitch()
{
    return *m_follow;
}

void ManyCommands::SetSelection(const QStringList& photos)
{
    m_selection = photos;
    Update();
}

QStringList ManyCommands::GetTargets() const
{
    if (m_selection.isEmpty() && m_editor.HasPhoto())
        return {m_editor.GetPhotoPath()};
    return m_selection;
}

QStringList ManyCommands::GetFollowers() const
{
    return m_selection.size() > 1 && m_follow->isChecked() ? m_selection : QStringList();
}

void ManyCommands::Copy()
{
    m_copied = m_editor.GetEdit();
    Update();
}

void ManyCommands::Paste()
{
    if (!m_copied)
        return;
    const auto paste = [copied = *m_copied](const EditState& edit) {
        return EditChanges::Replace(edit, copied, EditParts());
    };
    m_editor.GetManySteps().Change(tr("Paste edit"), GetTargets(), paste);
}

void ManyCommands::PasteParts()
{
    if (!m_copied)
        return;
    const QStringList targets = GetTargets();
    const auto nameLayer = [this](const LumetraHost::EditLayer& layer) {
        return m_editor.FindShownName(layer);
    };
    PasteDialog dialog(*m_copied, m_editor.GetModules(), nameLayer, targets.size(), m_settings,
                       &m_window);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const auto paste = [copied = *m_copied, parts = dialog.GetParts(),
                        isOnTop = dialog.IsOnTop()](const EditState& edit) {
        return isOnTop ? EditChanges::AddOnTop(edit, copied, parts)
                       : EditChanges::Replace(edit, copied, parts);
    };
    m_editor.GetManySteps().Change(tr("Paste edit"), targets, paste);
}

void ManyCommands::PutLook()
{
    const EditParts looks{{m_editor.FindLookModule()}, true};
    const auto put = [edit = m_editor.GetEdit(), looks](const EditState& other) {
        return EditChanges::Replace(other, edit, looks);
    };
    m_editor.GetManySteps().Change(tr("Put look on photos"), GetTargets(), put);
}

void ManyCommands::Revert()
{
    m_editor.GetManySteps().Change(tr("Revert to original"), GetTargets(),
                                   [](const EditState&) { return EditState(); });
}

/// Tells a notice once: that edits are kept elsewhere holds for all further steps too.
void ManyCommands::ShowEnd(const ManyReport& report)
{
    m_progress->ShowEnd(report);
    m_hasFailed = m_hasFailed || !report.problems.isEmpty();
    ManyReport news = report;
    for (const QString& notice : m_toldNotices)
        news.notices.removeAll(notice);
    m_toldNotices += news.notices;
    if (HasMoreToTell(news))
        emit told(DescribeReport(news));
}

bool ManyCommands::MayEnd()
{
    ManyEdits& edits = m_editor.GetManySteps().GetEdits();
    if (!edits.IsRunning())
        return true;
    m_hasFailed = false;
    const LateChanges answer = AskForLateChanges(&m_window);
    if (answer == LateChanges::GiveUp)
        edits.Cancel();
    if (answer != LateChanges::Stay)
        edits.WaitForAll();
    return answer == LateChanges::GiveUp || (answer == LateChanges::Finish && !m_hasFailed);
}

/// Asks no panel, as this may follow many events.
void ManyCommands::Update()
{
    const auto layers = m_editor.GetLayers();
    const QString looks = m_editor.FindLookModule();
    const bool hasLook =
        std::any_of(layers.begin(), layers.end(),
                    [&looks](const EditorLayer& layer) { return layer.module == looks; });
    const int count = GetTargets().size();
    m_actions.SetTargets(count);
    m_actions.copyEdit->setEnabled(!layers.empty());
    m_actions.pasteEdit->setEnabled(m_copied && count > 0);
    m_actions.pasteParts->setEnabled(m_copied && count > 0);
    m_actions.putLook->setEnabled(count > 1 && hasLook);
    m_actions.revert->setEnabled(count > 1 || !layers.empty());
    m_follow->SetCount(m_selection.size());
}

} // namespace LumetraEditor
