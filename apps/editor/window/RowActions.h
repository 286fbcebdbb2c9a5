// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraEditor {

class EditorActions;
class PhotoBrowser;
class PhotoStrip;

/// Connects the commands on the row of photos with its browser, and the menu of photos with the
/// strip. All are kept by reference and end together.
void ConnectRowActions(EditorActions& actions, PhotoBrowser& browser, PhotoStrip& strip);

} // namespace LumetraEditor
