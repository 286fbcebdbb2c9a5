// SPDX-License-Identifier: GPL-2.0-or-later
#include "FilmTables.h"

#include "Zorvik/Brassel/ISerializer.h"
#include "engine/effects/lut3d/LookUpTableText.h"
#include "storage/JsonDocument.h"

#include <exception>
#include <iostream>

using LumetraTools::FilmTables;

int main(int argc, char** argv)
{
    try {
        if (argc < 2) {
            for (const std::string& name : FilmTables::GetNames())
                std::cout << name << '\n';
            return 0;
        }
        const LumetraHost::JsonDocument document("the table");
        LumetraHost::LookUpTableText::Write(FilmTables::Make(argv[1]), document.GetRoot());
        std::cout << document.ToText().constData() << std::flush;
        return std::cout ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "lumetra-film-tables: " << error.what() << '\n';
        return 2;
    }
}
