// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/ModulesDialog.h"

#include "plugins/PluginLoader.h"
#include "settings/EditorSettings.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QTreeWidget>
#include <QVBoxLayout>

namespace LumetraEditor {
namespace {

enum Column
{
    NameColumn,
    VersionColumn,
    StateColumn,
    FolderColumn,
    ColumnCount
};

} // namespace

ModulesDialog::ModulesDialog(const std::vector<FoundModule>& modules, EditorSettings& settings,
                             const std::function<bool(const QString& id)>& isInUse, QWidget* parent)
    : QDialog(parent), m_settings(settings), m_list(new QTreeWidget(this))
{
    setObjectName(QStringLiteral("modulesDialog"));
    setWindowTitle(tr("Modules"));
    m_list->setObjectName(QStringLiteral("modulesList"));
    m_list->setAccessibleName(tr("Modules"));
    m_list->setColumnCount(ColumnCount);
    m_list->setHeaderLabels({tr("Module"), tr("Version"), tr("State"), tr("Folder")});
    m_list->setRootIsDecorated(false);
    m_list->setTextElideMode(Qt::ElideMiddle);
    for (const FoundModule& module : modules) {
        const bool hasFailed = module.isLoaded && !isInUse(module.id);
        AddRow(module, hasFailed         ? tr("put out of use, since it failed")
                       : module.isLoaded ? tr("loaded")
                                         : module.reason);
    }
    m_list->header()->setSectionResizeMode(VersionColumn, QHeaderView::ResizeToContents);
    m_list->setColumnWidth(NameColumn, 180);
    m_list->setColumnWidth(StateColumn, 240);
    connect(m_list, &QTreeWidget::itemChanged, this, &ModulesDialog::Save);

    auto* const note = new QLabel(tr("A module that is ticked is loaded when the editor starts the "
                                     "next time. Its part of an edit stays in the edit's file."),
                                  this);
    note->setWordWrap(true);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(16);
    column->addWidget(m_list);
    column->addWidget(note);
    column->addWidget(buttons);
    resize(720, 360);
}

void ModulesDialog::AddRow(const FoundModule& module, const QString& state)
{
    const bool isFirst = m_list->findItems(module.id, Qt::MatchExactly, NameColumn).isEmpty();
    const QString folder = QDir::toNativeSeparators(QFileInfo(module.path).path());
    auto* const row = new QTreeWidgetItem(m_list, {module.id, module.version, state, folder});
    row->setToolTip(StateColumn, state);
    row->setToolTip(FolderColumn, QDir::toNativeSeparators(module.path));
    if (!isFirst) // One tick is for all modules of that name.
        return;
    const bool isOff = m_settings.GetModulesOff().contains(module.id);
    row->setCheckState(NameColumn, isOff ? Qt::Unchecked : Qt::Checked);
}

/// Modules that were not found this time stay as they are.
void ModulesDialog::Save()
{
    QStringList off = m_settings.GetModulesOff();
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        const QTreeWidgetItem* const row = m_list->topLevelItem(i);
        const QVariant tick = row->data(NameColumn, Qt::CheckStateRole);
        if (!tick.isValid())
            continue;
        off.removeAll(row->text(NameColumn));
        if (tick.toInt() == Qt::Unchecked)
            off.append(row->text(NameColumn));
    }
    m_settings.SetModulesOff(off);
}

} // namespace LumetraEditor
