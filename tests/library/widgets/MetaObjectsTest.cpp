// SPDX-License-Identifier: MIT
// Names that the widgets offer to style sheets, scripts and connections.
#include "widgets/CustomToolBox.h"
#include "widgets/CustomToolBoxButton.h"
#include "widgets/IntensityWidget.h"
#include "widgets/NewPresetDialog.h"

#include <QMetaMethod>
#include <QMetaProperty>
#include <QStringList>

#include <gtest/gtest.h>

namespace LumetraTest {
namespace {

using namespace Zorvik::Lumetra::LumetraPresets;

QString Kind(const QMetaMethod& method)
{
    const QString access =
        method.access() == QMetaMethod::Private ? QStringLiteral("private ") : QString();
    return access + (method.methodType() == QMetaMethod::Signal ? QStringLiteral("signal ")
                                                                : QStringLiteral("slot "));
}

/// The class's own methods and properties, in order.
std::string Members(const QMetaObject& type)
{
    QStringList members;
    for (int i = type.methodOffset(); i < type.methodCount(); ++i)
        members += Kind(type.method(i)) + QString::fromLatin1(type.method(i).methodSignature());
    for (int i = type.propertyOffset(); i < type.propertyCount(); ++i)
        members += QStringLiteral("property ") + QString::fromLatin1(type.property(i).name());
    return members.join(QStringLiteral("; ")).toStdString();
}

TEST(MetaObjects, toolBoxListsItsMembersInOrder)
{
    EXPECT_STREQ(CustomToolBox::staticMetaObject.className(),
                 "Zorvik::Lumetra::LumetraPresets::CustomToolBox");
    EXPECT_EQ(Members(CustomToolBox::staticMetaObject),
              "signal currentChanged(int); signal expandedChanged(int,bool); "
              "slot setCurrentIndex(int,bool); slot setCurrentIndex(int); "
              "slot setCurrentWidget(QWidget*); private slot _q_buttonClicked(); "
              "private slot _q_widgetDestroyed(QObject*); "
              "property currentIndex; property count; property spacing");
}

TEST(MetaObjects, toolBoxPropertiesAreWiredToTheirOperations)
{
    const QMetaObject& type = CustomToolBox::staticMetaObject;
    const auto property = [&](const char* name) {
        return type.property(type.indexOfProperty(name));
    };

    EXPECT_TRUE(property("currentIndex").isWritable());
    EXPECT_EQ(property("currentIndex").notifySignal().name(), QByteArray("currentChanged"));
    EXPECT_FALSE(property("count").isWritable());
    EXPECT_FALSE(property("count").hasNotifySignal());
    EXPECT_TRUE(property("spacing").isWritable());
}

TEST(MetaObjects, otherWidgetsHaveNoMembersOfTheirOwn)
{
    EXPECT_STREQ(CustomToolBoxButton::staticMetaObject.className(),
                 "Zorvik::Lumetra::LumetraPresets::CustomToolBoxButton");
    EXPECT_STREQ(IntensityWidget::staticMetaObject.className(),
                 "Zorvik::Lumetra::LumetraPresets::IntensityWidget");
    EXPECT_STREQ(NewPresetDialog::staticMetaObject.className(),
                 "Zorvik::Lumetra::LumetraPresets::NewPresetDialog");
    EXPECT_EQ(Members(CustomToolBoxButton::staticMetaObject), "");
    EXPECT_EQ(Members(IntensityWidget::staticMetaObject), "");
    EXPECT_EQ(Members(NewPresetDialog::staticMetaObject), "");
}

TEST(MetaObjects, widgetsDeriveAsPromised)
{
    EXPECT_STREQ(CustomToolBox::staticMetaObject.superClass()->className(), "QFrame");
    EXPECT_STREQ(CustomToolBoxButton::staticMetaObject.superClass()->className(), "QPushButton");
    EXPECT_STREQ(IntensityWidget::staticMetaObject.superClass()->className(),
                 "Zorvik::Lumetra::ClickSlider");
    EXPECT_STREQ(NewPresetDialog::staticMetaObject.superClass()->className(), "QDialog");
}

} // namespace
} // namespace LumetraTest
