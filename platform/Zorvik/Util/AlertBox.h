// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QMessageBox>
#include <QString>

#include <memory>

namespace Zorvik::Util {

class AlertBox;

/// Shows alerts: as a window in an editor, or by a script in a test. The host implements it and
/// hands it to AlertBox::SetBackend().
class ZORVIKPLATFORM_EXPORT IAlertBackend
{
public:
    /// Shows `box` modally and returns the button that the user pressed, NoButton for none. It must
    /// throw nothing, since Qt events call it.
    virtual QMessageBox::StandardButton Exec(AlertBox& box) = 0;

    virtual ~IAlertBackend();
};

/// An alert box is modal. Its look is left to the backend.
class ZORVIKPLATFORM_EXPORT AlertBox
{
public:
    /// The level says how grave the matter is; backends show it as an icon.
    enum class Level
    {
        Information = 0,
        Warning = 1,
        Critical = 2
    };

    /// Keeps its arguments for the backend and shows nothing yet. `titleText` may be empty;
    /// `parentWidget` may be null, is not owned, and must live while Exec() runs.
    AlertBox(Level levelValue, const QString& titleText, const QString& bodyText,
             QMessageBox::StandardButtons buttonSet, QWidget* parentWidget,
             Qt::WindowFlags windowFlags);

    /// Asks the backend and returns its answer. Without a backend the text is printed as a warning
    /// and the answer is QMessageBox::NoButton.
    QMessageBox::StandardButton Exec();

    /// Sets the backend of the whole process and returns the earlier one; null stands for none.
    static std::shared_ptr<IAlertBackend> SetBackend(std::shared_ptr<IAlertBackend> backend);

    const Level level;
    const QString title;
    const QString text;
    const QMessageBox::StandardButtons buttons;
    QWidget* const parent;
    const Qt::WindowFlags flags;
};

} // namespace Zorvik::Util
