// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

namespace LumetraAdjust {

/// The place of the panel in the editor's window, which owns it. Its contents are deleted with the
/// panel; the place may outlive it.
class AdjustFrame : public QWidget
{
    Q_OBJECT

public:
    AdjustFrame();

signals:
    /// The texts of the new language have been loaded.
    void languageChanged();

protected:
    void changeEvent(QEvent* event) override;
};

} // namespace LumetraAdjust
