// SPDX-License-Identifier: GPL-2.0-or-later
#include "AdjustAudit.h"

#include "adjust/AdjustPanel.h"
#include "adjust/controls/NeutralSlider.h"
#include "adjust/controls/ValueScale.h"
#include "adjust/edit/AdjustCommands.h"
#include "adjust/edit/Adjustments.h"
#include "drawer/stack/SameEffects.h"
#include "session/Editor.h"
#include "workspace/WorkspaceController.h"

#include <algorithm>

namespace LumetraTest {

using LumetraAdjust::Adjustments;
using Zorvik::Quindle::EffectsSettings;

AdjustAudit::AdjustAudit(LumetraEditor::Editor& editor, LumetraAdjust::AdjustPanel& panel)
    : m_editor(editor), m_panel(panel)
{
}

QStringList AdjustAudit::FindDifferences()
{
    Adjustments stored(m_editor.DescribeEffects());
    m_differences = stored.Load(m_panel.SaveEdit());
    ComparePackage(stored);
    CompareSliders(stored);
    return m_differences;
}

void AdjustAudit::ComparePackage(const Adjustments& stored)
{
    const auto packages = m_editor.GetHost().GetDrawer().GetOpenPackages();
    const auto package = std::find_if(packages.begin(), packages.end(), [](const auto& open) {
        return open.Package().GetPackageName() == LumetraAdjust::AdjustCommands::PackageName;
    });
    EffectsSettings expected(EffectsSettings::PhotoAlone);
    expected.Effects() =
        stored.MakeEffects([&stored](const std::string& id) { return !stored.IsNeutral(id); });
    const bool isThere = package != packages.end();
    if (isThere != !expected.Effects().empty())
        m_differences.append(isThere
                                 ? QStringLiteral("adjustments are on the photo, not in the panel")
                                 : QStringLiteral("adjustments are not on the photo"));
    else if (isThere && !LumetraHost::DrawTheSame(*package, expected))
        m_differences.append(QStringLiteral("the photo has other adjustments than the panel"));
}

/// Sliders are named after the parameter that they show.
void AdjustAudit::CompareSliders(const Adjustments& stored)
{
    for (const auto* const slider :
         m_panel.GetWidget()->findChildren<LumetraAdjust::NeutralSlider*>()) {
        const QString name = slider->objectName();
        const int dot = name.lastIndexOf(QLatin1Char('.'));
        const std::string effect = name.left(dot).toStdString();
        const std::string parameter = name.mid(dot + 1).toStdString();
        const auto* const description = stored.Find(effect);
        if (!description || !slider->isVisible())
            continue;
        for (const auto& each : description->parameters)
            if (each.name == parameter) {
                const int wanted =
                    LumetraAdjust::ValueScale(each).ToPosition(stored.Get(effect, parameter));
                if (slider->value() != wanted)
                    m_differences.append(QStringLiteral("%1 is at %2, expected %3")
                                             .arg(name)
                                             .arg(slider->value())
                                             .arg(wanted));
            }
    }
}

} // namespace LumetraTest
