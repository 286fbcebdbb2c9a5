// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/FiledEdit.h"

#include "edits/EditSearch.h"
#include "edits/PhotoIdentity.h"
#include "photo/file/PhotoFile.h"
#include "photo/file/PhotoFormat.h"

#include <exception>

namespace LumetraEditor {
namespace {

/// Bytes that tell a photo from another file.
constexpr std::size_t StartSize = LumetraHost::PhotoIdentity::EndSize;

} // namespace

using LumetraHost::EditSearch;
using LumetraHost::EditState;
using LumetraHost::PhotoIdentity;

FiledEdit::FiledEdit(const QString& photo)
{
    try {
        LumetraHost::PhotoFile file(photo);
        LumetraHost::RequirePhotoFormat(file.ReadPart(0, StartSize), file.GetName());
        Search(photo);
    } catch (const std::exception& error) {
        m_problem = QString::fromUtf8(error.what());
        const QString name = photo + QStringLiteral(": ");
        if (m_problem.startsWith(name)) // whoever tells of it names the photo in front
            m_problem.remove(0, name.size());
    }
}

void FiledEdit::Search(const QString& photo)
{
    const auto identity = PhotoIdentity::Of(photo);
    const EditSearch search(photo, identity);
    const auto& found = search.GetFound();
    if (!identity.IsKnown())
        m_problem = tr("the photo cannot be read");
    else if (!search.GetProblems().isEmpty())
        m_problem = tr("its edit cannot be read: %1").arg(search.GetProblems().first());
    else if (found && found->isOfOtherPhoto)
        m_problem = tr("it was replaced or changed by another program since it was edited; open it "
                       "to decide about its edit");
    if (!m_problem.isEmpty())
        return;
    if (found)
        m_edit = std::make_shared<const EditState>(found->edit.state);
    m_writer.emplace(photo, identity, search);
}

EditWriter::Outcome FiledEdit::Write(const EditState* edit)
{
    if (edit)
        return m_writer->Write(*edit, QDateTime::currentDateTimeUtc());
    m_writer->Remove();
    return {};
}

} // namespace LumetraEditor
