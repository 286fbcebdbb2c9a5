// SPDX-License-Identifier: GPL-2.0-or-later
#include "window/OpenDialogs.h"

#include "photo/file/PhotoFolder.h"
#include "settings/EditorSettings.h"

#include <QCoreApplication>
#include <QFileDialog>
#include <QFileInfo>

namespace LumetraEditor {
namespace {

const QString FolderKey = QStringLiteral("folders/open");

/// The patterns of a file dialog: "*.jpg *.png".
QString MakePatterns()
{
    return QStringLiteral("*.") +
           LumetraHost::PhotoFolder::GetExtensions().join(QStringLiteral(" *."));
}

} // namespace

QStringList AskForPhotos(EditorSettings& settings, QWidget* parent)
{
    const QStringList paths = QFileDialog::getOpenFileNames(
        parent, QCoreApplication::translate("LumetraEditor::OpenDialogs", "Open Photos"),
        settings.Get(FolderKey).toString(),
        QCoreApplication::translate("LumetraEditor::OpenDialogs", "Photos (%1);;All files (*)")
            .arg(MakePatterns()));
    if (!paths.isEmpty())
        settings.Set(FolderKey, QFileInfo(paths.first()).absolutePath());
    return paths;
}

QStringList AskForFolder(EditorSettings& settings, QWidget* parent)
{
    const QString folder = QFileDialog::getExistingDirectory(
        parent, QCoreApplication::translate("LumetraEditor::OpenDialogs", "Open Folder"),
        settings.Get(FolderKey).toString());
    if (folder.isEmpty())
        return {};
    settings.Set(FolderKey, folder);
    return {folder};
}

} // namespace LumetraEditor
