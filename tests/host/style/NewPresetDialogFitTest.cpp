// SPDX-License-Identifier: GPL-2.0-or-later
// The name dialog has a fixed size: the style sheet must make its contents fit.
#include "widgets/NewPresetDialog.h"

#include "StyledApplication.h"

#include <QLabel>
#include <QLineEdit>
#include <QTest>
#include <QToolButton>

#include <gtest/gtest.h>

#include <memory>

namespace LumetraTest {
namespace {

using LumetraHost::PaletteKind;
using Zorvik::Lumetra::LumetraPresets::NewPresetDialog;

/// The size that shows all of a widget's text: whole lines, frame and padding included.
QSize NeededSize(const QWidget& widget)
{
    const int line = widget.fontMetrics().height();
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget))
        return {0, line + 2 * (edit->contentsRect().y() + 1)}; // a border of 1
    if (const auto* button = qobject_cast<const QToolButton*>(&widget))
        return {widget.fontMetrics().horizontalAdvance(button->text()) + 2 * 4, line};
    const auto& label = dynamic_cast<const QLabel&>(widget);
    return {widget.fontMetrics().horizontalAdvance(label.text()), line};
}

QStringList ClippedChildren(NewPresetDialog& dialog)
{
    QStringList clipped;
    const auto children = dialog.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly);
    for (const QWidget* child : children) {
        const QSize needed = NeededSize(*child);
        if (child->width() < needed.width() || child->height() < needed.height())
            clipped += child->objectName() + QStringLiteral(" is too small");
        if (!dialog.rect().adjusted(1, 1, -1, -1).contains(child->geometry()))
            clipped += child->objectName() + QStringLiteral(" sticks out");
        for (const QWidget* other : children) {
            if (other < child && other->geometry().intersects(child->geometry()))
                clipped += child->objectName() + QStringLiteral(" covers ") + other->objectName();
        }
    }
    return clipped;
}

class NewPresetDialogFit
    : public testing::TestWithParam<std::tuple<PaletteKind, bool, NewPresetDialog::Mode>>
{
};

TEST_P(NewPresetDialogFit, nothingIsClipped)
{
    const auto [kind, isGerman, mode] = GetParam();
    const StyledApplication styled(kind);
    const auto german = isGerman ? std::make_unique<GermanTexts>() : nullptr;
    NewPresetDialog dialog({}, mode, nullptr);
    dialog.show();
    (void)QTest::qWaitForWindowExposed(&dialog);

    EXPECT_EQ(dialog.size(), QSize(262, 130));
    EXPECT_EQ(ClippedChildren(dialog).join(QStringLiteral(", ")).toStdString(), "");
    if (isGerman) {
        EXPECT_TRUE(german->IsLoaded());
        EXPECT_EQ(dialog.findChild<QToolButton*>(QStringLiteral("saveButton"))->text(),
                  QStringLiteral("Speichern"));
    }
}

INSTANTIATE_TEST_SUITE_P(
    Looks, NewPresetDialogFit,
    testing::Combine(testing::Values(PaletteKind::Light, PaletteKind::Dark), testing::Bool(),
                     testing::Values(NewPresetDialog::Create, NewPresetDialog::Rename)));

TEST(NewPresetDialogUnstyled, keepsItsSizeAlthoughItsContentsDoNotFit)
{
    NewPresetDialog dialog({}, NewPresetDialog::Create, nullptr);
    dialog.show();
    (void)QTest::qWaitForWindowExposed(&dialog);

    EXPECT_EQ(dialog.size(), QSize(262, 130));
    EXPECT_FALSE(ClippedChildren(dialog).isEmpty());
}

TEST(NewPresetDialogGerman, speaksGermanThroughout)
{
    const GermanTexts german;
    const NewPresetDialog created({}, NewPresetDialog::Create, nullptr);
    const NewPresetDialog renamed({}, NewPresetDialog::Rename, nullptr);
    const auto text = [](const NewPresetDialog& dialog, const char* name) {
        return dialog.findChild<QLabel*>(QString::fromLatin1(name))->text();
    };

    EXPECT_EQ(text(created, "captionLabel"), QStringLiteral("Neues Preset erstellen"));
    EXPECT_EQ(text(renamed, "captionLabel"), QStringLiteral("Preset umbenennen"));
    EXPECT_EQ(QCoreApplication::translate("NewPresetDialog",
                                          "Name \"%1\" already exists, choose another one.")
                  .arg(QStringLiteral("Foo")),
              QString::fromUtf8("Der Name „Foo“ ist schon vergeben. Bitte einen anderen wählen."));
    EXPECT_EQ(QCoreApplication::translate("Zorvik::Lumetra::LumetraPresets::IntensityWidget",
                                          "Intensity: %1"),
              QString::fromUtf8("Intensität: %1"));
}

} // namespace
} // namespace LumetraTest
