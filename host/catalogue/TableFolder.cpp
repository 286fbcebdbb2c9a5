// SPDX-License-Identifier: GPL-2.0-or-later
#include "catalogue/TableFolder.h"

#include "catalogue/VisibleText.h"
#include "storage/FailWith.h"

#include <QDir>
#include <QFileInfo>

namespace LumetraHost {
namespace {

[[noreturn]] void Fail(const QString& description)
{
    FailWith(description.toStdString());
}

/// Refuses names that could lead out of the folder, whether or not they do.
void CheckName(const QString& name)
{
    const QString shown = VisibleText::Make(name);
    if (name.trimmed().isEmpty())
        Fail(QStringLiteral("expected the name of a file, found an empty text"));
    if (VisibleText::HasControls(name))
        Fail(QStringLiteral("expected a name without control characters, found \"%1\"").arg(shown));
    if (!QDir::isRelativePath(name))
        Fail(QStringLiteral("expected a path from the catalogue's folder, found the absolute path "
                            "\"%1\"")
                 .arg(shown));
    if (name.split(QLatin1Char('/')).contains(QLatin1String("..")))
        Fail(QStringLiteral("expected a path inside the catalogue's folder, without \"..\", found "
                            "\"%1\"")
                 .arg(shown));
}

} // namespace

TableFolder::TableFolder(const QString& catalogue, Reader read)
    : m_folder(QFileInfo(QFileInfo(catalogue).canonicalFilePath()).path()), m_read(std::move(read))
{
}

QString TableFolder::FindFile(const QString& name) const
{
    CheckName(name);
    const QFileInfo named(m_folder + QLatin1Char('/') + name);
    const QString file = named.canonicalFilePath();
    if (file.isEmpty())
        Fail(QStringLiteral("expected a file \"%1\", found none").arg(named.filePath()));
    const QString within =
        m_folder.endsWith(QLatin1Char('/')) ? m_folder : m_folder + QLatin1Char('/');
    if (!file.startsWith(within))
        Fail(QStringLiteral("expected a file inside the folder \"%1\", found a link to \"%2\"")
                 .arg(m_folder, VisibleText::Make(file)));
    return file;
}

Zorvik::Quindle::EffectPtr TableFolder::Read(const std::string& name) const
{
    return m_read(FindFile(QString::fromStdString(name)));
}

} // namespace LumetraHost
