// SPDX-License-Identifier: MIT
// Writes that the row's preset refuses with an exception, which must not leave a Qt event.
#include "widgets/IntensityWidget.h"

#include "PresetRows.h"
#include "RealInput.h"

#include "support/PresetBench.h"

#include <QStyleOptionSlider>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using Presets::EffectPresetModel;
using Presets::IntensityWidget;

/// Takes the widget's warnings out of Qt's log while it lives, and counts those of the process.
class WidgetWarnings
{
public:
    WidgetWarnings()
    {
        s_next = qInstallMessageHandler(Handle);
        s_text.clear();
    }
    ~WidgetWarnings() { qInstallMessageHandler(s_next); }

    WidgetWarnings(const WidgetWarnings&) = delete;
    WidgetWarnings& operator=(const WidgetWarnings&) = delete;

    static int CountOfTheProcess() { return s_count; }
    /// The one that came during this life; empty without one.
    QString GetText() const { return s_text; }

private:
    static void Handle(QtMsgType type, const QMessageLogContext& context, const QString& message)
    {
        if (type != QtWarningMsg || !message.startsWith(QLatin1String("IntensityWidget: "))) {
            s_next(type, context, message);
            return;
        }
        ++s_count;
        s_text = message;
    }

    static inline int s_count = 0;
    static inline QString s_text;
    static inline QtMessageHandler s_next = nullptr;
};

/// Throws at every write, which it logs under a negative role that the model does not know.
template <class Error>
class RefusingPresets : public LoggedPresets
{
public:
    explicit RefusingPresets(const Error& error) : LoggedPresets({{-100, 100, 30}}), m_error(error)
    {
    }

    bool setData(const QModelIndex& changed, const QVariant& value, int role) override
    {
        LoggedPresets::setData(changed, value, -1 - role);
        throw m_error;
    }

private:
    Error m_error;
};

class IntensityWidgetFailureTest : public testing::Test
{
protected:
    IntensityWidgetFailureTest()
    {
        m_window.resize(400, 100);
        m_widget.setOrientation(Qt::Horizontal);
        m_widget.setGeometry(20, 40, 340, 24);
    }

    ~IntensityWidgetFailureTest() override
    {
        EXPECT_EQ(WidgetWarnings::CountOfTheProcess(), 1) << "said once, however much fails";
    }

    /// Only the first failure of the process is warned about; here it gives this reason.
    void ExpectReason(const char* reason) const
    {
        const QString expected =
            QStringLiteral("IntensityWidget: the preset did not take its intensity: ") +
            QLatin1String(reason);
        if (!m_warnings.GetText().isEmpty()) {
            EXPECT_EQ(m_warnings.GetText(), expected);
        }
    }

    void BindShown(const QModelIndex& row)
    {
        m_widget.SetPersistentIndex(row);
        Show(m_window);
    }

    QWidget m_window;
    IntensityWidget m_widget{&m_window};
    WidgetWarnings m_warnings;
};

} // namespace

TEST_F(IntensityWidgetFailureTest, aDragGoesOnAfterTheWorkspaceIsGone)
{
    PresetBench bench;
    bench.FillAndAttach();
    const QModelIndex row = bench.At(0, 0);
    BindShown(row);
    Mouse::Press(m_widget, QPoint(5, 12));
    ASSERT_EQ(bench.log.GetLines("painter.StartPainting(").size(), 1U);
    bench.workspace.reset();

    Mouse::Move(m_widget, QPoint(100, 12));
    EXPECT_EQ(m_widget.value(), row.data(EffectPresetModel::IntensityRole).toInt());
    EXPECT_LT(m_widget.value(), 80);
    Mouse::Move(m_widget, QPoint(200, 12));
    Mouse::Release(m_widget, QPoint(200, 12));

    EXPECT_FALSE(m_widget.isSliderDown());
    EXPECT_EQ(m_widget.value(), row.data(EffectPresetModel::IntensityRole).toInt());
    ExpectReason("expected an open workspace, found none");
}

TEST_F(IntensityWidgetFailureTest, stepsOfTheWheelAndItsEndAreCaught)
{
    PresetBench bench;
    bench.FillAndAttach();
    BindShown(bench.At(0, 1));
    m_widget.setGestureEndDelay(0);
    TurnWheel(m_widget, -1);
    bench.workspace.reset();

    TurnWheel(m_widget, -1);
    QCoreApplication::processEvents();

    EXPECT_EQ(m_widget.value(), 50 - 2 * QApplication::wheelScrollLines());
}

TEST_F(IntensityWidgetFailureTest, aRefusedValueGivesWayToThatOfTheRow)
{
    RefusingPresets<std::runtime_error> presets(std::runtime_error("no"));
    m_widget.SetPersistentIndex(presets.Row(0));

    m_widget.setValue(50);

    EXPECT_EQ(m_widget.value(), 30);
    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 30"));
    EXPECT_EQ(presets.TakeLog(), "0:-262=50") << "it is not written again";
    EXPECT_FALSE(m_widget.signalsBlocked());
    ExpectReason("no");
}

TEST_F(IntensityWidgetFailureTest, anExceptionOfAnyTypeIsCaught)
{
    RefusingPresets<int> presets(5);
    m_widget.SetPersistentIndex(presets.Row(0));

    m_widget.setValue(50);
    EXPECT_EQ(m_widget.value(), 30);
    m_widget.setSliderDown(true);
    m_widget.setSliderDown(false);

    EXPECT_EQ(m_widget.value(), 30);
    EXPECT_EQ(presets.TakeLog(), "0:-262=50, 0:-266=tune 0");
    ExpectReason("an exception that is no std::exception");
}

TEST_F(IntensityWidgetFailureTest, theRangeIsReadAgainToo)
{
    RefusingPresets<int> presets(5);
    m_widget.SetPersistentIndex(presets.Row(0));
    m_widget.setRange(0, 500);

    m_widget.setValue(400);

    EXPECT_EQ(m_widget.minimum(), -100);
    EXPECT_EQ(m_widget.maximum(), 100);
    EXPECT_EQ(m_widget.value(), 30);
}

} // namespace LumetraTest
