// SPDX-License-Identifier: MIT
#include "support/RecordingDrawer.h"

#include "support/CallLog.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace LumetraTest {

using namespace Zorvik;
using namespace Zorvik::Quindle;

RecordingDrawer::RecordingDrawer(CallLog& log) : m_log(log), m_painter(log, m_stack) {}

void RecordingDrawer::SetPhotoSize(int width, int height)
{
    m_photoWidth = width;
    m_photoHeight = height;
}

PackageStack& RecordingDrawer::GetStack()
{
    return m_stack;
}

EffectsSettingsPackage RecordingDrawer::GetPackage(unsigned index) const
{
    m_log.Call("drawer.GetPackage", index);
    return m_stack.GetPackage(index);
}

unsigned RecordingDrawer::GetDefaultPackageIndex() const
{
    m_log.Call("drawer.GetDefaultPackageIndex");
    return m_stack.GetNextIndex();
}

unsigned RecordingDrawer::GetPackageIndex(const std::string& packageName) const
{
    m_log.Call("drawer.GetPackageIndex", packageName);
    return m_stack.FindIndex(packageName);
}

void RecordingDrawer::ApplyEffect(const EffectsSettings& effects,
                                  const std::map<std::string, int>& options)
{
    m_log.Call("drawer.ApplyEffect", effects, options);
    const CallLog::Pause pause(m_log);
    m_stack.Apply(effects);
}

void RecordingDrawer::ApplyEffect(const ConstEffectPtr& effect,
                                  const std::map<std::string, int>& options)
{
    m_log.Call("drawer.ApplyEffect", effect, options);
    const CallLog::Pause pause(m_log);
    m_stack.Commit(effect);
}

IQuindleDrawerPainter& RecordingDrawer::GetPainter()
{
    return m_painter;
}

Proc::Frame RecordingDrawer::RenderPreview(const Proc::FrameTarget& target,
                                           const EffectsSettings& effects, int cropPolicy,
                                           int fitPolicy, unsigned flags)
{
    m_log.Call("drawer.RenderPreview", target, effects, cropPolicy, fitPolicy, flags);
    if (m_photoWidth < 1 || m_photoHeight < 1)
        return Proc::Frame();

    const double acrossScale = double(target.width) / m_photoWidth;
    const double downScale = double(target.height) / m_photoHeight;
    const bool isWhole = cropPolicy == 0;
    double scale = isWhole ? std::min(acrossScale, downScale) : std::max(acrossScale, downScale);
    if (fitPolicy == 1)
        scale = std::min(scale, 1.0);
    const auto extent = [scale](int photo, int room) {
        return std::clamp(static_cast<int>(std::lround(photo * scale)), 1, room);
    };
    Proc::Frame frame = Proc::Frame::Allocate(extent(m_photoWidth, target.width),
                                              extent(m_photoHeight, target.height),
                                              Proc::PixelFormat::Rgba8Premultiplied);
    std::memset(frame.pixels.get(), 0x80, frame.stride * static_cast<std::size_t>(frame.height));
    return frame;
}

} // namespace LumetraTest
