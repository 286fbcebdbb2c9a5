// SPDX-License-Identifier: GPL-2.0-or-later
#include "EffectPresets/IObjectsConnectorID.h"
#include "PanelFixture.h"
#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "Zorvik/Util/ObjectsConnector.h"

using LumetraTest::PanelFixture;
using Zorvik::Lumetra::LumetraPresets::IObjectsConnectorID;
using Zorvik::Util::ObjectsConnector;

namespace {

const QString& DrawerLock()
{
    return Zorvik::Lumetra::LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK;
}

/// Stands for the canvas.
class Canvas : public QObject
{
    Q_OBJECT

public:
    Canvas()
    {
        ObjectsConnector::registerReceiver(IObjectsConnectorID::PRESET_CHANGED, this,
                                           QStringLiteral("1OnPresetChanged(QString,QString)"),
                                           false);
    }

    QStringList ids;
    QStringList names;

private slots:
    void OnPresetChanged(const QString& id, const QString& name)
    {
        ids.append(id);
        names.append(name);
    }
};

class BusTest : public PanelFixture
{
protected:
    ~BusTest() override { ObjectsConnector::sendMessage(DrawerLock(), {false}); }
};

} // namespace

TEST_F(BusTest, aLockedDrawerDisablesThePanel)
{
    ObjectsConnector::sendMessage(DrawerLock(), {true});
    EXPECT_FALSE(panel->GetWidget()->isEnabled());

    ObjectsConnector::sendMessage(DrawerLock(), {false});
    EXPECT_TRUE(panel->GetWidget()->isEnabled());
}

TEST_F(BusTest, theSettingsChannelDisablesThePanelToo)
{
    ObjectsConnector::sendMessage(IObjectsConnectorID::SETTINGS_ENABLE, {false});
    EXPECT_FALSE(panel->GetWidget()->isEnabled());

    ObjectsConnector::sendMessage(IObjectsConnectorID::SETTINGS_ENABLE, {true});
    EXPECT_TRUE(panel->GetWidget()->isEnabled());
}

TEST_F(BusTest, appliesThePresetThatTheCanvasAsksFor)
{
    ObjectsConnector::sendMessage(IObjectsConnectorID::ACTIVATE_PRESET, {QStringLiteral("warm")});
    EXPECT_TRUE(IsApplied("Warm"));

    ObjectsConnector::sendMessage(IObjectsConnectorID::ACTIVATE_PRESET, {QStringLiteral("gone")});
    EXPECT_TRUE(IsApplied("Warm"));
    ASSERT_EQ(editor.messages.size(), 1);
    EXPECT_TRUE(editor.messages.front().contains(QStringLiteral("gone")));
}

TEST_F(BusTest, tellsTheCanvasWhichPresetIsApplied)
{
    Canvas canvas;
    Click("Bright");
    Trigger("discardPreset");

    EXPECT_EQ(canvas.ids, (QStringList{QStringLiteral("bright"), QString()}));
    EXPECT_EQ(canvas.names.front(), QStringLiteral("Bright"));
}

#include "BusTest.moc"
