// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include <vector>

class QAction;
class QMenu;
class QPushButton;
class QScrollArea;
class QToolButton;

namespace Zorvik::Lumetra::LumetraPresets {
class CustomToolBox;
}

namespace LumetraAdjust {

class AdjustCommands;
class LookCommands;
class SectionPage;

/// The panel's contents: the sections, which fold, and the buttons below them.
class AdjustWidget : public QWidget
{
    Q_OBJECT

public:
    /// Both are kept by reference.
    AdjustWidget(AdjustCommands& commands, LookCommands& looks, QWidget* parent = nullptr);
    ~AdjustWidget() override;

    /// Shows all texts in the language of this moment.
    void ShowTexts();

protected:
    bool focusNextPrevChild(bool isNext) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QWidget* MakeSections();
    void AddSection(int section);
    QWidget* MakeButtons();
    void MakeMenu();
    void BuildOpenSections();
    void OrderTabs();
    std::vector<QWidget*> FindControls() const;
    void ShowValues();
    void ShowState();
    void ShowMenuTexts();
    bool IsOpen(int section) const;

    AdjustCommands& m_commands;
    LookCommands& m_looks;
    Zorvik::Lumetra::LumetraPresets::CustomToolBox* m_box;
    QScrollArea* m_scroll = nullptr;
    std::vector<SectionPage*> m_pages;
    std::vector<QToolButton*> m_resets;
    QPushButton* m_save = nullptr;
    QToolButton* m_more = nullptr;
    QPushButton* m_reset = nullptr;
    QPushButton* m_apply = nullptr;
    QMenu* m_menu;
    QAction* m_update = nullptr;
    QAction* m_saveStack = nullptr;
};

} // namespace LumetraAdjust
