// SPDX-License-Identifier: MIT
#pragma once

#include "ZorvikPlatformExport.h"

#include <QVariant>

class QObject;
class QString;

namespace Zorvik::Util {

/// The message bus connects objects that do not know each other, through named channels and slots.
/// There is one bus for the whole process, and it belongs to the GUI thread.
class ZORVIKPLATFORM_EXPORT ObjectsConnector
{
public:
    /// Lets `receiver` hear `channel` through `slot`, a slot signature with Qt's prefix "1"
    /// ("1OnLock(bool)"). The slot is looked up at delivery, so a receiver may register from its
    /// constructor; one that does not exist is warned about at each delivery. The receiver is not
    /// owned, is dropped by itself when it dies, and is called as often as it was registered. With
    /// `deliverLast` the channel's last message, if any, is delivered at once.
    static void registerReceiver(const QString& channel, QObject* receiver, const QString& slot,
                                 bool deliverLast);

    /// Calls the channel's slots directly, in order of registration, each with as many of the
    /// arguments as it takes, converted to its types. A slot that needs more arguments, or values
    /// that do not convert, is warned about and not called. A receiver registered during a delivery
    /// waits for the next message. A receiver that throws stops no other: the first exception
    /// leaves when all have been called.
    static void sendMessage(const QString& channel, const QVariantList& arguments);
};

} // namespace Zorvik::Util
