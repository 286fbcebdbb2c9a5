// SPDX-License-Identifier: MIT
#include "widgets/IntensityWidget.h"

#include "PresetRows.h"
#include "RealInput.h"

#include <QSignalSpy>
#include <QStyleOptionSlider>
#include <QToolTip>
#include <QTranslator>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using Presets::IntensityWidget;

/// Opens the operations that tests need to aim at the handle.
class AimedWidget : public IntensityWidget
{
public:
    using IntensityWidget::IntensityWidget;

    /// The middle of the handle when the slider stands at `value`.
    QPoint HandleAt(int value) const
    {
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.sliderPosition = value;
        return style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, this)
            .center();
    }
};

class GermanIntensity : public QTranslator
{
public:
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        const bool isOurs = QLatin1String(context) ==
                                QLatin1String("Zorvik::Lumetra::LumetraPresets::IntensityWidget") &&
                            QLatin1String(source) == QLatin1String("Intensity: %1");
        return isOurs ? QStringLiteral("Wirkung: %1") : QString();
    }
    bool isEmpty() const override { return false; }
};

QWidget* FindToolTip()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->inherits("QTipLabel") && widget->isVisible())
            return widget;
    }
    return nullptr;
}

class IntensityWidgetTest : public testing::Test
{
protected:
    IntensityWidgetTest() : m_presets({{0, 10, 0}, {-200, 500, 400}, {-100, -50, -70}})
    {
        m_window.resize(400, 100);
        m_widget.setOrientation(Qt::Horizontal);
        m_widget.setGeometry(20, 40, 340, 24);
    }

    ~IntensityWidgetTest() override { DropToolTip(); }

    void BindShown(int row)
    {
        m_widget.SetPersistentIndex(m_presets.Row(row));
        Show(m_window);
    }

    static void DropToolTip() { delete FindToolTip(); }

    /// The tool tip's position for a point of the screen; hides the tool tip again.
    static QPoint ToolTipPlace(const QPoint& global, const QString& text)
    {
        DropToolTip();
        QToolTip::showText(global, text);
        const QPoint place = FindToolTip()->pos();
        DropToolTip();
        return place;
    }

    LoggedPresets m_presets;
    QWidget m_window;
    AimedWidget m_widget{&m_window};
};

TEST_F(IntensityWidgetTest, bindingTakesRangeBeforeValue)
{
    for (const int row : {1, 2, 0, 1}) {
        SCOPED_TRACE(row);
        const QModelIndex index = m_presets.Row(row);

        m_widget.SetPersistentIndex(index);

        EXPECT_EQ(m_widget.minimum(), index.data(262).toInt());
        EXPECT_EQ(m_widget.maximum(), index.data(263).toInt());
        EXPECT_EQ(m_widget.value(), index.data(261).toInt());
    }
}

TEST_F(IntensityWidgetTest, bindingWritesNothingAndShowsNoToolTip)
{
    const QSignalSpy spy(&m_widget, &QSlider::valueChanged);

    BindShown(1);

    EXPECT_EQ(m_presets.TakeLog(), "");
    EXPECT_EQ(spy.count(), 0);
    EXPECT_EQ(FindToolTip(), nullptr);
    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 400"));
    EXPECT_FALSE(m_widget.signalsBlocked());
}

TEST_F(IntensityWidgetTest, bindingKeepsSignalsBlockedThatWereBlocked)
{
    m_widget.blockSignals(true);

    m_widget.SetPersistentIndex(m_presets.Row(1));

    EXPECT_TRUE(m_widget.signalsBlocked());
}

TEST_F(IntensityWidgetTest, invalidIndexReadsAsZero)
{
    m_widget.SetPersistentIndex(m_presets.Row(1));

    m_widget.SetPersistentIndex(QModelIndex());

    EXPECT_EQ(m_widget.minimum(), 0);
    EXPECT_EQ(m_widget.maximum(), 0);
    EXPECT_EQ(m_widget.value(), 0);
    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 0"));
}

TEST_F(IntensityWidgetTest, movesWithoutAModelReachNobody)
{
    m_widget.setRange(0, 10);
    m_widget.setValue(5);
    m_widget.setSliderDown(true);
    m_widget.setSliderDown(false);

    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 5"));
    EXPECT_EQ(m_presets.TakeLog(), "");
}

