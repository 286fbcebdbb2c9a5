// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QObject>

class QWidget;

namespace LumetraEditor {

/// Leaves the keys that edit text to the focused field, even if a command of the window or of a
/// panel has the same key. Qt's fields claim only some of the keys that they react to.
class TextKeys : public QObject
{
    Q_OBJECT

public:
    /// `window` is kept by reference and is the parent.
    explicit TextKeys(QWidget& window);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget& m_window;
};

} // namespace LumetraEditor
