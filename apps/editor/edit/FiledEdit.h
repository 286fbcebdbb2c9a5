// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "edit/EditWriter.h"
#include "edit/ManyStates.h"
#include "edits/EditState.h"

#include <QCoreApplication>
#include <QString>

#include <optional>

namespace LumetraEditor {

/// The edit of a photo that is not shown, as its file has it. Reads the file when it is made and
/// writes nothing by itself. Usable from any thread.
class FiledEdit
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::FiledEdit)

public:
    explicit FiledEdit(const QString& photo);

    /// Why the edit may not be changed, in the user's language: the photo is no photo or cannot be
    /// read, its edit cannot be read, or was made for another file of that name. Else empty.
    QString GetProblem() const { return m_problem; }
    /// Null where the photo has no edit.
    const SharedEdit& GetEdit() const { return m_edit; }
    /// Writes the edit, or, for null, removes what the photo had. There is no problem.
    EditWriter::Outcome Write(const LumetraHost::EditState* edit);

private:
    void Search(const QString& photo);

    QString m_problem;
    SharedEdit m_edit;
    std::optional<EditWriter> m_writer; ///< nothing when there is a problem
};

} // namespace LumetraEditor
