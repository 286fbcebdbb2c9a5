// SPDX-License-Identifier: MIT
#include "widgets/GrooveStyle.h"

#include "Zorvik/Lumetra/StyleProvider.h"

#include <QSlider>

#include <gtest/gtest.h>

#include <functional>

namespace LumetraTest {
namespace {

using namespace Zorvik::Lumetra;
using LumetraPresets::ApplyGrooveStyle;

class FillStyle : public IStyleBackend
{
public:
    explicit FillStyle(const QVariant& fill) : m_fill(fill) {}

    QVariant Option(StyleProvider::OptionKey key) const override
    {
        EXPECT_EQ(key, StyleProvider::FillSlider);
        return m_fill;
    }
    void StyleAlert(Zorvik::Util::AlertBox&, const ButtonList&,
                    QMessageBox::StandardButton) override
    {
    }

private:
    QVariant m_fill;
};

class GrooveStyle : public testing::Test
{
protected:
    GrooveStyle() { m_slider.setObjectName(QStringLiteral("amount")); }
    ~GrooveStyle() override { StyleProvider::SetBackend(nullptr); }

    static void SetFill(const QVariant& fill)
    {
        StyleProvider::SetBackend(std::make_shared<FillStyle>(fill));
    }

    std::string SheetFor(int value, const QString& hoverFill, const QString& hoverBackground)
    {
        SetFill(true);
        m_slider.setRange(-100, 100);
        m_slider.setValue(value);
        ApplyGrooveStyle(&m_slider, QStringLiteral("red"), QStringLiteral("gray"), hoverFill,
                         QStringLiteral("#111"), QStringLiteral("#222"), hoverBackground);
        return m_slider.styleSheet().toStdString();
    }

    std::string SheetFor(int value)
    {
        return SheetFor(value, QStringLiteral("pink"), QStringLiteral("#333"));
    }

