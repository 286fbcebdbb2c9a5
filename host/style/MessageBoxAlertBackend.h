// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Util/AlertBox.h"

#include <memory>

class QMessageBox;

namespace LumetraHost {

class EditorStyle;

/// Shows the platform's alerts as message boxes, looking as the editor's style was told. In an
/// alert with the buttons Yes and Cancel, Yes bears the title, which is a verb ("Delete"): buttons
/// say what they do. Beside No, Yes stays a Yes.
class MessageBoxAlertBackend : public Zorvik::Util::IAlertBackend
{
public:
    explicit MessageBoxAlertBackend(std::shared_ptr<EditorStyle> style);
    ~MessageBoxAlertBackend() override;

    /// Modal. Closed without a button, the alert answers as QMessageBox does: with its escape
    /// button, which is the only one if there is but one.
    QMessageBox::StandardButton Exec(Zorvik::Util::AlertBox& box) override;

    /// The message box for an alert, not yet shown.
    std::unique_ptr<QMessageBox> MakeMessageBox(const Zorvik::Util::AlertBox& box) const;

private:
    std::shared_ptr<EditorStyle> m_style;
};

} // namespace LumetraHost
