// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/FilterBar.h"

#include "panel/appearance/PanelIcons.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

namespace LumetraPlugin {
namespace {

constexpr int Gap = 8;
constexpr int Gutter = 2 * Gap; // the margin of the pictures below, left and right
constexpr int IconSize = 16;
constexpr int KindCount = 4;

} // namespace

FilterBar::FilterBar(QWidget* parent)
    : QWidget(parent), m_search(new QLineEdit(this)), m_searchIcon(new QLabel(m_search)),
      m_clear(new QToolButton(m_search)), m_import(new QToolButton(this)),
      m_view(new QToolButton(this)), m_fold(new QToolButton(this))
{
    setObjectName(QStringLiteral("filterBar"));
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Gutter, Gap, Gutter, Gap / 2);
    column->setSpacing(Gap / 2);
    BuildSearch();
    auto* searchRow = new QHBoxLayout;
    searchRow->setSpacing(Gap);
    searchRow->addWidget(m_search, 1);
    searchRow->addWidget(m_import);
    searchRow->addWidget(m_view);
    column->addLayout(searchRow);
    m_import->setObjectName(QStringLiteral("importButton"));
    m_import->setFixedWidth(26);
    m_import->setFocusPolicy(Qt::StrongFocus);
    connect(m_import, &QToolButton::clicked, this, &FilterBar::importRequested);
    m_view->setObjectName(QStringLiteral("viewButton"));
    m_view->setFixedWidth(26);
    m_view->setFocusPolicy(Qt::StrongFocus);
    m_view->setPopupMode(QToolButton::InstantPopup);
    BuildKinds();
    ShowTexts();
}

void FilterBar::OfferImports(const QList<QAction*>& actions)
{
    m_import->addActions(actions);
    m_import->setPopupMode(QToolButton::DelayedPopup);
    m_import->setContextMenuPolicy(Qt::ActionsContextMenu);
}

void FilterBar::OfferView(QMenu* menu)
{
    m_view->setMenu(menu);
}

void FilterBar::ShowListOpen(bool isOpen)
{
    m_isListOpen = isOpen;
    ShowTexts();
}

/// Puts icon and button into a layout: actions of the field would not be in its middle where a
/// style sheet makes it higher.
void FilterBar::BuildSearch()
{
    m_search->setObjectName(QStringLiteral("searchField"));
    m_search->installEventFilter(this);
    m_search->setTextMargins(IconSize + Gap, 0, IconSize + Gap, 0);
    m_searchIcon->setObjectName(QStringLiteral("searchIcon"));
    m_searchIcon->setAttribute(Qt::WA_TransparentForMouseEvents);
    m_clear->setObjectName(QStringLiteral("searchClear"));
    m_clear->setFocusPolicy(Qt::NoFocus); // Esc does the same
    m_clear->setCursor(Qt::ArrowCursor);
    m_clear->hide();
    auto* inside = new QHBoxLayout(m_search);
    inside->setContentsMargins(Gap, 0, Gap / 2, 0);
    inside->addWidget(m_searchIcon);
    inside->addStretch();
    inside->addWidget(m_clear);
    connect(m_clear, &QToolButton::clicked, m_search, &QLineEdit::clear);
    connect(m_search, &QLineEdit::textChanged, this, [this](const QString& text) {
        m_clear->setVisible(!text.isEmpty());
        emit textChanged(text);
    });
    connect(m_search, &QLineEdit::returnPressed, this, &FilterBar::left);
}

void FilterBar::BuildKinds()
{
    auto* row = new QHBoxLayout;
    row->setSpacing(2);
    static_cast<QVBoxLayout*>(layout())->addLayout(row);
    m_fold->setObjectName(QStringLiteral("foldList"));
    m_fold->setFixedWidth(24);
    m_fold->setFocusPolicy(Qt::StrongFocus);
    connect(m_fold, &QToolButton::clicked, this, &FilterBar::foldRequested);
    row->addWidget(m_fold);
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
    connect(group, &QButtonGroup::idClicked, this,
            [this](int id) { emit kindChosen(static_cast<PresetFilter::Kind>(id)); });
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
    m_clear->setIcon(PanelIcons::GetIcon(QStringLiteral("clear"), palette()));
    m_clear->setToolTip(tr("Empty the search (Esc)"));
    m_clear->setAccessibleName(tr("Empty the search"));
    m_import->setIcon(PanelIcons::GetIcon(QStringLiteral("import"), palette()));
    m_import->setToolTip(
        tr("Import looks: .xmp, .lrtemplate, .pp3, .cube, .3dl, CLF, CDL, HaldCLUT and "
           "look files"));
    m_import->setAccessibleName(tr("Import looks"));
    m_view->setIcon(PanelIcons::GetIcon(QStringLiteral("view"), palette()));
    m_view->setToolTip(tr("Size of the thumbnails, and what is unfolded"));
    m_view->setAccessibleName(tr("Arrange the panel"));
    m_fold->setIcon(PanelIcons::GetIcon(m_isListOpen ? QStringLiteral("chevron-down")
                                                     : QStringLiteral("chevron-right"),
                                        palette()));
    m_fold->setToolTip(m_isListOpen ? tr("Fold the list of looks")
                                    : tr("Unfold the list of looks"));
    m_fold->setAccessibleName(m_fold->toolTip());
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
