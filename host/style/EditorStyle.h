// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Lumetra/StyleProvider.h"

namespace LumetraHost {

/// The editor's answers to StyleProvider. Sliders are filled. How an alert is to look is kept
/// until the alert is shown: MessageBoxAlertBackend takes it from here.
class EditorStyle : public Zorvik::Lumetra::IStyleBackend
{
public:
    struct AlertStyle
    {
        Zorvik::Lumetra::ButtonList accentButtons; // drawn in the accent colour
        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton;
    };

    /// The style that StyleAlert() was given last for this alert. Plain at the second call, and
    /// when no style was given.
    AlertStyle TakeAlertStyle(const Zorvik::Util::AlertBox& box);

    QVariant Option(Zorvik::Lumetra::StyleProvider::OptionKey key) const override;
    void StyleAlert(Zorvik::Util::AlertBox& box, const Zorvik::Lumetra::ButtonList& buttons,
                    QMessageBox::StandardButton defaultButton) override;

private:
    const Zorvik::Util::AlertBox* m_styledBox = nullptr; // compared, never followed
    AlertStyle m_alertStyle;
};

} // namespace LumetraHost
