// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/FilterBar.h"

#include "panel/PanelIcons.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace LumetraPlugin {
namespace {

constexpr int Gap = 8;
constexpr int IconSize = 16;
constexpr int KindCount = 4;

} // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), m_search(new QLineEdit(this)), m_import(new QToolButton(this))
{
    setObjectName(QStringLiteral("filterBar"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Gap, Gap, Gap, Gap);
    column->setSpacing(Gap);
    m_search->setObjectName(QStringLiteral("searchField"));
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    // An action's icon does not stand in the middle of a field that a style sheet makes higher.
    m_searchIcon = new QLabel(m_search);
    m_searchIcon->setAttribute(Qt::WA_TransparentForMouseEvents);
    auto* inside = new QHBoxLayout(m_search);
    inside->setContentsMargins(Gap, 0, 0, 0);
    inside->addWidget(m_searchIcon);
    inside->addStretch();
    m_search->setTextMargins(IconSize + Gap, 0, 0, 0);
    auto* searchRow = new QHBoxLayout;
    searchRow->setSpacing(Gap);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_import);
    column->addLayout(searchRow);
    m_import->setObjectName(QStringLiteral("importButton"));
    m_import->setFixedWidth(26);
    m_import->setFocusPolicy(Qt::StrongFocus);
    connect(m_import, &QToolButton::clicked, this, &FilterBar::importRequested);
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    column->addLayout(row);
    auto* group = new QButtonGroup(this);
    for (int i = 0; i < KindCount; ++i) {
        auto* button = new QToolButton(this);
        button->setObjectName(QStringLiteral("filterButton%1").arg(i));
        button->setCheckable(true);
        button->setAutoRaise(true);
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setMinimumHeight(24);
        group->addButton(button, i);
        row->addWidget(button);
        m_kinds.push_back(button);
    }
    m_kinds.front()->setChecked(true);
    connect(m_search, &QLineEdit::textChanged, this, &FilterBar::textChanged);
    connect(m_search, &QLineEdit::returnPressed, this, &FilterBar::left);
    connect(group, &QButtonGroup::idClicked, this,
            [this](int id) { emit kindChosen(static_cast<PresetFilter::Kind>(id)); });
    ShowTexts();
}

void FilterBar::FocusSearch()
{
    m_search->setFocus(Qt::ShortcutFocusReason);
    m_search->selectAll();
}

void FilterBar::Clear()
{
    m_search->clear();
    m_kinds.front()->click();
}

bool FilterBar::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent*>(event)->key();
    if (key == Qt::Key_Down) {
        emit left();
        return true;
    }
    if (key == Qt::Key_Escape && !m_search->text().isEmpty()) {
        m_search->clear();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FilterBar::ShowTexts()
{
    m_search->setPlaceholderText(tr("Search looks"));
    m_search->setAccessibleName(tr("Search looks"));
    m_searchIcon->setPixmap(PanelIcons::GetPixmap(
        QStringLiteral("search"), IconSize, palette().color(QPalette::Text), devicePixelRatioF()));
    m_import->setIcon(PanelIcons::GetIcon(QStringLiteral("import"), palette()));
    m_import->setToolTip(tr("Import looks: .cube, .3dl, CLF, CDL, HaldCLUT and preset files"));
    m_import->setAccessibleName(tr("Import looks"));
    const QString texts[KindCount] = {tr("All"), tr("Favourites"), tr("Recent"), tr("Mine")};
    const QString hints[KindCount] = {tr("All looks"), tr("Looks that you marked with a star"),
                                      tr("Looks that you applied last"),
                                      tr("Looks that you saved or imported")};
    for (int i = 0; i < KindCount; ++i) {
        m_kinds[i]->setText(texts[i]);
        m_kinds[i]->setToolTip(hints[i]);
        m_kinds[i]->setAccessibleName(hints[i]);
    }
}

void FilterBar::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange || event->type() == QEvent::PaletteChange)
        ShowTexts();
}

} // namespace LumetraPlugin
