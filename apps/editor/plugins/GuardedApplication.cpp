// SPDX-License-Identifier: GPL-2.0-or-later
#include "plugins/GuardedApplication.h"

#include "plugins/CallDepth.h"
#include "plugins/Failure.h"

#include <QThread>

namespace LumetraEditor {

namespace {

constexpr char OpenGlDriver[] = "QT_XCB_GL_INTEGRATION";

} // namespace

GuardedApplication::GuardedApplication(int& argc, char** argv)
    : QApplication(LeaveOpenGlOut(argc), argv)
{
}

/// Has to come before the application. Returns what it was given.
int& GuardedApplication::LeaveOpenGlOut(int& argc)
{
    if (!qEnvironmentVariableIsSet(OpenGlDriver))
        qputenv(OpenGlDriver, "none");
    return argc;
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event)
{
    if (QThread::currentThread() != thread())
        return Deliver(receiver, event);
    const CallDepth depth;
    return Deliver(receiver, event);
}

bool GuardedApplication::Deliver(QObject* receiver, QEvent* event)
{
    try {
        return QApplication::notify(receiver, event);
    } catch (...) {
        Report(receiver, Failure::Describe());
        return false;
    }
}

void GuardedApplication::Report(QObject* receiver, const QString& reason)
{
    if (QThread::currentThread() == thread())
        emit eventFailed(receiver, reason);
    else
        QMetaObject::invokeMethod(
            this, [this, reason] { emit eventFailed(nullptr, reason); }, Qt::QueuedConnection);
}

} // namespace LumetraEditor
