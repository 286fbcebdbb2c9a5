// SPDX-License-Identifier: GPL-2.0-or-later
// many-edits-run FOLDER: gives all PNG photos of a folder one edit and another one in turn, until
// it is killed. Each edit has a hundred layers of one look.
#include "editor/edit/SampleEdits.h"

#include "edit/ManyEdits.h"
#include "engine/effects/EffectKinds.h"

#include <QCoreApplication>
#include <QDir>

#include <cstdlib>

namespace {

LumetraHost::EditState MakeLongEdit(const char* look)
{
    const std::vector<LumetraHost::EditLayer> layers(100, LumetraTest::Committed("looks", look));
    return LumetraTest::MakeEdit(layers);
}

} // namespace

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc != 2)
        return EXIT_FAILURE;
    LumetraHost::RegisterEffects();
    const QDir folder(QString::fromLocal8Bit(argv[1]));
    QStringList photos;
    for (const QString& name : folder.entryList({QStringLiteral("*.png")}))
        photos.append(folder.filePath(name));
    LumetraEditor::ManyEdits edits;
    for (;;)
        for (const char* const look : {"Golden", "Fresh"}) {
            const auto put = [edit = MakeLongEdit(look)](const auto&) { return edit; };
            edits.Do(std::make_shared<LumetraEditor::ManyStates>(), photos, put);
            edits.WaitForAll();
        }
}
