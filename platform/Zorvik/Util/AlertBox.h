// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QMessageBox>
#include <QString>

#include <memory>

namespace Zorvik::Util {

class AlertBox;

/// Shows alerts: a window in an editor, a script in a test.
class ZORVIKPLATFORM_EXPORT IAlertBackend
{
public:
    virtual QMessageBox::StandardButton Exec(AlertBox& box) = 0;

    virtual ~IAlertBackend();
};

/// A modal alert. What it looks like is the backend's affair.
class ZORVIKPLATFORM_EXPORT AlertBox
{
public:
    enum class Level
    {
        Information = 0,
        Warning = 1,
        Critical = 2
    };

    AlertBox(Level levelValue, const QString& titleText, const QString& bodyText,
             QMessageBox::StandardButtons buttonSet, QWidget* parentWidget,
             Qt::WindowFlags windowFlags);

    /// Asks the backend and returns its answer. Without a backend the text is printed as a warning
    /// and the answer is QMessageBox::NoButton.
    QMessageBox::StandardButton Exec();

    /// Sets the backend of the whole process (null: none) and returns the earlier one.
    static std::shared_ptr<IAlertBackend> SetBackend(std::shared_ptr<IAlertBackend> backend);

    const Level level;
    const QString title;
    const QString text;
    const QMessageBox::StandardButtons buttons;
    QWidget* const parent;
    const Qt::WindowFlags flags;
};

} // namespace Zorvik::Util
