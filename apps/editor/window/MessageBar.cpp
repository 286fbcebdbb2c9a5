// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/MessageBar.h"

#include "appearance/Icons.h"

#include <QAccessible>
#include <QApplication>
#include <QEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QTimer>
#include <QToolButton>

#include <algorithm>

namespace LumetraEditor {

MessageBar::MessageBar(QWidget* parent)
    : QFrame(parent), m_label(new QLabel(this)), m_close(new QToolButton(this)),
      m_brief(new QTimer(this))
{
    setObjectName(QStringLiteral("messageBar"));
    m_label->setObjectName(QStringLiteral("messageText"));
    m_label->setTextFormat(Qt::PlainText); // file names may hold anything
    m_label->setWordWrap(true);
    m_label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_close->setObjectName(QStringLiteral("messageClose"));
    m_close->setFocusPolicy(Qt::StrongFocus);
    m_close->setAutoRaise(true);
    // The bar is dark in both themes.
    m_close->setIcon(MakeIcon(QStringLiteral("close"), LumetraHost::PaletteKind::Dark));

    auto* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(16, 8, 8, 8);
    layout->setSpacing(8);
    layout->addWidget(m_label, 1);
    layout->addWidget(m_close, 0, Qt::AlignTop);

    connect(m_close, &QToolButton::clicked, this, &MessageBar::Close);
    m_brief->setObjectName(QStringLiteral("briefTime"));
    m_brief->setSingleShot(true);
    m_brief->setInterval(BriefTime);
    connect(m_brief, &QTimer::timeout, this, &MessageBar::EndBriefOnes);
    parent->installEventFilter(this);
    Translate();
    hide();
}

void MessageBar::Show(const QString& message, About about)
{
    m_messages.erase(std::remove_if(m_messages.begin(), m_messages.end(),
                                    [&](const Message& one) { return one.text == message; }),
                     m_messages.end());
    m_messages.push_back({message, about});
    DropOldOnes();
    if (about == About::Moment)
        m_brief->start();
    Update();
}

/// Drops the oldest messages about a photo that do not fit.
void MessageBar::DropOldOnes()
{
    const auto isOfPhoto = [](const Message& one) { return one.about == About::Photo; };
    if (std::count_if(m_messages.begin(), m_messages.end(), isOfPhoto) > MostMessages)
        m_messages.erase(std::find_if(m_messages.begin(), m_messages.end(), isOfPhoto));
}

void MessageBar::Close()
{
    m_messages.resize(CountWaiting());
    Update();
}

void MessageBar::Remove(About about)
{
    const auto last = std::remove_if(m_messages.begin(), m_messages.end(),
                                     [about](const Message& one) { return one.about == about; });
    if (last == m_messages.end())
        return;
    m_messages.erase(last, m_messages.end());
    Update();
}

/// Waits on while somebody may be reading.
void MessageBar::EndBriefOnes()
{
    if (underMouse() || isAncestorOf(QApplication::focusWidget()))
        m_brief->start();
    else
        Remove(About::Moment);
}

void MessageBar::Update()
{
    m_label->setText(GetText());
    setAccessibleName(GetText());
    if (m_messages.empty())
        return hide();
    show();
    Place();
    raise();
    QAccessibleEvent event(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&event);
}

std::size_t MessageBar::CountWaiting() const
{
    return m_messages.size() - std::min<std::size_t>(m_messages.size(), MostMessages);
}

QString MessageBar::GetText() const
{
    QStringList lines;
    for (std::size_t i = CountWaiting(); i < m_messages.size(); ++i)
        lines.append(m_messages[i].text);
    if (CountWaiting() > 0)
        lines.append(tr("Close this to see %1 more.").arg(CountWaiting()));
    return lines.join(QLatin1Char('\n'));
}

void MessageBar::Place()
{
    const int margin = 16;
    const QSize room = parentWidget()->size();
    int text = 0;
    for (const QString& line : GetText().split(QLatin1Char('\n')))
        text = std::max(text, m_label->fontMetrics().horizontalAdvance(line));
    const int wanted = text + 16 + 8 + 8 + m_close->sizeHint().width() + 8;
    const int width =
        std::max(0, std::min({std::max(wanted, 320), 720, room.width() - 2 * margin}));
    const int height = std::max(40, heightForWidth(width));
    setGeometry((room.width() - width) / 2, room.height() - height - margin, width, height);
}

void MessageBar::Translate()
{
    m_close->setToolTip(tr("Close the message"));
    m_close->setAccessibleName(tr("Close the message"));
}

bool MessageBar::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == parentWidget() && event->type() == QEvent::Resize && isVisible())
        Place();
    return QFrame::eventFilter(watched, event);
}

void MessageBar::changeEvent(QEvent* event)
{
    QFrame::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
}

void MessageBar::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        Close();
    else
        QFrame::keyPressEvent(event);
}

} // namespace LumetraEditor
