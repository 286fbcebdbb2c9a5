// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/TunePanel.h"

#include "Zorvik/Lumetra/ClickSlider.h"
#include "panel/appearance/EffectTexts.h"
#include "panel/appearance/PanelIcons.h"
#include "panel/commands/AppliedEdit.h"
#include "panel/commands/PresetCommands.h"
#include "panel/widgets/SliderRow.h"
#include "widgets/IntensityWidget.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QToolButton>

#include <algorithm>

namespace LumetraPlugin {

using Zorvik::Lumetra::ClickSlider;
using Zorvik::Lumetra::LumetraPresets::IntensitySettingType;
using Zorvik::Lumetra::LumetraPresets::IntensityWidget;
using Zorvik::Lumetra::LumetraPresets::SliderSetting;

namespace {

constexpr int Gap = 8;
constexpr int Gutter = 2 * Gap;
constexpr int RowGap = 4;
constexpr int ToolTipOffset = 24;

QToolButton* MakeToolButton(const char* name, QWidget* parent)
{
    auto* button = new QToolButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoRaise(true);
    button->setFixedSize(24, 24);
    button->setFocusPolicy(Qt::StrongFocus);
    return button;
}

QPushButton* MakePushButton(const char* name, QWidget* parent)
{
    auto* button = new QPushButton(parent);
    button->setObjectName(QLatin1String(name));
    button->setAutoDefault(false);
    return button;
}

SliderSetting::List SlidersOf(const QModelIndex& preset)
{
    return preset.data(PresetModel::SettingsValuesRole).value<SliderSetting::List>();
}

} // namespace

TunePanel::TunePanel(PresetCommands& commands, const AppliedEdit& edit, QWidget* parent)
    : QWidget(parent), m_commands(commands), m_edit(edit), m_intensity(new IntensityWidget(this)),
      m_intensityRow(new SliderRow(m_intensity, this)), m_sliderColumn(new QVBoxLayout)
{
    setObjectName(QStringLiteral("tunePanel"));
    setAttribute(Qt::WA_StyledBackground);
    auto* column = new QVBoxLayout(this);
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    column->setContentsMargins(0, Gap, 0, Gap);
    column->setSpacing(Gap);
    MakeHeader(*column);
    m_intensity->setObjectName(QStringLiteral("intensitySlider"));
    m_intensity->setProperty("tipYOffest", ToolTipOffset);
    m_intensityRow->layout()->setContentsMargins(Gutter, 0, Gutter, 0);
    column->addWidget(m_intensityRow);
    MakeScroll(*column);
    MakeButtons(*column);
    connect(m_intensityRow, &SliderRow::finished, &commands, &PresetCommands::FinishIntensity);
    connect(m_intensityRow, &SliderRow::typed, &commands, &PresetCommands::SetIntensity);
    connect(m_intensityRow, &SliderRow::resetRequested, &commands, &PresetCommands::ResetIntensity);
    connect(&commands, &PresetCommands::appliedChanged, this, &TunePanel::BindApplied);
    connect(&commands, &PresetCommands::valuesChanged, this, &TunePanel::ReadValues);
    connect(&commands, &PresetCommands::presetsChanged, this, &TunePanel::ShowNames);
    ShowIcons();
    BindApplied();
}

void TunePanel::MakeHeader(QVBoxLayout& column)
{
    m_title = new QLabel(this);
    m_title->setObjectName(QStringLiteral("appliedName"));
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    m_title->setTextFormat(Qt::PlainText);
    QFont font = m_title->font();
    font.setBold(true);
    m_title->setFont(font);
    m_favourite = MakeToolButton("favouriteButton", this);
    m_favourite->setCheckable(true);
    m_reset = MakeToolButton("resetButton", this);
    m_fold = MakeToolButton("foldSliders", this);
    connect(m_fold, &QToolButton::clicked, this, &TunePanel::foldRequested);
    auto* row = new QHBoxLayout;
    row->setSpacing(0);
    row->setContentsMargins(Gap, 0, Gutter, 0);
    row->addWidget(m_fold);
    row->addWidget(m_title, 1);
    row->addWidget(m_favourite);
    row->addWidget(m_reset);
    column.addLayout(row);
    connect(m_favourite, &QToolButton::clicked, this,
            [this](bool isOn) { m_commands.SetFavourite(m_preset, isOn); });
    connect(m_reset, &QToolButton::clicked, &m_commands, &PresetCommands::Reset);
}

void TunePanel::MakeScroll(QVBoxLayout& column)
{
    auto* const content = new QWidget;
    content->setLayout(m_sliderColumn);
    m_sliderColumn->setContentsMargins(Gutter, 0, Gutter, 0);
    m_sliderColumn->setSpacing(RowGap);
    m_scroll = new QScrollArea(this);
    m_scroll->setObjectName(QStringLiteral("sliderArea"));
    m_scroll->setWidget(content);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->viewport()->setAutoFillBackground(false); // the ground is the panel's
    content->setAutoFillBackground(false);
    column.addWidget(m_scroll);
}

/// The height of the extra sliders that the look has, all of them seen.
int TunePanel::GetSlidersHeight() const
{
    const auto shown = static_cast<int>(std::count_if(
        m_sliders.begin(), m_sliders.end(), [](const SliderRow* row) { return !row->isHidden(); }));
    const int row = m_intensityRow->sizeHint().height();
    return shown * row + std::max(0, shown - 1) * RowGap;
}

/// Divides the height: what does not fit of the sliders is scrolled, and the scroll bar stands in
/// the gutter.
void TunePanel::SetRoom(int height)
{
    m_room = height;
    const int all = GetSlidersHeight();
    m_scroll->setVisible(m_isOpen && all > 0);
    m_intensityRow->setVisible(m_isOpen);
    if (m_scroll->isHidden())
        return;
    const QMargins margins = layout()->contentsMargins();
    const int others = margins.top() + margins.bottom() + m_fold->height() +
                       m_intensityRow->sizeHint().height() + m_apply->sizeHint().height() + 3 * Gap;
    const int least = std::min(all, m_intensityRow->sizeHint().height());
    const int shown = std::clamp(height - others, least, all);
    const int bar = shown < all ? m_scroll->verticalScrollBar()->sizeHint().width() : 0;
    m_sliderColumn->setContentsMargins(Gutter, 0, std::max(0, Gutter - bar), 0);
    m_scroll->setFixedHeight(shown);
}

void TunePanel::SetOpen(bool isOpen)
{
    m_isOpen = isOpen;
    SetRoom(m_room);
    ShowFold();
}

void TunePanel::ShowFold()
{
    m_fold->setIcon(PanelIcons::GetIcon(
        m_isOpen ? QStringLiteral("chevron-down") : QStringLiteral("chevron-right"), palette()));
    m_fold->setToolTip(m_isOpen ? tr("Fold the sliders") : tr("Unfold the sliders"));
    m_fold->setAccessibleName(m_fold->toolTip());
}

void TunePanel::MakeButtons(QVBoxLayout& column)
{
    m_discard = MakePushButton("discardButton", this);
    m_saveAs = MakePushButton("saveAsButton", this);
    m_apply = MakePushButton("applyButton", this);
    auto* row = new QHBoxLayout;
    row->setContentsMargins(Gutter, 0, Gutter, 0);
    row->setSpacing(Gap);
    for (QPushButton* const button : {m_discard, m_saveAs, m_apply})
        row->addWidget(button, 1);
    column.addLayout(row);
    connect(m_discard, &QPushButton::clicked, &m_commands, &PresetCommands::Discard);
    connect(m_saveAs, &QPushButton::clicked, this, [this] { m_commands.SaveAs(m_preset); });
    connect(m_apply, &QPushButton::clicked, &m_commands, &PresetCommands::Commit);
}

SliderRow* TunePanel::MakeSlider(int position)
{
    auto* row = new SliderRow(new ClickSlider, this);
    row->GetSlider().setObjectName(QStringLiteral("extraSlider%1").arg(position));
    connect(&row->GetSlider(), &QSlider::valueChanged, this,
            [this, position](int value) { m_commands.SetSlider(position, value); });
    const auto finish = [this, position] { m_commands.FinishSlider(position); };
    connect(row, &SliderRow::typed, this, [row, finish](int value) {
        row->GetSlider().setValue(value);
        finish();
    });
    connect(row, &SliderRow::finished, this, finish);
    connect(row, &SliderRow::resetRequested, this,
            [this, position] { m_commands.ResetSlider(position); });
    return row;
}

/// Makes as many sliders as the preset has; existing ones are used again.
void TunePanel::MakeSliders()
{
    const std::size_t needed = SlidersOf(m_preset).size();
    while (m_sliders.size() < needed) {
        m_sliders.push_back(MakeSlider(static_cast<int>(m_sliders.size())));
        m_sliderColumn->addWidget(m_sliders.back());
    }
    for (std::size_t i = 0; i < m_sliders.size(); ++i)
        m_sliders[i]->setVisible(i < needed);
    SetRoom(m_room);
    emit contentChanged();
}

void TunePanel::BindApplied()
{
    const bool isSame = m_preset.isValid() && m_preset == m_commands.GetApplied();
    m_preset = m_commands.GetApplied();
    if (!isSame)
        MakeSliders();
    ReadValues();
    ShowNames();
}

void TunePanel::ReadValues()
{
    m_intensity->SetPersistentIndex(m_preset);
    m_intensityRow->FollowSlider(); // the slider emits nothing when it is bound
    const auto type = m_preset.data(PresetModel::IntensitySettingTypeRole);
    m_intensityRow->setEnabled(m_preset.isValid() &&
                               type.value<IntensitySettingType>() != IntensitySettingType::None);
    const auto sliders = SlidersOf(m_preset);
    for (std::size_t i = 0; i < sliders.size() && i < m_sliders.size(); ++i) {
        ClickSlider& slider = m_sliders[i]->GetSlider();
        const QSignalBlocker blocker(&slider);
        slider.setRange(sliders[i].Min(), sliders[i].Max());
        slider.setValue(sliders[i].Value());
        m_sliders[i]->SetName(EffectTexts::Translate(sliders[i].Title()));
        m_sliders[i]->FollowSlider();
    }
}

void TunePanel::ShowNames()
{
    const bool isBound = m_preset.isValid();
    const QString stray = m_edit.GetStrayName();
    const QString name = m_preset.data(PresetModel::ShownNameRole).toString();
    m_title->setText(isBound ? name : stray.isEmpty() ? tr("Choose a look") : stray);
    m_title->setToolTip(m_title->text());
    m_intensityRow->SetName(tr("Intensity"));
    m_favourite->setChecked(m_preset.data(PresetModel::FavouriteRole).toBool());
    m_favourite->setToolTip(tr("Favourite"));
    m_reset->setToolTip(tr("Reset all values of this look"));
    for (QToolButton* const button : {m_favourite, m_reset})
        button->setAccessibleName(button->toolTip());
    m_discard->setText(tr("Remove"));
    m_discard->setToolTip(tr("Takes the look off the photo"));
    m_saveAs->setText(tr("Save as…"));
    m_saveAs->setToolTip(tr("Saves the look with these values as a look of your own"));
    m_apply->setText(tr("Add another"));
    m_apply->setToolTip(
        tr("Leaves this look on the photo; the look that you choose next comes on top of it"));
    for (QWidget* const widget :
         {static_cast<QWidget*>(m_favourite), static_cast<QWidget*>(m_reset),
          static_cast<QWidget*>(m_saveAs), static_cast<QWidget*>(m_apply)})
        widget->setEnabled(isBound);
    m_discard->setEnabled(isBound || !stray.isEmpty());
    for (QPushButton* const button : {m_discard, m_saveAs, m_apply})
        button->setAccessibleName(button->text());
    ShowIcons();
}

void TunePanel::ShowIcons()
{
    ShowFold();
    const bool isOn = m_favourite->isChecked();
    m_favourite->setIcon(PanelIcons::GetIcon(
        isOn ? QStringLiteral("star-filled") : QStringLiteral("star"), palette()));
    m_reset->setIcon(PanelIcons::GetIcon(QStringLiteral("reset"), palette()));
}

void TunePanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        BindApplied();
    else if (event->type() == QEvent::PaletteChange)
        ShowIcons();
}

} // namespace LumetraPlugin
