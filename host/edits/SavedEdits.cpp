// SPDX-License-Identifier: GPL-2.0-or-later
#include "edits/SavedEdits.h"

#include "edits/DrawnEdit.h"
#include "edits/EditSearch.h"
#include "edits/PhotoIdentity.h"

#include "storage/FailWith.h"

#include <QFileInfo>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const QString& photo, const QString& problem)
{
    FailWith(QStringLiteral("%1: the edit of the photo cannot be read: %2")
                 .arg(photo, problem)
                 .toStdString());
}

} // namespace

SavedEdits::SavedEdits(const LookLayers& upper, ExportLook::Precision precision)
    : m_upper(upper), m_precision(precision)
{
}

PhotoLook SavedEdits::Get(const QString& photo) const
{
    const QString path = QFileInfo(photo).absoluteFilePath();
    const EditSearch search(path, PhotoIdentity::Of(path));
    if (!search.GetProblems().isEmpty())
        Fail(photo, search.GetProblems().first());
    LookLayers layers;
    PhotoLook look;
    if (const auto& found = search.GetFound()) {
        layers = DrawnEdit::Make(found->edit.state.layers);
        if (found->isOfOtherPhoto)
            look.warnings.push_back("the edit \"" + found->path.toStdString() +
                                    "\" was made when the photo had other content");
    }
    layers.Add(m_upper);
    look.drawing = std::make_shared<ExportLook>(layers.packages, m_precision);
    look.records = layers.records;
    return look;
}

} // namespace LumetraHost
