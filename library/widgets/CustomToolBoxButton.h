// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QPushButton>

class QStyleOptionToolBox;

namespace Zorvik::Lumetra::LumetraPresets {

/// The button is the header of one page of a CustomToolBox, which makes, places and owns it. It is
/// painted as a push button that is checked while its page is open, and takes no keyboard focus.
class LUMETRAPRESETSUTIL_EXPORT CustomToolBoxButton : public QPushButton
{
    Q_OBJECT

public:
    /// Makes a header that is neither collapsable nor selected. `parent` is the tool box.
    explicit CustomToolBoxButton(QWidget* parent = nullptr);

    /// Says whether a click may uncheck the button. One that is not collapsable stays checked.
    void setCollapsable(bool isCollapsable);
    /// The selected state says that the page is open. It is apart from the check state: setting one
    /// leaves the other.
    void setSelected(bool isSelectedNow);
    bool isSelected() const;
    /// Tells the button the page's position in the tool box, for initStyleOption(). It is -1 before
    /// the first call.
    void setIndex(int pageIndex);

protected:
    /// Fills `option` for derived classes that draw the header as a tool box tab; the library does
    /// not call it. The tab's position among its neighbours is filled in only with a tool box as
    /// parent, and for options of version 2 and later.
    void initStyleOption(QStyleOptionToolBox* option) const;
    /// Clicks a checked button that is not collapsable instead of letting the release uncheck it.
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool collapsable = false;
    bool selected = false;
    int index = -1;
};

} // namespace Zorvik::Lumetra::LumetraPresets
