// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/Questions.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include <QCoreApplication>
#include <QFileInfo>

namespace LumetraEditor {
namespace {

using Zorvik::Util::AlertBox;

struct Questions
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::Questions)
};

} // namespace

bool AskToStopExport(QWidget* parent)
{
    AlertBox box(AlertBox::Level::Warning, Questions::tr("Quit"),
                 Questions::tr("The export has not finished. Quit all the same?"),
                 QMessageBox::Yes | QMessageBox::Cancel, parent, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    return box.Exec() != QMessageBox::Cancel;
}

bool AskToStartAnew(const QString& photo, QWidget* parent)
{
    AlertBox box(AlertBox::Level::Warning, QStringLiteral("Lumetra"),
                 Questions::tr("“%1” was replaced or changed by another program since it was "
                               "edited.\n\nStart anew without the earlier edit?\n"
                               "Its file is kept under another name.")
                     .arg(QFileInfo(photo).fileName()),
                 QMessageBox::Yes | QMessageBox::No, parent, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::No}, QMessageBox::No);
    return box.Exec() == QMessageBox::Yes;
}

bool AskToLoseEdit(const QString& photo, const QString& problem, QWidget* parent)
{
    AlertBox box(
        AlertBox::Level::Warning, QStringLiteral("Lumetra"),
        Questions::tr("The edit of “%1” could not be kept, neither beside the photo nor in "
                      "your own folder.\n\nDiscard the edit and leave the photo?")
                .arg(QFileInfo(photo).fileName()) +
            QStringLiteral("\n\n") + problem,
        QMessageBox::Discard | QMessageBox::Cancel, parent, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    return box.Exec() == QMessageBox::Discard;
}

} // namespace LumetraEditor
