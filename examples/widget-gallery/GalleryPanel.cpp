// SPDX-License-Identifier: GPL-2.0-or-later
#include "GalleryPanel.h"

#include "GalleryStyle.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"
#include "widgets/IntensityWidget.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QListView>
#include <QSlider>
#include <QStyledItemDelegate>
#include <QToolButton>

namespace LumetraGallery {
namespace {

using namespace Zorvik::Lumetra::LumetraPresets;

constexpr int PanelWidth = 280;
constexpr QSize ThumbnailSize(44, 28);

/// Shows a preset as its thumbnail and name; the model has no display role of its own.
class PresetDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->features |= QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasDecoration;
        option->text = index.data(EffectPresetModel::PresetNameRole).toString();
        const auto thumbnail = index.data(EffectPresetModel::PreviewImageRole).value<QImage>();
        option->icon = QIcon(QPixmap::fromImage(thumbnail));
        option->icon.addPixmap(QPixmap::fromImage(thumbnail), QIcon::Selected); // else tinted
        option->decorationSize = ThumbnailSize;
    }
};

QListView* MakePage(GalleryPresets& presets, int group)
{
    auto* page = new QListView;
    page->setModel(&presets);
    page->setRootIndex(presets.Group(group));
    page->setItemDelegate(new PresetDelegate(page));
    page->setIconSize(ThumbnailSize);
    page->setFrameShape(QFrame::NoFrame);
    page->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    page->setAccessibleName(
        presets.Group(group).data(EffectPresetModel::PresetNameRole).toString());
    page->ensurePolished();
    const int rows = presets.rowCount(presets.Group(group));
    page->setFixedHeight(rows * page->sizeHintForRow(0) + 2 * page->spacing());
    return page;
}

QString Text(Language language, const char* english, const char* german)
{
    return QString::fromUtf8(language == Language::English ? english : german);
}

} // namespace

GalleryPanel::GalleryPanel(LumetraHost::PaletteKind kind, Language language)
    : m_language(language), m_presets(language), m_toolBox(new CustomToolBox),
      m_intensity(new IntensityWidget), m_extra(new QSlider), m_add(new QToolButton)
{
    setObjectName(QStringLiteral("presetsPanel"));
    setAttribute(Qt::WA_StyledBackground);
    setFixedWidth(PanelWidth);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 12);
    column->setSpacing(0);
    column->addWidget(m_toolBox);
    column->addStretch();
    column->addSpacing(12);
    AddPages();

    m_intensity->setObjectName(QStringLiteral("intensitySlider"));
    m_intensity->setProperty("tipYOffest", 2);
    m_intensity->SetPersistentIndex(m_presets.Preset(0, 0));
    AddSlider(column, Text(language, "Intensity", "Intensität"), m_intensity);
    m_toolBox->findChild<QListView*>()->setCurrentIndex(m_presets.Preset(0, 0));

    m_extra->setObjectName(QStringLiteral("extraSlider"));
    m_extra->setRange(-100, 100);
    m_extra->setValue(-40);
    AddSlider(column, Text(language, "Exposure", "Belichtung"), m_extra);
    FollowWithGroove(*m_extra, kind);
}

GalleryPanel::~GalleryPanel()
{
    // The pages' views use the model, a member, which would otherwise end before them.
    delete m_toolBox;
}

void GalleryPanel::AddPages()
{
    const int groups = m_presets.rowCount(QModelIndex());
    for (int group = 0; group < groups; ++group) {
        const QString name =
            m_presets.Group(group).data(EffectPresetModel::PresetNameRole).toString();
        m_toolBox->addItem(MakePage(m_presets, group), name);
    }
    m_add->setObjectName(QStringLiteral("sectionTitleButton"));
    m_add->setText(QStringLiteral("+"));
    m_add->setToolTip(Text(m_language, "Save as preset", "Als Preset speichern"));
    m_add->setAccessibleName(m_add->toolTip());
    m_toolBox->addWidgetTitleButton(m_add, groups - 1);
    // Makes title buttons start in the state of their pages.
    m_toolBox->setCurrentIndex(0);
    m_toolBox->setCurrentIndex(0);
}

void GalleryPanel::AddSlider(QVBoxLayout* column, const QString& name, QSlider* slider)
{
    auto* label = new QLabel(name);
    auto* value = new QLabel(QString::number(slider->value()));
    connect(slider, &QSlider::valueChanged, value,
            [value](int changed) { value->setText(QString::number(changed)); });
    label->setProperty("muted", true);
    value->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    slider->setOrientation(Qt::Horizontal);
    slider->setAccessibleName(name);

    auto* row = new QHBoxLayout;
    row->addWidget(label);
    row->addWidget(value);
    auto* block = new QVBoxLayout;
    block->setContentsMargins(12, 4, 12, 4);
    block->setSpacing(2);
    block->addLayout(row);
    block->addWidget(slider);
    column->addLayout(block);
}

QPushButton& GalleryPanel::Header(int page) const
{
    return *m_toolBox->findChildren<CustomToolBoxButton*>().at(page);
}

} // namespace LumetraGallery
