// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

class QVBoxLayout;

namespace LumetraEditor {

class EditorSettings;
class FoldingSection;
class HistogramWidget;
class LayersPanel;
class PanelTabs;

/// The column beside the photo: the histogram, which folds, and below it the panels with what
/// concerns all of them. In a low window the list of layers gives its room to the panels, in a very
/// low one the histogram too.
class SideColumn : public QWidget
{
    Q_OBJECT

public:
    /// The settings are kept by reference.
    explicit SideColumn(EditorSettings& settings, QWidget* parent = nullptr);

    HistogramWidget& GetHistogram() { return *m_histogram; }
    PanelTabs& GetPanels() { return *m_panels; }
    /// Places a widget between the histogram and the panels, and takes it as a child.
    void AddAbovePanels(QWidget* widget);
    /// Places the list of layers as AddAbovePanels() does.
    void AddLayers(LayersPanel& layers);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void Translate();

    QVBoxLayout* m_column;
    HistogramWidget* m_histogram;
    FoldingSection* m_section;
    PanelTabs* m_panels;
    LayersPanel* m_layers = nullptr;
};

} // namespace LumetraEditor
