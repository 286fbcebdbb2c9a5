// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/sections/AdjustWidget.h"

#include "adjust/edit/AdjustCommands.h"
#include "adjust/edit/SectionPlan.h"
#include "adjust/looks/LookCommands.h"
#include "adjust/sections/SectionPage.h"
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"

#include <QAction>
#include <QFocusEvent>
#include <QHBoxLayout>
#include <QMenu>
#include <QPushButton>
#include <QScrollArea>
#include <QToolButton>

namespace LumetraAdjust {
namespace {

using Zorvik::Lumetra::LumetraPresets::CustomToolBox;
using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

constexpr int Gap = 8;

} // namespace

AdjustWidget::AdjustWidget(AdjustCommands& commands, LookCommands& looks, QWidget* parent)
    : QWidget(parent), m_commands(commands), m_looks(looks), m_box(new CustomToolBox),
      m_menu(new QMenu(this))
{
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(MakeSections(), 1);
    column->addWidget(MakeButtons());
    MakeMenu();
    connect(m_box, &CustomToolBox::expandedChanged, this, [this](int section, bool isOpen) {
        if (isOpen)
            m_pages[static_cast<std::size_t>(section)]->Build();
        ShowState();
    });
    connect(&commands, &AdjustCommands::valuesChanged, this, &AdjustWidget::ShowValues);
    connect(&commands, &AdjustCommands::stateChanged, this, &AdjustWidget::ShowValues);
    connect(&commands, &AdjustCommands::stateChanged, this, &AdjustWidget::ShowState);
    ShowTexts();
}

AdjustWidget::~AdjustWidget() = default;

QWidget* AdjustWidget::MakeSections()
{
    m_scroll = new QScrollArea(this);
    m_scroll->setWidgetResizable(true);
    m_scroll->setFrameShape(QFrame::NoFrame);
    m_scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_scroll->setFocusPolicy(Qt::NoFocus);
    auto* const content = new QWidget;
    content->setObjectName(QStringLiteral("presetsPanel")); // gives the style's background
    content->setAttribute(Qt::WA_StyledBackground);
    auto* const column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(m_box);
    column->addStretch();
    for (int section = 0; section < SectionPlan::Sections; ++section)
        AddSection(section);
    m_scroll->setWidget(content);
    return m_scroll;
}

/// The headers of the tool box take no focus by themselves; here they are the way to a section by
/// keyboard.
void AdjustWidget::AddSection(int section)
{
    auto* const page = new SectionPage(section, m_commands);
    m_box->addItem(page, SectionPlan::GetTitle(section));
    m_box->findChildren<CustomToolBoxButton*>().back()->setFocusPolicy(Qt::StrongFocus);
    auto* const reset = new QToolButton;
    reset->setObjectName(QStringLiteral("sectionTitleButton"));
    reset->setFocusPolicy(Qt::TabFocus);
    connect(reset, &QToolButton::clicked, page, &SectionPage::Reset);
    m_box->addWidgetTitleButton(reset, section);
    m_pages.push_back(page);
    m_resets.push_back(reset);
}

QWidget* AdjustWidget::MakeButtons()
{
    auto* const bar = new QWidget(this);
    bar->setObjectName(QStringLiteral("adjustBar"));
    bar->setAttribute(Qt::WA_StyledBackground);
    m_save = new QPushButton(bar);
    m_save->setObjectName(QStringLiteral("saveLook"));
    m_more = new QToolButton(bar);
    m_more->setObjectName(QStringLiteral("adjustMore"));
    m_more->setPopupMode(QToolButton::InstantPopup);
    m_more->setFocusPolicy(Qt::StrongFocus);
    m_more->setText(QStringLiteral("…"));
    m_reset = new QPushButton(bar);
    m_reset->setObjectName(QStringLiteral("resetAdjustments"));
    m_apply = new QPushButton(bar);
    m_apply->setObjectName(QStringLiteral("applyAdjustments"));
    auto* const column = new QVBoxLayout(bar);
    column->setContentsMargins(2 * Gap, Gap, 2 * Gap, 2 * Gap);
    column->setSpacing(Gap);
    auto* const upper = new QHBoxLayout;
    upper->setSpacing(Gap);
    upper->addWidget(m_save, 1);
    upper->addWidget(m_more);
    column->addLayout(upper);
    auto* const lower = new QHBoxLayout;
    lower->setSpacing(Gap);
    lower->addWidget(m_reset, 1);
    lower->addWidget(m_apply, 1);
    column->addLayout(lower);
    connect(m_save, &QPushButton::clicked, &m_looks, &LookCommands::Save);
    connect(m_reset, &QPushButton::clicked, &m_commands, &AdjustCommands::ResetAll);
    connect(m_apply, &QPushButton::clicked, &m_commands, &AdjustCommands::Commit);
    return bar;
}

void AdjustWidget::MakeMenu()
{
    m_update = m_menu->addAction(QString(), &m_looks, &LookCommands::Update);
    m_update->setObjectName(QStringLiteral("updateLook"));
    m_saveStack = m_menu->addAction(QString(), &m_looks, &LookCommands::SaveStack);
    m_saveStack->setObjectName(QStringLiteral("saveStack"));
    m_more->setMenu(m_menu);
    connect(m_menu, &QMenu::aboutToShow, this, &AdjustWidget::ShowMenuTexts);
}

/// Layers change without a word to this panel, so the menu looks at them when it opens.
void AdjustWidget::ShowMenuTexts()
{
    const QString name = m_looks.FindUpdatable();
    m_update->setText(name.isEmpty()
                          ? tr("Update look with these values")
                          : tr("Update “%1” with these values")
                                .arg(QString(name).replace(QLatin1Char('&'), QLatin1String("&&"))));
    m_update->setEnabled(!name.isEmpty());
    m_saveStack->setText(tr("Save all layers as one look…"));
    m_saveStack->setEnabled(m_looks.HasLayers());
}

bool AdjustWidget::IsOpen(int section) const
{
    return !m_box->widget(section)->isHidden();
}

/// The controls of all sections that are made, each below its header.
std::vector<QWidget*> AdjustWidget::FindControls() const
{
    std::vector<QWidget*> controls;
    const auto headers = m_box->findChildren<CustomToolBoxButton*>();
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        controls.push_back(headers[static_cast<int>(i)]);
        controls.push_back(m_resets[i]);
        for (QWidget* const widget : m_pages[i]->findChildren<QWidget*>())
            if ((widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy() &&
                widget->window() == window())
                controls.push_back(widget);
    }
    return controls;
}

/// The Tab key goes down the panel as it is seen. Qt's own order is that in which widgets were
/// made, and the controls of a section are made when it is opened.
void AdjustWidget::OrderTabs()
{
    std::vector<QWidget*> order = FindControls();
    for (QWidget* const widget : order)
        widget->installEventFilter(this);
    order.insert(order.end(), {m_save, m_more, m_reset, m_apply});
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

bool AdjustWidget::focusNextPrevChild(bool isNext)
{
    OrderTabs();
    return QWidget::focusNextPrevChild(isNext);
}

/// Scrolls to a control that the Tab key has reached from outside of the sections, which a scroll
/// area does not do by itself.
bool AdjustWidget::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn) {
        const auto reason = static_cast<QFocusEvent*>(event)->reason();
        if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason)
            m_scroll->ensureWidgetVisible(static_cast<QWidget*>(watched), 0, Gap);
    }
    return QWidget::eventFilter(watched, event);
}

