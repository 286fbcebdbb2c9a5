// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/LookCommands.h"

#include "LumetraEditor/IEditor.h"
#include "adjust/edit/AdjustCommands.h"
#include "adjust/looks/NameCounter.h"
#include "adjust/looks/SaveLookDialog.h"
#include "widgets/NewPresetDialog.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QVBoxLayout>
#include <QWidget>

#include <algorithm>

namespace LumetraAdjust {

using LumetraEditor::EditorLayer;
using LumetraEditor::NewLook;
using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;

namespace {

/// Puts a second label on the right of the first one, in the same line.
void PutBeside(QLabel& first, QLabel& second)
{
    auto* const row = new QHBoxLayout;
    auto* const column =
        first.parentWidget()->findChild<QVBoxLayout*>(QStringLiteral("verticalLayout"));
    column->insertLayout(column->indexOf(&first), row);
    column->removeWidget(&first);
    row->addWidget(&first, 1);
    row->addWidget(&second);
}

} // namespace

LookCommands::LookCommands(AdjustCommands& commands, LumetraEditor::IEditor& editor,
                           QWidget& window)
    : m_commands(commands), m_editor(editor), m_window(window)
{
}

void LookCommands::Save()
{
    if (m_commands.GetAdjustments().IsNeutral())
        return;
    QString name;
    SaveLookDialog dialog(
        m_commands.GetAdjustments(),
        [&](const NewLook& look) {
            name = look.name;
            return m_editor.StoreLook(look);
        },
        &m_window);
    if (dialog.exec() == QDialog::Accepted)
        m_editor.ShowBriefly(tr("“%1” is now among your looks.").arg(name));
}

bool LookCommands::HasLayers() const
{
    const auto layers = m_editor.GetLayers();
    return std::any_of(layers.begin(), layers.end(),
                       [](const EditorLayer& layer) { return layer.isOn; });
}

void LookCommands::SaveStack()
{
    const LayerStack::Flat flat = LayerStack::Flatten(m_editor.GetLayers());
    if (!flat.problem.isEmpty())
        return m_editor.ShowMessage(flat.problem);
    NewLook look;
    look.name = tr("New look");
    look.settings = flat.settings;
    look.sliders.emplace();
    QString problem;
    do {
        look.name = AskName(look.name);
        if (look.name.isEmpty())
            return;
        problem = m_editor.StoreLook(look);
        if (problem.isEmpty())
            m_editor.ShowBriefly(tr("“%1” is now among your looks.").arg(look.name));
        else
            m_editor.ShowMessage(problem);
    } while (!problem.isEmpty()); // the user may name another one, or cancel
}

/// The name that the user gives to a look in place of `proposed`; empty for none.
QString LookCommands::AskName(const QString& proposed) const
{
    NewPresetDialog dialog({}, NewPresetDialog::Create, &m_window);
    auto* const edit = dialog.findChild<QLineEdit*>(QStringLiteral("lineEdit"));
    edit->setAccessibleName(tr("Name of the look"));
    if (auto* const caption = dialog.findChild<QLabel*>(QStringLiteral("label")))
        PutBeside(*caption, *new NameCounter(*edit, SaveLookDialog::LongestName, &dialog));
    edit->setText(proposed);
    edit->selectAll();
    edit->setFocus();
    return dialog.exec() == QDialog::Accepted ? dialog.GetName() : QString();
}

LayerStack::Update LookCommands::FindUpdate() const
{
    return LayerStack::FindUpdate(m_editor.GetLayers(), AdjustCommands::PackageName,
                                  [this](const QString& id) { return m_editor.FindLookName(id); });
}

QString LookCommands::FindUpdatable() const
{
    return FindUpdate().name;
}

void LookCommands::Update()
{
    const LayerStack::Update update = FindUpdate();
    if (update.id.isEmpty())
        return;
    const QString problem =
        update.problem.isEmpty() ? m_editor.UpdateLook(update.id, update.settings) : update.problem;
    if (!problem.isEmpty())
        return m_editor.ShowMessage(problem);
    m_commands.TakeOff();
    m_editor.NoteEdit(tr("Update “%1”").arg(update.name));
}

} // namespace LumetraAdjust
