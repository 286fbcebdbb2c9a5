// SPDX-License-Identifier: GPL-2.0-or-later
#include "AdjustActions.h"

#include "AnsweredDialog.h"
#include "Pointer.h"

#include "adjust/controls/NeutralSlider.h"
#include "adjust/curve/CurveEditor.h"
#include "adjust/wheel/HueWheel.h"
#include "widgets/CustomToolBoxButton.h"
#include "window/EditorWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTabWidget>
#include <QToolButton>

namespace LumetraTest {

using Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton;

AdjustActions::AdjustActions(LumetraEditor::EditorWindow& window, RandomChoice& choice)
    : m_window(window), m_choice(choice)
{
}

QWidget& AdjustActions::GetPanel()
{
    return *m_window.findChild<QWidget*>(QStringLiteral("adjustPanel"));
}

void AdjustActions::Act()
{
    const int kind = m_choice.Pick(20);
    if (kind < 4 || !GetPanel().isVisible())
        ChooseTab();
    else if (kind < 6)
        Fold();
    else if (kind < 13)
        DragControl();
    else if (kind < 14)
        PressCurveKey();
    else if (kind < 16)
        Type();
    else if (kind < 19)
        ClickButton();
    else
        SaveLook();
}

void AdjustActions::ChooseTab()
{
    if (auto* const tabs = m_window.findChild<QTabWidget*>(QStringLiteral("panels")))
        tabs->setCurrentIndex(m_choice.Pick(tabs->count()));
    QApplication::processEvents();
}

void AdjustActions::Fold()
{
    if (auto* const header = m_choice.PickOne<CustomToolBoxButton>(GetPanel()))
        header->click();
    auto* const heading = m_choice.PickOne<QToolButton>(GetPanel());
    if (heading && heading->property("fold").toBool())
        heading->click();
    QApplication::processEvents();
}

void AdjustActions::DragControl()
{
    QWidget* control = nullptr;
    const int kind = m_choice.Pick(5);
    if (kind == 0)
        control = m_choice.PickOne<LumetraAdjust::CurveEditor>(GetPanel());
    else if (kind == 1)
        control = m_choice.PickOne<LumetraAdjust::HueWheel>(GetPanel());
    else
        control = m_choice.PickOne<LumetraAdjust::NeutralSlider>(GetPanel());
    if (control)
        DragIn(*control);
}

/// A step may be undone, or redone, by the keyboard while the button is held.
void AdjustActions::DragIn(QWidget& control)
{
    SendMouse(control, QEvent::MouseButtonPress, m_choice.PickPlace(control), Qt::LeftButton);
    for (int i = m_choice.Pick(5); i > 0; --i) {
        SendMouse(control, QEvent::MouseMove, m_choice.PickPlace(control), Qt::LeftButton);
        if (m_choice.Pick(8) == 0)
            m_window.findChild<QAction*>(QLatin1String(m_choice.Pick(3) > 0 ? "undo" : "redo"))
                ->trigger();
    }
    SendMouse(control, QEvent::MouseButtonRelease, m_choice.PickPlace(control), Qt::NoButton);
}

void AdjustActions::PressCurveKey()
{
    auto* const curve = m_choice.PickOne<LumetraAdjust::CurveEditor>(GetPanel());
    if (!curve)
        return;
    static const Qt::Key keys[] = {Qt::Key_Up,     Qt::Key_Down,   Qt::Key_Left,  Qt::Key_Right,
                                   Qt::Key_PageUp, Qt::Key_Insert, Qt::Key_Delete};
    const Qt::Key key = keys[m_choice.Pick(7)];
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(curve, &event);
    }
}

void AdjustActions::Type()
{
    auto* const number = m_choice.PickOne<QDoubleSpinBox>(GetPanel());
    if (!number)
        return;
    const double share = m_choice.Pick(101) / 100.0;
    auto* const line = number->findChild<QLineEdit*>();
    line->setText(
        number->textFromValue(number->minimum() + share * (number->maximum() - number->minimum())));
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(number, &press);
}

void AdjustActions::ClickButton()
{
    static const char* const names[] = {"resetAdjustments", "applyAdjustments",
                                        "sectionTitleButton", "curveReset", "curveRemove"};
    auto* const button =
        GetPanel().findChild<QAbstractButton*>(QLatin1String(names[m_choice.Pick(5)]));
    if (button && button->isVisible())
        button->click();
}

void AdjustActions::SaveLook()
{
    const QString name = QStringLiteral("Tuned %1").arg(m_choice.Pick(4));
    AnswerNextDialog(m_window, [name](QDialog& dialog) {
        if (auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("lookName")))
            edit->setText(name);
        if (auto* const save = dialog.findChild<QAbstractButton*>(QStringLiteral("lookSave")))
            save->click();
    });
    const int kind = m_choice.Pick(4);
    auto* const action =
        m_window.findChild<QAction*>(QLatin1String(kind == 0 ? "updateLook" : "saveStack"));
    auto* const button = GetPanel().findChild<QAbstractButton*>(QStringLiteral("saveLook"));
    if (kind < 2 && action && action->isEnabled())
        action->trigger();
    else if (kind >= 2 && button && button->isVisible())
        button->click();
    QApplication::processEvents();
}

} // namespace LumetraTest
