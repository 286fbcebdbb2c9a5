// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>
#include <QStringList>

class QLabel;
class QToolButton;

namespace LumetraEditor {

/// Tells the user something without stopping him: a strip over the lower edge of its parent, which
/// stays until it is closed. What comes while a message stands is added to it.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    explicit MessageBar(QWidget* parent);

    void Show(const QString& message);
    void Clear();
    /// What stands there now, one line per message.
    QString GetText() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static constexpr int MostMessages = 4;

    void Place();
    void Translate();

    QStringList m_messages;
    QLabel* m_label;
    QToolButton* m_close;
};

} // namespace LumetraEditor
