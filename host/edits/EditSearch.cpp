// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/EditSearch.h"

#include "edits/KeptEdits.h"
#include "userdata/EditPlaces.h"

#include <QFileInfo>

#include <algorithm>
#include <exception>
#include <utility>

namespace LumetraHost {
namespace {

namespace EditPlaces = EditPlaces;

/// A file of an earlier version does not say it and is taken for an edit of the photo beside it.
bool IsOf(const EditFile& edit, const PhotoIdentity& photo)
{
    return !edit.photo.IsKnown() || !photo.IsKnown() || edit.photo.IsSamePhoto(photo);
}

} // namespace

EditSearch::EditSearch(const QString& photo, const PhotoIdentity& identity) : m_identity(identity)
{
    std::vector<Found> own, others;
    const auto beside = ReadAll({EditPlaces::GetBeside(photo)});
    const auto kept = ReadAll({KeptEdits::GetPath(photo, identity)});
    for (const auto* const edits : {&beside, &kept})
        for (const Found& found : *edits)
            (IsOf(found.edit, identity) ? own : others).push_back(found);
    Choose(own, false);
    if (!m_found)
        Choose(ReadAll(KeptEdits::FindByContent(identity)), false);
    if (m_found)
        return;
    for (Found& found : ReadAll(EditPlaces::FindKeptOf(photo)))
        others.push_back(std::move(found));
    Choose(others, true);
}

std::optional<EditSearch::Found> EditSearch::Read(const QString& path)
{
    const QFileInfo file(path);
    if (!file.exists() && !file.isSymLink())
        return std::nullopt;
    try {
        return Found{path, EditFile::Read(path)};
    } catch (const std::exception& error) {
        m_unreadable.append(path);
        m_problems.append(QString::fromUtf8(error.what()));
        return std::nullopt;
    }
}

std::vector<EditSearch::Found> EditSearch::ReadAll(const QStringList& paths)
{
    std::vector<Found> edits;
    for (const QString& path : paths)
        if (!m_unreadable.contains(path))
            if (auto found = Read(path))
                edits.push_back(std::move(*found));
    return edits;
}

void EditSearch::Choose(std::vector<Found> edits, bool areOfOtherPhoto)
{
    // The first of two equally old edits is taken: the one beside the photo.
    const auto newest =
        std::max_element(edits.begin(), edits.end(), [](const Found& first, const Found& second) {
            return first.edit.saved < second.edit.saved;
        });
    if (newest == edits.end())
        return;
    m_found = std::move(*newest);
    m_found->isOfOtherPhoto = areOfOtherPhoto;
}

} // namespace LumetraHost
