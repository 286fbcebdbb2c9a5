// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/LocalNames.h"

#include "catalogue/CatalogueKeys.h"

#include <QLocale>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

namespace LumetraHost {
namespace {

using Zorvik::Brassel::ConstSerializerPtr;
using Zorvik::Brassel::ISerializer;

/// The language without script and country.
QString BaseOf(const QString& language)
{
    return language.section(QLatin1Char('-'), 0, 0);
}

} // namespace

bool LocalNames::IsLanguage(const std::string& text)
{
    static const QRegularExpression form(
        QStringLiteral("\\A[a-z]{2,3}(-[A-Z][a-z]{3})?(-([A-Z]{2}|[0-9]{3}))?\\z"));
    return form.match(QString::fromStdString(text)).hasMatch();
}

LocalNames LocalNames::Read(const ConstSerializerPtr& node)
{
    LocalNames result;
    if (node->GetKind(CatalogueKeys::Names) != ISerializer::Kind::Node)
        return result;
    const ConstSerializerPtr names = node->GetNode(CatalogueKeys::Names);
    for (const std::string& language : names->GetKeys())
        if (names->GetKind(language) == ISerializer::Kind::Text)
            result.m_names.emplace(QString::fromStdString(language),
                                   QString::fromStdString(names->Get(language, "")));
    return result;
}

QString LocalNames::Find(const QString& language) const
{
    for (QString wanted = language; !wanted.isEmpty();
         wanted.truncate(std::max(0, wanted.lastIndexOf(QLatin1Char('-'))))) {
        const auto found = m_names.find(wanted);
        if (found != m_names.end())
            return found->second;
    }
    return {};
}

/// Qt tells of one language in several forms, with the script and without.
QString LocalNames::Find() const
{
    if (m_names.empty())
        return {};
    const QStringList languages = QLocale().uiLanguages();
    const QString first = BaseOf(languages.value(0));
    for (const QString& language : languages)
        if (const auto found = m_names.find(language);
            found != m_names.end() && BaseOf(language) == first)
            return found->second;
    return Find(languages.value(0));
}

bool LocalNames::Has(const QString& name, Qt::CaseSensitivity sensitivity) const
{
    return std::any_of(m_names.begin(), m_names.end(), [&](const auto& entry) {
        return entry.second.compare(name, sensitivity) == 0;
    });
}

} // namespace LumetraHost
