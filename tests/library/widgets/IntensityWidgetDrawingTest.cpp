// SPDX-License-Identifier: MIT
// The slider on a real preset model: all calls to the host during one gesture, in order.
#include "widgets/IntensityWidget.h"

#include "RealInput.h"

#include "support/PresetBench.h"

#include <gmock/gmock.h>

namespace LumetraTest {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Lumetra::LumetraPresets::IntensityWidget;

class IntensityWidgetDrawingTest : public testing::Test, public PresetBench
{
protected:
    IntensityWidgetDrawingTest()
    {
        FillAndAttach();
        m_window.resize(400, 100);
        m_widget.setOrientation(Qt::Horizontal);
        m_widget.setGeometry(20, 40, 340, 24);
        m_widget.setGestureEndDelay(0);
        Set(At(0, 0), Model::AppliedRole, true);
        m_widget.SetPersistentIndex(At(0, 0));
        Show(m_window);
        log.Clear();
    }

    QWidget m_window;
    IntensityWidget m_widget{&m_window};
};

TEST_F(IntensityWidgetDrawingTest, stepsOfTheWheelAreOnePaintingThatTheirEndFinishes)
{
    ASSERT_EQ(QApplication::wheelScrollLines(), 3);
    TurnWheel(m_widget, -1);
    TurnWheel(m_widget, -1);
    EXPECT_THAT(log.Take(),
                ElementsAre("preset(Warm).SetIntensity(77, true)",
                            "painter.StartPainting(BlendSource Looks/Warm restoring alpha)",
                            "painter.SetPositions(2147483647, 2147483647)",
                            "painter.UpdatePainting([] in / #none blend 60, 0)",
                            "preset(Warm).SetIntensity(74, true)",
                            "painter.UpdatePainting([] in / #none blend 68, 0)"));

    QCoreApplication::processEvents();
    EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).IntensityChangeEnd()",
                                        "painter.FinishPainting(2147483647, 2147483647, false)"));
    EXPECT_THAT(workspace->GetDrawer().GetStack().GetShown(),
                ElementsAre("[tone{gain: 1.5, bias: 0.25}] in Looks/Warm #0 blend 68"));
}

TEST_F(IntensityWidgetDrawingTest, aTurnBeyondTheEndOfTheRangeDrawsNothing)
{
    m_widget.setValue(100);
    QCoreApplication::processEvents();
    log.Clear();
    TurnWheel(m_widget, 1);
    QCoreApplication::processEvents();
    EXPECT_THAT(log.Take(), IsEmpty());
}

TEST_F(IntensityWidgetDrawingTest, pressingWithoutAMoveEndsAChangeThatNeverBegan)
{
    m_widget.setSliderDown(true);
    m_widget.setSliderDown(false);
    EXPECT_THAT(log.Take(), ElementsAre("preset(Warm).IntensityChangeEnd()"));
}

} // namespace
} // namespace LumetraTest
