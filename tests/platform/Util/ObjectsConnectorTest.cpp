// SPDX-License-Identifier: MIT
#include "Zorvik/Util/ObjectsConnector.h"

#include "BusReceiver.h"
#include "Zorvik/Lumetra/IObjectsConnectorID.h"
#include "support/ExpectLog.h"

#include <gmock/gmock.h>

#include <memory>

using LumetraTest::BusReceiver;
using LumetraTest::ExpectLog;
using testing::ElementsAre;
using testing::IsEmpty;
using Zorvik::Util::ObjectsConnector;

namespace {

/// The bus is one for the process, so every test speaks on a channel of its own.
class ObjectsConnectorTest : public testing::Test
{
protected:
    void Register(BusReceiver& receiver, const char* slot, bool deliverLast = false)
    {
        ObjectsConnector::registerReceiver(channel, &receiver, QString::fromLatin1(slot),
                                           deliverLast);
    }

    void Send(const QVariantList& arguments) { ObjectsConnector::sendMessage(channel, arguments); }

    BusReceiver::Log log;
    QString channel =
        QString::fromLatin1(testing::UnitTest::GetInstance()->current_test_info()->name());
};

} // namespace

TEST_F(ObjectsConnectorTest, aMessageWithoutReceiversGoesNowhere)
{
    Send({true});
}

TEST_F(ObjectsConnectorTest, callsReceiversInOrderOfRegistration)
{
    BusReceiver first("first", log);
    BusReceiver second("second", log);
    Register(second, "1OnFlag(bool)");
    Register(first, "1OnFlag(bool)");
    Send({true});
    EXPECT_THAT(log, ElementsAre("second flag true", "first flag true"));
}

TEST_F(ObjectsConnectorTest, aReceiverRegisteredTwiceIsCalledTwice)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnFlag(bool)");
    Register(receiver, "1OnNothing()");
    Send({false});
    EXPECT_THAT(log, ElementsAre("r flag false", "r nothing"));
}

TEST_F(ObjectsConnectorTest, keepsChannelsApart)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnFlag(bool)");
    ObjectsConnector::sendMessage(channel + QLatin1Char('2'), {true});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ObjectsConnectorTest, passesAsManyArgumentsAsTheSlotTakes)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnNothing()");
    Register(receiver, "1OnText(QString)");
    Register(receiver, "1OnTwo(QString,int)");
    Send({QStringLiteral("x"), 5, 9});
    EXPECT_THAT(log, ElementsAre("r nothing", "r text x", "r two x 5"));
}

TEST_F(ObjectsConnectorTest, callsPrivateSlotsAndNormalisesSignatures)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnText( const QString & )");
    Send({QStringLiteral("x")});
    EXPECT_THAT(log, ElementsAre("r text x"));
}

TEST_F(ObjectsConnectorTest, convertsArguments)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnTwo(QString,int)");
    Register(receiver, "1OnAny(QVariant)");
    Send({7, QStringLiteral("12")});
    EXPECT_THAT(log, ElementsAre("r two 7 12", "r any int"));
}

TEST_F(ObjectsConnectorTest, warnsOfArgumentsThatDoNotConvert)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnTwo(QString,int)");
    const ExpectLog expected(
        "message on .*warnsOfArguments.* does not fit \"1OnTwo\\(QString,int\\)\" "
        "of LumetraTest::BusReceiver");
    Send({QStringLiteral("x"), QStringLiteral("not a number")});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ObjectsConnectorTest, warnsOfTooFewArguments)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnTwo(QString,int)");
    const ExpectLog expected("does not fit");
    Send({QStringLiteral("x")});
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ObjectsConnectorTest, warnsOfAnUnknownSlotAndGoesOn)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnMisspelt(bool)");
    Register(receiver, "1OnFlag(bool)");
    const ExpectLog expected("does not fit \"1OnMisspelt\\(bool\\)\"");
    Send({true});
    EXPECT_THAT(log, ElementsAre("r flag true"));
}

