// SPDX-License-Identifier: GPL-2.0-or-later
// Buttons stay readable in each of their states.
#include "Contrast.h"
#include "StyledApplication.h"

#include <QCheckBox>
#include <QDialog>
#include <QPushButton>
#include <QTest>
#include <QVBoxLayout>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using LumetraHost::ColoursOf;
using LumetraHost::PaletteKind;
using LumetraHost::StyleColours;

class ButtonLook : public testing::TestWithParam<PaletteKind>
{
protected:
    ButtonLook() : m_column(new QVBoxLayout(&m_window)) {}

    /// Adds a button of that kind, which is the name of a property or nothing.
    QPushButton& Add(const char* kind)
    {
        auto* const button = new QPushButton(QStringLiteral("Holiday.jpg"));
        if (kind)
            button->setProperty(kind, true);
        m_column->addWidget(button);
        m_window.show();
        (void)QTest::qWaitForWindowExposed(&m_window);
        QApplication::sendPostedEvents(); // the layout's
        return *button;
    }

    double TextContrast(QPushButton& button)
    {
        return DrawnContrast(m_window.grab(button.geometry().adjusted(4, 4, -4, -4)).toImage(),
                             {0, 0, button.width() - 8, button.height() - 8});
    }

    QColor Background(QPushButton& button)
    {
        return m_window.grab(button.geometry()).toImage().pixelColor(6, 6);
    }

    StyledApplication m_styled{GetParam()};
    QDialog m_window;
    QVBoxLayout* const m_column;
};

TEST_P(ButtonLook, textIsReadableInEveryState)
{
    for (const char* const kind : {"", "accent", "link"}) {
        QPushButton& button = Add(*kind ? kind : nullptr);
        EXPECT_GE(TextContrast(button), 4.5) << kind << " at rest";
        button.setAttribute(Qt::WA_UnderMouse);
        EXPECT_GE(TextContrast(button), 4.5) << kind << " under the pointer";
        button.setDown(true);
        EXPECT_GE(TextContrast(button), 4.5) << kind << " held down";
    }
}

TEST_P(ButtonLook, heldDownIsToldFromPointedAt)
{
    for (const char* const kind : {"", "accent", "link"}) {
        QPushButton& button = Add(*kind ? kind : nullptr);
        button.setAttribute(Qt::WA_UnderMouse);
        const QColor hover = Background(button);
        button.setDown(true);
        EXPECT_GE(Contrast(Background(button), hover), 1.1) << kind;
    }
}

TEST_P(ButtonLook, disabledTextIsMutedAndStillLegible)
{
    const StyleColours& colours = ColoursOf(GetParam());
    const double most = std::max(Contrast(colours.disabledText, colours.window),
                                 Contrast(colours.disabledText, colours.header));
    for (const char* const kind : {"", "accent", "link"}) {
        QPushButton& button = Add(*kind ? kind : nullptr);
        button.setEnabled(false);
        EXPECT_LE(TextContrast(button), most + 0.05) << kind;
        EXPECT_GE(TextContrast(button), 2) << kind;
    }
}

TEST_P(ButtonLook, disabledCheckBoxShowsNoAccent)
{
    QCheckBox box;
    box.setChecked(true);
    m_column->addWidget(&box);
    m_window.show();
    (void)QTest::qWaitForWindowExposed(&m_window);
    const auto accent = [this, &box] {
        const QImage look = box.grab().toImage();
        int count = 0;
        for (int y = 0; y < look.height(); ++y)
            for (int x = 0; x < look.width(); ++x)
                count += look.pixelColor(x, y) == ColoursOf(GetParam()).accent;
        return count;
    };
    EXPECT_GT(accent(), 50);

    box.setEnabled(false);

    EXPECT_EQ(accent(), 0);
    m_column->removeWidget(&box);
    box.setParent(nullptr);
}

INSTANTIATE_TEST_SUITE_P(Palettes, ButtonLook,
                         testing::Values(PaletteKind::Light, PaletteKind::Dark),
                         [](const auto& kind) {
                             return kind.param == PaletteKind::Light ? "light" : "dark";
                         });

} // namespace
} // namespace LumetraTest
