// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QTabWidget>

#include <vector>

namespace LumetraEditor {

class GuardedPanel;

/// The panels beside the photo, as tabs. A panel that is put out of use loses its tab.
class PanelTabs : public QTabWidget
{
    Q_OBJECT

public:
    explicit PanelTabs(QWidget* parent = nullptr);

    /// `panel` is kept by reference and outlives its tab.
    void AddPanel(GuardedPanel& panel);
    /// The panels that have a tab, in their order.
    const std::vector<GuardedPanel*>& GetPanels() const { return m_shown; }
    /// Brings the panel of the module to the front, where it has a tab.
    void ShowPanel(const QString& module);
    /// Asks the panels for their titles again.
    void UpdateTitles();

private:
    void RemovePanel(const GuardedPanel& panel, QWidget* widget);

    std::vector<GuardedPanel*> m_shown;
};

} // namespace LumetraEditor
