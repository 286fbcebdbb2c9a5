// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QFrame>

#include <vector>

class QLabel;
class QTimer;
class QToolButton;

namespace LumetraEditor {

/// Tells the user something without stopping him: a strip over the lower edge of its parent.
/// Messages stay until they are closed, brief ones until they have been seen for some seconds, as
/// long as neither the pointer nor the focus is on the strip. Further messages are added; when
/// there are more than fit, the newest are seen, and the earlier ones when these have been closed.
/// Screen readers speak each.
class MessageBar : public QFrame
{
    Q_OBJECT

public:
    /// Subject of a message, which says how long it is of interest.
    enum class About
    {
        Photo,   ///< until another photo comes
        Program, ///< until the user has closed it
        Moment   ///< for some seconds
    };

    /// How long a brief message is seen, in milliseconds.
    static constexpr int BriefTime = 6000;

    explicit MessageBar(QWidget* parent);

    void Show(const QString& message, About about = About::Photo);
    /// Removes the messages that are seen; waiting ones take their place.
    void Close();
    /// Removes messages about the photo, because another one has come.
    void ClearPhoto() { Remove(About::Photo); }
    /// The messages that are seen, one per line.
    QString GetText() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    static constexpr int MostMessages = 4;

    struct Message
    {
        QString text;
        About about;
    };

    std::size_t CountWaiting() const;
    void DropOldOnes();
    void Remove(About about);
    void EndBriefOnes();
    void Update();
    void Place();
    void Translate();

    std::vector<Message> m_messages; ///< the newest last
    QLabel* m_label;
    QToolButton* m_close;
    QTimer* m_brief;
};

} // namespace LumetraEditor
