// SPDX-License-Identifier: MIT
#include "Zorvik/Util/ObjectsConnector.h"

#include <QGenericArgument>
#include <QHash>
#include <QMetaMethod>
#include <QPointer>
#include <QVector>
#include <QtDebug>

#include <algorithm>
#include <array>
#include <exception>

namespace Zorvik::Util {
namespace {

constexpr int MaxArguments = 10; // QMetaMethod::invoke takes no more

struct Registration
{
    QPointer<QObject> receiver;
    QString slot;
};

constexpr int SweepBegin = 64;

struct Channel
{
    QVector<Registration> registrations;
    int sweepAt = SweepBegin; // At this many registrations the dead are looked for again.
    QVariantList lastMessage;
    bool hasLastMessage = false;
};

QHash<QString, Channel>& Channels()
{
    static QHash<QString, Channel> channels;
    return channels;
}

QMetaMethod FindSlot(const QObject& receiver, const QString& slot)
{
    const QByteArray signature =
        QMetaObject::normalizedSignature(slot.mid(1).toLatin1().constData());
    return receiver.metaObject()->method(receiver.metaObject()->indexOfMethod(signature));
}

bool Convert(QVariant& value, int type)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return value.convert(QMetaType(type));
#else
    return value.convert(type);
#endif
}

/// Converts `arguments` to the types that `method` takes. False when one does not convert.
bool ConvertArguments(const QMetaMethod& method, QVariantList& arguments)
{
    for (int i = 0; i < method.parameterCount(); ++i) {
        const int type = method.parameterType(i);
        if (type != QMetaType::QVariant && arguments[i].userType() != type &&
            !Convert(arguments[i], type))
            return false;
    }
    return true;
}

QGenericArgument AsArgument(const QMetaMethod& method, int position, const QVariant& value)
{
    if (method.parameterType(position) == QMetaType::QVariant)
        return Q_ARG(QVariant, value);
    return QGenericArgument(value.typeName(), value.constData());
}

void Deliver(const QString& channel, const Registration& registration, QVariantList arguments)
{
    QObject& receiver = *registration.receiver;
    const QMetaMethod method = FindSlot(receiver, registration.slot);
    if (!method.isValid() || method.parameterCount() > arguments.size() ||
        method.parameterCount() > MaxArguments || !ConvertArguments(method, arguments)) {
        qWarning() << "ObjectsConnector: message on" << channel << "does not fit"
                   << registration.slot << "of" << receiver.metaObject()->className();
        return;
    }
    std::array<QGenericArgument, MaxArguments> generic;
    for (int i = 0; i < method.parameterCount(); ++i)
        generic[i] = AsArgument(method, i, arguments[i]);
    method.invoke(&receiver, Qt::DirectConnection, generic[0], generic[1], generic[2], generic[3],
                  generic[4], generic[5], generic[6], generic[7], generic[8], generic[9]);
}

void DropDead(Channel& channel)
{
    auto& registrations = channel.registrations;
    registrations.erase(std::remove_if(registrations.begin(), registrations.end(),
                                       [](const auto& r) { return r.receiver.isNull(); }),
                        registrations.end());
    channel.sweepAt = std::max(SweepBegin, 2 * static_cast<int>(registrations.size()));
}

} // namespace

void ObjectsConnector::registerReceiver(const QString& channel, QObject* receiver,
                                        const QString& slot, bool deliverLast)
{
    Channel& entry = Channels()[channel];
    // Thousands may register on one channel: looking at all of them each time would be quadratic.
    if (entry.registrations.size() >= entry.sweepAt)
        DropDead(entry);
    const Registration registration{receiver, slot};
    entry.registrations.append(registration);
    if (deliverLast && entry.hasLastMessage && receiver)
        Deliver(channel, registration, QVariantList(entry.lastMessage));
}

void ObjectsConnector::sendMessage(const QString& channel, const QVariantList& arguments)
{
    Channel& entry = Channels()[channel];
    DropDead(entry);
    entry.lastMessage = arguments;
    entry.hasLastMessage = true;
    // The loop runs over a copy, because slots may register receivers and open channels meanwhile.
    const QVector<Registration> registrations = entry.registrations;
    std::exception_ptr failure;
    for (const Registration& registration : registrations) {
        try {
            if (registration.receiver)
                Deliver(channel, registration, arguments);
        } catch (...) {
            failure = failure ? failure : std::current_exception();
        }
    }
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace Zorvik::Util
