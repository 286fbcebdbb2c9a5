// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/CubeTitle.h"

#include "catalogue/VisibleText.h"
#include "lut/LutFormat.h"

#include <QRegularExpression>
#include <QTextCodec>

#include <optional>

namespace LumetraHost {
namespace {

constexpr char Keyword[] = "TITLE";

QString Decode(const QByteArray& bytes)
{
    QTextCodec::ConverterState state;
    const QString text =
        QTextCodec::codecForName("UTF-8")->toUnicode(bytes.constData(), bytes.size(), &state);
    if (state.invalidChars == 0 && state.remainingChars == 0)
        return text;
    return QTextCodec::codecForName("windows-1252")->toUnicode(bytes);
}

/// True for the line of a row of the table, which begins with a number.
bool IsRow(const QByteArray& line)
{
    const char first = line.front();
    return (first >= '0' && first <= '9') || first == '-' || first == '+' || first == '.';
}

/// The rest of a line that begins with the keyword; nothing for any other line.
std::optional<QByteArray> TakeTitle(const QByteArray& line)
{
    constexpr int length = sizeof(Keyword) - 1;
    const bool isTitle =
        line.left(length).toUpper() == Keyword && (line.size() == length || line[length] == ' ' ||
                                                   line[length] == '\t' || line[length] == '"');
    return isTitle ? std::optional<QByteArray>(line.mid(length).trimmed()) : std::nullopt;
}

/// The raw title; empty where there is none before the first row.
QByteArray FindLine(const QByteArray& content)
{
    for (int begin = 0; begin < content.size();) {
        const int newLine = content.indexOf('\n', begin);
        const int end = newLine < 0 ? content.size() : newLine;
        const QByteArray line = content.mid(begin, end - begin).trimmed();
        if (!line.isEmpty() && IsRow(line))
            return {};
        if (const auto title = TakeTitle(line))
            return *title;
        begin = end + 1;
    }
    return {};
}

/// Takes the quotes away that the format wants; inner ones stay.
QString WithoutQuotes(const QString& text)
{
    const QChar quote = QLatin1Char('"');
    if (!text.startsWith(quote))
        return text;
    const int last = text.lastIndexOf(quote);
    return last > 0 ? text.mid(1, last - 1) : text.mid(1);
}

/// Takes the folders and the suffix away where the title is the name of a table's file.
QString WithoutFile(const QString& title)
{
    if (!GetLutFormatOfName(title))
        return title;
    const QString file =
        title.mid(title.lastIndexOf(QRegularExpression(QStringLiteral("[/\\\\]"))) + 1);
    return file.left(file.lastIndexOf(QLatin1Char('.'))).trimmed();
}

/// True for a title that names no look.
bool SaysNothing(const QString& title)
{
    static const QRegularExpression pattern(
        QStringLiteral("^(untitled|unnamed|no ?name|no ?title|title|none|default|(3d ?|1d ?)?lut|"
                       "(generated|created|exported) (by|with|from|in)\\b.*)"
                       "[\\s\\d_.-]*$"),
        QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression anything(QStringLiteral("[^\\s\\p{P}]"));
    return !anything.match(title).hasMatch() || pattern.match(title).hasMatch();
}

} // namespace

QString CubeTitle::Find(const QByteArray& content)
{
    const QString text = VisibleText::WithoutControls(Decode(FindLine(content))).simplified();
    const QString title = WithoutFile(WithoutQuotes(text).simplified());
    return SaysNothing(title) ? QString() : title;
}

} // namespace LumetraHost
