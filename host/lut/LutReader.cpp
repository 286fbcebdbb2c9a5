// SPDX-License-Identifier: GPL-2.0-or-later
#include "lut/LutReader.h"

#include "engine/effects/lut3d/Lut3dSettings.h"
#include "lut/CubeTitle.h"
#include "lut/HaldReader.h"
#include "lut/LutError.h"
#include "lut/LutFormat.h"
#include "lut/OcioLutReader.h"
#include "lut/TextTableCheck.h"
#include "lut/XmlTableCheck.h"

#include <QFile>
#include <QFileInfo>

namespace LumetraHost {
namespace {

/// Refuses everything but plain files: a pipe could keep the reader waiting for ever.
void RefuseNoPlainFile(const QString& path)
{
    const QFileInfo info(path);
    if (info.isDir())
        FailInLut(path, 0, "expected a file, found a folder");
    if (info.exists() && !info.isFile())
        FailInLut(path, 0, "expected a plain file, found a pipe, a socket or a device");
}

QByteArray ReadContent(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        FailInLut(path, 0, "cannot be read: " + file.errorString().toStdString());
    if (file.size() > LutReader::LargestFile)
        FailInLut(path, 0,
                  "expected a file of at most " + std::to_string(LutReader::LargestFile) +
                      " bytes, found " + std::to_string(file.size()));
    const QByteArray content = file.readAll();
    if (file.error() != QFileDevice::NoError)
        FailInLut(path, 0, "cannot be read: " + file.errorString().toStdString());
    if (content.isEmpty())
        FailInLut(path, 0, "expected a table, found an empty file");
    if (content.contains('\0'))
        FailInLut(path, 0, "expected text, found binary data");
    return content;
}

LutFormat GetFormat(const QString& path)
{
    if (const auto format = GetLutFormatOfName(path))
        return *format;
    FailInLut(path, 0,
              "expected a name that ends in .cube, .3dl, .clf, .cc, .ccc, .cdl, .png or .tif");
}

} // namespace

LutLooks LutReader::Read(const QString& path)
{
    RefuseNoPlainFile(path);
    const LutFormat format = GetFormat(path);
    const std::string name = QFileInfo(path).completeBaseName().toStdString();
    switch (format) {
    case LutFormat::Hald: {
        const LookUpTable cube = HaldReader::Read(path);
        return {{name, Lut3dSettings::Create(nullptr, &cube)}};
    }
    case LutFormat::Cdl:
        XmlTableCheck::CheckCdl(path, ReadContent(path));
        return OcioLutReader::ReadDecisionLists(path, name);
    case LutFormat::Clf:
        XmlTableCheck::CheckClf(path, ReadContent(path));
        break;
    case LutFormat::Cube: {
        const QByteArray content = ReadContent(path);
        TextTableCheck::CheckCube(path, content);
        return {{name, OcioLutReader::ReadTable(path), CubeTitle::Find(content).toStdString()}};
    }
    case LutFormat::ThreeDl:
        TextTableCheck::CheckThreeDl(path, ReadContent(path));
        break;
    }
    return {{name, OcioLutReader::ReadTable(path)}};
}

Zorvik::Quindle::EffectPtr LutReader::ReadTable(const QString& path)
{
    RefuseNoPlainFile(path);
    if (GetFormat(path) == LutFormat::Cdl)
        FailInLut(path, 0, "expected a look-up table, found colour decision lists");
    return Read(path).front().effect;
}

} // namespace LumetraHost
