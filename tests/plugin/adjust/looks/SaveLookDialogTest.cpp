// SPDX-License-Identifier: GPL-2.0-or-later
#include "adjust/looks/SaveLookDialog.h"

#include "FakeEditor.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

#include <gmock/gmock.h>

using namespace LumetraAdjust;
using LumetraEditor::NewLook;
using LumetraTest::FakeEditor;

namespace {

class SaveLookDialogTest : public testing::Test
{
protected:
    SaveLookDialogTest()
    {
        adjustments.Set("exposure", {{"stops", 0.5}});
        adjustments.Set("vignette", {{"amount", -2}});
        dialog = std::make_unique<SaveLookDialog>(
            adjustments,
            [this](const NewLook& look) {
                kept = look;
                return problem;
            },
            nullptr);
    }

    template <class Widget>
    Widget& Find(const char* name)
    {
        auto* const widget = dialog->findChild<Widget*>(QLatin1String(name));
        EXPECT_NE(widget, nullptr) << name;
        return *widget;
    }

    FakeEditor editor;
    Adjustments adjustments{editor.DescribeEffects()};
    NewLook kept;
    QString problem;
    std::unique_ptr<SaveLookDialog> dialog;
};

} // namespace

TEST_F(SaveLookDialogTest, keepsALookOfEverythingByItself)
{
    EXPECT_FALSE(Find<QPushButton>("lookSave").isEnabled()) << "without a name";
    Find<QLineEdit>("lookName").setText(QStringLiteral(" Dusk "));

    Find<QPushButton>("lookSave").click();

    EXPECT_EQ(dialog->result(), QDialog::Accepted);
    EXPECT_EQ(kept.name, QStringLiteral("Dusk"));
    EXPECT_EQ(kept.settings.Effects().size(), 2U);
    EXPECT_EQ(kept.intensity, NewLook::Intensity::Blend);
}

TEST_F(SaveLookDialogTest, refusesMoreThanFiftyCharactersInWords)
{
    auto& name = Find<QLineEdit>("lookName");
    name.setText(QString(63, QLatin1Char('a')));

    EXPECT_EQ(name.text().size(), 63) << "nothing is cut off";
    EXPECT_FALSE(Find<QPushButton>("lookSave").isEnabled());
    EXPECT_EQ(Find<QLabel>("nameCounter").text(), QStringLiteral("63, at most 50"));
    EXPECT_TRUE(Find<QLabel>("lookProblem").isVisibleTo(dialog.get()));
    EXPECT_EQ(Find<QLabel>("lookProblem").text(),
              QStringLiteral("A look's name has at most 50 characters."));
    EXPECT_EQ(name.accessibleDescription(), QStringLiteral("63 of at most 50 characters"));

    name.setText(QStringLiteral(" ") + QString(50, QLatin1Char('a')) + QStringLiteral("  "));
    EXPECT_TRUE(Find<QPushButton>("lookSave").isEnabled()) << "spaces around a name do not count";
    EXPECT_EQ(Find<QLabel>("nameCounter").text(), QStringLiteral("50 of 50"));
    EXPECT_FALSE(Find<QLabel>("lookProblem").isVisibleTo(dialog.get()));
}

TEST_F(SaveLookDialogTest, leavesSectionsOut)
{
    Find<QLineEdit>("lookName").setText(QStringLiteral("Dusk"));
    Find<QCheckBox>("lookSlider.exposure.stops").setChecked(true);

    Find<QCheckBox>("lookSection0").setChecked(false);

    EXPECT_FALSE(Find<QCheckBox>("lookSlider.exposure.stops").isEnabled());
    Find<QPushButton>("lookSave").click();
    ASSERT_EQ(kept.settings.Effects().size(), 1U);
    EXPECT_TRUE(kept.sliders->empty());
    Find<QCheckBox>("lookSection6").setChecked(false);
    EXPECT_FALSE(Find<QPushButton>("lookSave").isEnabled()) << "nothing is left";
}

TEST_F(SaveLookDialogTest, doesNotLetSlidersTakeEverythingFromTheIntensity)
{
    Find<QLineEdit>("lookName").setText(QStringLiteral("Dusk"));
    auto& intensity = Find<QComboBox>("lookIntensity");
    intensity.setCurrentIndex(intensity.findData(int(NewLook::Intensity::Sliders)));
    Find<QCheckBox>("lookSlider.exposure.stops").setChecked(true);
    EXPECT_TRUE(Find<QPushButton>("lookSave").isEnabled());

    Find<QCheckBox>("lookSlider.vignette.amount").setChecked(true);

    EXPECT_FALSE(Find<QPushButton>("lookSave").isEnabled());
}

TEST_F(SaveLookDialogTest, staysOpenAndSaysWhyALookIsRefused)
{
    problem = QStringLiteral("There is a look “Dusk” already.");
    Find<QLineEdit>("lookName").setText(QStringLiteral("Dusk"));
    dialog->show();

    Find<QPushButton>("lookSave").click();

    EXPECT_TRUE(dialog->isVisible());
    EXPECT_EQ(Find<QLabel>("lookProblem").text(), problem);
    EXPECT_TRUE(Find<QLabel>("lookProblem").isVisible());
    Find<QLineEdit>("lookName").setText(QStringLiteral("Dusk 2"));
    EXPECT_FALSE(Find<QLabel>("lookProblem").isVisible());
}
