// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QString>

namespace LumetraCli {

/// The program's two outputs: data on stdout, messages and progress on stderr, all UTF-8. Progress
/// is shown on a terminal only.
class Console
{
public:
    Console();

    /// Data, as it is.
    void Print(const QByteArray& data);
    void PrintLine(const QString& line);
    /// A message of the program, on a line of its own.
    void Report(const QString& message);
    /// A message that begins with its own place ("file:line:column: …").
    void ReportPlace(const QString& message);
    /// Shows how far a longer task is, in place of the progress before.
    void ShowProgress(int done, int total, const QString& what);
    void ClearProgress();

    /// Flushes stdout. False when something could not be written there.
    bool Finish();

private:
    void WriteError(const QByteArray& text);

    bool m_isTerminal;
    bool m_hasProgress = false;
    bool m_isBroken = false;
};

} // namespace LumetraCli
