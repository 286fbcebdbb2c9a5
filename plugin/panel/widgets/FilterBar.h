// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "panel/grid/PresetFilter.h"

#include <QWidget>

#include <vector>

class QAction;
class QLabel;
class QLineEdit;
class QMenu;
class QToolButton;

namespace LumetraPlugin {

/// The search field and the choice All / Favourites / Recent / User above the pages.
class FilterBar : public QWidget
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget* parent = nullptr);

    void FocusSearch();
    void Clear();
    /// Offers these kinds of importing in the menu of the button: behind a right click or a long
    /// press. The actions belong to others.
    void OfferImports(const QList<QAction*>& actions);
    /// Offers how the panel is arranged, in a menu of another owner.
    void OfferView(QMenu* menu);
    /// Shows whether the list of looks is unfolded.
    void ShowListOpen(bool isOpen);

signals:
    void textChanged(const QString& text);
    void kindChosen(PresetFilter::Kind kind);
    /// Enter or the down arrow was pressed in the search field: the results want the focus.
    void left();
    void importRequested();
    /// The user folds or unfolds the list of looks.
    void foldRequested();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void BuildSearch();
    void BuildKinds();
    void ShowTexts();

    QLineEdit* m_search;
    QLabel* m_searchIcon;
    QToolButton* m_clear;
    QToolButton* m_import;
    QToolButton* m_view;
    QToolButton* m_fold;
    bool m_isListOpen = true;
    std::vector<QToolButton*> m_kinds; // in the order of PresetFilter::Kind
};

} // namespace LumetraPlugin
