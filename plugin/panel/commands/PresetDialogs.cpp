// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/PresetDialogs.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"
#include "catalogue/VisibleText.h"
#include "core/PresetNames.h"
#include "core/looks/LookFormat.h"
#include "panel/commands/NameCounter.h"
#include "widgets/NewPresetDialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

namespace LumetraPlugin {
namespace {

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

/// The library's dialog speaks of presets; users of this program know them as looks.
void SetCaption(NewPresetDialog& dialog, const QString& caption)
{
    dialog.findChild<QLabel*>(QStringLiteral("captionLabel"))->setText(caption);
    dialog.setWindowTitle(caption);
}

QLineEdit& PrepareEdit(NewPresetDialog& dialog, const QString& accessibleName)
{
    auto& edit = *dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    edit.setAccessibleName(accessibleName);
    KeepFreeOfControls(edit);
    auto* const label = dialog.findChild<QLabel*>(QStringLiteral("label"));
    auto* const column = dialog.findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    auto* const row = new QHBoxLayout;
    column->insertLayout(column->indexOf(label), row);
    column->removeWidget(label);
    row->addWidget(label, 1);
    row->addWidget(new NameCounter(edit, PresetNames::MaxLength, &dialog));
    return edit;
}

/// The first few of the names, as a sentence lists them.
QString ListFirst(const QStringList& names)
{
    constexpr int MostShown = 5;
    QStringList list = names.mid(0, MostShown);
    if (names.size() > MostShown)
        list.append(QStringLiteral("…"));
    return list.join(QStringLiteral(", "));
}

QString Ask(NewPresetDialog& dialog, QLineEdit& edit)
{
    edit.selectAll();
    edit.setFocus();
    return dialog.exec() == QDialog::Accepted ? dialog.GetName() : QString();
}

} // namespace

QString PresetDialogs::AskNewName(const QString& proposed, const QStringList& taken) const
{
    NewPresetDialog dialog(taken, NewPresetDialog::Create, &m_window);
    SetCaption(dialog, tr("New look"));
    QLineEdit& edit = PrepareEdit(dialog, tr("Name of the look"));
    edit.setText(proposed);
    return Ask(dialog, edit);
}

QString PresetDialogs::AskOtherName(const QString& old, const QString& proposed,
                                    const QStringList& taken) const
{
    NewPresetDialog dialog(taken, NewPresetDialog::Rename, &m_window);
    SetCaption(dialog, tr("Rename look"));
    QLineEdit& edit = PrepareEdit(dialog, tr("Name of the look"));
    dialog.SetName(old);
    edit.setText(proposed);
    return Ask(dialog, edit);
}

bool PresetDialogs::AskSameName(const QString& name, const QString& group) const
{
    const QString text =
        tr("There is a look “%1” already, in the group “%2”.\n\n"
           "Use This Name gives it to your look, too,\nCancel goes back to the name.")
            .arg(VisibleText::Make(name), group);
    QWidget* const asking = QApplication::activeModalWidget();
    AlertBox box(AlertBox::Level::Information, tr("Use This Name"), text,
                 QMessageBox::Yes | QMessageBox::Cancel, asking ? asking : &m_window,
                 Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    return box.Exec() == QMessageBox::Yes;
}

bool PresetDialogs::AskRemoval(const QString& name) const
{
    // The editor's alerts give Yes the title for its text where Cancel stands beside it.
    AlertBox box(AlertBox::Level::Warning, tr("Delete"), tr("Delete the look “%1”?").arg(name),
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window,
                 Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    return box.Exec() == QMessageBox::Yes;
}

PresetDialogs::Unsaved PresetDialogs::AskAboutUnsaved(const QString& problem,
                                                      bool canTryAgain) const
{
    const QString choice = canTryAgain ? tr("Retry saves them again,\nDiscard quits without them.")
                                       : tr("Discard quits without them.");
    const QMessageBox::StandardButtons again =
        canTryAgain ? QMessageBox::Retry : QMessageBox::NoButton;
    AlertBox box(AlertBox::Level::Warning, QStringLiteral("Lumetra"),
                 tr("The last changes to your own looks and favourites are not saved.") +
                     QStringLiteral("\n\n") + problem + QStringLiteral("\n\n") + choice,
                 again | QMessageBox::Discard | QMessageBox::Cancel, &m_window, Qt::WindowFlags());
    const auto proposed = canTryAgain ? QMessageBox::Retry : QMessageBox::Cancel;
    Zorvik::Lumetra::StyleAlertBox(box, {proposed}, proposed);
    switch (box.Exec()) {
    case QMessageBox::Retry:
        return Unsaved::SaveAgain;
    case QMessageBox::Discard:
        return Unsaved::Lose;
    default:
        return Unsaved::Stay;
    }
}

bool PresetDialogs::AskNumbered(const QStringList& names) const
{
    const QString text = tr("There are other looks of these names: %1\n\n"
                            "Keep Both adds the new ones with a number,\nCancel leaves them out.")
                             .arg(ListFirst(names));
    AlertBox box(AlertBox::Level::Information, tr("Keep Both"), text,
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Yes}, QMessageBox::Yes);
    return box.Exec() == QMessageBox::Yes;
}

bool PresetDialogs::AskShortened(const QStringList& names) const
{
    const QString text = tr("A look's name has at most %1 characters. These are longer: %2\n\n"
                            "Shorten cuts the names off,\nCancel leaves the looks out.")
                             .arg(QString::number(PresetNames::MaxLength), ListFirst(names));
    AlertBox box(AlertBox::Level::Information, tr("Shorten"), text,
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Yes}, QMessageBox::Yes);
    return box.Exec() == QMessageBox::Yes;
}

QString PresetDialogs::AskShareFile(const QString& fileName) const
{
    const QString suffix = QLatin1String(LookFormat::Suffix);
    QFileDialog dialog(&m_window, tr("Share looks"));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setDefaultSuffix(suffix);
    dialog.setNameFilter(QStringLiteral("*.") + suffix);
    dialog.selectFile(fileName);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

QStringList PresetDialogs::AskImports() const
{
    QFileDialog dialog(&m_window, tr("Import looks"));
    dialog.setFileMode(QFileDialog::ExistingFiles);
    dialog.setNameFilters(
        {tr("Looks (%1)")
             .arg(QStringLiteral("*.lumetra *.cube *.3dl *.clf *.cc *.ccc *.cdl *.png *.tif *.tiff "
                                 "*.jpg *.jpeg *.webp *.zip *.xmp *.lrtemplate *.pp3 *.json")),
         tr("All files (%1)").arg(QStringLiteral("*"))});
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles() : QStringList();
}

QString PresetDialogs::AskImportFolder() const
{
    QFileDialog dialog(&m_window, tr("Import a folder of looks"));
    dialog.setFileMode(QFileDialog::Directory);
    dialog.setOption(QFileDialog::ShowDirsOnly);
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

bool PresetDialogs::AskColoursOnly(const QString& name, const QString& unfit) const
{
    const QString text = tr("A table holds colours alone. “%1” does more: %2\n\n"
                            "Colours Only writes the table without that.")
                             .arg(name, unfit);
    AlertBox box(AlertBox::Level::Information, tr("Colours Only"), text,
                 QMessageBox::Yes | QMessageBox::Cancel, &m_window, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Yes}, QMessageBox::Yes);
    return box.Exec() == QMessageBox::Yes;
}

QString PresetDialogs::AskTableFile(const QString& name) const
{
    const QStringList suffixes{QStringLiteral("cube"), QStringLiteral("clf"),
                               QStringLiteral("png")};
    const QStringList filters{
        tr("Cube (%1)").arg(QStringLiteral("*.cube")),
        tr("Common LUT Format (%1)").arg(QStringLiteral("*.clf")),
        tr("HaldCLUT picture (%1)").arg(QStringLiteral("*.png *.tif *.tiff"))};
    QFileDialog dialog(&m_window, tr("Export “%1” as a table").arg(name));
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setNameFilters(filters);
    const auto offer = [&](const QString& suffix) {
        dialog.setDefaultSuffix(suffix);
        dialog.selectFile(PresetNames::MakeFileName(name, suffix));
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, [&](const QString& filter) {
        offer(suffixes.value(filters.indexOf(filter)));
    });
    offer(suffixes.front());
    return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
}

} // namespace LumetraPlugin
