// SPDX-License-Identifier: MIT
#include "widgets/NewPresetDialog.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"
#include "ui_NewPresetDialog.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace Zorvik::Lumetra::LumetraPresets {
namespace {

constexpr int MaximumNameLength = 50;

} // namespace

NewPresetDialog::NewPresetDialog(const QStringList& takenNames, Mode mode, QWidget* parent)
    : QDialog(parent, Qt::Dialog | Qt::FramelessWindowHint),
      ui(std::make_unique<Ui::NewPresetDialog>()), existingNames(takenNames)
{
    ui->setupUi(this);
    ui->lineEdit->setMaxLength(MaximumNameLength);
    ui->captionLabel->setText(mode == Create ? tr("Create new preset") : tr("Rename preset"));
    connect(ui->lineEdit, &QLineEdit::textChanged, this, &NewPresetDialog::UpdateState);
    ensurePolished();
    setFixedSize(size());
}

NewPresetDialog::~NewPresetDialog() = default;

QString NewPresetDialog::GetName() const
{
    return ui->lineEdit->text().trimmed();
}

void NewPresetDialog::SetName(const QString& oldName)
{
    name = oldName;
    ui->lineEdit->setText(name);
}

void NewPresetDialog::UpdateState()
{
    const QString typed = GetName();
    ui->saveButton->setEnabled(!typed.isEmpty() && typed != name);
}

void NewPresetDialog::accept()
{
    const QString typed = GetName();
    if (existingNames.contains(typed, Qt::CaseSensitive))
        AlertNameTaken(typed);
    else
        QDialog::accept();
}

void NewPresetDialog::AlertNameTaken(const QString& takenName)
{
    // The text has the context of the form's texts, which tr() would not give.
    const QString text = QCoreApplication::translate(
                             "NewPresetDialog", "Name \"%1\" already exists, choose another one.")
                             .arg(takenName, 0, QLatin1Char(' '));
    Util::AlertBox box(Util::AlertBox::Level::Warning, QString(), text, QMessageBox::Ok, this,
                       Qt::Dialog | Qt::MSWindowsFixedSizeDialogHint);
    StyleAlertBox(box, ButtonList(), QMessageBox::NoButton);
    box.Exec();
}

void NewPresetDialog::keyPressEvent(QKeyEvent* event)
{
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (isEnter && ui->saveButton->isEnabled())
        accept();
    QDialog::keyPressEvent(event);
}

} // namespace Zorvik::Lumetra::LumetraPresets