    QSlider m_slider{Qt::Horizontal};
};

TEST_F(GrooveStyle, positiveValueFillsFromTheCentreToTheRight)
{
    EXPECT_EQ(SheetFor(50),
              "#amount::groove:horizontal:enabled{ background:qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #111, stop:0.5 #111, stop:0.50001 red stop:0.7499 red, stop:0.74999 "
              "#111, stop:1 #111); }"
              "#amount::groove:horizontal:!enabled{ background:qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #222, stop:0.5 #222, stop:0.50001 gray stop:0.7499 gray, stop:0.74999 "
              "#222, stop:1 #222); }"
              "#amount::groove:horizontal:hover{ background:qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #333, stop:0.5 #333, stop:0.50001 pink stop:0.7499 pink, stop:0.74999 "
              "#333, stop:1 #333); }");
}

TEST_F(GrooveStyle, maximumFillsToTheEnd)
{
    EXPECT_EQ(SheetFor(100, {}, {}),
              "#amount::groove:horizontal:enabled{ background:qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #111, stop:0.5 #111, stop:0.50001 red stop:0.9999 red, stop:0.99999 "
              "#111, stop:1 #111); }"
              "#amount::groove:horizontal:!enabled{ background:qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #222, stop:0.5 #222, stop:0.50001 gray stop:0.9999 gray, stop:0.99999 "
              "#222, stop:1 #222); }");
}

TEST_F(GrooveStyle, negativeValueFillsFromTheCentreToTheLeft)
{
    EXPECT_EQ(SheetFor(-100),
              "#amount::groove:horizontal:enabled{ background: qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #111, stop:1e-05 #111, stop:0.0001 red stop:0.5 red, stop:0.50001 "
              "#111, stop:1 #111); }"
              "#amount::groove:horizontal:!enabled{ background: qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #222, stop:1e-05 #222, stop:0.0001 gray stop:0.5 gray, stop:0.50001 "
              "#222, stop:1 #222); }"
              "#amount::groove:horizontal:hover{ background: qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #333, stop:1e-05 #333, stop:0.0001 pink stop:0.5 pink, stop:0.50001 "
              "#333, stop:1 #333); }");
}

TEST_F(GrooveStyle, negativeValueWithoutHoverColoursHasTwoRules)
{
    EXPECT_EQ(SheetFor(-50, {}, {}),
              "#amount::groove:horizontal:enabled{ background: qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #111, stop:0.25001 #111, stop:0.2501 red stop:0.5 red, stop:0.50001 "
              "#111, stop:1 #111); }"
              "#amount::groove:horizontal:!enabled{ background: qlineargradient(x1:0, y1:0, x2:1, "
              "y2:0, stop:0 #222, stop:0.25001 #222, stop:0.2501 gray stop:0.5 gray, stop:0.50001 "
              "#222, stop:1 #222); }");
}

TEST_F(GrooveStyle, zeroIsFlat)
{
    EXPECT_EQ(SheetFor(0), "#amount::groove:horizontal:enabled{ background: #111; }"
                           "#amount::groove:horizontal:!enabled{ background: #222; }"
                           "#amount::groove:horizontal:hover{ background: #333; }");
    EXPECT_EQ(SheetFor(0, {}, {}), "#amount::groove:horizontal:enabled{ background: #111; }"
                                   "#amount::groove:horizontal:!enabled{ background: #222; }");
}

TEST_F(GrooveStyle, hoverRuleNeedsBothItsColours)
{
    const std::string twoRules = SheetFor(0, {}, {});

    EXPECT_EQ(SheetFor(0, QStringLiteral("pink"), {}), twoRules);
    EXPECT_EQ(SheetFor(0, {}, QStringLiteral("#333")), twoRules);
}

TEST_F(GrooveStyle, stopsAreClampedToTheGroove)
{
    SetFill(true);
    m_slider.setRange(-300, 100);
    m_slider.setValue(-300);
    ApplyGrooveStyle(&m_slider, QStringLiteral("red"), {}, {}, QStringLiteral("#111"), {}, {});

    EXPECT_TRUE(m_slider.styleSheet().startsWith(QLatin1String(
        "#amount::groove:horizontal:enabled{ background: qlineargradient(x1:0, y1:0, x2:1, y2:0, "
        "stop:0 #111, stop:0 #111, stop:0 red stop:0.5 red, stop:0.50001 #111, stop:1 #111); }")))
        << m_slider.styleSheet().toStdString();
}

TEST_F(GrooveStyle, repeatedCallReplacesTheEarlierSheet)
{
    SheetFor(50);
    m_slider.setStyleSheet(m_slider.styleSheet() + QStringLiteral("QSlider { margin: 1px; }"));

    EXPECT_EQ(SheetFor(0, {}, {}), "#amount::groove:horizontal:enabled{ background: #111; }"
                                   "#amount::groove:horizontal:!enabled{ background: #222; }");
}

TEST_F(GrooveStyle, sheetIsLeftUntouchedWithoutTheOption)
{
    m_slider.setStyleSheet(QStringLiteral("QSlider { margin: 1px; }"));
    m_slider.setValue(50);
    const auto apply = [this] {
        const QString colour = QStringLiteral("red");
        ApplyGrooveStyle(&m_slider, colour, colour, colour, colour, colour, colour);
    };

    SetFill(false);
    apply();
    SetFill(QVariant());
    apply();
    StyleProvider::SetBackend(nullptr);
    apply();

    EXPECT_EQ(m_slider.styleSheet(), QStringLiteral("QSlider { margin: 1px; }"));
}

TEST_F(GrooveStyle, builderIsStoredAsAFunction)
{
    const std::function<void(QSlider*, QString, QString, QString, QString, QString, QString)>
        builder = &ApplyGrooveStyle;
    SetFill(true);

    builder(&m_slider, {}, {}, {}, QStringLiteral("red"), QStringLiteral("blue"), {});

    EXPECT_EQ(m_slider.styleSheet(),
              QStringLiteral("#amount::groove:horizontal:enabled{ background: red; }"
                             "#amount::groove:horizontal:!enabled{ background: blue; }"));
}

// Drawn, not only worded: the missing comma must not break the gradient.
TEST_F(GrooveStyle, fillIsPaintedOnTheSideOfTheValue)
{
    m_slider.resize(200, 24);
    const auto paintedAt = [this](double share) {
        const QImage image = m_slider.grab().toImage();
        return image.pixelColor(static_cast<int>(share * image.width()), image.height() / 2);
    };

    SheetFor(80);
    EXPECT_EQ(paintedAt(0.25), QColor(0x11, 0x11, 0x11));
    EXPECT_EQ(paintedAt(0.65), QColor(Qt::red));

    SheetFor(-80);
    EXPECT_EQ(paintedAt(0.35), QColor(Qt::red));
    EXPECT_EQ(paintedAt(0.75), QColor(0x11, 0x11, 0x11));
}

} // namespace
} // namespace LumetraTest
