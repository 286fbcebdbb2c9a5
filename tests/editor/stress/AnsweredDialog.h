// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>
#include <QDialog>
#include <QTimer>

#include <functional>

namespace LumetraTest {

/// Fills in and accepts the dialog that the next events open, if there is one. It is left where it
/// does not take the answer.
inline void AnswerNextDialog(QObject& context, const std::function<void(QDialog& dialog)>& fill)
{
    QTimer::singleShot(0, &context, [fill] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            return;
        fill(*dialog);
        if (dialog->isVisible())
            dialog->accept();
        if (dialog->isVisible())
            dialog->reject();
    });
}

} // namespace LumetraTest
