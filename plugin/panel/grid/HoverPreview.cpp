// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/grid/HoverPreview.h"

#include "LumetraEditor/IEditor.h"
#include "core/PresetModel.h"

namespace LumetraPlugin {

HoverPreview::HoverPreview(PresetModel& presets, LumetraEditor::IEditor& editor)
    : m_presets(presets), m_editor(editor), m_guard(editor)
{
    m_delay.setSingleShot(true);
    m_delay.setInterval(Delay);
    connect(&m_delay, &QTimer::timeout, this, [this] { m_guard.Run([this] { Show(); }); });
}

/// Shows no photo between one look and the next: it would flicker.
void HoverPreview::Point(const QModelIndex& preset)
{
    m_pointed = preset;
    if (preset.isValid())
        m_delay.start();
    else
        End();
}

void HoverPreview::End()
{
    m_delay.stop();
    if (!m_isShown)
        return;
    m_isShown = false;
    m_editor.ShowOnPhoto(nullptr);
}

/// Shows the look, unless it is applied and so on the photo already.
void HoverPreview::Show()
{
    const auto preset = m_presets.GetPreset(m_pointed);
    if (!preset || preset->IsApplied() || preset->IsDownloadable() ||
        !preset->FindProblem(LumetraHost::ContentCheck::Content).empty())
        return End();
    const auto settings = preset->MakeSettings();
    m_isShown = true;
    m_editor.ShowOnPhoto(&settings);
}

} // namespace LumetraPlugin
