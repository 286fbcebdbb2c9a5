// SPDX-License-Identifier: GPL-2.0-or-later
#include "many/PasteDialog.h"

#include "many/ManyTexts.h"
#include "settings/EditorSettings.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;
using LumetraHost::EditState;

const QString LeftOutKey = QStringLiteral("paste/leftOut");
const QString OnTopKey = QStringLiteral("paste/onTop");

template <class Widget>
Widget* Named(Widget* widget, const QString& name)
{
    widget->setObjectName(name);
    return widget;
}

bool HasLayers(const EditState& edit, const QString& module)
{
    return std::any_of(edit.layers.begin(), edit.layers.end(),
                       [&module](const EditLayer& layer) { return layer.module == module; });
}

} // namespace

PasteDialog::PasteDialog(const EditState& copied, const ModuleTitles& modules,
                         const NameLayer& nameLayer, int count, EditorSettings& settings,
                         QWidget* parent)
    : QDialog(parent), m_copied(copied), m_settings(settings),
      m_replace(Named(new QRadioButton(tr("In place of the &same parts"), this),
                      QStringLiteral("pasteReplace"))),
      m_onTop(
          Named(new QRadioButton(tr("On &top of all layers"), this), QStringLiteral("pasteOnTop"))),
      m_paste(nullptr)
{
    setObjectName(QStringLiteral("pasteDialog"));
    setWindowTitle(tr("Paste Edit"));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(8);
    column->addWidget(new QLabel(
        count == 1 ? tr("Paste on the photo:") : tr("Paste on %1 photos:").arg(count), this));
    for (const auto& [module, title] : modules)
        AddPart(module, title, nameLayer);
    for (const EditLayer& layer : m_copied.layers)
        AddPart(layer.module, layer.module.isEmpty() ? tr("Other layers") : layer.module,
                nameLayer);
    column->addSpacing(8);
    column->addWidget(m_replace);
    column->addWidget(m_onTop);
    column->addSpacing(8);
    auto* const buttons =
        Named(new QDialogButtonBox(QDialogButtonBox::Cancel, this), QStringLiteral("pasteButtons"));
    m_paste = Named(buttons->addButton(tr("&Paste"), QDialogButtonBox::AcceptRole),
                    QStringLiteral("pasteButton"));
    m_paste->setProperty("accent", true);
    m_paste->style()->unpolish(m_paste); // the box has polished the button already
    m_paste->style()->polish(m_paste);
    m_paste->setDefault(true);
    column->addWidget(buttons);
    setMinimumWidth(360);
    connect(buttons, &QDialogButtonBox::accepted, this, &PasteDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &PasteDialog::reject);
    connect(m_onTop, &QRadioButton::toggled, this, &PasteDialog::Update);
    Restore();
}

/// Adds a part that is not there yet, with what the copied edit has of it.
void PasteDialog::AddPart(const QString& module, const QString& title, const NameLayer& nameLayer)
{
    const auto isThere = [&module](const auto& part) { return part.first == module; };
    if (std::any_of(m_parts.begin(), m_parts.end(), isThere))
        return;
    QString text = QStringLiteral("%1: %2").arg(title, DescribePart(m_copied, module, nameLayer));
    auto* const box =
        Named(new QCheckBox(text.replace(QLatin1Char('&'), QLatin1String("&&")), this),
              QStringLiteral("pastePart.") + module);
    connect(box, &QCheckBox::toggled, this, &PasteDialog::Update);
    layout()->addWidget(box);
    m_parts.emplace_back(module, box);
}

void PasteDialog::Restore()
{
    const QStringList leftOut = m_settings.Get(LeftOutKey).toStringList();
    for (const auto& [module, box] : m_parts)
        box->setChecked(!leftOut.contains(module));
    (m_settings.Get(OnTopKey).toBool() ? m_onTop : m_replace)->setChecked(true);
    Update();
}

/// A part without layers changes something only where it takes those of the photos away.
void PasteDialog::Update()
{
    bool isAny = false;
    for (const auto& [module, box] : m_parts) {
        const bool isUseful = !IsOnTop() || HasLayers(m_copied, module);
        box->setEnabled(isUseful);
        isAny = isAny || (isUseful && box->isChecked());
    }
    if (m_paste)
        m_paste->setEnabled(isAny);
}

EditParts PasteDialog::GetParts() const
{
    EditParts leftOut;
    for (const auto& [module, box] : m_parts)
        if (!box->isChecked())
            leftOut.modules.append(module);
    return leftOut;
}

bool PasteDialog::IsOnTop() const
{
    return m_onTop->isChecked();
}

/// Choices about modules that are not offered this time stay as they were.
void PasteDialog::accept()
{
    QStringList leftOut = m_settings.Get(LeftOutKey).toStringList();
    for (const auto& [module, box] : m_parts) {
        leftOut.removeAll(module);
        if (!box->isChecked())
            leftOut.append(module);
    }
    m_settings.Set(LeftOutKey, leftOut);
    m_settings.Set(OnTopKey, IsOnTop());
    QDialog::accept();
}

} // namespace LumetraEditor
