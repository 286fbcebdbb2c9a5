// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QPushButton>

class QStyleOptionToolBox;

namespace Zorvik::Lumetra::LumetraPresets {

/// The header of one page of a CustomToolBox, which makes, places and owns it. Painted as a push
/// button that is checked while its page is open; takes no keyboard focus.
class LUMETRAPRESETSUTIL_EXPORT CustomToolBoxButton : public QPushButton
{
    Q_OBJECT

public:
    explicit CustomToolBoxButton(QWidget* parent = nullptr);

    /// Collapsable: a click may uncheck the button. Otherwise a checked button stays checked.
    void setCollapsable(bool isCollapsable);
    /// Selected: the page is open.
    void setSelected(bool isSelectedNow);
    bool isSelected() const;
    /// The page's position in the tool box; -1 before it has one.
    void setIndex(int pageIndex);

protected:
    /// Describes the header for styles that draw tool box tabs. Needs the tool box as parent for
    /// the tab's position among its neighbours.
    void initStyleOption(QStyleOptionToolBox* option) const;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    bool collapsable = false;
    bool selected = false;
    int index = -1;
};

} // namespace Zorvik::Lumetra::LumetraPresets
