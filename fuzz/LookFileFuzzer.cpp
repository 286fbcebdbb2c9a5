// SPDX-License-Identifier: GPL-2.0-or-later
// A file with looks of unknown origin, of the kind that LUMETRA_FUZZ_SUFFIX names: everything that
// is wrong is told with the file's name, and each preset that is made of it can be written as a
// file with looks and read again with nothing changed.
#include "core/PresetImport.h"
#include "core/PresetSession.h"
#include "core/looks/LookContent.h"
#include "core/looks/LookReader.h"
#include "core/looks/LookWriter.h"
#include "engine/effects/EffectKinds.h"
#include "storage/JsonDocument.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

using LumetraHost::JsonDocument;
using LumetraPlugin::ImportedFile;
using LumetraPlugin::ImportedPreset;
using LumetraPlugin::ImportReport;
using LumetraPlugin::LookContent;
using LumetraPlugin::LookReader;
using LumetraPlugin::LookWriter;
using LumetraPlugin::PresetImport;
using LumetraPlugin::PresetModel;
using LumetraPlugin::PresetSession;

namespace {

/// A folder in memory where there is one.
QString FolderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    const bool isThere = QFileInfo(memory).isWritable();
    return (isThere ? memory : QDir::tempPath()) + QStringLiteral("/fuzz_look-XXXXXX");
}

[[noreturn]] void Fail(const char* what, const QString& text)
{
    std::fprintf(stderr, "%s: %s\n", what, qPrintable(text));
    std::abort();
}

void CheckProblems(const QStringList& problems, const QString& path)
{
    for (const QString& problem : problems)
        if (!problem.startsWith(path))
            Fail("expected the file's name in front", problem);
}

/// Sends the preset on its way and looks at what arrives.
void CheckRoundTrip(PresetSession& session, const PresetModel::PresetPtr& preset)
{
    LookWriter writer;
    writer.Add(*preset);
    const QByteArray text = writer.ToFile(LookWriter::Packing::Plain, QStringLiteral("again"));
    QStringList problems;
    const auto again =
        LookReader::Read(JsonDocument::Parse(text, "again"), session.GetFactory(), problems);
    if (!problems.isEmpty() || again.size() != 1)
        Fail("expected a look that can be read again", problems.value(0));
    if (LookContent::MakeKey(*again.front(), nullptr) != LookContent::MakeKey(*preset, nullptr))
        Fail("expected the same look", QString::fromUtf8(text));
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***)
{
    LumetraHost::RegisterEffects();
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static const QTemporaryDir folder(FolderTemplate());
    const QString path = folder.filePath(QStringLiteral("fuzz." LUMETRA_FUZZ_SUFFIX));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(reinterpret_cast<const char*>(data), static_cast<qint64>(size)) !=
            static_cast<qint64>(size))
        return 0;
    file.close();
    const ImportedFile read = PresetImport::Read(path, {});
    PresetSession session("fuzz");
    session.Load({}, nullptr);
    const ImportReport report = PresetImport::AddTo(session, {read});
    CheckProblems(report.problems, path);
    if (report.presets.empty() && report.known.empty() && report.problems.isEmpty())
        Fail("expected a preset or a problem", path);
    for (const ImportedPreset& preset : report.presets)
        CheckRoundTrip(session, session.GetModel().GetPreset(preset.index));
    return 0;
}
