// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraEditor {

/// Where the editor looks for modules, in order: the folders that the environment variable
/// LUMETRA_PLUGIN_PATH names, separated as in PATH, then the editor's own, which lies beside the
/// libraries that the editor was installed or built with. Folders that are not there are left out.
QStringList GetPluginFolders();

} // namespace LumetraEditor
