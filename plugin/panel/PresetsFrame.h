// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

namespace LumetraPlugin {

/// The place of the panel in the editor's window, which owns it. What is seen there is a
/// PresetsWidget, which goes with the panel; the place may outlive both.
class PresetsFrame : public QWidget
{
    Q_OBJECT

public:
    PresetsFrame();

signals:
    /// Files that hold looks, as far as their names tell.
    void looksDropped(const QStringList& paths);

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ShowTexts();
};

} // namespace LumetraPlugin
