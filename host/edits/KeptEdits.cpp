// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/KeptEdits.h"

#include "edits/PhotoIdentity.h"
#include "userdata/EditPlaces.h"

namespace LumetraHost {
namespace {

namespace EditPlaces = EditPlaces;

constexpr int ContentDigits = 32;

QString ContentPart(const PhotoIdentity& identity)
{
    return QString::fromLatin1(identity.hash.left(ContentDigits)) +
           QStringLiteral("-%1").arg(identity.size);
}

} // namespace

QString KeptEdits::GetPath(const QString& photo, const PhotoIdentity& identity)
{
    return EditPlaces::GetKept(photo, ContentPart(identity));
}

QStringList KeptEdits::FindByContent(const PhotoIdentity& identity)
{
    if (!identity.IsKnown())
        return {};
    return EditPlaces::FindKept(
        EditPlaces::GetBeside(QStringLiteral("*-") + ContentPart(identity)));
}

} // namespace LumetraHost
