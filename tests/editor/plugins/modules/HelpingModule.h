// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "LumetraEditor/IEditor.h"
#include "LumetraEditor/IEditorPlugin.h"

#include <QMetaType>
#include <QPointer>
#include <QPushButton>

Q_DECLARE_METATYPE(LumetraEditor::NewLook)

/// A panel that works with other panels. A click on its button does what the application's property
/// "help" says: "draw" a package, "commit", "store" the look in "look", or list the "layers". What
/// came of it stands in the property "helped". It keeps looks itself, in the property "keptLook",
/// while "help" is "keep"; with "restore" it commits an effect when its
/// edit is restored, with "fail" it throws at whatever it is told.
class HelpingPanel : public QObject,
                     public LumetraEditor::IEditorPanel,
                     public LumetraEditor::ILookKeeper
{
    Q_OBJECT

public:
    explicit HelpingPanel(LumetraEditor::IEditor& editor);
    ~HelpingPanel() override;

    QWidget* GetWidget() override { return m_button; }
    void PhotoChanged() override {}
    void PreviewReady(const QString&) override {}
    Zorvik::Core::Property::Ptr SaveEdit() const override;
    void RestoreEdit(const Zorvik::Core::Property::Ptr& edit) override;
    void PackagesCommitted() override;
    LumetraEditor::ILookKeeper* GetLookKeeper() override;
    QString KeepLook(const LumetraEditor::NewLook& look) override;
    QString FindLookName(const QString&) const override { return {}; }
    QString UpdateLook(const QString&, const Zorvik::Quindle::EffectsSettings&) override
    {
        return {};
    }

private:
    void Act();
    void Draw();
    void Commit();

    LumetraEditor::IEditor& m_editor;
    QPointer<QPushButton> m_button;
};

class HelpingModule : public QObject, public LumetraEditor::IEditorPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID LUMETRA_EDITOR_PLUGIN_IID)
    Q_INTERFACES(LumetraEditor::IEditorPlugin)

public:
    QString GetTitle() const override { return QStringLiteral("Help"); }
    std::unique_ptr<LumetraEditor::IEditorPanel>
    CreatePanel(LumetraEditor::IEditor& editor) override
    {
        return std::make_unique<HelpingPanel>(editor);
    }
};