TEST_F(ObjectsConnectorTest, dropsDeadReceivers)
{
    auto dead = std::make_unique<BusReceiver>("dead", log);
    BusReceiver alive("alive", log);
    Register(*dead, "1OnFlag(bool)");
    Register(alive, "1OnFlag(bool)");
    dead.reset();
    Send({true});
    EXPECT_THAT(log, ElementsAre("alive flag true"));
}

TEST_F(ObjectsConnectorTest, aReceiverThatDiesDuringTheDeliveryIsNotCalled)
{
    auto victim = std::make_unique<BusReceiver>("victim", log);
    BusReceiver killer("killer", log);
    killer.SetReaction([&victim] { victim.reset(); });
    Register(killer, "1OnFlag(bool)");
    Register(*victim, "1OnFlag(bool)");
    Send({true});
    EXPECT_THAT(log, ElementsAre("killer flag true"));
}

TEST_F(ObjectsConnectorTest, aReceiverMayDeleteItself)
{
    auto* suicide = new BusReceiver("r", log);
    suicide->SetReaction([suicide] { delete suicide; });
    Register(*suicide, "1OnFlag(bool)");
    Register(*suicide, "1OnNothing()");
    Send({true});
    EXPECT_THAT(log, ElementsAre("r flag true"));
}

TEST_F(ObjectsConnectorTest, aReceiverRegisteredDuringADeliveryWaitsForTheNext)
{
    BusReceiver late("late", log);
    BusReceiver early("early", log);
    bool isRegistered = false;
    early.SetReaction([&] {
        if (!isRegistered)
            Register(late, "1OnFlag(bool)");
        isRegistered = true;
    });
    Register(early, "1OnFlag(bool)");
    Send({true});
    EXPECT_THAT(log, ElementsAre("early flag true"));
    Send({false});
    EXPECT_THAT(log, ElementsAre("early flag true", "early flag false", "late flag false"));
}

TEST_F(ObjectsConnectorTest, aSlotMaySendOnOtherChannels)
{
    BusReceiver outer("outer", log);
    BusReceiver inner("inner", log);
    outer.SetReaction([this] {
        // Many channels, so that the table of channels moves during the delivery.
        for (int i = 0; i < 200; ++i)
            ObjectsConnector::sendMessage(channel + QString::number(i), {true});
    });
    Register(outer, "1OnFlag(bool)");
    Register(inner, "1OnFlag(bool)");
    Send({true});
    EXPECT_THAT(log, ElementsAre("outer flag true", "inner flag true"));
}

TEST_F(ObjectsConnectorTest, deliversTheLastMessageAtRegistrationOnlyWhenAsked)
{
    Send({false});
    Send({true});
    BusReceiver asking("asking", log);
    BusReceiver quiet("quiet", log);
    Register(quiet, "1OnFlag(bool)", false);
    Register(asking, "1OnFlag(bool)", true);
    EXPECT_THAT(log, ElementsAre("asking flag true"));
}

TEST_F(ObjectsConnectorTest, deliversNothingAtRegistrationWithoutAnEarlierMessage)
{
    BusReceiver receiver("r", log);
    Register(receiver, "1OnFlag(bool)", true);
    EXPECT_THAT(log, IsEmpty());
}

TEST_F(ObjectsConnectorTest, aNullReceiverIsIgnored)
{
    Send({true});
    ObjectsConnector::registerReceiver(channel, nullptr, QStringLiteral("1OnFlag(bool)"), true);
    Send({true});
}

TEST_F(ObjectsConnectorTest, theDrawerLockChannelHasItsName)
{
    EXPECT_EQ(Zorvik::Lumetra::LumetraInt::IObjectsConnectorID::CORE_DRAWER_LOCK,
              QStringLiteral("CORE_DRAWER_LOCK"));
}

TEST_F(ObjectsConnectorTest, aReceiverThatThrowsStopsNoOther)
{
    BusReceiver first("first", log);
    BusReceiver second("second", log);
    first.SetReaction([] { throw 42; });
    Register(first, "1OnFlag(bool)");
    Register(second, "1OnFlag(bool)");

    EXPECT_THROW(Send({true}), int);

    EXPECT_THAT(log, ElementsAre("first flag true", "second flag true"));
}
