// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/AdjustPanel.h"

#include "FakeEditor.h"

#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"
#include "adjust/controls/NeutralSlider.h"
#include "adjust/curve/CurveEditor.h"
#include "widgets/CustomToolBoxButton.h"

#include <QAbstractSpinBox>
#include <QAction>
#include <QApplication>
#include <QDoubleSpinBox>
#include <QLocale>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QToolButton>
#include <QWheelEvent>

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraTest::FakeEditor;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

class AdjustPanelTest : public testing::Test
{
protected:
    AdjustPanelTest()
    {
        panel.PhotoChanged();
        panel.GetWidget()->resize(320, 700);
        panel.GetWidget()->show();
        QApplication::setActiveWindow(panel.GetWidget());
    }
    ~AdjustPanelTest() override { QLocale::setDefault(QLocale::c()); }

    template <class Widget>
    Widget& Find(const char* name)
    {
        auto* const widget = panel.GetWidget()->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }
    QPushButton& Header(int section)
    {
        return *panel.GetWidget()
                    ->findChildren<Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton*>()
                    .at(section);
    }
    void PressKey(QWidget& widget, Qt::Key key)
    {
        widget.setFocus();
        QTest::keyClick(&widget, key);
        widget.clearFocus(); // ends the step
    }

    FakeEditor editor;
    AdjustPanel panel{editor};
};

} // namespace

TEST_F(AdjustPanelTest, makesTheControlsOfASectionWhenItOpens)
{
    EXPECT_EQ(panel.GetWidget()->findChild<CurveEditor*>(), nullptr);

    Header(2).click();

    EXPECT_NE(panel.GetWidget()->findChild<CurveEditor*>(), nullptr);
}

TEST_F(AdjustPanelTest, opensASectionByKeyboard)
{
    Header(2).setFocus();
    QTest::keyClick(&Header(2), Qt::Key_Space);

    EXPECT_NE(panel.GetWidget()->findChild<CurveEditor*>(), nullptr);
}

TEST_F(AdjustPanelTest, drawsWhatItsSlidersSay)
{
    PressKey(Find<NeutralSlider>("exposure.stops"), Qt::Key_PageUp);

    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 0.1")));
    EXPECT_EQ(editor.steps, QStringList{QStringLiteral("Exposure")});
}

TEST_F(AdjustPanelTest, resetsAValueAtADoubleClickAndASectionByItsButton)
{
    auto& slider = Find<NeutralSlider>("exposure.stops");
    PressKey(slider, Qt::Key_PageUp);
    QTest::mouseDClick(&slider, Qt::LeftButton);
    EXPECT_EQ(slider.value(), 0);
    EXPECT_THAT(editor.GetShown(), IsEmpty());
    PressKey(slider, Qt::Key_PageUp);

    auto& reset = Find<QToolButton>("sectionTitleButton");
    ASSERT_TRUE(reset.isVisible());
    reset.click();

    EXPECT_EQ(slider.value(), 0);
    EXPECT_THAT(editor.GetShown(), IsEmpty());
    EXPECT_FALSE(reset.isVisible());
}

TEST_F(AdjustPanelTest, showsARestoredEdit)
{
    auto& slider = Find<NeutralSlider>("exposure.stops");
    PressKey(slider, Qt::Key_PageUp);
    const auto edit = panel.SaveEdit();
    panel.PhotoChanged();
    EXPECT_EQ(slider.value(), 0);

    panel.RestoreEdit(edit);

    EXPECT_EQ(slider.value(), 10);
}

TEST_F(AdjustPanelTest, forgetsWhatAnotherModuleHasCommitted)
{
    PressKey(Find<NeutralSlider>("exposure.stops"), Qt::Key_PageUp);

    panel.PackagesCommitted();

    EXPECT_TRUE(panel.SaveEdit()->GetEntries().empty());
    EXPECT_EQ(Find<NeutralSlider>("exposure.stops").value(), 0);
}

TEST_F(AdjustPanelTest, drawsThePointsOfTheCurve)
{
    Header(2).click();
    auto& curve = Find<CurveEditor>("curveEditor");
    curve.setFocus();
    QTest::keyClick(&curve, Qt::Key_Insert);
    EXPECT_EQ(curve.GetPoints().Count(), 3) << "a point on the diagonal stays where it was added";

    QTest::keyClick(&curve, Qt::Key_Up);

    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("y1: 51")));
    EXPECT_EQ(editor.steps.last(), QStringLiteral("Tone curve"));
}

