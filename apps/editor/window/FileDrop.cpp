// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/FileDrop.h"

#include "plugins/CallDepth.h"

#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QTabWidget>
#include <QUrl>

namespace LumetraEditor {

QStringList GetLocalFiles(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile())
            paths.append(url.toLocalFile());
    return paths;
}

bool IsLookFile(const QString& path)
{
    static const QStringList endings{
        QStringLiteral("lumetra"), QStringLiteral("cube"), QStringLiteral("3dl"),
        QStringLiteral("clf"),     QStringLiteral("look"), QStringLiteral("cdl"),
        QStringLiteral("cc"),      QStringLiteral("ccc"),  QStringLiteral("zip")};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

bool DropOnPanel(const QTabWidget& panels, const QStringList& paths)
{
    QMimeData data;
    QList<QUrl> urls;
    for (const QString& path : paths)
        urls.append(QUrl::fromLocalFile(QFileInfo(path).absoluteFilePath()));
    data.setUrls(urls);
    QWidgetList offered; // a copy, as a panel that fails loses its tab meanwhile
    for (int i = 0; i < panels.count(); ++i)
        offered.append(panels.widget(i));
    const CallDepth depth; // keeps the widgets of such panels
    for (QWidget* const panel : offered) {
        if (!panel->acceptDrops() || !panel->isEnabled())
            continue;
        const QPoint middle = panel->rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        enter.ignore();
        QApplication::sendEvent(panel, &enter);
        if (!enter.isAccepted())
            continue;
        QDropEvent drop(middle, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(panel, &drop);
        return true;
    }
    return false;
}

} // namespace LumetraEditor
