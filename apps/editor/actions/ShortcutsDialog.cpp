// SPDX-License-Identifier: GPL-2.0-or-later
#include "actions/ShortcutsDialog.h"

#include "actions/EditorActions.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHash>
#include <QHeaderView>
#include <QLabel>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace LumetraEditor {

ShortcutsDialog::ShortcutsDialog(const EditorActions& actions, QWidget* parent)
    : QDialog(parent), m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("shortcutsDialog"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_list->setObjectName(QStringLiteral("shortcutsList"));
    m_list->setAccessibleName(tr("Keyboard Shortcuts"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({tr("Command"), tr("Keys")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    AddCommands(actions);
    AddPhotoKeys();
    AddStripKeys();
    AddLayerKeys();
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(16);
    column->addWidget(m_list);
    auto* const note = new QLabel(
        tr("A field in which text is typed keeps the keys that type and edit it."), this);
    note->setWordWrap(true);
    column->addWidget(note);
    column->addWidget(buttons);
    resize(600, 640);
}

void ShortcutsDialog::AddSection(const QString& title)
{
    auto* const section = new QTreeWidgetItem(m_list, {title});
    section->setFlags(Qt::ItemIsEnabled);
    section->setFirstColumnSpanned(true);
    QFont font = m_list->font();
    font.setBold(true);
    section->setFont(0, font);
}

void ShortcutsDialog::AddRow(const QString& text, const QString& keys)
{
    new QTreeWidgetItem(m_list, {text, keys});
}

void ShortcutsDialog::AddRow(const QString& text, const QList<QKeySequence>& keys)
{
    QStringList texts;
    for (const QKeySequence& key : keys)
        texts.append(key.toString(QKeySequence::NativeText));
    AddRow(QString(text).remove(QLatin1Char('&')).remove(QStringLiteral("…")).trimmed(),
           texts.join(QStringLiteral(", ")));
}

void ShortcutsDialog::AddCommands(const EditorActions& actions)
{
    AddSection(tr("Window"));
    for (const QAction* const action : actions.GetKeyed())
        AddRow(action->iconText(), action->shortcuts());
    AddRow(tr("See the original"), tr("\\ held"));
    AddRow(tr("Zoom in, out, fit, 100 %, 200 %, 400 %"), QStringLiteral("+, -, 0, 1, 2, 4"));
    AddRow(tr("Move the line of the split view"), tr("Alt+Left, Alt+Right"));
    AddRow(tr("Close a message that has the focus"), tr("Esc"));
    AddRow(tr("Leave full screen"), tr("Esc"));
}

void ShortcutsDialog::AddPhotoKeys()
{
    AddSection(tr("Photo, while it has the focus"));
    AddRow(tr("See the original"), tr("Space held"));
    AddRow(tr("Move"), tr("Arrow keys"));
}

void ShortcutsDialog::AddStripKeys()
{
    AddSection(tr("Photo strip, while it has the focus"));
    AddRow(tr("Open another photo"), tr("Left, Right, Page Up, Page Down, Home, End"));
    AddRow(tr("Select up to there"), tr("Shift with these keys"));
    AddRow(tr("Select only the current photo"), tr("Esc"));
}

void ShortcutsDialog::AddLayerKeys()
{
    const auto text = [](const QKeySequence& key) {
        return key.toString(QKeySequence::NativeText);
    };
    AddSection(tr("List of what is on the photo, while it has the focus"));
    AddRow(tr("Open a layer again"), text(Qt::Key_Return));
    AddRow(tr("Switch a layer off or on"), text(Qt::Key_Space));
    AddRow(tr("Move a layer up, down"),
           QStringLiteral("%1, %2").arg(text(Qt::ALT + Qt::Key_Up), text(Qt::ALT + Qt::Key_Down)));
    AddRow(tr("Take a layer away"), text(Qt::Key_Delete));
}

void ShortcutsDialog::AddPanel(const QString& title, const QWidget& panel)
{
    AddSection(title);
    for (const QAction* const action : panel.actions())
        if (!action->shortcut().isEmpty())
            AddRow(action->text(), action->shortcuts());
    AddShortcuts(panel);
}

void ShortcutsDialog::AddShortcuts(const QWidget& panel)
{
    QStringList texts;
    QHash<QString, QStringList> keys;
    for (const QShortcut* const shortcut : panel.findChildren<QShortcut*>()) {
        const QString text = shortcut->whatsThis();
        if (!text.isEmpty() && !keys.contains(text))
            texts.append(text);
        keys[text].append(shortcut->key().toString(QKeySequence::NativeText));
    }
    for (const QString& text : texts)
        AddRow(text, keys[text].size() > 2
                         ? tr("%1 to %2").arg(keys[text].first(), keys[text].last())
                         : keys[text].join(QStringLiteral(", ")));
}

} // namespace LumetraEditor