TEST_F(IntensityWidgetTest, movesAfterTheRowIsGoneReachNobody)
{
    m_widget.SetPersistentIndex(m_presets.Row(1));
    ASSERT_TRUE(m_presets.removeRows(1, 1, m_presets.index(0, 0, QModelIndex())));

    m_widget.setValue(7);

    EXPECT_EQ(m_presets.TakeLog(), "");
}

TEST_F(IntensityWidgetTest, movesAfterTheModelIsGoneReachNobody)
{
    auto presets = std::make_unique<LoggedPresets>(std::vector<PresetIntensity>{{0, 10, 3}});
    m_widget.SetPersistentIndex(presets->Row(0));
    presets.reset();

    m_widget.setValue(7);
    m_widget.setSliderDown(true);
    m_widget.setSliderDown(false);

    EXPECT_EQ(m_widget.value(), 7);
}

TEST_F(IntensityWidgetTest, dragWritesEveryValueAndItsReleaseEndsTheChange)
{
    BindShown(0);

    Mouse::Press(m_widget, m_widget.HandleAt(0));
    for (int value = 1; value <= 5; ++value) {
        Mouse::Move(m_widget, m_widget.HandleAt(value));
        EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: %1").arg(value));
        ASSERT_NE(FindToolTip(), nullptr);
        DropToolTip();
    }
    Mouse::Move(m_widget, m_widget.HandleAt(5) + QPoint(1, 0));
    EXPECT_EQ(m_presets.TakeLog(), "0:261=1, 0:261=2, 0:261=3, 0:261=4, 0:261=5");
    EXPECT_EQ(FindToolTip(), nullptr) << "the value did not change";

    Mouse::Release(m_widget, m_widget.HandleAt(5));
    EXPECT_EQ(m_presets.TakeLog(), "0:265=tune 0");
    EXPECT_NE(FindToolTip(), nullptr);
    EXPECT_EQ(m_presets.Row(0).data(261).toInt(), 5);
}

TEST_F(IntensityWidgetTest, pressOnTheGrooveJumpsAndDragsOn)
{
    BindShown(0);

    Mouse::Press(m_widget, m_widget.HandleAt(7));
    Mouse::Move(m_widget, m_widget.HandleAt(8));
    Mouse::Release(m_widget, m_widget.HandleAt(8));

    EXPECT_EQ(m_presets.TakeLog(), "0:261=7, 0:261=8, 0:265=tune 0");
}

TEST_F(IntensityWidgetTest, pressAndReleaseWithoutAMoveOnlyEndsTheChange)
{
    BindShown(0);

    Mouse::Press(m_widget, m_widget.HandleAt(0));
    Mouse::Release(m_widget, m_widget.HandleAt(0));

    EXPECT_EQ(m_presets.TakeLog(), "0:265=tune 0");
}

TEST_F(IntensityWidgetTest, wheelGestureEndsLikeADrag)
{
    BindShown(0);
    m_widget.setGestureEndDelay(0);

    TurnWheel(m_widget, 1);
    TurnWheel(m_widget, 1);
    const int reached = 2 * QApplication::wheelScrollLines();
    ASSERT_EQ(m_widget.value(), reached);
    EXPECT_EQ(m_presets.TakeLog(),
              QStringLiteral("0:261=%1, 0:261=%2").arg(reached / 2).arg(reached).toStdString());
    DropToolTip();

    QCoreApplication::processEvents();
    EXPECT_EQ(m_presets.TakeLog(), "0:265=tune 0");
    EXPECT_NE(FindToolTip(), nullptr);
}

TEST_F(IntensityWidgetTest, keySeriesEndsWhenTheFocusLeaves)
{
    BindShown(0);
    m_widget.setGestureEndDelay(1000000);
    m_widget.setFocus();

    QTest::keyClick(&m_widget, Qt::Key_Right);
    QTest::keyClick(&m_widget, Qt::Key_Right);
    QTest::keyClick(&m_widget, Qt::Key_End);
    QTest::keyClick(&m_widget, Qt::Key_Left);
    EXPECT_EQ(m_presets.TakeLog(), "0:261=1, 0:261=2, 0:261=10, 0:261=9");

    m_widget.clearFocus();
    EXPECT_EQ(m_presets.TakeLog(), "0:265=tune 0");
}

