// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QPushButton;

namespace LumetraEditor {

class EditorSettings;

/// A part of the side panel below a header that folds and unfolds it. What the user has chosen is
/// remembered. A section that has no room is folded for that time, which changes no choice.
class FoldingSection : public QWidget
{
    Q_OBJECT

public:
    /// The choice is kept under `key` in the settings, which are kept by reference. Takes the
    /// content as a child.
    FoldingSection(EditorSettings& settings, const QString& key, QWidget* content,
                   QWidget* parent = nullptr);

    void SetTitle(const QString& title);
    bool IsOpen() const;
    /// Unfolds or folds it as a click on the header does.
    void SetOpen(bool isOpen);
    /// False: the section is folded until the user unfolds it, or until there is room again.
    void SetHasRoom(bool hasRoom);

private:
    void ShowContent(bool isShown);

    EditorSettings& m_settings;
    QString m_key;
    QPushButton* m_header;
    QWidget* m_content;
    bool m_hasRoom = true;
};

} // namespace LumetraEditor
