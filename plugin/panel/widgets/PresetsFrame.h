// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

namespace LumetraPlugin {

/// The place of the panel in the editor's window, which owns it. It contains the PresetsWidget,
/// which is deleted with the panel; the place may outlive both.
class PresetsFrame : public QWidget
{
    Q_OBJECT

public:
    PresetsFrame();

signals:
    /// Files were dropped whose names are those of looks.
    void looksDropped(const QStringList& paths);

protected:
    void changeEvent(QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void ShowTexts();
};

} // namespace LumetraPlugin
