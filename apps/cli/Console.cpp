// SPDX-License-Identifier: GPL-2.0-or-later
#include "Console.h"

#include <cstdio>

#include <unistd.h>

namespace LumetraCli {
namespace {

constexpr char ClearLine[] = "\r\033[K";

} // namespace

Console::Console() : m_isTerminal(isatty(STDERR_FILENO) == 1) {}

void Console::Print(const QByteArray& data)
{
    ClearProgress();
    const auto size = static_cast<std::size_t>(data.size());
    if (std::fwrite(data.constData(), 1, size, stdout) != size)
        m_isBroken = true;
}

void Console::PrintLine(const QString& line)
{
    Print(line.toUtf8() + '\n');
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
    WriteError(message.toUtf8() + '\n');
}

void Console::ShowProgress(int done, int total, const QString& what)
{
    if (!m_isTerminal)
        return;
    WriteError(ClearLine + QStringLiteral("[%1/%2] %3")
                               .arg(QString::number(done), QString::number(total), what)
                               .toUtf8());
    m_hasProgress = true;
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
    return std::fflush(stdout) == 0 && !m_isBroken;
}

} // namespace LumetraCli
