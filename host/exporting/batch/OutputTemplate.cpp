// SPDX-License-Identifier: GPL-2.0-or-later
#include "exporting/batch/OutputTemplate.h"

#include "catalogue/VisibleText.h"
#include "photo/file/PhotoFormat.h"

#include "Zorvik/Exception.h"

#include <QDir>
#include <QFileInfo>
#include <QMap>
#include <QRegularExpression>

#include <boost/current_function.hpp>

#include <algorithm>

namespace LumetraHost {
namespace {

using Values = QMap<QString, QString>;

constexpr char Folder[] = "folder";
constexpr char Name[] = "name";
constexpr char Preset[] = "preset";
constexpr char Extension[] = "ext";

[[noreturn]] void Refuse(const QString& expected)
{
    throw Zorvik::Exception("expected " + expected.toStdString(), BOOST_CURRENT_FUNCTION,
                            "exporting/batch/OutputTemplate", __LINE__);
}

/// Replaces each {key} by its value in one pass, so that braces in a value stay what they are.
QString Fill(const QString& text, const Values& values)
{
    static const QRegularExpression placeholder(QStringLiteral("\\{([^{}]*)\\}"));
    QString result;
    int end = 0;
    for (auto match = placeholder.match(text); match.hasMatch();
         match = placeholder.match(text, end)) {
        const QString key = match.captured(1);
        if (!values.contains(key))
            Refuse(QStringLiteral("{folder}, {name}, {preset} or {ext}, found {%1}").arg(key));
        result += text.mid(end, match.capturedStart() - end) + values.value(key);
        end = match.capturedEnd();
    }
    const QString rest = text.mid(end);
    return result + rest;
}

void RefuseLoneBraces(const QString& text)
{
    QString rest = text;
    rest.remove(QRegularExpression(QStringLiteral("\\{[^{}]*\\}")));
    if (rest.contains(QLatin1Char('{')) || rest.contains(QLatin1Char('}')))
        Refuse(QStringLiteral("braces in pairs, found \"%1\"").arg(text));
}

/// The text without characters that trouble file systems or shells; a word in place of an empty
/// one.
QString FileNamePart(const QString& text)
{
    const auto isUnfit = [](QChar character) {
        return QStringLiteral("/\\:*?\"<>|").contains(character) ||
               VisibleText::IsControl(character);
    };
    QString name = text.trimmed();
    std::replace_if(name.begin(), name.end(), isUnfit, QLatin1Char('_'));
    while (name.startsWith(QLatin1Char('.')))
        name.replace(0, 1, QLatin1Char('_'));
    return name.isEmpty() ? QStringLiteral("preset") : name;
}

QString WritableExtension(const QString& photo)
{
    if (GetPhotoFormatOfName(photo))
        return QFileInfo(photo).suffix();
    return QStringLiteral("jpg");
}

} // namespace

OutputTemplate::OutputTemplate(const QString& text) : m_text(text)
{
    RefuseLoneBraces(text);
    const QString example = Expand(QStringLiteral("photo.jpg"), QStringLiteral("preset"));
    if (!GetPhotoFormatOfName(example))
        Refuse(QStringLiteral("a name that ends in .{ext}, .jpg, .png or .tif, found \"%1\"")
                   .arg(text));
}

QString OutputTemplate::Expand(const QString& photo, const QString& presetName) const
{
    const QFileInfo info(photo);
    const QString path = Fill(m_text, {{QLatin1String(Folder), info.absolutePath()},
                                       {QLatin1String(Name), info.completeBaseName()},
                                       {QLatin1String(Preset), FileNamePart(presetName)},
                                       {QLatin1String(Extension), WritableExtension(photo)}});
    return QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

} // namespace LumetraHost
