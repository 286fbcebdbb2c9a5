// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/PanelTabs.h"

#include "plugins/GuardedPanel.h"

#include <algorithm>

namespace LumetraEditor {
namespace {

/// The title as a tab's text, without mnemonics.
QString TabText(const GuardedPanel& panel)
{
    return panel.GetTitle().replace(QLatin1Char('&'), QLatin1String("&&"));
}

} // namespace

PanelTabs::PanelTabs(QWidget* parent) : QTabWidget(parent)
{
    setObjectName(QStringLiteral("panels"));
    setDocumentMode(true);
    setTabBarAutoHide(true);
    setFocusPolicy(Qt::NoFocus); // keeps the focus from a hidden tab bar
}

/// Listens before it adds the tab: placing the widget may already put the panel out of use.
void PanelTabs::AddPanel(GuardedPanel& panel)
{
    m_shown.push_back(&panel);
    connect(&panel, &GuardedPanel::putOutOfUse, this,
            [this, &panel](QWidget* widget) { RemovePanel(panel, widget); });
    addTab(panel.GetWidget(), TabText(panel));
}

void PanelTabs::RemovePanel(const GuardedPanel& panel, QWidget* widget)
{
    m_shown.erase(std::remove(m_shown.begin(), m_shown.end(), &panel), m_shown.end());
    if (const int tab = widget ? indexOf(widget) : -1; tab >= 0)
        removeTab(tab);
}

void PanelTabs::ShowPanel(const QString& module)
{
    for (GuardedPanel* const panel : m_shown)
        if (panel->GetId() == module)
            return setCurrentWidget(panel->GetWidget());
}

void PanelTabs::UpdateTitles()
{
    const auto panels = m_shown; // a copy, as a panel that fails at its title is removed
    for (GuardedPanel* const panel : panels) {
        panel->UpdateTitle();
        if (QWidget* const widget = panel->GetWidget())
            setTabText(indexOf(widget), TabText(*panel));
    }
}

} // namespace LumetraEditor
