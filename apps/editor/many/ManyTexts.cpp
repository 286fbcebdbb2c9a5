// SPDX-License-Identifier: GPL-2.0-or-later
#include "many/ManyTexts.h"

#include "edit/ManyEdits.h"

#include "Zorvik/Lumetra/StyleProvider.h"
#include "Zorvik/Util/AlertBox.h"

#include <QCoreApplication>
#include <QStringList>

namespace LumetraEditor {
namespace {

using LumetraHost::EditLayer;
using LumetraHost::EditState;
using Zorvik::Util::AlertBox;

constexpr int MostProblems = 5; // named in a message

struct ManyTexts
{
    Q_DECLARE_TR_FUNCTIONS(LumetraEditor::ManyTexts)
};

QString CountLeft(int count)
{
    return count == 1 ? ManyTexts::tr("1 left as it was")
                      : ManyTexts::tr("%1 left as they were").arg(count);
}

} // namespace

QString DescribePart(const EditState& edit, const QString& module, const NameLayer& nameLayer)
{
    QStringList looks;
    int others = 0;
    for (const EditLayer& layer : edit.layers) {
        if (layer.module != module)
            continue;
        const QString name = nameLayer(layer);
        if (name.isEmpty())
            ++others;
        else
            looks.append(ManyTexts::tr("%1 (%2 %)").arg(name).arg(layer.record.intensity));
    }
    if (others == 1)
        looks.append(ManyTexts::tr("1 layer"));
    else if (others > 1)
        looks.append(ManyTexts::tr("%1 layers").arg(others));
    return looks.isEmpty() ? ManyTexts::tr("nothing") : looks.join(QStringLiteral(", "));
}

QString CountChanged(const ManyReport& report)
{
    if (report.changed == 0)
        return ManyTexts::tr("No photo changed");
    return report.changed == 1 ? ManyTexts::tr("1 photo changed")
                               : ManyTexts::tr("%1 photos changed").arg(report.changed);
}

bool HasMoreToTell(const ManyReport& report)
{
    return report.cancelled > 0 || !report.problems.isEmpty() || !report.notices.isEmpty();
}

QString DescribeReport(const ManyReport& report)
{
    QString text = CountChanged(report);
    QStringList lines = report.problems.mid(0, MostProblems);
    if (const int more = report.problems.size() - lines.size(); more > 0)
        lines.append(ManyTexts::tr("and %1 more").arg(more));
    if (report.cancelled > 0)
        lines.append(ManyTexts::tr("stopped before the rest"));
    const int left = report.problems.size() + report.cancelled;
    if (left > 0)
        text += QStringLiteral(", ") + CountLeft(left) + QLatin1Char(':');
    return (QStringList(text) + lines + report.notices).join(QLatin1Char('\n'));
}

LateChanges AskForLateChanges(QWidget* parent)
{
    AlertBox box(AlertBox::Level::Warning, QStringLiteral("Lumetra"),
                 ManyTexts::tr("The edit has not come to all selected photos yet.\n\n"
                               "Save finishes that before the program ends,\n"
                               "Discard leaves the other photos as they are."),
                 QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel, parent,
                 Qt::WindowFlags());
    Zorvik::Lumetra::StyleAlertBox(box, {QMessageBox::Save}, QMessageBox::Save);
    const auto answer = box.Exec();
    if (answer == QMessageBox::Save)
        return LateChanges::Finish;
    return answer == QMessageBox::Discard ? LateChanges::GiveUp : LateChanges::Stay;
}

} // namespace LumetraEditor