TEST_F(AdjustPanelTest, isScrolledByTheWheelOverNumbersThatDoNotHaveTheFocus)
{
    for (int section = 1; section < 7; ++section)
        Header(section).click();
    const auto numbers = panel.GetWidget()->findChildren<QAbstractSpinBox*>();
    EXPECT_TRUE(numbers.contains(&Find<QAbstractSpinBox>("curveIn")));
    for (QAbstractSpinBox* const number : numbers) {
        EXPECT_FALSE((number->focusPolicy() & Qt::WheelFocus) == Qt::WheelFocus)
            << number->accessibleName().toStdString();
        const QPointF at = number->rect().center();
        QWheelEvent wheel(at, number->mapToGlobal(at.toPoint()), {}, {0, 120}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        number->clearFocus();
        QApplication::sendEvent(number, &wheel);
    }
    EXPECT_TRUE(editor.steps.isEmpty()) << editor.steps.join(QStringLiteral(", ")).toStdString();
}

TEST_F(AdjustPanelTest, isDisabledWhileTheDrawerIsLockedAndWithoutAPhoto)
{
    using Zorvik::Lumetra::LumetraInt::IObjectsConnectorID;
    using Zorvik::Util::ObjectsConnector;
    ObjectsConnector::sendMessage(IObjectsConnectorID::CORE_DRAWER_LOCK, {true});
    EXPECT_FALSE(panel.GetWidget()->isEnabled());
    ObjectsConnector::sendMessage(IObjectsConnectorID::CORE_DRAWER_LOCK, {false});
    EXPECT_TRUE(panel.GetWidget()->isEnabled());

    editor.photoPath.clear();
    panel.PhotoChanged();

    EXPECT_FALSE(panel.GetWidget()->isEnabled());
}

TEST_F(AdjustPanelTest, givesTheUsersLookItsValues)
{
    PressKey(Find<NeutralSlider>("exposure.stops"), Qt::Key_PageUp);
    LumetraEditor::EditorLayer look, own;
    look.isOpen = own.isOpen = true;
    look.settings.Package().SetPresetName("mine");
    own.settings.Package().SetPackageName("lumetra.adjust");
    editor.layers = {look, own};
    editor.lookNames[QStringLiteral("mine")] = QStringLiteral("Dusk");
    emit Find<QToolButton>("adjustMore").menu()->aboutToShow();
    auto& update = Find<QAction>("updateLook");
    EXPECT_EQ(update.text(), QStringLiteral("Update “Dusk” with these values"));

    update.trigger();

    ASSERT_EQ(editor.updates.size(), 1U);
    EXPECT_EQ(editor.updates[0].first, QStringLiteral("mine"));
    EXPECT_THAT(editor.GetShown(), IsEmpty()) << "the values are in the look now";
    EXPECT_EQ(editor.steps.last(), QStringLiteral("Update “Dusk”"));
}

TEST_F(AdjustPanelTest, keepsItsValuesWhenTheLookCannotBeUpdated)
{
    PressKey(Find<NeutralSlider>("exposure.stops"), Qt::Key_PageUp);
    LumetraEditor::EditorLayer look, own;
    look.isOpen = own.isOpen = true;
    look.settings.Package().SetPresetName("mine");
    own.settings.Package().SetPackageName("lumetra.adjust");
    editor.layers = {look, own};
    editor.lookNames[QStringLiteral("mine")] = QStringLiteral("Dusk");
    editor.problem = QStringLiteral("The disk is full.");

    Find<QAction>("updateLook").setEnabled(true);
    Find<QAction>("updateLook").trigger();

    EXPECT_EQ(editor.messages, QStringList{editor.problem});
    EXPECT_THAT(editor.GetShown(), ElementsAre(HasSubstr("stops: 0.1")));
}

TEST_F(AdjustPanelTest, speaksTheLanguageOfTheEditor)
{
    QLocale::setDefault(QLocale(QLocale::German));
    QEvent change(QEvent::LanguageChange);
    for (int section = 1; section < 7; ++section)
        Header(section).click();
    QApplication::sendEvent(panel.GetWidget(), &change);
    EXPECT_EQ(Header(0).text(), QStringLiteral("Licht"));
    for (const auto* const number : panel.GetWidget()->findChildren<QDoubleSpinBox*>())
        EXPECT_EQ(number->locale().decimalPoint(), QLatin1Char(','))
            << number->accessibleName().toStdString();
    EXPECT_EQ(Find<QPushButton>("saveLook").text(), QStringLiteral("Als Look speichern …"));

    QLocale::setDefault(QLocale(QLocale::English));
    QApplication::sendEvent(panel.GetWidget(), &change);
    EXPECT_EQ(Header(0).text(), QStringLiteral("Light"));
}
