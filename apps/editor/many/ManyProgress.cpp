// SPDX-License-Identifier: GPL-2.0-or-later
#include "many/ManyProgress.h"

#include "edit/ManyEdits.h"
#include "many/ManyTexts.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QToolButton>

namespace LumetraEditor {

ManyProgress::ManyProgress(ManyEdits& edits, QWidget* parent)
    : QWidget(parent), m_text(new QLabel(this)), m_cancel(new QToolButton(this))
{
    m_text->setObjectName(QStringLiteral("manyText"));
    m_cancel->setObjectName(QStringLiteral("cancelMany"));
    m_cancel->setFocusPolicy(Qt::StrongFocus);
    m_cancel->setAutoRaise(true);
    auto* const row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(m_text);
    row->addWidget(m_cancel);
    connect(m_cancel, &QToolButton::clicked, &edits, &ManyEdits::Cancel);
    connect(&edits, &ManyEdits::progressed, this, &ManyProgress::ShowProgress);
    Translate();
    hide();
}

void ManyProgress::ShowProgress(int done, int total)
{
    m_text->setText(tr("Edit on %1 of %2 photos").arg(done).arg(total));
    m_cancel->setVisible(done < total);
    show();
}

void ManyProgress::ShowEnd(const ManyReport& report)
{
    m_text->setText(CountChanged(report));
    m_cancel->hide();
    show();
}

void ManyProgress::Clear()
{
    if (m_cancel->isHidden())
        hide();
}

void ManyProgress::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LanguageChange)
        Translate();
}

void ManyProgress::Translate()
{
    m_cancel->setText(tr("Stop"));
    m_cancel->setAccessibleName(tr("Stop changing photos"));
}

} // namespace LumetraEditor
