// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditorPlugin.h"

#include <QAction>
#include <QApplication>
#include <QShortcut>
#include <QWidget>

/// A panel with keys: Ctrl+E and Alt+2, which others have before it, and Ctrl+Shift+K. The
/// application's property "keyedModule" counts what its action has done.
class KeyedModule : public QObject,
                    public LumetraEditor::IEditorPlugin,
                    public LumetraEditor::IEditorPanel
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override { return QStringLiteral("Keyed"); }
    std::unique_ptr<LumetraEditor::IEditorPanel> CreatePanel(LumetraEditor::IEditor&) override
    {
        return std::make_unique<KeyedModule>();
    }

    QWidget* GetWidget() override
    {
        auto* const widget = new QWidget;
        widget->setObjectName(QStringLiteral("keyedPanel"));
        auto* const action = new QAction(QStringLiteral("Count"), widget);
        action->setObjectName(QStringLiteral("keyedAction"));
        action->setShortcuts({Qt::CTRL + Qt::Key_E, Qt::CTRL + Qt::SHIFT + Qt::Key_K});
        action->setShortcutContext(Qt::WidgetWithChildrenShortcut);
        connect(action, &QAction::triggered, this, [] {
            qApp->setProperty("keyedModule", qApp->property("keyedModule").toInt() + 1);
        });
        widget->addAction(action);
        auto* const shortcut = new QShortcut(Qt::ALT + Qt::Key_2, widget);
        shortcut->setWhatsThis(QStringLiteral("Nothing"));
        return widget;
    }
    void PhotoChanged() override {}
    void PreviewReady(const QString&) override {}
    Zorvik::Core::Property::Ptr SaveEdit() const override
    {
        return std::make_shared<Zorvik::Core::Property>(std::string());
    }
    void RestoreEdit(const Zorvik::Core::Property::Ptr&) override {}
};
