// SPDX-License-Identifier: GPL-2.0-or-later
#include "SliderDrag.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QRectF>
#include <QSize>

namespace LumetraBench {

SliderDrag::SliderDrag(const LumetraHost::Image& photo) : m_view(m_drawer)
{
    m_drawer.SetPhoto(photo);
    const QSize size(photo.GetWidth(), photo.GetHeight());
    m_view.SetView({QRectF(QPointF(), QSizeF(size)), size});
    Rest();
}

void SliderDrag::Apply(const Zorvik::Quindle::EffectList& effects)
{
    Zorvik::Quindle::EffectsSettings package(1);
    package.Effects() = effects;
    package.Package().SetPackageName("drag");
    m_drawer.ApplyEffect(package, {});
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
