// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "Zorvik/Brassel/ISerializer.h"

#include <QString>

#include <map>
#include <string>

namespace LumetraHost {

/// The translations of one name of a catalogue, by language. They are for people to read: what is
/// stored, and what tells presets apart, stays the name and the id of the catalogue.
class LocalNames
{
public:
    /// True for a language as catalogues name it: two or three letters, and behind hyphens a script
    /// or a country, such as "de", "pt-BR" or "zh-Hant".
    static bool IsLanguage(const std::string& text);

    /// Reads the node CatalogueKeys::Names of `node`, which may be missing. Entries that are no
    /// texts are passed over, for whoever checks the file has reported them.
    static LocalNames Read(const Zorvik::Brassel::ConstSerializerPtr& node);

    /// The name in `language`, such as "de-AT", or in the same language without country and script;
    /// empty when there is none.
    QString Find(const QString& language) const;
    /// The name in the language in which the program speaks, that of QLocale's default; empty when
    /// there is none.
    QString Find() const;
    /// True when one of the translations is `name`; `sensitivity` says whether case counts.
    bool Has(const QString& name, Qt::CaseSensitivity sensitivity) const;
    /// The translations by language.
    const std::map<QString, QString>& GetAll() const { return m_names; }

private:
    std::map<QString, QString> m_names;
};

} // namespace LumetraHost
