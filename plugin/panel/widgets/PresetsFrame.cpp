// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/widgets/PresetsFrame.h"

#include "core/PresetImport.h"
#include "panel/appearance/PanelIcons.h"
#include "panel/appearance/PanelTranslation.h"

#include <QDragEnterEvent>
#include <QEvent>
#include <QFileInfo>
#include <QMimeData>
#include <QUrl>
#include <QVBoxLayout>

namespace LumetraPlugin {
namespace {

constexpr int SmallestWidth = 280;

/// True for folders too: what is in them is looked at only when they are dropped.
bool HasLooks(const QString& path)
{
    return PresetImport::IsImportable(path) || QFileInfo(path).isDir();
}

QStringList LooksOf(const QMimeData& data)
{
    QStringList paths;
    for (const QUrl& url : data.urls())
        if (url.isLocalFile() && HasLooks(url.toLocalFile()))
            paths.append(url.toLocalFile());
    return paths;
}

} // namespace

PresetsFrame::PresetsFrame()
{
    setObjectName(QStringLiteral("presetsPanel"));
    setAttribute(Qt::WA_StyledBackground);
    setMinimumWidth(SmallestWidth);
    setAcceptDrops(true);
    setStyleSheet(PanelIcons::ReadStyleSheet());
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    ShowTexts();
}

void PresetsFrame::ShowTexts()
{
    setAccessibleName(tr("Looks"));
}

/// A look that is dragged out of the panel is no file for the panel.
void PresetsFrame::dragEnterEvent(QDragEnterEvent* event)
{
    auto* const source = qobject_cast<QWidget*>(event->source());
    if (source && isAncestorOf(source))
        return;
    if (!LooksOf(*event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PresetsFrame::dropEvent(QDropEvent* event)
{
    event->acceptProposedAction();
    emit looksDropped(LooksOf(*event->mimeData()));
}

/// Loads the panel's texts before the child widgets hear of the language.
void PresetsFrame::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() != QEvent::LanguageChange)
        return;
    PanelTranslation::Follow();
    ShowTexts();
}

} // namespace LumetraPlugin
