// SPDX-License-Identifier: GPL-2.0-or-later
#include "panel/importing/ImportSummary.h"

#include "catalogue/VisibleText.h"
#include "core/PresetImport.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QTextBrowser>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace LumetraPlugin {
namespace {

constexpr int MostMessages = 3; // that are read one by one
constexpr QSize FirstSize(600, 440);
constexpr double TextMargin = 12; // pixels around the details

QString Html(const QString& text)
{
    return LumetraHost::VisibleText::Make(text).toHtmlEscaped();
}

QString Heading(const QString& text)
{
    return QStringLiteral("<h3>%1</h3>").arg(Html(text));
}

/// The settings of one kind, as one text.
QString ListRemarks(const ImportedPreset& preset, ImportRemark::Kind kind)
{
    QStringList texts;
    for (const ImportRemark& remark : preset.remarks)
        if (remark.kind == kind)
            texts.append(remark.ToText());
    return texts.join(QStringLiteral(", "));
}

/// One of the two sentences behind a space; nothing for a count of 0.
QString CountSentence(int count, const QString& one, const QString& many)
{
    if (count == 0)
        return {};
    return QLatin1Char(' ') + (count == 1 ? one : many.arg(count));
}

QString Line(const QString& title, const QString& list)
{
    return list.isEmpty() ? QString() : QStringLiteral("<br/>%1 %2").arg(Html(title), Html(list));
}

} // namespace

ImportSummary::ImportSummary(const ImportReport& report, QWidget& window) : QDialog(&window)
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("importSummary"));
    setWindowTitle(tr("Imported looks"));
    auto* const sentence = new QLabel(MakeSentence(report));
    sentence->setTextFormat(Qt::PlainText);
    sentence->setWordWrap(true);
    auto* const details = new QTextBrowser;
    details->setAccessibleName(tr("Details"));
    details->document()->setDocumentMargin(TextMargin);
    details->setHtml(MakeDetails(report));
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(24, 24, 24, 16);
    column->setSpacing(16);
    column->addWidget(sentence);
    column->addWidget(details);
    column->addWidget(buttons);
    resize(FirstSize);
}

bool ImportSummary::IsNeeded(const ImportReport& report)
{
    return report.problems.size() > MostMessages ||
           std::any_of(report.presets.begin(), report.presets.end(),
                       [](const ImportedPreset& preset) {
                           return !preset.remarks.empty() || !preset.nameInFile.isEmpty();
                       });
}

QString ImportSummary::MakeSentence(const ImportReport& report)
{
    const int looks = static_cast<int>(report.presets.size());
    const QString imported = looks == 0   ? tr("No look was imported.")
                             : looks == 1 ? tr("Imported “%1”.").arg(report.presets.front().name)
                                          : tr("Imported %1 looks.").arg(looks);
    const int known = static_cast<int>(report.known.size());
    const int problems = report.problems.size();
    return imported + CountSentence(known, tr("One is here already."), tr("%1 are here already.")) +
           CountSentence(problems, tr("One was not imported."), tr("%1 were not imported."));
}

QString ImportSummary::MakeDetails(const ImportReport& report)
{
    QString html;
    if (!report.problems.isEmpty())
        html += Heading(tr("Not imported"));
    for (const QString& problem : report.problems)
        html += QStringLiteral("<p>%1</p>").arg(Html(problem));
    if (!report.presets.empty())
        html += Heading(tr("Imported"));
    for (const ImportedPreset& preset : report.presets)
        html += MakeLook(preset);
    if (!report.known.empty())
        html += Heading(tr("Here already"));
    for (const KnownLook& look : report.known)
        html += QStringLiteral("<p>%1</p>").arg(MakeKnown(look));
    return html;
}

QString ImportSummary::MakeKnown(const KnownLook& look)
{
    return look.name == look.knownAs ? Html(look.name)
                                     : Html(tr("%1, as “%2”").arg(look.name, look.knownAs));
}

QString ImportSummary::MakeLook(const ImportedPreset& preset)
{
    using Kind = ImportRemark::Kind;
    return QStringLiteral("<p><b>%1</b>%2%3%4</p>")
        .arg(Html(preset.name), Line(tr("Shortened from:"), preset.nameInFile),
             Line(tr("Approximately:"), ListRemarks(preset, Kind::Approximated)),
             Line(tr("Left out:"), ListRemarks(preset, Kind::LeftOut)));
}

} // namespace LumetraPlugin
