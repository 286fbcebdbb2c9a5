// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "plugins/GuardedCommand.h"

#include "LumetraEditor/IEditorPlugin.h"

#include <QObject>
#include <QPointer>
#include <QWidget>

#include <vector>

namespace LumetraEditor {

/// All objects that a module has made for its panel. They are deleted in the order commands, panel,
/// widget.
struct PanelParts
{
    std::unique_ptr<IEditorPanel> panel;
    QPointer<QWidget> widget;
    std::vector<std::weak_ptr<std::unique_ptr<QUndoCommand>>> commands;

    /// True when `object`, which is compared only, is the panel, the widget or below one of them.
    bool Own(const QObject* object) const;
    void Delete();
};

/// The parts of a panel that was put out of use, perhaps by its own code, even below a dialog that
/// it has open; so they are deleted when none of that is on the stack.
class RetiredPanel : public QObject
{
    Q_OBJECT

public:
    explicit RetiredPanel(PanelParts parts);
    ~RetiredPanel() override;

    const PanelParts& GetParts() const { return m_parts; }

private:
    void DeleteWhenSafe();

    PanelParts m_parts;
};

} // namespace LumetraEditor
