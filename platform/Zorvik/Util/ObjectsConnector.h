// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QVariant>

class QObject;
class QString;

namespace Zorvik::Util {

/// The message bus between objects that do not know each other: named channels, received through
/// slots. One bus for the whole process; GUI thread only.
class ZORVIKPLATFORM_EXPORT ObjectsConnector
{
public:
    /// Lets `receiver` hear `channel` through `slot`, a slot signature with Qt's prefix "1"
    /// ("1OnLock(bool)"). The slot is looked up at delivery, so a receiver may register from its
    /// constructor. A dead receiver is dropped unasked. `deliverLast` true: the channel's last
    /// message, if any, is delivered at once.
    static void registerReceiver(const QString& channel, QObject* receiver, const QString& slot,
                                 bool deliverLast);

    /// Calls the channel's slots directly, in order of registration, each with as many of the
    /// arguments as it takes. A receiver registered during a delivery waits for the next message.
    /// One that throws stops no other: the first exception leaves when all have been called.
    static void sendMessage(const QString& channel, const QVariantList& arguments);
};

} // namespace Zorvik::Util
