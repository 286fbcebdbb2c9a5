// SPDX-License-Identifier: MIT
#pragma once

#include "LumetraPresetsUtilExport.h"

#include <QDialog>
#include <QStringList>

#include <memory>

namespace Ui {
class NewPresetDialog;
}

namespace Zorvik::Lumetra::LumetraPresets {

/// Asks for the name of a new preset, or for a new name of an existing one. The host runs it with
/// exec() and, when accepted, reads GetName(); no model is touched.
///
/// Save is disabled while the name is empty or the old one; a name that is taken is refused with
/// an alert. The window has no frame and a fixed size: the host's style sheet draws the one and
/// must make the contents fit the other.
class LUMETRAPRESETSUTIL_EXPORT NewPresetDialog : public QDialog
{
    Q_OBJECT

public:
    enum Mode : int
    {
        Rename = 0,
        Create = 1
    };

    /// `takenNames` are compared case-sensitively. They may hold the old name of a preset to be
    /// renamed, since Save stays disabled for it.
    NewPresetDialog(const QStringList& takenNames, Mode mode, QWidget* parent = nullptr);
    ~NewPresetDialog() override;

    /// The typed name, without white space at its ends.
    QString GetName() const;
    /// The old name, also put into the line edit. At most 50 characters are shown.
    void SetName(const QString& oldName);

    /// Closes the dialog, unless the name is taken.
    void accept() override;

protected:
    /// Enter saves, if Save is enabled; Escape rejects.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void UpdateState();
    void AlertNameTaken(const QString& takenName);

    std::unique_ptr<Ui::NewPresetDialog> ui;
    QStringList existingNames;
    QString name;
};

} // namespace Zorvik::Lumetra::LumetraPresets
