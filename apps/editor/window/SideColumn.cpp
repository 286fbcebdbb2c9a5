// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/SideColumn.h"

#include "histogram/HistogramWidget.h"
#include "layers/LayersPanel.h"
#include "window/FoldingSection.h"
#include "window/PanelTabs.h"

#include <QEvent>
#include <QVBoxLayout>

namespace LumetraEditor {
namespace {

constexpr int SmallestWidth = 280;
constexpr int SmallestHeightWithHistogram = 440;
constexpr int SmallestHeightWithLayers = 520;
const QString HistogramKey = QStringLiteral("window/histogramOpen");

/// The histogram with the distances of the side panel.
QWidget* MakeFrame(QWidget* histogram)
{
    auto* const frame = new QWidget;
    auto* const column = new QVBoxLayout(frame);
    column->setContentsMargins(16, 0, 16, 8);
    column->addWidget(histogram);
    return frame;
}

} // namespace

SideColumn::SideColumn(EditorSettings& settings, QWidget* parent)
    : QWidget(parent), m_column(new QVBoxLayout(this)), m_histogram(new HistogramWidget),
      m_section(new FoldingSection(settings, HistogramKey, MakeFrame(m_histogram), this)),
      m_panels(new PanelTabs(this))
{
    setObjectName(QStringLiteral("sidePanel"));
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(SmallestWidth);
    m_section->setObjectName(QStringLiteral("histogramSection"));
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(0);
    m_column->addWidget(m_section);
    m_column->addWidget(m_panels, 1);
    Translate();
}

void SideColumn::AddAbovePanels(QWidget* widget)
{
    m_column->insertWidget(m_column->indexOf(m_panels), widget);
}

void SideColumn::AddLayers(LayersPanel& layers)
{
    AddAbovePanels(&layers);
    m_layers = &layers;
}

void SideColumn::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    m_section->SetHasRoom(height() >= SmallestHeightWithHistogram);
    if (m_layers)
        m_layers->setVisible(height() >= SmallestHeightWithLayers);
}

void SideColumn::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
}

void SideColumn::Translate()
{
    setAccessibleName(tr("Side Panel"));
    m_panels->setAccessibleName(tr("Panels"));
    m_section->SetTitle(HistogramWidget::tr("Histogram"));
}

} // namespace LumetraEditor
