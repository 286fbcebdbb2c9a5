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

/// Asks the host's style for its options. Without a backend the library works and is not styled.
class ZORVIKPLATFORM_EXPORT StyleProvider
{
public:
    /// Each key names one option of the style.
    enum OptionKey : int
    {
        FillSlider ///< A bool: true lets sliders show their value as a filled part of the groove.
    };

    /// Returns the backend's answer. Without a backend the QVariant is invalid, which reads as
    /// false.
    static QVariant Option(OptionKey key);

    /// Sets the backend of the whole process and returns the earlier one; null stands for none.
    static std::shared_ptr<IStyleBackend> SetBackend(std::shared_ptr<IStyleBackend> backend);
};

/// Stands for the host's style. The host implements it and hands it to StyleProvider::SetBackend().
class ZORVIKPLATFORM_EXPORT IStyleBackend
{
public:
    /// Answers StyleProvider::Option(). An option that the style does not know is an invalid
    /// QVariant.
    virtual QVariant Option(StyleProvider::OptionKey key) const = 0;
    /// Makes `box` match the application before it is shown: `buttons` are to stand out, and
    /// `defaultButton` is the one that Enter presses, NoButton for none. It may be called again for
    /// the same box, which may be gone after the call.
    virtual void StyleAlert(Util::AlertBox& box, const ButtonList& buttons,
                            QMessageBox::StandardButton defaultButton) = 0;

    virtual ~IStyleBackend();
};

/// Lets the backend style `box`, see IStyleBackend::StyleAlert(). The returned callable repeats the
/// styling with the backend of that moment; it may be dropped, and must not be called when the box
/// is gone. Without a backend nothing is styled.
ZORVIKPLATFORM_EXPORT std::function<void()>
StyleAlertBox(Util::AlertBox& box, const ButtonList& buttons,
              QMessageBox::StandardButton defaultButton);

} // namespace Zorvik::Lumetra
