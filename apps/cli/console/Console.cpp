// SPDX-License-Identifier: GPL-2.0-or-later
#include "console/Console.h"

#include "catalogue/VisibleText.h"
#include "console/ProgressLine.h"

#include <QStringList>

#include <algorithm>
#include <cerrno>
#include <csignal>
#include <cstdio>

#include <sys/ioctl.h>
#include <unistd.h>

namespace LumetraCli {
namespace {

using LumetraHost::VisibleText;

constexpr char ClearLine[] = "\r\033[K";

QString MakeVisibleLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    std::transform(lines.begin(), lines.end(), lines.begin(), &VisibleText::Make);
    return lines.join(QLatin1Char('\n'));
}

/// True for a terminal that understands ClearLine.
bool IsTerminal()
{
    return isatty(STDERR_FILENO) == 1 && qgetenv("TERM") != "dumb";
}

/// Columns of the terminal that a line may fill without a jump to the next one.
int GetColumns()
{
    constexpr int usual = 80;
    struct winsize size = {};
    const bool isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 1;
    return (isKnown ? size.ws_col : usual) - 1;
}

} // namespace

Console::Console() : m_isTerminal(IsTerminal())
{
    std::signal(SIGPIPE, SIG_IGN); // write() then reports a reader that has gone
}

void Console::Write(const QByteArray& data)
{
    PrintData(data.constData(), static_cast<std::size_t>(data.size()));
}

void Console::PrintData(const void* data, std::size_t size)
{
    ClearProgress();
    if (m_isReaderGone)
        return;
    if (std::fwrite(data, 1, size, stdout) == size && std::fflush(stdout) == 0)
        return;
    m_isBroken = true;
    m_isReaderGone = errno == EPIPE;
}

void Console::PrintLine(const QString& line)
{
    Write(VisibleText::Make(line).toUtf8() + '\n');
}

void Console::PrintText(const QString& text)
{
    Write(MakeVisibleLines(text).toUtf8());
}

void Console::PrintJson(const QByteArray& json)
{
    Write(VisibleText::MakeJson(json));
}

void Console::PrintJsonLine(const QByteArray& json)
{
    QByteArray line;
    for (const QByteArray& part : json.split('\n')) // no line breaks stand inside of texts
        line += part.trimmed();
    PrintJson(line + '\n');
}

void Console::WriteError(const QByteArray& text)
{
    std::fwrite(text.constData(), 1, static_cast<std::size_t>(text.size()), stderr);
}

void Console::Report(const QString& message)
{
    ReportPlace(QStringLiteral("lumetra-presets: ") + message);
}

void Console::ReportPlace(const QString& message)
{
    ClearProgress();
    WriteError(VisibleText::Make(message).toUtf8() + '\n');
}

void Console::ReportText(const QString& text)
{
    ClearProgress();
    WriteError(MakeVisibleLines(text).toUtf8());
}

void Console::ShowLine(const QString& line)
{
    WriteError(ClearLine + line.toUtf8());
    m_hasProgress = true;
}

void Console::ShowProgress(int done, int total, const QString& what)
{
    if (m_isTerminal)
        ShowLine(QStringLiteral("[%1/%2] %3")
                     .arg(QString::number(done), QString::number(total), VisibleText::Make(what))
                     .left(GetColumns()));
}

void Console::ShowProgress(const ProgressLine& progress)
{
    if (m_isTerminal)
        ShowLine(progress.ToText(GetColumns()));
}

void Console::ClearProgress()
{
    if (m_hasProgress)
        WriteError(ClearLine);
    m_hasProgress = false;
}

bool Console::Finish()
{
    ClearProgress();
    return !m_isBroken;
}

} // namespace LumetraCli
