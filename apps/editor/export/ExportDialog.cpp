// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportDialog.h"

#include "export/ExportGuard.h"
#include "settings/EditorSettings.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSlider>
#include <QSpinBox>
#include <QStyle>

#include <algorithm>
#include <cmath>

namespace LumetraEditor {
namespace {

using LumetraHost::ExportRecipe;
using LumetraHost::Image;
using LumetraHost::PhotoFormat;
using Zorvik::Util::AlertBox;

const QString FormatKey = QStringLiteral("export/format");
const QString QualityKey = QStringLiteral("export/quality");
const QString BitsKey = QStringLiteral("export/bits");
const QString LimitedKey = QStringLiteral("export/limited");
const QString LongestKey = QStringLiteral("export/longestSide");
const QString MetadataKey = QStringLiteral("export/metadata");
const QString ProfileKey = QStringLiteral("export/profile");

template <class Widget>
Widget* Named(Widget* widget, const char* name)
{
    widget->setObjectName(QLatin1String(name));
    return widget;
}

/// A row whose label gives the keyboard to `field`.
template <class Row>
void AddRow(QFormLayout& form, const QString& text, Row* row, QWidget* field)
{
    auto* const label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    form.addRow(label, row);
}

QHBoxLayout* SideBySide(QWidget* wide, QWidget* narrow)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(wide, 1);
    row->addWidget(narrow);
    return row;
}

} // namespace

ExportDialog::ExportDialog(const QString& photo, const QSize& size, EditorSettings& settings,
                           const ExportGuard& guard, QWidget* parent)
    : QDialog(parent), m_photo(photo), m_size(size), m_settings(settings), m_guard(guard),
      m_form(new QFormLayout), m_format(Named(new QComboBox(this), "exportFormat")),
      m_quality(Named(new QSlider(Qt::Horizontal, this), "exportQuality")),
      m_qualityNumber(Named(new QSpinBox(this), "exportQualityNumber")),
      m_bits(Named(new QComboBox(this), "exportBits")),
      m_sizeKind(Named(new QComboBox(this), "exportSize")),
      m_longestSide(Named(new QSpinBox(this), "exportLongestSide")),
      m_resultSize(Named(new QLabel(this), "exportResultSize")),
      m_metadata(Named(new QCheckBox(this), "exportMetadata")),
      m_profile(Named(new QCheckBox(this), "exportProfile")),
      m_path(Named(new QLineEdit(this), "exportPath")),
      m_browse(Named(new QPushButton(this), "exportBrowse")), m_export(nullptr)
{
    setObjectName(QStringLiteral("exportDialog"));
    setWindowTitle(tr("Export Photo"));
    BuildForm();
    auto* const buttons =
        Named(new QDialogButtonBox(QDialogButtonBox::Cancel, this), "exportButtons");
    m_export =
        Named(buttons->addButton(tr("&Export"), QDialogButtonBox::AcceptRole), "exportButton");
    m_export->setProperty("accent", true);
    m_export->style()->unpolish(m_export); // the box has polished the button already
    m_export->style()->polish(m_export);
    m_export->setDefault(true);
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
    m_form->setHorizontalSpacing(16);
    m_form->setVerticalSpacing(8);
    m_form->setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    m_format->addItem(tr("JPEG"), static_cast<int>(PhotoFormat::Jpeg));
    m_format->addItem(tr("PNG"), static_cast<int>(PhotoFormat::Png));
    m_format->addItem(tr("TIFF"), static_cast<int>(PhotoFormat::Tiff));
    m_quality->setRange(1, 100);
    m_qualityNumber->setRange(1, 100);
    m_bits->addItem(tr("8 bits per channel"), 8);
    m_bits->addItem(tr("16 bits per channel"), 16);
    m_sizeKind->addItem(tr("Original size"), false);
    m_sizeKind->addItem(tr("Limit the longest side"), true);
    m_longestSide->setRange(1, ExportRecipe::LargestSide);
    m_longestSide->setSuffix(tr(" px"));
    m_resultSize->setProperty("muted", true);
    m_metadata->setText(tr("Keep the camera's data and record the presets"));
    m_profile->setText(tr("Embed the photo's colour profile"));
    m_profile->setToolTip(tr("Without it, the colours become those of sRGB"));
    m_browse->setText(tr("&Browse…"));

    AddRow(*m_form, tr("&Format"), m_format, m_format);
    AddRow(*m_form, tr("&Quality"), SideBySide(m_quality, m_qualityNumber), m_quality);
    AddRow(*m_form, tr("Bit &depth"), m_bits, m_bits);
    AddRow(*m_form, tr("&Size"), SideBySide(m_sizeKind, m_longestSide), m_sizeKind);
    m_form->addRow(QString(), m_resultSize);
    m_form->addRow(tr("Include"), m_metadata);
    m_form->addRow(QString(), m_profile);
    AddRow(*m_form, tr("File &name"), SideBySide(m_path, m_browse), m_path);
    const std::pair<QWidget*, QString> names[] = {
        {m_format, tr("Format")},         {m_quality, tr("Quality")},
        {m_qualityNumber, tr("Quality")}, {m_bits, tr("Bit depth")},
        {m_sizeKind, tr("Size")},         {m_longestSide, tr("Longest side in pixels")},
        {m_path, tr("File name")}};
    for (const auto& [widget, name] : names)
        widget->setAccessibleName(name);
}

