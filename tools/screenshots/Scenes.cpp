// SPDX-License-Identifier: GPL-2.0-or-later
#include "Scenes.h"

#include "EditorOnStage.h"

#include "canvas/PhotoCanvas.h"
#include "window/EditorActions.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QPainter>
#include <QTimer>

namespace LumetraScreenshots {
namespace {

const QString Look = QStringLiteral("Candlelight");

QImage PlayStart(EditorOnStage& stage)
{
    return stage.Grab();
}

QImage PlayPhoto(EditorOnStage& stage)
{
    stage.OpenSample();
    return stage.Grab();
}

QImage PlayLook(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return stage.Grab();
}

QImage PlaySplit(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.GetWindow().GetActions().split->trigger();
    return stage.Grab();
}

QImage PlayZoom(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    stage.GetWindow().GetCanvas().SetZoom(4);
    return stage.Grab();
}

QImage PlaySearch(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.Search(QStringLiteral("li"));
    return stage.Grab();
}

QImage PlayMessage(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.OpenText();
    return stage.Grab();
}

/// The window with the dialog over it, as a desktop shows them.
QImage WithDialog(EditorOnStage& stage, QAction& command)
{
    QImage picture;
    QTimer::singleShot(0, &stage.GetWindow(), [&] {
        auto* const dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        if (!dialog)
            qFatal("expected a dialog for \"%s\"", qPrintable(command.objectName()));
        QApplication::processEvents();
        picture = stage.Grab();
        const QImage front = dialog->grab().toImage();
        QPainter painter(&picture);
        const QSize room = (stage.GetWindow().size() - dialog->size()) / 2 -
                           QSize(0, stage.GetWindow().height() / 12);
        painter.fillRect(
            QRect(QPoint(room.width(), room.height()), dialog->size()).adjusted(-1, -1, 1, 1),
            QColor(0, 0, 0, 160));
        painter.drawImage(QPoint(room.width(), room.height()), front);
        dialog->reject();
    });
    command.trigger();
    return picture;
}

QImage PlayExport(EditorOnStage& stage)
{
    stage.OpenSample();
    stage.ClickLook(Look);
    return WithDialog(stage, *stage.GetWindow().GetActions().exportPhoto);
}

QImage PlayShortcuts(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, *stage.GetWindow().GetActions().shortcuts);
}

QImage PlayAbout(EditorOnStage& stage)
{
    stage.OpenSample();
    return WithDialog(stage, *stage.GetWindow().GetActions().about);
}

} // namespace

const std::vector<Scene>& AllScenes()
{
    static const std::vector<Scene> scenes{
        {QStringLiteral("start"), PlayStart},         {QStringLiteral("photo"), PlayPhoto},
        {QStringLiteral("look"), PlayLook},           {QStringLiteral("split"), PlaySplit},
        {QStringLiteral("zoom"), PlayZoom},           {QStringLiteral("search"), PlaySearch},
        {QStringLiteral("message"), PlayMessage},     {QStringLiteral("export"), PlayExport},
        {QStringLiteral("shortcuts"), PlayShortcuts}, {QStringLiteral("about"), PlayAbout}};
    return scenes;
}

} // namespace LumetraScreenshots
