// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QApplication>

namespace LumetraEditor {

/// The application of a program that runs modules: an exception that leaves an event handler is
/// reported and does not end the program, whatever its type is.
///
/// The windows are drawn without OpenGL, and X11's drivers for it are not loaded: they take some
/// 50 MB. Who needs them sets QT_XCB_GL_INTEGRATION, as to "xcb_glx".
class GuardedApplication : public QApplication
{
    Q_OBJECT

public:
    GuardedApplication(int& argc, char** argv);

    bool notify(QObject* receiver, QEvent* event) override;

signals:
    /// Emitted on the GUI thread. `receiver` had the event and may be gone by now: it may be
    /// compared, but not followed. Null for an object of another thread.
    void eventFailed(QObject* receiver, const QString& reason);

private:
    static int& LeaveOpenGlOut(int& argc);
    bool Deliver(QObject* receiver, QEvent* event);
    void Report(QObject* receiver, const QString& reason);
};

} // namespace LumetraEditor
