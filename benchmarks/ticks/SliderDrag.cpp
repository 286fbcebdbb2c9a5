// SPDX-License-Identifier: GPL-2.0-or-later
#include "SliderDrag.h"

#include "Zorvik/Quindle/SettingsPainterEffectsPackage.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QRectF>
#include <QSize>

#include <utility>

namespace LumetraBench {
namespace {

constexpr char PackageName[] = "drag";

} // namespace

SliderDrag::SliderDrag(const LumetraHost::Image& photo) : m_view(m_drawer)
{
    m_drawer.SetPhoto(photo);
    const QSize size(photo.GetWidth(), photo.GetHeight());
    m_view.SetView({QRectF(QPointF(), QSizeF(size)), size});
    Rest();
}

void SliderDrag::Apply(const Zorvik::Quindle::EffectList& effects)
{
    if (std::exchange(m_isBlending, false))
        m_drawer.GetPainter().FinishPainting(0, 0, true);
    Zorvik::Quindle::EffectsSettings package(1);
    package.Effects() = effects;
    package.Package().SetPackageName(PackageName);
    m_drawer.ApplyEffect(package, {});
    ++m_wanted;
}

void SliderDrag::Blend(int amount)
{
    auto& painter = m_drawer.GetPainter();
    if (!m_isBlending) {
        const auto package = Zorvik::Quindle::SettingsPainterEffectsPackageBlendSource::Create();
        package->SetPackageName(PackageName);
        painter.StartPainting(package);
        m_isBlending = true;
    }
    Zorvik::Quindle::EffectsSettings update(1);
    update.SetBlendAmount(amount);
    painter.UpdatePainting(update, 0);
    ++m_wanted;
}

void SliderDrag::WaitForFirstFrame()
{
    while (m_view.GetFrame().serial < m_wanted)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

void SliderDrag::Rest()
{
    m_view.WaitForFrame();
    m_wanted = m_view.GetFrame().serial;
}

} // namespace LumetraBench
