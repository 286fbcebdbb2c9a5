// SPDX-License-Identifier: GPL-2.0-or-later
#include "ExposurePanel.h"

#include "LumetraEditor/IEditor.h"
#include "Zorvik/Brassel/ISerializer.h"
#include "Zorvik/Brassel/SerializerProperty.h"
#include "Zorvik/Exception.h"
#include "Zorvik/Lumetra/IWorkspaceController.h"
#include "Zorvik/Quindle/EffectSettingsImpl.h"
#include "Zorvik/Quindle/IQuindleDrawer.h"

#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include <cstdint>
#include <memory>

namespace {

using Zorvik::Brassel::SerializerProperty;
using Zorvik::Core::Property;
using Zorvik::Quindle::EffectSettingsImpl;
using Zorvik::Quindle::EffectsSettings;

constexpr char TenthsKey[] = "tenthsOfStops";
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

Property::Ptr ExposurePanel::SaveEdit() const
{
    const auto edit = std::make_shared<Property>(std::string());
    if (m_slider->value() != 0)
        edit->Set(TenthsKey, std::int64_t(m_slider->value()));
    return edit;
}

/// A read through the serializer checks the kind of the value and throws.
void ExposurePanel::RestoreEdit(const Property::Ptr& edit)
{
    int tenths = 0;
    try {
        tenths = SerializerProperty::Create(edit, "edit")->Get(TenthsKey, 0);
    } catch (const Zorvik::Exception& error) {
        m_editor.ShowMessage(tr("Exposure: %1").arg(QString::fromUtf8(error.what())));
    }
    MoveSlider(tenths);
    if (m_slider->value() != 0)
        m_editor.GetWorkspace()->GetCoreDrawer().ApplyEffect(MakeExposure(m_slider->value()), {});
}
