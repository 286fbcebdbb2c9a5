// SPDX-License-Identifier: MIT
#include "Zorvik/Util/AlertBox.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "support/ExpectLog.h"

#include <gmock/gmock.h>

#include <QWidget>

using LumetraTest::ExpectLog;
using testing::ElementsAre;
using Zorvik::Util::AlertBox;
using Zorvik::Util::IAlertBackend;
using namespace Zorvik::Lumetra;

namespace {

class ScriptedAlerts : public IAlertBackend
{
public:
    QMessageBox::StandardButton Exec(AlertBox& box) override
    {
        texts.push_back(box.text.toStdString());
        return QMessageBox::Retry;
    }

    std::vector<std::string> texts;
};

class ScriptedStyle : public IStyleBackend
{
public:
    QVariant Option(StyleProvider::OptionKey key) const override
    {
        return key == StyleProvider::FillSlider ? QVariant(true) : QVariant();
    }

    void StyleAlert(AlertBox& box, const ButtonList& buttons,
                    QMessageBox::StandardButton defaultButton) override
    {
        calls.push_back(box.text.toStdString() + " " + std::to_string(buttons.size()) + " " +
                        std::to_string(defaultButton));
    }

    std::vector<std::string> calls;
};

AlertBox MakeBox()
{
    return AlertBox(AlertBox::Level::Warning, QStringLiteral("Title"), QStringLiteral("Text"),
                    QMessageBox::Ok | QMessageBox::Cancel, nullptr, Qt::Dialog);
}

} // namespace

TEST(AlertBox, keepsItsArguments)
{
    QWidget parent;
    const AlertBox box(AlertBox::Level::Critical, QStringLiteral("Title"), QStringLiteral("Text"),
                       QMessageBox::Ok, &parent, Qt::Tool);
    EXPECT_EQ(box.level, AlertBox::Level::Critical);
    EXPECT_EQ(box.title, QStringLiteral("Title"));
    EXPECT_EQ(box.text, QStringLiteral("Text"));
    EXPECT_EQ(box.buttons, QMessageBox::Ok);
    EXPECT_EQ(box.parent, &parent);
    EXPECT_EQ(box.flags, Qt::Tool);
}

TEST(AlertBox, numbersItsLevelsFromInformation)
{
    EXPECT_EQ(static_cast<int>(AlertBox::Level::Information), 0);
    EXPECT_EQ(static_cast<int>(AlertBox::Level::Warning), 1);
    EXPECT_EQ(static_cast<int>(AlertBox::Level::Critical), 2);
}

TEST(AlertBox, printsItsTextWithoutABackend)
{
    AlertBox box(AlertBox::Level::Warning, QStringLiteral("Title"), QStringLiteral("100% bad"),
                 QMessageBox::Ok, nullptr, Qt::Dialog);
    const ExpectLog log("^100% bad$");
    EXPECT_EQ(box.Exec(), QMessageBox::NoButton);
}

TEST(AlertBox, asksTheBackend)
{
    const auto backend = std::make_shared<ScriptedAlerts>();
    EXPECT_EQ(AlertBox::SetBackend(backend), nullptr);
    auto box = MakeBox();
    EXPECT_EQ(box.Exec(), QMessageBox::Retry);
    EXPECT_THAT(backend->texts, ElementsAre("Text"));
    EXPECT_EQ(AlertBox::SetBackend(nullptr), backend) << "the earlier one is handed back";
    EXPECT_EQ(backend.use_count(), 1);
}

TEST(StyleProvider, knowsNothingWithoutABackend)
{
    EXPECT_FALSE(StyleProvider::Option(StyleProvider::FillSlider).isValid());
}

TEST(StyleProvider, asksTheBackend)
{
    EXPECT_EQ(StyleProvider::SetBackend(std::make_shared<ScriptedStyle>()), nullptr);
    EXPECT_EQ(StyleProvider::Option(StyleProvider::FillSlider), QVariant(true));
    EXPECT_NE(StyleProvider::SetBackend(nullptr), nullptr);
}

TEST(StyleAlertBox, stylesNothingWithoutABackend)
{
    auto box = MakeBox();
    const auto again = StyleAlertBox(box, {QMessageBox::Ok}, QMessageBox::Ok);
    ASSERT_TRUE(again);
    again();
}

TEST(StyleAlertBox, stylesAtOnceAndAgainOnCall)
{
    const auto backend = std::make_shared<ScriptedStyle>();
    StyleProvider::SetBackend(backend);
    auto box = MakeBox();
    const auto again = StyleAlertBox(box, {QMessageBox::Ok, QMessageBox::Cancel}, QMessageBox::Ok);
    EXPECT_THAT(backend->calls, ElementsAre("Text 2 1024"));
    again();
    EXPECT_EQ(backend->calls.size(), 2U);
    StyleProvider::SetBackend(nullptr);
    again();
    EXPECT_EQ(backend->calls.size(), 2U) << "the backend is looked up at each call";
}
