// SPDX-License-Identifier: MIT
#pragma once

#include "Zorvik/Util/AlertBox.h"

#include <QList>
#include <QVariant>

#include <functional>
#include <memory>

namespace Zorvik::Lumetra {

class IStyleBackend;

using ButtonList = QList<QMessageBox::StandardButton>;

/// Asks the host's style for its options.
class ZORVIKPLATFORM_EXPORT StyleProvider
{
public:
    /// FillSlider: a bool, sliders show their value as a filled part of the groove.
    enum OptionKey : int
    {
        FillSlider
    };

    /// The backend's answer; an invalid QVariant without one.
    static QVariant Option(OptionKey key);

    /// Sets the backend of the whole process (null: none) and returns the earlier one.
    static std::shared_ptr<IStyleBackend> SetBackend(std::shared_ptr<IStyleBackend> backend);
};

/// The host's style.
class ZORVIKPLATFORM_EXPORT IStyleBackend
{
public:
    virtual QVariant Option(StyleProvider::OptionKey key) const = 0;
    virtual void StyleAlert(Util::AlertBox& box, const ButtonList& buttons,
                            QMessageBox::StandardButton defaultButton) = 0;

    virtual ~IStyleBackend();
};

/// Lets the backend style `box`. The returned callable repeats the styling and may be dropped; it
/// must not outlive the box. Without a backend nothing is styled.
ZORVIKPLATFORM_EXPORT std::function<void()>
StyleAlertBox(Util::AlertBox& box, const ButtonList& buttons,
              QMessageBox::StandardButton defaultButton);

} // namespace Zorvik::Lumetra
