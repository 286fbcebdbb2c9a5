// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportDialog.h"

#include "export/DialogParts.h"
#include "export/ExportGuard.h"
#include "export/LastRecipe.h"
#include "photo/file/WrittenFormat.h"
#include "settings/EditorSettings.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace LumetraEditor {
namespace {

using LumetraHost::PhotoFormat;
using Zorvik::Util::AlertBox;

} // namespace

ExportDialog::ExportDialog(const QString& photo, const QSize& size, EditorSettings& settings,
                           const ExportGuard& guard, QWidget* parent)
    : QDialog(parent), m_photo(photo), m_size(size), m_settings(settings), m_guard(guard),
      m_form(new QFormLayout), m_recipe(*m_form, this),
      m_resultSize(Named(new QLabel(this), "exportResultSize")),
      m_path(Named(new QLineEdit(this), "exportPath")),
      m_browse(Named(new QPushButton(this), "exportBrowse")), m_export(nullptr)
{
    setObjectName(QStringLiteral("exportDialog"));
    setWindowTitle(tr("Export Photo"));
    BuildForm();
    auto* const buttons =
        Named(new QDialogButtonBox(QDialogButtonBox::Cancel, this), "exportButtons");
    m_export = AddAccentButton(*buttons, tr("&Export"), "exportButton");
    connect(buttons, &QDialogButtonBox::accepted, this, &ExportDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExportDialog::reject);

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(24);
    column->addLayout(m_form);
    column->addWidget(buttons);
    setMinimumWidth(520);
    Connect();
    Restore();
}

void ExportDialog::BuildForm()
{
    m_resultSize->setProperty("muted", true);
    m_browse->setText(tr("&Browse…"));
    m_recipe.AddNoteBelowSize(m_resultSize);
    RecipeForm::AddRow(*m_form, tr("File &name"), RecipeForm::SideBySide(m_path, m_browse), m_path);
}

void ExportDialog::Connect()
{
    connect(&m_recipe, &RecipeForm::changed, this, &ExportDialog::RecipeChanged);
    connect(m_path, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_export->setEnabled(!text.trimmed().isEmpty()); });
    connect(m_path, &QLineEdit::editingFinished, this, [this] { m_path->setText(GetPath()); });
    connect(m_browse, &QPushButton::clicked, this, &ExportDialog::Browse);
}

void ExportDialog::Restore()
{
    m_recipe.Set(LastRecipe::Read(m_settings));
    const QFileInfo photo(m_photo);
    m_path->setText(
        photo.dir().filePath(tr("%1_edited.%2").arg(photo.completeBaseName(), GetSuffix())));
    RecipeChanged();
}

PhotoFormat ExportDialog::GetFormat() const
{
    return m_recipe.Get().format;
}

QString ExportDialog::GetSuffix() const
{
    return QLatin1String(LumetraHost::GetWrittenFormat(GetFormat()).suffix);
}

ExportOptions ExportDialog::GetOptions() const
{
    ExportOptions options;
    options.path = GetPath();
    options.mayReplace = m_mayReplace;
    options.recipe = m_recipe.Get();
    return options;
}

/// The output's path; a name without a folder stands for a file beside the photo.
QString ExportDialog::GetPath() const
{
    const QString text = m_path->text().trimmed();
    return text.isEmpty() ? text : QFileInfo(m_photo).absoluteDir().absoluteFilePath(text);
}

void ExportDialog::RecipeChanged()
{
    // The extension follows the format as long as it is that of a format.
    const QFileInfo file(m_path->text());
    const auto named = LumetraHost::GetPhotoFormatOfName(m_path->text());
    if (named && named != GetFormat())
        m_path->setText(
            file.dir().filePath(file.completeBaseName() + QLatin1Char('.') + GetSuffix()));
    const auto size = m_recipe.Get().GetSize(m_size.width(), m_size.height());
    m_resultSize->setText(tr("%1 × %2 pixels").arg(size.width).arg(size.height));
}

void ExportDialog::Browse()
{
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export Photo"), GetPath(), tr("Photos (*.jpg *.png *.tif *.webp);;All files (*)"),
        nullptr,
        QFileDialog::DontConfirmOverwrite); // accept() asks
    if (!path.isEmpty())
        m_path->setText(path);
}

/// A sentence about why no file can be written there; empty when one can, as far as can be seen.
/// Behind a link the folder of its target counts.
QString ExportDialog::FindFolderProblem(const QString& path)
{
    const QString target = QFileInfo(path).canonicalFilePath();
    const QFileInfo folder(QFileInfo(target.isEmpty() ? path : target).absolutePath());
    const QString name = QDir::toNativeSeparators(folder.filePath());
    if (!folder.isDir())
        return tr("The folder “%1” is not there.").arg(name);
    return folder.isWritable() ? QString()
                               : tr("Nothing can be written into the folder “%1”.").arg(name);
}

bool ExportDialog::IsRefused(const QString& path)
{
    const QString obstacle = m_guard.FindObstacle(path);
    const QString problem = obstacle.isEmpty() ? FindFolderProblem(path) : obstacle;
    if (problem.isEmpty())
        return false;
    const QString advice =
        obstacle.isEmpty() ? tr("Choose another folder.") : tr("Choose another name.");
    AlertBox box(AlertBox::Level::Warning, tr("Export Photo"), problem + QLatin1Char('\n') + advice,
                 QMessageBox::Ok, this, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Ok}, QMessageBox::Ok);
    box.Exec();
    m_path->setFocus();
    m_path->selectAll();
    return true;
}

bool ExportDialog::MayReplace(const QString& path)
{
    m_mayReplace = QFileInfo::exists(path);
    if (!m_mayReplace)
        return true;
    AlertBox box(AlertBox::Level::Warning, tr("Replace"),
                 tr("“%1” exists. Replace it?").arg(QFileInfo(path).fileName()),
                 QMessageBox::Yes | QMessageBox::Cancel, this, Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Cancel}, QMessageBox::Cancel);
    return box.Exec() == QMessageBox::Yes;
}

void ExportDialog::accept()
{
    QString output = GetPath();
    // A name without an extension, or with that of another format, gets the right one.
    if (LumetraHost::GetPhotoFormatOfName(output) != GetFormat())
        output += QLatin1Char('.') + GetSuffix();
    m_path->setText(output);
    if (IsRefused(output) || !MayReplace(output))
        return;
    LastRecipe::Write(m_settings, m_recipe.Get());
    QDialog::accept();
}

} // namespace LumetraEditor