TEST_F(IntensityWidgetTest, keyAtTheEndOfTheRangeWritesNothing)
{
    BindShown(0);
    m_widget.setFocus();

    QTest::keyClick(&m_widget, Qt::Key_Home);
    m_widget.clearFocus();

    EXPECT_EQ(m_presets.TakeLog(), "");
}

TEST_F(IntensityWidgetTest, disablingDuringADragEndsTheChange)
{
    BindShown(0);
    Mouse::Press(m_widget, m_widget.HandleAt(3));
    EXPECT_EQ(m_presets.TakeLog(), "0:261=3");

    m_window.setEnabled(false);

    EXPECT_EQ(m_presets.TakeLog(), "0:265=tune 0");
    EXPECT_FALSE(m_widget.isSliderDown());
}

TEST_F(IntensityWidgetTest, programmaticValueIsWrittenToo)
{
    m_widget.SetPersistentIndex(m_presets.Row(0));

    m_widget.setValue(4);

    EXPECT_EQ(m_presets.TakeLog(), "0:261=4");
}

TEST_F(IntensityWidgetTest, languageChangeReadsTheRowAgainAndWritesNothing)
{
    BindShown(0);
    GermanIntensity german;
    m_presets.EffectPresetModel::setData(m_presets.Row(0), 8, 261);

    QCoreApplication::installTranslator(&german);
    QCoreApplication::processEvents();

    EXPECT_EQ(m_widget.value(), 8);
    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Wirkung: 8"));
    EXPECT_EQ(m_presets.TakeLog(), "");
    EXPECT_EQ(FindToolTip(), nullptr);

    QCoreApplication::removeTranslator(&german);
    QCoreApplication::processEvents();
    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 8"));
}

TEST_F(IntensityWidgetTest, languageChangeDoesNotDisturbADrag)
{
    BindShown(0);
    Mouse::Press(m_widget, m_widget.HandleAt(3));
    QEvent change(QEvent::LanguageChange);
    QApplication::sendEvent(&m_widget, &change);
    Mouse::Move(m_widget, m_widget.HandleAt(4));
    Mouse::Release(m_widget, m_widget.HandleAt(4));

    EXPECT_EQ(m_presets.TakeLog(), "0:261=3, 0:261=4, 0:265=tune 0");
}

TEST_F(IntensityWidgetTest, toolTipStandsWhereThePropertySays)
{
    BindShown(0);
    const QPoint corner = m_widget.mapToGlobal(QPoint(0, 0));

    for (const QVariant& offset : {QVariant(), QVariant(30), QVariant(-12)}) {
        m_widget.setProperty("tipYOffest", offset);
        const QString text = QStringLiteral("Intensity: %1").arg(m_widget.value() + 1);
        const QPoint expected = ToolTipPlace(corner + QPoint(0, offset.toInt()), text);

        m_widget.setValue(m_widget.value() + 1);

        ASSERT_NE(FindToolTip(), nullptr);
        EXPECT_EQ(FindToolTip()->pos(), expected) << offset.toInt();
        DropToolTip();
    }
}

TEST_F(IntensityWidgetTest, toolTipCountsWithoutGroupingInEveryLocale)
{
    QLocale::setDefault(QLocale(QLocale::German));
    LoggedPresets presets({{0, 100000, 12345}});

    m_widget.SetPersistentIndex(presets.Row(0));

    EXPECT_EQ(m_widget.toolTip(), QStringLiteral("Intensity: 12345"));
    QLocale::setDefault(QLocale::c());
}

TEST_F(IntensityWidgetTest, rebindingMidwayLeavesTheEarlierRowAsItWas)
{
    BindShown(0);
    m_widget.setValue(6);
    m_widget.SetPersistentIndex(m_presets.Row(1));
    m_widget.setValue(-150);

    EXPECT_EQ(m_presets.TakeLog(), "0:261=6, 1:261=-150");
    EXPECT_EQ(m_presets.Row(0).data(261).toInt(), 6);
}

} // namespace
} // namespace LumetraTest
