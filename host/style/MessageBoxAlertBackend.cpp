// SPDX-License-Identifier: GPL-2.0-or-later
#include "style/MessageBoxAlertBackend.h"

#include "style/EditorStyle.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QPointer>
#include <QStyle>

#include <utility>

namespace LumetraHost {
namespace {

using Zorvik::Util::AlertBox;

QMessageBox::Icon IconFor(AlertBox::Level level)
{
    switch (level) {
    case AlertBox::Level::Information:
        return QMessageBox::Information;
    case AlertBox::Level::Warning:
        return QMessageBox::Warning;
    case AlertBox::Level::Critical:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

} // namespace

MessageBoxAlertBackend::MessageBoxAlertBackend(std::shared_ptr<EditorStyle> style)
    : m_style(std::move(style))
{
}

MessageBoxAlertBackend::~MessageBoxAlertBackend() = default;

QMessageBox::StandardButton MessageBoxAlertBackend::Exec(AlertBox& box)
{
    // The alert's parent may end with its children while the alert is open.
    const QPointer<QMessageBox> messageBox = MakeMessageBox(box).release();
    const auto answer = static_cast<QMessageBox::StandardButton>(messageBox->exec());
    delete messageBox;
    return answer;
}

std::unique_ptr<QMessageBox> MessageBoxAlertBackend::MakeMessageBox(const AlertBox& box) const
{
    // A window needs some title for the task bar.
    const QString title = box.title.isEmpty() ? QCoreApplication::applicationName() : box.title;
    auto messageBox = std::make_unique<QMessageBox>(IconFor(box.level), title, box.text,
                                                    box.buttons, box.parent, box.flags);
    messageBox->setTextFormat(Qt::PlainText); // names may hold anything

    if (box.buttons == (QMessageBox::Yes | QMessageBox::Cancel) && !box.title.isEmpty())
        messageBox->button(QMessageBox::Yes)->setText(box.title);

    const EditorStyle::AlertStyle look = m_style->TakeAlertStyle(box);
    if (look.defaultButton != QMessageBox::NoButton)
        messageBox->setDefaultButton(look.defaultButton);
    for (const auto button : look.accentButtons) {
        if (QAbstractButton* widget = messageBox->button(button)) {
            widget->setProperty("accent", true);
            widget->style()->unpolish(widget); // the box has polished it already
            widget->style()->polish(widget);
        }
    }
    return messageBox;
}

} // namespace LumetraHost
