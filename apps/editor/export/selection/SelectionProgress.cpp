// SPDX-License-Identifier: GPL-2.0-or-later
#include "export/selection/SelectionProgress.h"

#include "export/DialogParts.h"
#include "export/selection/SelectionExporter.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QUrl>

namespace LumetraEditor {
namespace {

using State = LumetraHost::PhotoJob::State;

/// The folder of the first file that was written; empty where none was.
QString FindFolder(const SelectionPlan& outcome)
{
    for (const auto& job : outcome.jobs)
        if (job.state == State::Written)
            return QFileInfo(job.output).absolutePath();
    return {};
}

} // namespace

SelectionProgress::SelectionProgress(SelectionExporter& exporter, QWidget* parent)
    : QDialog(parent), m_exporter(exporter), m_text(Named(new QLabel(this), "selectionText")),
      m_bar(Named(new QProgressBar(this), "selectionBar")),
      m_problems(Named(new QListWidget(this), "selectionProblems")),
      m_again(Named(new QPushButton(tr("&Try Again What Failed"), this), "selectionAgain")),
      m_showFolder(Named(new QPushButton(tr("&Show in Folder"), this), "selectionShow")),
      m_cancel(Named(new QPushButton(tr("Cancel"), this), "selectionCancel")),
      m_close(Named(new QPushButton(tr("&Close"), this), "selectionClose"))
{
    setObjectName(QStringLiteral("selectionProgress"));
    setWindowTitle(tr("Export"));
    m_text->setTextFormat(Qt::PlainText);
    m_text->setWordWrap(true);
    m_bar->setTextVisible(false);
    m_bar->setAccessibleName(tr("Exporting"));
    m_problems->setAccessibleName(tr("What failed or was reduced"));
    m_problems->setWordWrap(true);
    m_problems->setResizeMode(QListView::Adjust); // lines are broken anew at the final width
    m_problems->setSelectionMode(QAbstractItemView::NoSelection);
    auto* const buttons = new QHBoxLayout;
    buttons->setSpacing(8);
    buttons->addWidget(m_again);
    buttons->addWidget(m_showFolder);
    buttons->addStretch();
    buttons->addWidget(m_cancel);
    buttons->addWidget(m_close);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    column->addWidget(m_text);
    column->addWidget(m_bar);
    column->addWidget(m_problems, 1);
    column->addLayout(buttons);
    setMinimumWidth(480);
    connect(&exporter, &SelectionExporter::progressed, this, &SelectionProgress::Progress);
    connect(&exporter, &SelectionExporter::ended, this, &SelectionProgress::End);
    connect(m_cancel, &QPushButton::clicked, &exporter, &SelectionExporter::Cancel);
    connect(m_close, &QPushButton::clicked, this, &SelectionProgress::hide);
    connect(m_showFolder, &QPushButton::clicked, this, &SelectionProgress::ShowFolder);
    connect(m_again, &QPushButton::clicked, this, [this] {
        m_exporter.TryAgain();
        Begin();
    });
}

void SelectionProgress::Begin()
{
    m_bar->setRange(0, 0);
    m_text->setText(tr("Exporting…"));
    m_problems->hide();
    UpdateButtons();
    Raise();
}

void SelectionProgress::Raise()
{
    show();
    raise();
    activateWindow();
}

void SelectionProgress::Progress(int done, int total, const QString& photo)
{
    m_bar->setRange(0, total);
    m_bar->setValue(done);
    m_text->setText(tr("%1 of %2: %3").arg(done).arg(total).arg(QFileInfo(photo).fileName()));
}

void SelectionProgress::End()
{
    const SelectionPlan& outcome = m_exporter.GetOutcome();
    QStringList parts(tr("Written: %1").arg(outcome.Count(State::Written)));
    if (const int skipped = outcome.Count(State::Skipped))
        parts.append(tr("Skipped: %1").arg(skipped));
    if (const int failed = outcome.Count(State::Failed))
        parts.append(tr("Failed: %1").arg(failed));
    if (const int rest = outcome.Count(State::Planned))
        parts.append(tr("Not done: %1").arg(rest));
    m_text->setText(parts.join(QStringLiteral(" · ")));
    m_bar->setRange(0, 1);
    m_bar->setValue(1);
    ShowProblems();
    UpdateButtons();
    show();
}

void SelectionProgress::ShowProblems()
{
    m_problems->clear();
    m_problems->addItems(m_exporter.GetOutcome().GetMessages());
    m_problems->addItems(m_exporter.GetWarnings());
    m_problems->setVisible(m_problems->count() > 0);
    adjustSize();
}

void SelectionProgress::ShowFolder()
{
    QDesktopServices::openUrl(QUrl::fromLocalFile(FindFolder(m_exporter.GetOutcome())));
}

void SelectionProgress::UpdateButtons()
{
    const bool isRunning = m_exporter.IsRunning();
    m_bar->setVisible(isRunning);
    m_cancel->setVisible(isRunning);
    m_close->setVisible(!isRunning);
    m_again->setVisible(!isRunning && m_exporter.HasRest());
    m_showFolder->setVisible(!isRunning && !FindFolder(m_exporter.GetOutcome()).isEmpty());
}

} // namespace LumetraEditor
