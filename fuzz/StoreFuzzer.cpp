// SPDX-License-Identifier: GPL-2.0-or-later
// A damaged file of the user's own presets: it loads without an exception, a save keeps all that
// was loaded, and unreadable content lies beside it.
#include "EffectPresets/EffectPresetModel.h"
#include "catalogue/CatalogueParser.h"
#include "core/PresetControllerFactory.h"
#include "core/userstore/UserPresetStore.h"
#include "core/userstore/UserStoreChecker.h"
#include "engine/effects/EffectKinds.h"
#include "storage/JsonException.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <memory>

using LumetraHost::CatalogueParser;
using LumetraHost::CatalogueReports;
using LumetraHost::JsonDocument;
using LumetraPlugin::PresetControllerFactory;
using LumetraPlugin::UserPresetStore;
using LumetraPlugin::UserStoreChecker;
using Zorvik::Lumetra::LumetraPresets::EffectPresetModel;

namespace {

/// A model with the store, as in a program.
struct Program
{
    explicit Program(const QString& path) : store(path, factory)
    {
        CatalogueParser parser(PresetControllerFactory::GetKinds());
        parser.Parse(model, store.Load());
        store.Remember(model);
    }

    std::shared_ptr<PresetControllerFactory> factory =
        std::make_shared<PresetControllerFactory>("fuzz");
    EffectPresetModel model{factory};
    UserPresetStore store;
};

/// A folder in memory where there is one: every save waits for the disk otherwise.
QString FolderTemplate()
{
    const QString memory = QStringLiteral("/dev/shm");
    const bool isThere = QFileInfo(memory).isWritable();
    return (isThere ? memory : QDir::tempPath()) + QStringLiteral("/fuzz_store-XXXXXX");
}

void Clear(const QString& folder)
{
    const QDir dir(folder);
    for (const QString& name : dir.entryList(QDir::Files | QDir::Hidden))
        QFile::remove(dir.filePath(name));
    QDir(dir.filePath(QStringLiteral("presets.json.tables"))).removeRecursively();
}

void Check(const QByteArray& text)
{
    CatalogueReports reports;
    try {
        UserStoreChecker::Check(JsonDocument::Parse(text, "fuzz"),
                                PresetControllerFactory::GetKinds(), reports);
    } catch (const LumetraHost::JsonException&) {
        return; // refused whole, with its place
    }
    for (const auto& report : reports.GetAll())
        if (report.place.line == 0)
            std::abort();
}

/// Checks that a refused file stays as it is.
void CheckUntouched(const QString& path, const QByteArray& text)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly) || file.readAll() != text)
        std::abort();
}

/// Removes the first preset and saves: the others stay. A file of a newer program stays whole.
void RemoveFirst(const QString& path, const QByteArray& text)
{
    Program program(path);
    const QModelIndex group = program.model.index(0, 0);
    const QStringList before = program.model.GetUserPresetNames();
    if (before.isEmpty())
        return;
    program.model.removeRow(0, group);
    try {
        program.store.Save(program.model);
    } catch (const Zorvik::Exception& error) {
        if (std::strstr(error.what(), "found a newer one") == nullptr)
            throw;
        return CheckUntouched(path, text);
    }
    if (Program(path).model.GetUserPresetNames() != before.mid(1))
        std::abort();
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
    const QString path = folder.filePath(QStringLiteral("presets.json"));
    Clear(folder.path());
    const QByteArray text(reinterpret_cast<const char*>(data), static_cast<int>(size));
    {
        QFile file(path);
        file.open(QIODevice::WriteOnly);
        file.write(text);
    }
    Check(text);
    try {
        Program program(path);
        CheckUntouched(path, text);
    } catch (const Zorvik::Exception&) {
        CheckUntouched(path, text);
        return 0;
    }
    RemoveFirst(path, text);
    return 0;
}
