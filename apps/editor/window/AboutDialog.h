// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QDialog>

namespace LumetraEditor {

/// Shows the program's name, version and licence. Made anew for each showing, so that it follows no
/// change of language or theme.
class AboutDialog : public QDialog
{
    Q_OBJECT

public:
    explicit AboutDialog(QWidget* parent);
};

} // namespace LumetraEditor
