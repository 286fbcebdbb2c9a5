// SPDX-License-Identifier: GPL-2.0-or-later
#include "StyledApplication.h"
#include "style/EditorStyle.h"
#include "style/MessageBoxAlertBackend.h"
#include "widgets/NewPresetDialog.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using namespace LumetraHost;
using Zorvik::Lumetra::StyleProvider;
using Zorvik::Util::AlertBox;

AlertBox MakeAlert(const QString& title, QMessageBox::StandardButtons buttons,
                   AlertBox::Level level = AlertBox::Level::Warning)
{
    return AlertBox(level, title, QStringLiteral("<b>Text</b>"), buttons, nullptr, Qt::Dialog);
}

class AlertBackend : public testing::Test
{
protected:
    AlertBackend()
    {
        StyleProvider::SetBackend(m_style);
        AlertBox::SetBackend(m_backend);
    }

    ~AlertBackend() override
    {
        StyleProvider::SetBackend(nullptr);
        AlertBox::SetBackend(nullptr);
    }

    /// Presses a button of the message box as soon as one is open.
    static void AnswerWith(QMessageBox::StandardButton button)
    {
        QTimer::singleShot(0, qApp, [button] {
            auto* messageBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(messageBox, nullptr);
            messageBox->button(button)->click();
        });
    }

    std::shared_ptr<EditorStyle> m_style = std::make_shared<EditorStyle>();
    std::shared_ptr<MessageBoxAlertBackend> m_backend =
        std::make_shared<MessageBoxAlertBackend>(m_style);
};

TEST_F(AlertBackend, answersWithThePressedButton)
{
    AlertBox alert = MakeAlert(QStringLiteral("Title"), QMessageBox::Yes | QMessageBox::No);

    AnswerWith(QMessageBox::No);
    EXPECT_EQ(alert.Exec(), QMessageBox::No);
    AnswerWith(QMessageBox::Yes);
    EXPECT_EQ(alert.Exec(), QMessageBox::Yes);
}

TEST_F(AlertBackend, showsWhatTheAlertSays)
{
    const auto box = m_backend->MakeMessageBox(
        MakeAlert(QStringLiteral("Title"), QMessageBox::Ok, AlertBox::Level::Critical));

    EXPECT_EQ(box->windowTitle(), QStringLiteral("Title"));
    EXPECT_EQ(box->text(), QStringLiteral("<b>Text</b>"));
    EXPECT_EQ(box->textFormat(), Qt::PlainText) << "names are no markup";
    EXPECT_EQ(box->icon(), QMessageBox::Critical);
    EXPECT_EQ(box->standardButtons(), QMessageBox::Ok);
}

TEST_F(AlertBackend, levelsHaveTheirIcons)
{
    const auto icon = [this](AlertBox::Level level) {
        return m_backend->MakeMessageBox(MakeAlert({}, QMessageBox::Ok, level))->icon();
    };

    EXPECT_EQ(icon(AlertBox::Level::Information), QMessageBox::Information);
    EXPECT_EQ(icon(AlertBox::Level::Warning), QMessageBox::Warning);
    EXPECT_EQ(icon(AlertBox::Level::Critical), QMessageBox::Critical);
}

TEST_F(AlertBackend, untitledAlertBearsTheApplicationsName)
{
    QCoreApplication::setApplicationName(QStringLiteral("Lumetra"));

    EXPECT_EQ(m_backend->MakeMessageBox(MakeAlert({}, QMessageBox::Ok))->windowTitle(),
              QStringLiteral("Lumetra"));
}

TEST_F(AlertBackend, yesBesideCancelBearsTheTitle)
{
    const QString verb = QStringLiteral("Delete");
    const auto question =
        m_backend->MakeMessageBox(MakeAlert(verb, QMessageBox::Yes | QMessageBox::Cancel));
    const auto plain =
        m_backend->MakeMessageBox(MakeAlert(verb, QMessageBox::Yes | QMessageBox::No));
    const auto untitled =
        m_backend->MakeMessageBox(MakeAlert({}, QMessageBox::Yes | QMessageBox::Cancel));

    EXPECT_EQ(question->button(QMessageBox::Yes)->text(), verb);
    EXPECT_EQ(question->windowTitle(), verb);
    EXPECT_NE(plain->button(QMessageBox::Yes)->text(), verb);
    EXPECT_EQ(untitled->button(QMessageBox::Yes)->text(), plain->button(QMessageBox::Yes)->text());
}

TEST_F(AlertBackend, theButtonsHaveNoIcons)
{
    const StyledApplication styled(PaletteKind::Dark);
    const auto question = m_backend->MakeMessageBox(MakeAlert(
        QStringLiteral("Leave"), QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel));

    for (const auto* const button : question->buttons())
        EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
    EXPECT_EQ(question->buttons().size(), 3);
}

