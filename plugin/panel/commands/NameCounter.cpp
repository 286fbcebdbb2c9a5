// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/commands/NameCounter.h"

#include <QEvent>
#include <QLineEdit>

namespace LumetraPlugin {

NameCounter::NameCounter(QLineEdit& field, int most, QWidget* parent)
    : QLabel(parent), m_field(field), m_most(most)
{
    setObjectName(QStringLiteral("nameCounter"));
    setProperty("muted", true);
    setTextFormat(Qt::PlainText);
    connect(&field, &QLineEdit::textChanged, this, &NameCounter::Follow);
    connect(&field, &QLineEdit::inputRejected, this, &NameCounter::NoteCut);
    ShowCount();
}

bool NameCounter::IsTooLong() const
{
    return m_field.text().trimmed().size() > m_most;
}

/// A field that has room again has left nothing out.
void NameCounter::Follow()
{
    m_isCut = m_isCut && m_field.text().size() >= m_most;
    ShowCount();
}

void NameCounter::NoteCut()
{
    m_isCut = true;
    ShowCount();
}

void NameCounter::ShowCount()
{
    const bool isFull = m_isCut || IsTooLong();
    const int count = m_isCut ? m_field.text().size() : m_field.text().trimmed().size();
    QFont bold = font();
    bold.setBold(isFull);
    setFont(bold);
    setText(isFull ? tr("%1, at most %2").arg(count).arg(m_most)
                   : tr("%1 of %2").arg(count).arg(m_most));
    const QString limit = tr("%1 of at most %2 characters").arg(count).arg(m_most);
    m_field.setAccessibleDescription(m_isCut ? limit + QLatin1Char('.') + QLatin1Char(' ') +
                                                   tr("The rest of the text was left out.")
                                             : limit);
    setToolTip(m_field.accessibleDescription());
}

void NameCounter::changeEvent(QEvent* event)
{
    QLabel::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        ShowCount();
}

} // namespace LumetraPlugin
