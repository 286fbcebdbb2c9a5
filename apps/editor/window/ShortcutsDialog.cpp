// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/ShortcutsDialog.h"

#include "window/EditorActions.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace LumetraEditor {

ShortcutsDialog::ShortcutsDialog(const EditorActions& actions, QWidget* parent)
    : QDialog(parent), m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("shortcutsDialog"));
    setWindowTitle(tr("Keyboard Shortcuts"));
    m_list->setAccessibleName(tr("Keyboard Shortcuts"));
    m_list->setColumnCount(2);
    m_list->setHeaderLabels({tr("Command"), tr("Keys")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    AddCommands(actions);
    AddPhotoKeys();
    m_list->header()->setSectionResizeMode(QHeaderView::ResizeToContents);

    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(16);
    column->addWidget(m_list);
    column->addWidget(buttons);
    resize(600, 640);
}

void ShortcutsDialog::AddRow(const QString& text, const QString& keys)
{
    new QTreeWidgetItem(m_list, {text, keys});
}

void ShortcutsDialog::AddCommands(const EditorActions& actions)
{
    for (const QAction* const action : actions.GetKeyed()) {
        QString text = action->text();
        AddRow(text.remove(QLatin1Char('&')).remove(QStringLiteral("…")),
               QKeySequence::listToString(action->shortcuts(), QKeySequence::NativeText)
                   .replace(QStringLiteral("; "), QStringLiteral(", ")));
    }
}

void ShortcutsDialog::AddPhotoKeys()
{
    AddRow(tr("Photo: hold to see the original"), tr("Space, \\"));
    AddRow(tr("Photo: move"), tr("Arrow keys"));
    AddRow(tr("Photo: zoom"), tr("+, -, 0 (fit), 1 (actual size)"));
    AddRow(tr("Photo: move the line of the split view"), tr("Alt+Left, Alt+Right"));
    AddRow(tr("Message: close"), tr("Esc"));
}

} // namespace LumetraEditor
