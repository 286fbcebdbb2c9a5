// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringList>

namespace LumetraEditor {

/// The editor's folders of modules, in order: those that the environment variable
/// LUMETRA_PLUGIN_PATH names, separated as in PATH, then the editor's own, which lies beside the
/// libraries that the editor was installed or built with. Missing folders are left out.
QStringList GetPluginFolders();

} // namespace LumetraEditor
