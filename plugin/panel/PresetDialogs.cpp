// SPDX-License-Identifier: GPL-2.0-or-later
// What the commands ask the user.
#include "LumetraEditor/IEditor.h"
#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"
#include "panel/PresetCommands.h"
#include "panel/RemoveCommand.h"
#include "widgets/NewPresetDialog.h"

#include <QLineEdit>
#include <QWidget>

namespace LumetraPlugin {
namespace {

using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;
using Zorvik::Util::AlertBox;

/// "Soft Light 2" when "Soft Light" is taken.
QString FreeName(const QString& name, const QStringList& taken)
{
    QString candidate = name;
    for (int i = 2; taken.contains(candidate); ++i)
        candidate = QStringLiteral("%1 %2").arg(name).arg(i);
    return candidate;
}

} // namespace

/// Empty when the user wants none.
QString PresetCommands::AskName(const QModelIndex& preset, bool isNew)
{
    const QStringList taken = GetModel().GetUserPresetNames();
    const QString old = preset.data(PresetModel::PresetNameRole).toString();
    NewPresetDialog dialog(taken, isNew ? NewPresetDialog::Create : NewPresetDialog::Rename,
                           &m_window);
    auto* edit = dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    edit->setAccessibleName(tr("Name of the preset"));
    if (isNew)
        edit->setText(FreeName(old, taken));
    else
        dialog.SetName(old);
    edit->selectAll();
    edit->setFocus();
    return dialog.exec() == QDialog::Accepted ? dialog.GetName() : QString();
}

bool PresetCommands::AskRemoval(const QString& name)
{
    AlertBox box(AlertBox::Level::Warning, QString(), tr("Delete the preset \"%1\"?").arg(name),
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window,
                 Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Yes}, QMessageBox::Cancel);
    return box.Exec() == QMessageBox::Yes;
}

void PresetCommands::Remove(const QModelIndex& preset)
{
    const auto removed = GetModel().GetPreset(preset);
    if (!removed || !IsUsers(preset))
        return;
    const QString name = preset.data(PresetModel::PresetNameRole).toString();
    if (!AskRemoval(name))
        return;
    if (removed->IsApplied())
        Discard(); // else its look would stay on the photo with nothing to change it by
    const int row = GetModel().FindPreset(*removed).row();
    m_editor.PushUndo(new RemoveCommand(*this, removed, row, tr("Delete \"%1\"").arg(name)));
}

} // namespace LumetraPlugin