void ExportDialog::Connect()
{
    connect(m_quality, &QSlider::valueChanged, m_qualityNumber, &QSpinBox::setValue);
    connect(m_qualityNumber, QOverload<int>::of(&QSpinBox::valueChanged), m_quality,
            &QSlider::setValue);
    connect(m_format, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExportDialog::FormatChanged);
    connect(m_sizeKind, QOverload<int>::of(&QComboBox::currentIndexChanged), this,
            &ExportDialog::SizeChanged);
    connect(m_longestSide, QOverload<int>::of(&QSpinBox::valueChanged), this,
            &ExportDialog::SizeChanged);
    connect(m_path, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_export->setEnabled(!text.trimmed().isEmpty()); });
    connect(m_path, &QLineEdit::editingFinished, this, [this] { m_path->setText(GetPath()); });
    connect(m_browse, &QPushButton::clicked, this, &ExportDialog::Browse);
}

void ExportDialog::Restore()
{
    m_format->setCurrentIndex(
        std::max(0, m_format->findData(m_settings.Get(FormatKey, 0).toInt())));
    m_quality->setValue(m_settings.Get(QualityKey, ExportRecipe().quality).toInt());
    m_bits->setCurrentIndex(std::max(0, m_bits->findData(m_settings.Get(BitsKey, 8).toInt())));
    m_longestSide->setValue(m_settings.Get(LongestKey, 2048).toInt());
    m_sizeKind->setCurrentIndex(m_settings.Get(LimitedKey, false).toBool() ? 1 : 0);
    m_metadata->setChecked(m_settings.Get(MetadataKey, true).toBool());
    m_profile->setChecked(m_settings.Get(ProfileKey, true).toBool());
    const QFileInfo photo(m_photo);
    m_path->setText(photo.dir().filePath(
        tr("%1_edited.%2").arg(photo.completeBaseName(), GetSuffix(GetFormat()))));
    FormatChanged();
    SizeChanged();
}

void ExportDialog::Remember() const
{
    m_settings.Set(FormatKey, m_format->currentData());
    m_settings.Set(QualityKey, m_quality->value());
    m_settings.Set(BitsKey, m_bits->currentData());
    m_settings.Set(LimitedKey, m_sizeKind->currentData());
    m_settings.Set(LongestKey, m_longestSide->value());
    m_settings.Set(MetadataKey, m_metadata->isChecked());
    m_settings.Set(ProfileKey, m_profile->isChecked());
}

PhotoFormat ExportDialog::GetFormat() const
{
    return static_cast<PhotoFormat>(m_format->currentData().toInt());
}

ExportOptions ExportDialog::GetOptions() const
{
    ExportOptions options;
    options.path = GetPath();
    options.mayReplace = m_mayReplace;
    ExportRecipe& recipe = options.recipe;
    recipe.format = GetFormat();
    recipe.quality = m_quality->value();
    const bool is16Bit = recipe.format != PhotoFormat::Jpeg && m_bits->currentData().toInt() == 16;
    recipe.depth = is16Bit ? Image::Depth::Bits16 : Image::Depth::Bits8;
    recipe.longestSide = m_sizeKind->currentData().toBool() ? m_longestSide->value() : 0;
    recipe.keepsMetadata = m_metadata->isChecked();
    recipe.embedsProfile = m_profile->isChecked();
    return options;
}

/// The output's path; a name without a folder stands for a file beside the photo.
QString ExportDialog::GetPath() const
{
    const QString text = m_path->text().trimmed();
    return text.isEmpty() ? text : QFileInfo(m_photo).absoluteDir().absoluteFilePath(text);
}

void ExportDialog::FormatChanged()
{
    const bool isJpeg = GetFormat() == PhotoFormat::Jpeg;
    m_quality->setEnabled(isJpeg);
    m_qualityNumber->setEnabled(isJpeg);
    m_bits->setEnabled(!isJpeg);
    // The extension follows the format as long as it is that of a format.
    const QFileInfo file(m_path->text());
    if (LumetraHost::GetPhotoFormatOfName(m_path->text()) && m_path->text() != QString())
        m_path->setText(file.dir().filePath(file.completeBaseName() + QLatin1Char('.') +
                                            GetSuffix(GetFormat())));
}

void ExportDialog::SizeChanged()
{
    m_longestSide->setEnabled(m_sizeKind->currentData().toBool());
    const auto size = GetOptions().recipe.GetSize(m_size.width(), m_size.height());
    m_resultSize->setText(tr("%1 × %2 pixels").arg(size.width).arg(size.height));
}

void ExportDialog::Browse()
{
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export Photo"), GetPath(),
                                     tr("Photos (*.jpg *.png *.tif);;All files (*)"), nullptr,
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
        output += QLatin1Char('.') + GetSuffix(GetFormat());
    m_path->setText(output);
    if (IsRefused(output) || !MayReplace(output))
        return;
    Remember();
    QDialog::accept();
}

} // namespace LumetraEditor
