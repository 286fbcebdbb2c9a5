// SPDX-License-Identifier: GPL-2.0-or-later
#include "EditorExportBenchmark.h"

#include "export/ExportJob.h"
#include "photo/metadata/EditRecord.h"
#include "session/Editor.h"

#include <QElapsedTimer>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <cstdio>

namespace LumetraBenchmark {
namespace {

constexpr int Rounds = 9;

double ExportByEditor(const LumetraEditor::Editor& editor, const QString& output)
{
    LumetraEditor::ExportOptions options;
    options.path = output;
    QElapsedTimer clock;
    clock.start();
    LumetraEditor::ExportJob job(editor.GetPhoto(), editor.GetPackages(), editor.GetRecords(),
                                 options);
    job.Run([](int) {});
    return clock.nsecsElapsed() / 1e6;
}

double RunTool(const LumetraHost::EditRecord& look, const QString& photo, const QString& output,
               const QStringList& more = {})
{
    const QStringList words{QStringLiteral("apply"),       photo,
                            QStringLiteral("--preset"),    QString::fromStdString(look.preset),
                            QStringLiteral("--intensity"), QString::number(look.intensity),
                            QStringLiteral("--output"),    output,
                            QStringLiteral("--overwrite")};
    QElapsedTimer clock;
    clock.start();
    if (QProcess::execute(QStringLiteral(LUMETRA_PRESETS_PROGRAM), words + more) != 0)
        std::printf("the tool failed on %s\n", qUtf8Printable(photo));
    return clock.nsecsElapsed() / 1e6;
}

double GetMedian(std::vector<double> values)
{
    std::nth_element(values.begin(), values.begin() + Rounds / 2, values.end());
    return values[Rounds / 2];
}

} // namespace

void RunEditorExportBenchmark(const LumetraEditor::Editor& editor, const QString& photo)
{
    const auto records = editor.GetRecords();
    if (records.size() != 1) {
        std::printf("export: expected one look on the photo, found %zu\n", records.size());
        return;
    }
    const QString folder = QFileInfo(photo).path() + QLatin1Char('/');
    std::vector<double> byEditor, byTool, starts, ratios;
    for (int round = 0; round < Rounds; ++round) {
        byEditor.push_back(ExportByEditor(editor, folder + QStringLiteral("editor.jpg")));
        const QString output = folder + QStringLiteral("tool.jpg");
        byTool.push_back(RunTool(records.front(), photo, output, {QStringLiteral("--quiet")}));
        starts.push_back(RunTool(records.front(), photo, output,
                                 {QStringLiteral("--quiet"), QStringLiteral("--dry-run")}));
        ratios.push_back(byEditor.back() / (byTool.back() - starts.back()));
    }
    std::printf("export  %-14s editor %4.0f ms, tool %4.0f ms with %3.0f ms of its start, editor "
                "beside the tool without it %.2f (medians of %d)\n",
                records.front().preset.c_str(), GetMedian(byEditor), GetMedian(byTool),
                GetMedian(starts), GetMedian(ratios), Rounds);
    std::fflush(stdout);
}

} // namespace LumetraBenchmark
