// SPDX-License-Identifier: GPL-2.0-or-later
#include "edit/KeptEdits.h"

#include "edit/PhotoIdentity.h"
#include "userdata/EditPlaces.h"

namespace LumetraEditor {
namespace {

namespace EditPlaces = LumetraHost::EditPlaces;

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

} // namespace LumetraEditor
