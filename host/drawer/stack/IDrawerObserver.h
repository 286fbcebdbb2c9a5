// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

namespace LumetraHost {

/// Is told when a drawer's pictures change. Called on the thread of the change, after it; may ask
/// the drawer for its pictures, but not change it, and may remove no observer but itself.
class IDrawerObserver
{
public:
    /// Drawer::Result() is another picture.
    virtual void FrameChanged() = 0;
    /// The photo that previews start from is another one: a new photo, or packages were committed.
    virtual void CommittedPhotoChanged() = 0;

    virtual ~IDrawerObserver() = default;
};

} // namespace LumetraHost
