// SPDX-License-Identifier: GPL-2.0-or-later
// editor-stress [SEED [ACTIONS]]: see StressRun; by default 10,000 actions. Ends with 1 when a
// check fails. A wrongly painted window is saved to the folder that LUMETRA_STRESS_PICTURES names.
#include "StressRun.h"

#include "Zorvik/Util/AlertBox.h"

#include <QApplication>

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct AnyAnswer : Zorvik::Util::IAlertBackend
{
    QMessageBox::StandardButton Exec(Zorvik::Util::AlertBox& box) override
    {
        for (const auto button : {QMessageBox::Save, QMessageBox::Yes, QMessageBox::Ok})
            if (box.buttons.testFlag(button))
                return button;
        return QMessageBox::Cancel;
    }
};

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    const auto seed = static_cast<unsigned>(argc > 1 ? std::atoi(argv[1]) : 1);
    const int actions = argc > 2 ? std::atoi(argv[2]) : 10000;
    Zorvik::Util::AlertBox::SetBackend(std::make_shared<AnyAnswer>());
    LumetraTest::StressRun run(seed);
    const bool isGood = run.Run(actions);
    std::printf("seed %u, %d actions: %s\n", seed, actions, isGood ? "good" : "failed");
    return isGood ? 0 : 1;
}
