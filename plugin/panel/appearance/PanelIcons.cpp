// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/appearance/PanelIcons.h"

#include <QFile>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>
#include <QSvgRenderer>

// Registers the resources, which a static library does not do by itself. The macro must stand
// outside every namespace.
static void RegisterPanelResources()
{
    Q_INIT_RESOURCE(LumetraPanel);
}

namespace LumetraPlugin {
namespace {

constexpr int ButtonIconSize = 16;

QByteArray ReadResource(const QString& name)
{
    RegisterPanelResources();
    QFile file(QStringLiteral(":/lumetra-panel/") + name);
    if (file.open(QIODevice::ReadOnly))
        return file.readAll();
    qWarning("The presets panel has no resource \"%s\".", qUtf8Printable(name));
    return {};
}

QPixmap Draw(const QString& name, int size, const QColor& color, double devicePixelRatio)
{
    QByteArray drawing = ReadResource(QStringLiteral("icons/%1.svg").arg(name));
    if (drawing.isEmpty())
        return {};
    drawing.replace("currentColor", color.name().toLatin1());
    QSvgRenderer renderer(drawing);
    QPixmap pixmap(QSize(size, size) * devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    renderer.render(&painter);
    painter.end();
    pixmap.setDevicePixelRatio(devicePixelRatio);
    return pixmap;
}

} // namespace

QPixmap PanelIcons::GetPixmap(const QString& name, int size, const QColor& color,
                              double devicePixelRatio)
{
    const QString key =
        QStringLiteral("lumetra-panel/%1/%2/%3/%4")
            .arg(name, QString::number(size), color.name(), QString::number(devicePixelRatio));
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
        pixmap = Draw(name, size, color, devicePixelRatio);
        QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
}

QIcon PanelIcons::GetIcon(const QString& name, const QPalette& palette)
{
    QIcon icon;
    for (const double ratio : {1.0, 2.0, 3.0}) {
        icon.addPixmap(GetPixmap(name, ButtonIconSize,
                                 palette.color(QPalette::Active, QPalette::ButtonText), ratio));
        icon.addPixmap(GetPixmap(name, ButtonIconSize,
                                 palette.color(QPalette::Disabled, QPalette::ButtonText), ratio),
                       QIcon::Disabled);
    }
    return icon;
}

QString PanelIcons::ReadStyleSheet()
{
    return QString::fromUtf8(ReadResource(QStringLiteral("panel.qss")));
}

} // namespace LumetraPlugin
