// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/RetiredPanel.h"

#include "plugins/CallDepth.h"

#include <QAbstractEventDispatcher>

namespace LumetraEditor {

bool PanelParts::Own(const QObject* object) const
{
    const auto isIn = [object](const QObject* tree) {
        return tree && (tree == object ||
                        tree->findChildren<QObject*>().contains(const_cast<QObject*>(object)));
    };
    return isIn(widget) || isIn(dynamic_cast<const QObject*>(panel.get()));
}

void PanelParts::Delete()
{
    for (const auto& command : commands)
        if (const auto shared = command.lock())
            shared->reset();
    commands.clear();
    panel.reset();
    delete widget;
}

RetiredPanel::RetiredPanel(PanelParts parts) : m_parts(std::move(parts))
{
    auto* const dispatcher = QAbstractEventDispatcher::instance();
    connect(dispatcher, &QAbstractEventDispatcher::awake, this, &RetiredPanel::DeleteWhenSafe);
    dispatcher->wakeUp();
}

RetiredPanel::~RetiredPanel()
{
    m_parts.Delete();
}

void RetiredPanel::DeleteWhenSafe()
{
    if (CallDepth::IsZero())
        delete this;
}

} // namespace LumetraEditor
