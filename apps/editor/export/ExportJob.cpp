// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/ExportJob.h"

#include "export/ExportGuard.h"
#include "exporting/JobFingerprint.h"
#include "storage/CheckedFileWriter.h"
#include "storage/FailWith.h"

#include <QCoreApplication>
#include <QFileInfo>

#include <utility>

namespace LumetraEditor {
namespace {

using Zorvik::Quindle::EffectsSettings;

struct Messages
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::ExportJob)
};

} // namespace

ExportJob::ExportJob(const LumetraHost::KeptPhoto& photo,
                     const std::vector<EffectsSettings>& packages,
                     const std::vector<LumetraHost::EditRecord>& records,
                     const ExportOptions& options, std::shared_ptr<const ExportGuard> guard)
    : m_photo(photo), m_options(options), m_guard(std::move(guard))
{
    m_options.recipe.look = std::make_shared<LumetraHost::ExportLook>(packages);
    m_options.recipe.records = records;
}

bool ExportJob::Run(const Progress& progress)
{
    LumetraHost::ExportControl control;
    control.cancel = &m_cancel;
    control.progress = progress;
    LumetraHost::ExportRecipe recipe = m_options.recipe;
    recipe.job = LumetraHost::JobFingerprint::OfContent(m_photo.contentHash, recipe);
    const auto exported =
        LumetraHost::Export().MakeFromPhoto(m_photo, recipe, m_options.path.toStdString(), control);
    m_warnings = exported.losses;
    if (exported.file.empty())
        return false;
    CheckOutput();
    LumetraHost::CheckedFileWriter::Write(m_options.path, exported.file.data(),
                                          exported.file.size());
    progress(100);
    return true;
}

void ExportJob::CheckOutput() const
{
    const QFileInfo file(m_options.path);
    QString obstacle = m_guard ? m_guard->FindObstacle(m_options.path) : QString();
    if (obstacle.isEmpty() && !m_options.mayReplace && file.exists())
        obstacle =
            Messages::tr("“%1” has appeared meanwhile and is not replaced.").arg(file.fileName());
    if (!obstacle.isEmpty())
        LumetraHost::FailWith(obstacle.toStdString());
}

} // namespace LumetraEditor
