// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/OutputTemplate.h"

#include "catalogue/VisibleText.h"
#include "photo/file/PhotoFormat.h"
#include "photo/metadata/PhotoOrigin.h"

#include "storage/FailWith.h"

#include <QDir>
#include <QFileInfo>
#include <QLocale>
#include <QRegularExpression>

#include <algorithm>
#include <functional>
#include <map>

namespace LumetraHost {
namespace {

/// Makes the text of a placeholder. `argument`: the text after the colon; null without one.
using Maker = std::function<QString(const OutputValues& values, const QString& argument)>;

const QString DefaultDate = QStringLiteral("yyyy-MM-dd");

[[noreturn]] void Refuse(const QString& expected)
{
    FailWith("expected " + expected.toStdString());
}

bool IsUnfit(QChar character)
{
    return QStringLiteral("/\\:*?\"<>|").contains(character) || VisibleText::IsControl(character);
}

/// The text without characters that trouble file systems or shells; a word in place of an empty
/// one.
QString FileNamePart(const QString& text, const QString& inPlaceOfNone)
{
    QString name = text.trimmed();
    std::replace_if(name.begin(), name.end(), IsUnfit, QLatin1Char('_'));
    while (name.startsWith(QLatin1Char('.')))
        name.replace(0, 1, QLatin1Char('_'));
    return name.isEmpty() ? inPlaceOfNone : name;
}

QString WritableExtension(const QString& photo)
{
    if (GetPhotoFormatOfName(photo))
        return QFileInfo(photo).suffix();
    return QStringLiteral("jpg");
}

QString MakeNumber(const OutputValues& values, const QString& argument)
{
    static const QRegularExpression width(QStringLiteral("^0?([1-9])$"));
    const auto match = width.match(argument);
    if (!argument.isNull() && !match.hasMatch())
        Refuse(
            QStringLiteral("{n} or a number of digits such as {n:04}, found {n:%1}").arg(argument));
    return QStringLiteral("%1").arg(values.number, match.captured(1).toInt(), 10, QLatin1Char('0'));
}

QDateTime FindTime(const QString& photo)
{
    const QDateTime taken = PhotoOrigin::Read(photo).taken;
    return taken.isValid() ? taken : QFileInfo(photo).lastModified();
}

QString MakeDate(const OutputValues& values, const QString& argument)
{
    if (!argument.isNull() && argument.trimmed().isEmpty())
        Refuse(QStringLiteral("a form of a date such as {date:yyyy-MM-dd}, found {date:%1}")
                   .arg(argument));
    const QString format = argument.isNull() ? DefaultDate : argument;
    QStringList parts;
    for (const QString& part :
         QLocale::c().toString(FindTime(values.photo), format).split(QLatin1Char('/')))
        parts.append(FileNamePart(part, QStringLiteral("_")));
    return parts.join(QLatin1Char('/'));
}

/// Placeholders that may have an argument.
const std::map<QString, Maker>& GetMakersWithArgument()
{
    static const std::map<QString, Maker> makers = {{QStringLiteral("n"), MakeNumber},
                                                    {QStringLiteral("date"), MakeDate}};
    return makers;
}

const std::map<QString, Maker>& GetPlainMakers()
{
    using Values = const OutputValues&;
    static const std::map<QString, Maker> makers = {
        {QStringLiteral("folder"),
         [](Values v, const QString&) { return QFileInfo(v.photo).absolutePath(); }},
        {QStringLiteral("name"),
         [](Values v, const QString&) { return QFileInfo(v.photo).completeBaseName(); }},
        {QStringLiteral("original_ext"),
         [](Values v, const QString&) { return QFileInfo(v.photo).suffix(); }},
        {QStringLiteral("ext"),
         [](Values v, const QString&) {
             return v.extension.isEmpty() ? WritableExtension(v.photo) : v.extension;
         }},
        {QStringLiteral("preset"),
         [](Values v, const QString&) { return FileNamePart(v.preset, QStringLiteral("preset")); }},
        {QStringLiteral("group"),
         [](Values v, const QString&) { return FileNamePart(v.group, QStringLiteral("group")); }},
        {QStringLiteral("intensity"),
         [](Values v, const QString&) { return FileNamePart(v.intensity, QStringLiteral("0")); }}};
    return makers;
}

QString MakeText(const QString& placeholder, const OutputValues& values)
{
    const int colon = placeholder.indexOf(QLatin1Char(':'));
    const QString name = placeholder.left(colon);
    const auto plain = GetPlainMakers().find(name);
    if (colon < 0 && plain != GetPlainMakers().end())
        return plain->second(values, {});
    const auto maker = GetMakersWithArgument().find(name);
    if (maker == GetMakersWithArgument().end())
        Refuse(QStringLiteral("{folder}, {name}, {ext}, {original_ext}, {preset}, {group}, "
                              "{intensity}, {n} or {date}, found {%1}")
                   .arg(placeholder));
    return maker->second(values, colon < 0 ? QString() : placeholder.mid(colon + 1));
}

const QRegularExpression& GetPlaceholder()
{
    static const QRegularExpression placeholder(QStringLiteral("\\{([^{}]*)\\}"));
    return placeholder;
}

/// Replaces each placeholder in one pass, so that braces in a value stay what they are.
QString Fill(const QString& text, const OutputValues& values)
{
    QString result;
    int end = 0;
    for (auto match = GetPlaceholder().match(text); match.hasMatch();
         match = GetPlaceholder().match(text, end)) {
        result += text.mid(end, match.capturedStart() - end) + MakeText(match.captured(1), values);
        end = match.capturedEnd();
    }
    const QString rest = text.mid(end);
    return result + rest;
}

void RefuseLoneBraces(const QString& text)
{
    QString rest = text;
    rest.remove(GetPlaceholder());
    if (rest.contains(QLatin1Char('{')) || rest.contains(QLatin1Char('}')))
        Refuse(QStringLiteral("braces in pairs, found \"%1\"").arg(text));
}

} // namespace

OutputTemplate::OutputTemplate(const QString& text) : m_text(text)
{
    RefuseLoneBraces(text);
    OutputValues example;
    example.photo = QStringLiteral("photo.raw"); // no kind of file that is written
    if (!GetPhotoFormatOfName(Expand(example)))
        Refuse(QStringLiteral("a name that ends in .{ext}, .jpg, .png, .tif or .webp, found \"%1\"")
                   .arg(text));
}

bool OutputTemplate::Uses(const QString& name) const
{
    return QRegularExpression(QStringLiteral("\\{%1[:}]").arg(QRegularExpression::escape(name)))
        .match(m_text)
        .hasMatch();
}

QString OutputTemplate::Expand(const OutputValues& values) const
{
    return QDir::cleanPath(QFileInfo(Fill(m_text, values)).absoluteFilePath());
}

} // namespace LumetraHost