/// Makes only what is seen: the panel may stand behind another one for ever.
void AdjustWidget::showEvent(QShowEvent* event)
{
    BuildOpenSections();
    QWidget::showEvent(event);
}

void AdjustWidget::BuildOpenSections()
{
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        if (IsOpen(static_cast<int>(i)))
            m_pages[i]->Build();
    OrderTabs();
}

void AdjustWidget::ShowValues()
{
    for (SectionPage* const page : m_pages)
        page->ShowValues();
}

/// A section that is as it was needs no button to put it back. The tool box disables the button
/// while the section is shut: it then is a mark that says that something in there has changed.
void AdjustWidget::ShowState()
{
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_resets[i]->setVisible(!m_pages[i]->IsDefault());
        m_resets[i]->setText(IsOpen(static_cast<int>(i)) ? tr("Reset") : QStringLiteral("●"));
    }
    const bool isNeutral = m_commands.GetAdjustments().IsNeutral();
    m_save->setEnabled(!isNeutral);
    m_apply->setEnabled(!isNeutral);
    m_reset->setEnabled(m_commands.HasChanges());
}

void AdjustWidget::ShowTexts()
{
    for (int section = 0; section < SectionPlan::Sections; ++section) {
        const QString title = SectionPlan::GetTitle(section);
        const auto at = static_cast<std::size_t>(section);
        m_box->setItemText(section, title);
        m_resets[at]->setAccessibleName(tr("Reset “%1”").arg(title));
        m_pages[at]->ShowTexts();
    }
    m_save->setText(tr("Save as look…"));
    m_more->setAccessibleName(tr("More about looks"));
    m_more->setToolTip(m_more->accessibleName());
    m_reset->setText(tr("Reset all"));
    m_apply->setText(tr("Add another"));
    m_apply->setToolTip(
        tr("Leaves these adjustments on the photo; what you adjust next comes on top of them"));
    ShowMenuTexts();
    ShowState();
}

} // namespace LumetraAdjust
