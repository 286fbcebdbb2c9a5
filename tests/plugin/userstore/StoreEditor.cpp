// SPDX-License-Identifier: GPL-2.0-or-later
// store-editor FILE PREFIX COUNT: saves COUNT presets named PREFIX0, PREFIX1, … one by one, as a
// program does while its user works; every twentieth has a look-up table. The tests run two at
// once, and stop one at every step.
#include "StoreFixture.h"

#include <QCoreApplication>

#include <cstdio>

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 4)
        return 2;
    try {
        LumetraTest::StoreProgram program(arguments[1]);
        for (int i = 0; i < arguments[3].toInt(); ++i)
            if (i % 20 == 0)
                program.SaveTable(arguments[2] + QString::number(i), 3, i);
            else
                program.SaveAs(arguments[2] + QString::number(i));
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
    return 0;
}
