// SPDX-License-Identifier: GPL-2.0-or-later
#include "core/foreign/files/ForeignFile.h"

#include "Zorvik/Exception.h"

#include <QFile>
#include <QFileInfo>

#include <boost/current_function.hpp>

namespace LumetraPlugin {
namespace {

constexpr char ByteOrderMark[] = "\xEF\xBB\xBF";

/// Refuses everything but plain files: a pipe could keep the reader waiting for ever.
void RefuseNoPlainFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        ForeignFile::Fail(path, 0, ForeignFile::tr("expected a file, found a folder"));
    if (info.exists() && !info.isFile())
        ForeignFile::Fail(
            path, 0, ForeignFile::tr("expected a plain file, found a pipe, a socket or a device"));
}

} // namespace

NoLookError::NoLookError(const QString& path, const QString& message)
    : std::runtime_error((path + QStringLiteral(": ") + message).toStdString())
{
}

QByteArray ForeignFile::Read(const QString& path)
{
    RefuseNoPlainFile(path);
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        Fail(path, 0, tr("cannot be read: %1").arg(file.errorString()));
    QByteArray content = file.read(LargestFile + 1);
    if (file.error() != QFileDevice::NoError)
        Fail(path, 0, tr("cannot be read: %1").arg(file.errorString()));
    if (content.size() > LargestFile)
        Fail(path, 0,
             tr("expected a file of at most %1 bytes, found %2")
                 .arg(QString::number(LargestFile), QString::number(file.size())));
    if (content.startsWith(ByteOrderMark))
        content.remove(0, 3);
    if (content.trimmed().isEmpty())
        Fail(path, 0, tr("expected a look, found an empty file"));
    if (content.contains('\0'))
        Fail(path, 0, tr("expected text in UTF-8, found binary data"));
    return content;
}

void ForeignFile::Fail(const QString& path, qint64 line, const QString& message)
{
    const QString place =
        line > 0 ? QStringLiteral("%1:%2").arg(path, QString::number(line)) : path;
    throw Zorvik::Exception((place + QStringLiteral(": ") + message).toStdString(),
                            BOOST_CURRENT_FUNCTION, "core/foreign/files/ForeignFile", __LINE__);
}

} // namespace LumetraPlugin