TEST_F(AlertBackend, enterDoesWhatLooksDefaultAndEscCancels)
{
    const StyledApplication styled(PaletteKind::Dark);
    for (const int key : {Qt::Key_Return, Qt::Key_Escape}) {
        AlertBox alert =
            MakeAlert(QStringLiteral("Delete"), QMessageBox::Yes | QMessageBox::Cancel);
        Zorvik::Lumetra::StyleAlertBox(alert, {QMessageBox::Cancel}, QMessageBox::Cancel);
        QTimer::singleShot(0, qApp, [key] {
            auto* const box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            EXPECT_TRUE(box->defaultButton()->property("accent").toBool());
            QTest::keyClick(box, static_cast<Qt::Key>(key));
        });
        EXPECT_EQ(alert.Exec(), QMessageBox::Cancel);
    }
}

TEST_F(AlertBackend, stylingChoosesDefaultAndAccentButtons)
{
    AlertBox alert = MakeAlert({}, QMessageBox::Yes | QMessageBox::No);
    Zorvik::Lumetra::StyleAlertBox(alert, {QMessageBox::Yes}, QMessageBox::No);

    const auto box = m_backend->MakeMessageBox(alert);

    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
    EXPECT_TRUE(box->button(QMessageBox::Yes)->property("accent").toBool());
    EXPECT_FALSE(box->button(QMessageBox::No)->property("accent").toBool());
}

TEST_F(AlertBackend, showsTheWholeTextInTheEditorsStyle)
{
    const StyledApplication styled(PaletteKind::Light);
    for (const char* const text :
         {"No.", "A text of one long line that needs more room than a short one"}) {
        const AlertBox alert(AlertBox::Level::Warning, {}, QLatin1String(text), QMessageBox::Ok,
                             nullptr, Qt::Dialog);
        const auto box = m_backend->MakeMessageBox(alert);
        box->show();
        const auto* const label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
        ASSERT_NE(label, nullptr);

        const QRect room = label->contentsRect();
        const QRect needed = label->fontMetrics().boundingRect(
            room, label->wordWrap() ? Qt::TextWordWrap : 0, label->text());
        EXPECT_TRUE(room.width() >= needed.width() && room.height() >= needed.height()) << text;
    }
}

TEST_F(AlertBackend, accentButtonsHaveTheAccentsColour)
{
    const StyledApplication styled(PaletteKind::Light);
    AlertBox alert = MakeAlert({}, QMessageBox::Yes | QMessageBox::No);
    Zorvik::Lumetra::StyleAlertBox(alert, {QMessageBox::Yes}, QMessageBox::No);
    const auto box = m_backend->MakeMessageBox(alert);
    box->show();
    const auto ground = [&box](QMessageBox::StandardButton button) {
        const QImage picture = box->button(button)->grab().toImage();
        return picture.pixelColor(8, picture.height() / 2);
    };

    EXPECT_EQ(ground(QMessageBox::Yes), ColoursOf(PaletteKind::Light).accent);
    EXPECT_EQ(ground(QMessageBox::No), ColoursOf(PaletteKind::Light).button);
}

TEST_F(AlertBackend, stylingReachesItsOwnAlertOnlyAndOnce)
{
    AlertBox styled = MakeAlert({}, QMessageBox::Yes | QMessageBox::No);
    AlertBox other = MakeAlert({}, QMessageBox::Yes | QMessageBox::No);
    const auto accent = [this](const AlertBox& alert) {
        const auto box = m_backend->MakeMessageBox(alert);
        return box->button(QMessageBox::Yes)->property("accent").toBool();
    };

    Zorvik::Lumetra::StyleAlertBox(styled, {QMessageBox::Yes}, QMessageBox::NoButton);
    EXPECT_FALSE(accent(other));

    const auto restyle =
        Zorvik::Lumetra::StyleAlertBox(styled, {QMessageBox::Yes}, QMessageBox::NoButton);
    EXPECT_TRUE(accent(styled));
    EXPECT_FALSE(accent(styled));
    restyle();
    EXPECT_TRUE(accent(styled));
}

TEST_F(AlertBackend, alertEndsWithItsParent)
{
    auto* parent = new QWidget;
    AlertBox alert(AlertBox::Level::Warning, {}, QStringLiteral("Text"), QMessageBox::Ok, parent,
                   Qt::Dialog);
    QTimer::singleShot(0, parent, [parent] { delete parent; });

    alert.Exec();

    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}

TEST_F(AlertBackend, takenNameIsRefusedInARealAlert)
{
    using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;
    NewPresetDialog dialog({QStringLiteral("Foo")}, NewPresetDialog::Create, nullptr);
    dialog.show();
    auto* edit = dialog.findChild<QLineEdit*>();
    QTest::keyClicks(edit, QStringLiteral("Foo"));
    QString told;
    QTimer::singleShot(0, &dialog, [&told] {
        auto* messageBox = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        ASSERT_NE(messageBox, nullptr);
        told = messageBox->text();
        QTest::keyClick(messageBox, Qt::Key_Escape);
    });

    QTest::keyClick(edit, Qt::Key_Return);

    EXPECT_EQ(told, QStringLiteral("Name \"Foo\" already exists, choose another one."));
    EXPECT_TRUE(dialog.isVisible());
}

} // namespace
} // namespace LumetraTest
