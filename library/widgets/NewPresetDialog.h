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
/// Save is disabled while the name is empty or the old one. It is enabled before the text changes
/// for the first time, so without SetName() an empty name can be accepted. A name that is taken is
/// refused with an alert. The window has no frame, which the host's style sheet draws, and a fixed
/// size, which its contents must fit.
class LUMETRAPRESETSUTIL_EXPORT NewPresetDialog : public QDialog
{
    Q_OBJECT

public:
    /// The mode chooses the caption and nothing else.
    enum Mode : int
    {
        Rename = 0,
        Create = 1
    };

    /// Makes a dialog for one use; `parent` owns it and may be null. `takenNames` are compared
    /// case-sensitively and without trimming. They may hold the old name of a preset to be renamed,
    /// since Save stays disabled for it.
    NewPresetDialog(const QStringList& takenNames, Mode mode, QWidget* parent = nullptr);
    ~NewPresetDialog() override;

    /// Returns the typed name without white space at its ends. It has at most 50 characters and may
    /// be empty.
    QString GetName() const;
    /// Sets the old name, for which Save is disabled, and puts it into the line edit, cut after 50
    /// characters. Call it before exec(). An old name that is longer, or has white space at its
    /// ends, never equals a typed one.
    void SetName(const QString& oldName);

    /// Closes the dialog as accepted, unless the name is taken: then an alert says so, and the
    /// dialog stays open.
    void accept() override;

protected:
    /// Lets Enter save if Save is enabled; Escape rejects.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void UpdateState();
    void AlertNameTaken(const QString& takenName);

    std::unique_ptr<Ui::NewPresetDialog> ui;
    QStringList existingNames;
    QString name;
};

} // namespace Zorvik::Lumetra::LumetraPresets
