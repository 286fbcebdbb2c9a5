// SPDX-License-Identifier: GPL-2.0-or-later
// What the commands ask the user.
#include "LumetraEditor/IEditor.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"
#include "catalogue/VisibleText.h"
#include "core/PresetCollection.h"
#include "core/PresetImport.h"
#include "core/PresetNames.h"
#include "lut/LookExport.h"
#include "panel/EffectTexts.h"
#include "panel/PresetCommands.h"
#include "panel/RemoveCommand.h"
#include "storage/CheckedFileWriter.h"
#include "storage/ErrorText.h"
#include "widgets/NewPresetDialog.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QWidget>

namespace LumetraPlugin {
namespace {

constexpr int CubeSize = 33; // points along each axis

using LumetraHost::LookExport;
using LumetraHost::VisibleText;
using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;
using Zorvik::Util::AlertBox;

/// Turns control characters into spaces as soon as they are pasted: no name of a preset has them.
void KeepFreeOfControls(QLineEdit& edit)
{
    QObject::connect(&edit, &QLineEdit::textChanged, &edit, [&edit](const QString& text) {
        if (VisibleText::HasControls(text))
            edit.setText(VisibleText::WithoutControls(text));
    });
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
    KeepFreeOfControls(*edit);
    if (isNew)
        edit->setText(PresetNames::MakeFree(old, taken));
    else
        dialog.SetName(old);
    edit->selectAll();
    edit->setFocus();
    return dialog.exec() == QDialog::Accepted ? dialog.GetName() : QString();
}

bool PresetCommands::AskRemoval(const QString& name)
{
    // The editor's alerts name their Yes after the title where Cancel stands beside it.
    AlertBox box(AlertBox::Level::Warning, tr("Delete"), tr("Delete the preset \"%1\"?").arg(name),
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window,
                 Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
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
    const int row = GetModel().FindPreset(*removed).row();
    m_editor.PushUndo(new RemoveCommand(*this, removed, row, tr("Delete \"%1\"").arg(name)));
}

void PresetCommands::ImportByDialog()
{
    QFileDialog dialog(&m_window, tr("Import looks"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(
        {tr("Looks (%1)")
             .arg(QStringLiteral("*.cube *.3dl *.clf *.cc *.ccc *.cdl *.png *.tif *.tiff *.json")),
         tr("All files (%1)").arg(QStringLiteral("*"))});
    if (dialog.exec() == QDialog::Accepted)
        Import(dialog.selectedFiles());
}

void PresetCommands::Import(const QStringList& paths)
{
    int count = 0;
    QPersistentModelIndex last;
    for (const QString& path : paths) {
        try {
            QStringList problems;
            const auto added = PresetImport::AddTo(m_presets, path, problems);
            count += static_cast<int>(added.size());
            last = added.back();
            for (const QString& problem : problems)
                Tell(problem);
        } catch (const std::exception& error) {
            Tell(LumetraHost::ErrorText::Show(error));
        }
    }
    if (count == 0)
        return;
    Save();
    emit presetsChanged();
    emit presetAdded(last);
    Tell(count == 1 ? tr("Imported \"%1\".").arg(last.data(PresetModel::PresetNameRole).toString())
                    : tr("Imported %1 looks.").arg(count));
}

/// Only what changes colours alone fits into a table.
void PresetCommands::Export(const QModelIndex& preset)
{
    Try([&] { ExportLook(preset); });
}

void PresetCommands::ExportLook(const QModelIndex& preset)
{
    const auto look = GetModel().GetPreset(preset);
    if (!look || !Fetch(preset))
        return;
    const QString name = preset.data(PresetModel::PresetNameRole).toString();
    const auto settings = look->MakeSettings();
    QStringList unfit;
    for (const std::string& effectID : LookExport::FindUnfitEffects(settings))
        unfit.append(EffectTexts::GetEffectName(effectID));
    if (!unfit.isEmpty())
        return Tell(tr("\"%1\" cannot become a .cube file, for it changes more than colours: %2")
                        .arg(name, unfit.join(QStringLiteral(", "))));
    QFileDialog dialog(&m_window, tr("Export \"%1\" as .cube").arg(name));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(QStringLiteral("cube"));
    dialog.setNameFilter(QStringLiteral("*.cube"));
    dialog.selectFile(name + QStringLiteral(".cube"));
    if (dialog.exec() != QDialog::Accepted)
        return;
    const QString path = dialog.selectedFiles().value(0);
    try {
        const auto table = LookExport::MakeTable(settings, CubeSize);
        LumetraHost::CheckedFileWriter::Write(path, LookExport::ToCubeFile(table, name));
        Tell(tr("Wrote \"%1\".").arg(path));
    } catch (const Zorvik::Exception& error) {
        Tell(QString::fromUtf8(error.what()));
    }
}

} // namespace LumetraPlugin
