// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExposurePanel.h"

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace {

using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;

const QString TenthsKey = QStringLiteral("tenthsOfStops");
constexpr int MostTenths = 30;

EffectsSettings MakeExposure(int tenths)
{
    const auto effect = EffectSettingsImpl::Create("exposure");
    effect->SetParameter("stops", tenths / 10.0);
    EffectsSettings settings(1);
    settings.Package().SetPackageName("exposure-panel");
    settings.Effects().push_back(effect);
    return settings;
}

} // namespace

ExposurePanel::ExposurePanel(LumetraEditor::IEditor& editor)
    : m_editor(editor), m_widget(new QWidget), m_slider(new QSlider(Qt::Horizontal, m_widget))
{
    m_slider->setObjectName(QStringLiteral("exposureSlider"));
    m_slider->setRange(-MostTenths, MostTenths);
    auto* const label = new QLabel(tr("&Exposure"), m_widget);
    label->setBuddy(m_slider); // also names the slider to a screen reader
    auto* const column = new QVBoxLayout(m_widget);
    column->addWidget(label);
    column->addWidget(m_slider);
    column->addStretch();

    connect(m_slider, &QSlider::valueChanged, this, &ExposurePanel::Apply);
    connect(m_slider, &QSlider::sliderReleased, this, &ExposurePanel::NoteEdit);
    PhotoChanged();
}

void ExposurePanel::PhotoChanged()
{
    m_widget->setEnabled(!m_editor.GetPhotoPath().isEmpty());
    MoveSlider(0);
}

void ExposurePanel::MoveSlider(int tenths)
{
    const QSignalBlocker blocker(m_slider);
    m_slider->setValue(tenths);
}

void ExposurePanel::Apply()
{
    m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(MakeExposure(m_slider->value()), {});
    if (!m_slider->isSliderDown()) // a key or the wheel; a drag is noted when it ends
        NoteEdit();
}

void ExposurePanel::NoteEdit()
{
    m_editor.NoteEdit(tr("Exposure"));
}

QJsonObject ExposurePanel::SaveEdit() const
{
    if (m_slider->value() == 0)
        return {};
    return {{TenthsKey, m_slider->value()}};
}

void ExposurePanel::RestoreEdit(const QJsonObject& edit)
{
    const QJsonValue tenths = edit.value(TenthsKey);
    if (!tenths.isUndefined() && !tenths.isDouble())
        m_editor.ShowMessage(tr("Exposure: expected a number for \"%1\"").arg(TenthsKey));
    MoveSlider(tenths.toInt());
    if (m_slider->value() != 0)
        m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(MakeExposure(m_slider->value()), {});
}

bool ExposurePanel::HasUnsavedChanges() const
{
    return m_slider->value() != 0;
}
