// SPDX-License-Identifier: MIT
#pragma once

#include "support/PackageStack.h"
#include "support/RecordingPainter.h"

#include "Zorvik/Quindle/IQuindleDrawer.h"

namespace LumetraTest {

class CallLog;

/// A drawer that records its calls and keeps its packages as a drawer must, but renders nothing:
/// its previews are grey frames of the right size. Starts with a photo of 60 x 40 pixels.
class RecordingDrawer : public Zorvik::Quindle::IQuindleDrawer
{
public:
    explicit RecordingDrawer(CallLog& log);

    /// 0 x 0: no photo.
    void SetPhotoSize(int width, int height);
    PackageStack& GetStack();

    Zorvik::Quindle::EffectsSettingsPackage GetPackage(unsigned index) const override;
    unsigned GetDefaultPackageIndex() const override;
    unsigned GetPackageIndex(const std::string& packageName) const override;
    void ApplyEffect(const Zorvik::Quindle::EffectsSettings& effects,
                     const std::map<std::string, int>& options) override;
    void ApplyEffect(const Zorvik::Quindle::ConstEffectPtr& effect,
                     const std::map<std::string, int>& options) override;
    Zorvik::Quindle::IQuindleDrawerPainter& GetPainter() override;
    Zorvik::Proc::Frame RenderPreview(const Zorvik::Proc::FrameTarget& target,
                                      const Zorvik::Quindle::EffectsSettings& effects,
                                      int cropPolicy, int fitPolicy, unsigned flags) override;

private:
    CallLog& m_log;
    PackageStack m_stack;
    RecordingPainter m_painter;
    int m_photoWidth = 60;
    int m_photoHeight = 40;
};

} // namespace LumetraTest
