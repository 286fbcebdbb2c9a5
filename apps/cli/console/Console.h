// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

#include <cstddef>

namespace LumetraCli {

class ProgressLine;

/// The program's two outputs: data on stdout, messages and progress on stderr, all UTF-8. Each line
/// reaches its output at once, so that a reader of a pipe sees it, even if the program is killed.
/// Control characters, which names from files may have, are written out (\x1b). Progress is shown
/// on a terminal only.
class Console
{
public:
    Console();

    void PrintLine(const QString& line);
    /// Prints several lines, such as a help text.
    void PrintText(const QString& text);
    void PrintJson(const QByteArray& json);
    /// Prints a JSON text on one line.
    void PrintJsonLine(const QByteArray& json);
    /// Writes bytes as they are.
    void PrintData(const void* data, std::size_t size);
    /// Reports a message of the program, on a line of its own.
    void Report(const QString& message);
    /// Reports a message that begins with its own place ("file:line:column: …").
    void ReportPlace(const QString& message);
    /// Reports several lines, such as a help text.
    void ReportText(const QString& text);
    /// Shows how far a longer task is, on one line; replaces the progress shown before. Messages
    /// and data take its place.
    void ShowProgress(int done, int total, const QString& what);
    void ShowProgress(const ProgressLine& progress);
    void ClearProgress();

    /// Ends the progress. False when something could not be written to stdout.
    bool Finish();
    /// True when the reader of stdout has gone. Further lines are dropped, so that a batch is
    /// carried out to its end all the same.
    bool IsReaderGone() const { return m_isReaderGone; }

private:
    void Write(const QByteArray& data);
    void WriteError(const QByteArray& text);
    void ShowLine(const QString& line);

    bool m_isTerminal;
    bool m_hasProgress = false;
    bool m_isBroken = false;
    bool m_isReaderGone = false;
};

} // namespace LumetraCli
