// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edits/EditState.h"

#include <QObject>
#include <QString>
#include <QStringList>

#include <functional>
#include <optional>

class QWidget;

namespace LumetraEditor {

class Editor;
class EditorActions;
class EditorSettings;
class FollowSwitch;
class ManyProgress;
struct ManyReport;

/// The commands on the selected photos: copying and pasting an edit, putting the shown photo's look
/// on the others, and taking edits off. While several photos are selected, steps in the panels go
/// to all of them, unless the user has switched that off.
class ManyCommands : public QObject
{
    Q_OBJECT

public:
    /// All are kept by reference. `window` is the parent of dialogs.
    ManyCommands(Editor& editor, EditorActions& actions, EditorSettings& settings, QWidget& window);
    ~ManyCommands() override;

    /// Tells which photos are selected, the one that is shown among them. Without any, the commands
    /// are for the photo that is shown.
    void SetSelection(const QStringList& photos);
    /// The widgets for the status bar and for above the panels, which their places own.
    QWidget& GetProgress();
    QWidget& GetFollowSwitch();
    /// False when changes are not made yet and the user wants to wait for them, or has to read why
    /// the last ones have failed.
    bool MayEnd();

signals:
    /// `message` is for the user; it is about photos that need not be shown.
    void told(const QString& message);

private:
    void Connect();
    QStringList GetTargets() const;
    QStringList GetFollowers() const;
    void Copy();
    void Paste();
    void PasteParts();
    void PutLook();
    void Revert();
    void ShowEnd(const ManyReport& report);
    void Update();

    Editor& m_editor;
    EditorActions& m_actions;
    EditorSettings& m_settings;
    QWidget& m_window;
    QStringList m_selection;
    std::optional<LumetraHost::EditState> m_copied;
    ManyProgress* m_progress;
    FollowSwitch* m_follow;
    QStringList m_toldNotices;
    bool m_hasFailed = false; ///< a step has since the user was last asked
};

} // namespace LumetraEditor
