// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/RecipeForm.h"

#include "photo/file/WrittenFormat.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QSlider>
#include <QSpinBox>

#include <algorithm>
#include <cmath>

namespace LumetraEditor {
namespace {

using LumetraHost::ChromaSampling;
using LumetraHost::EncodingOptions;
using LumetraHost::ExportRecipe;
using LumetraHost::GetWrittenFormat;
using LumetraHost::Image;
using LumetraHost::KeptMetadata;
using LumetraHost::PhotoFormat;
using LumetraHost::TiffCompression;

/// Stands for the depth of each photo in the list of bits.
constexpr int BitsOfPhoto = 0;

constexpr int DefaultLongestSide = 2048;
constexpr double DefaultMegapixels = 12;
constexpr double PixelsPerMegapixel = 1e6;

template <class Widget>
Widget* Make(QWidget* parent, const char* name)
{
    auto* const widget = new Widget(parent);
    widget->setObjectName(QLatin1String(name));
    return widget;
}

template <class Choice>
void AddChoice(QComboBox& box, const QString& text, Choice choice)
{
    box.addItem(text, static_cast<int>(choice));
}

template <class Choice>
Choice GetChoice(const QComboBox& box)
{
    return static_cast<Choice>(box.currentData().toInt());
}

template <class Choice>
void SetChoice(QComboBox& box, Choice choice)
{
    box.setCurrentIndex(std::max(0, box.findData(static_cast<int>(choice))));
}

QLabel* AddLabel(const QString& text, QWidget* field)
{
    auto* const label = new QLabel(text, field->parentWidget());
    label->setBuddy(field);
    field->setAccessibleName(QString(text).remove(QLatin1Char('&')));
    return label;
}

} // namespace

void RecipeForm::AddRow(QFormLayout& form, const QString& text, QWidget* row, QWidget* field)
{
    form.addRow(AddLabel(text, field), row);
}

void RecipeForm::AddRow(QFormLayout& form, const QString& text, QHBoxLayout* row, QWidget* field)
{
    form.addRow(AddLabel(text, field), row);
}

void RecipeForm::AddNoteBelowSize(QWidget* note)
{
    m_form.insertRow(m_rowBelowSize, QString(), note);
}

QHBoxLayout* RecipeForm::SideBySide(QWidget* wide, QWidget* narrow)
{
    auto* const row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(wide, 1);
    row->addWidget(narrow);
    return row;
}

RecipeForm::RecipeForm(QFormLayout& form, QWidget* parent)
    : QObject(parent), m_form(form), m_format(Make<QComboBox>(parent, "exportFormat")),
      m_quality(Make<QSlider>(parent, "exportQuality")),
      m_qualityNumber(Make<QSpinBox>(parent, "exportQualityNumber")),
      m_ownLabel(Make<QLabel>(parent, "exportOwn")),
      m_sampling(Make<QComboBox>(parent, "exportSampling")),
      m_progressive(Make<QCheckBox>(parent, "exportProgressive")),
      m_compression(Make<QComboBox>(parent, "exportCompression")),
      m_lossless(Make<QCheckBox>(parent, "exportLossless")),
      m_bits(Make<QComboBox>(parent, "exportBits")),
      m_sizeKind(Make<QComboBox>(parent, "exportSize")),
      m_longestSide(Make<QSpinBox>(parent, "exportLongestSide")),
      m_megapixels(Make<QDoubleSpinBox>(parent, "exportMegapixels")),
      m_metadata(Make<QComboBox>(parent, "exportMetadata")),
      m_profile(Make<QCheckBox>(parent, "exportProfile"))
{
    form.setHorizontalSpacing(16);
    form.setVerticalSpacing(8);
    form.setFieldGrowthPolicy(QFormLayout::AllNonFixedFieldsGrow);
    AddFormatRows(form);
    AddSizeRows(form);
    AddChoice(*m_metadata, tr("All, with the looks"), KeptMetadata::All);
    AddChoice(*m_metadata, tr("All but coordinates"), KeptMetadata::NoGps);
    AddChoice(*m_metadata, tr("Author and copyright only"), KeptMetadata::Copyright);
    AddChoice(*m_metadata, tr("None"), KeptMetadata::None);
    AddRow(form, tr("&Metadata"), m_metadata, m_metadata);
    m_profile->setText(tr("Embed the photo's colour profile"));
    m_profile->setToolTip(tr("Without it, the colours become those of sRGB"));
    form.addRow(QString(), m_profile);
    Connect();
    Set(ExportRecipe());
}

void RecipeForm::AddFormatRows(QFormLayout& form)
{
    for (const auto& format : LumetraHost::WrittenFormats)
        AddChoice(*m_format, QLatin1String(format.name), format.format);
    m_quality->setOrientation(Qt::Horizontal);
    m_quality->setRange(1, 100);
    m_qualityNumber->setRange(1, 100);
    m_qualityNumber->setAccessibleName(tr("Quality"));
    m_lossless->setText(tr("Lossless"));
    AddChoice(*m_sampling, tr("Automatic"), ChromaSampling::Automatic);
    AddChoice(*m_sampling, tr("Full resolution (4:4:4)"), ChromaSampling::Full);
    AddChoice(*m_sampling, tr("Half (4:2:2)"), ChromaSampling::Half);
    AddChoice(*m_sampling, tr("A quarter (4:2:0)"), ChromaSampling::Quarter);
    m_sampling->setToolTip(tr("Automatic: full resolution from quality 90 on, a quarter below"));
    m_progressive->setText(tr("Progressive"));
    m_progressive->setToolTip(tr("Shows coarse first while it loads; smaller, slower to make"));
    AddChoice(*m_compression, tr("None"), TiffCompression::None);
    AddChoice(*m_compression, QStringLiteral("LZW"), TiffCompression::Lzw);
    AddChoice(*m_compression, QStringLiteral("Deflate"), TiffCompression::Deflate);
    AddChoice(*m_bits, tr("8 bits per channel"), 8);
    AddChoice(*m_bits, tr("16 bits per channel"), 16);
    AddChoice(*m_bits, tr("As the photo"), BitsOfPhoto);

    AddRow(form, tr("&Format"), m_format, m_format);
    AddRow(form, tr("&Quality"), SideBySide(m_quality, m_qualityNumber), m_quality);
    m_sampling->setAccessibleName(tr("Colours"));
    m_compression->setAccessibleName(tr("Compression"));
    QHBoxLayout* const own = SideBySide(m_sampling, m_progressive);
    own->addWidget(m_compression, 1);
    own->addWidget(m_lossless, 1);
    form.addRow(m_ownLabel, own);
    AddRow(form, tr("Bit &depth"), m_bits, m_bits);
}

void RecipeForm::AddSizeRows(QFormLayout& form)
{
    AddChoice(*m_sizeKind, tr("Original size"), SizeKind::Original);
    AddChoice(*m_sizeKind, tr("Limit the longest side"), SizeKind::LongestSide);
    AddChoice(*m_sizeKind, tr("Limit the megapixels"), SizeKind::Megapixels);
    m_sizeKind->setToolTip(tr("Photos are never enlarged"));
    m_longestSide->setRange(1, ExportRecipe::LargestSide);
    m_longestSide->setSuffix(tr(" px"));
    m_longestSide->setAccessibleName(tr("Longest side in pixels"));
    m_megapixels->setRange(0.01, ExportRecipe::LargestArea / PixelsPerMegapixel);
    m_megapixels->setDecimals(2);
    m_megapixels->setSuffix(tr(" MP"));
    m_megapixels->setAccessibleName(tr("Megapixels at most"));
    QHBoxLayout* const row = SideBySide(m_sizeKind, m_longestSide);
    row->addWidget(m_megapixels);
    AddRow(form, tr("&Size"), row, m_sizeKind);
    m_rowBelowSize = form.rowCount();
}

void RecipeForm::Connect()
{
    connect(m_quality, &QSlider::valueChanged, m_qualityNumber, &QSpinBox::setValue);
    connect(m_qualityNumber, QOverload<int>::of(&QSpinBox::valueChanged), m_quality,
            &QSlider::setValue);
    connect(m_quality, &QSlider::valueChanged, this, &RecipeForm::changed);
    for (QComboBox* box : {m_format, m_sampling, m_compression, m_bits, m_sizeKind, m_metadata})
        connect(box, QOverload<int>::of(&QComboBox::currentIndexChanged), this, [this] {
            ShowRows();
            emit changed();
        });
    for (QCheckBox* box : {m_lossless, m_progressive, m_profile})
        connect(box, &QCheckBox::toggled, this, [this] {
            ShowRows();
            emit changed();
        });
    connect(m_longestSide, QOverload<int>::of(&QSpinBox::valueChanged), this, &RecipeForm::changed);
    connect(m_megapixels, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this,
            &RecipeForm::changed);
}

void RecipeForm::ShowRows()
{
    const PhotoFormat format = GetFormat();
    const bool isJpeg = format == PhotoFormat::Jpeg;
    const bool isWebp = format == PhotoFormat::Webp;
    const bool hasQuality = isJpeg || (isWebp && !m_lossless->isChecked());
    m_quality->setEnabled(hasQuality);
    m_qualityNumber->setEnabled(hasQuality);
    m_bits->setEnabled(GetWrittenFormat(format).holds16Bits);
    ShowOwnRow(format);
    m_longestSide->setVisible(GetSizeKind() != SizeKind::Megapixels);
    m_longestSide->setEnabled(GetSizeKind() == SizeKind::LongestSide);
    m_megapixels->setVisible(GetSizeKind() == SizeKind::Megapixels);
}

/// Shows the choices that this format alone knows.
void RecipeForm::ShowOwnRow(PhotoFormat format)
{
    const bool isJpeg = format == PhotoFormat::Jpeg;
    const bool isTiff = format == PhotoFormat::Tiff;
    m_sampling->setVisible(isJpeg);
    m_progressive->setVisible(isJpeg);
    m_compression->setVisible(isTiff);
    m_lossless->setVisible(format == PhotoFormat::Webp);
    m_ownLabel->setText(isJpeg ? tr("&Colours") : isTiff ? tr("C&ompression") : QString());
    m_ownLabel->setBuddy(isTiff ? m_compression : m_sampling);
    m_ownLabel->setVisible(isJpeg || isTiff);
}

RecipeForm::SizeKind RecipeForm::GetSizeKind() const
{
    return GetChoice<SizeKind>(*m_sizeKind);
}

PhotoFormat RecipeForm::GetFormat() const
{
    return GetChoice<PhotoFormat>(*m_format);
}

ExportRecipe RecipeForm::Get() const
{
    ExportRecipe recipe;
    recipe.format = GetFormat();
    EncodingOptions& encoding = recipe.encoding;
    encoding.quality = m_quality->value();
    encoding.isLossless = m_lossless->isChecked();
    encoding.sampling = GetChoice<ChromaSampling>(*m_sampling);
    encoding.isProgressive = m_progressive->isChecked();
    encoding.compression = GetChoice<TiffCompression>(*m_compression);
    const int bits = m_bits->currentData().toInt();
    const bool is16Bit = GetWrittenFormat(recipe.format).holds16Bits && bits == 16;
    if (bits != BitsOfPhoto)
        recipe.depth = is16Bit ? Image::Depth::Bits16 : Image::Depth::Bits8;
    if (GetSizeKind() == SizeKind::LongestSide)
        recipe.longestSide = m_longestSide->value();
    if (GetSizeKind() == SizeKind::Megapixels)
        recipe.mostPixels =
            static_cast<int>(std::lround(m_megapixels->value() * PixelsPerMegapixel));
    recipe.metadata = GetChoice<KeptMetadata>(*m_metadata);
    recipe.embedsProfile = m_profile->isChecked();
    return recipe;
}

void RecipeForm::Set(const ExportRecipe& recipe)
{
    const EncodingOptions& encoding = recipe.encoding;
    SetChoice(*m_format, recipe.format);
    m_quality->setValue(encoding.quality);
    m_lossless->setChecked(encoding.isLossless);
    SetChoice(*m_sampling, encoding.sampling);
    m_progressive->setChecked(encoding.isProgressive);
    SetChoice(*m_compression, encoding.compression);
    const int bits = recipe.depth == Image::Depth::Bits16 ? 16 : 8;
    SetChoice(*m_bits, recipe.depth ? bits : BitsOfPhoto);
    m_longestSide->setValue(recipe.longestSide > 0 ? recipe.longestSide : DefaultLongestSide);
    m_megapixels->setValue(recipe.mostPixels > 0 ? recipe.mostPixels / PixelsPerMegapixel
                                                 : DefaultMegapixels);
    SetChoice(*m_sizeKind, recipe.mostPixels > 0    ? SizeKind::Megapixels
                           : recipe.longestSide > 0 ? SizeKind::LongestSide
                                                    : SizeKind::Original);
    SetChoice(*m_metadata, recipe.metadata);
    m_profile->setChecked(recipe.embedsProfile);
    ShowRows();
}

} // namespace LumetraEditor
