// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/AdjustFrame.h"

#include "adjust/AdjustTranslation.h"

#include <QEvent>
#include <QFile>
#include <QVBoxLayout>

static void RegisterAdjustStyle()
{
    Q_INIT_RESOURCE(LumetraAdjust);
}

namespace LumetraAdjust {
namespace {

constexpr int SmallestWidth = 280;

QString ReadStyleSheet()
{
    RegisterAdjustStyle();
    QFile file(QStringLiteral(":/lumetra-adjust/adjust.qss"));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

AdjustFrame::AdjustFrame()
{
    setObjectName(QStringLiteral("adjustPanel"));
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(SmallestWidth);
    setStyleSheet(ReadStyleSheet());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    setAccessibleName(tr("Adjust"));
}

/// Loads the panel's texts before anybody asks for them.
void AdjustFrame::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    AdjustTranslation::Follow();
    setAccessibleName(tr("Adjust"));
    emit languageChanged();
}

} // namespace LumetraAdjust
